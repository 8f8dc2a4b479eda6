#pragma once

#include "charts/pie/PieLayout.h"
#include "data/PieData.h"
#include "documents/ChartStream.h"
#include "documents/Json.h"
#include "penlode/Color.h"

#include <string>
#include <vector>

namespace cli {

/// The slices of one pie or half pie: a document's values, with the names and colours that its record gives
/// or lacks.
class PieSlices {
public:
    /// Lets the records that are loaded from here on have their names as a list and no colours.
    static void AllowShortForms(ChartStream& stream);

    PieSlices() = default;

    /// Completes a PieBasicProp or HalfPieBasicProp, which was loaded from `place`. More names than a pie can
    /// show are told.
    template <class Basic>
    PieSlices(const ChartStream& stream, PieData data, Basic& basic, std::string place,
              std::vector<Message>& messages)
        : m_place(std::move(place)), m_data(std::move(data)) {
        Complete(stream, basic.ComponentName, basic.ComponentColor, messages);
    }

    const std::vector<double>& Values() const { return m_data.Values; }

    /// What was hardly meant, `width` being the whole circle's.
    template <class Basic> std::vector<Message> Doubts(const Basic& basic, float width) const {
        return Doubts(basic.ComponentName.size(), basic.ComponentColor.size(), basic.FixedSize != 0, width);
    }

    /// What is told of a chart without size.
    Message Emptiness() const;

    /// A half pie in a chart of several keeps as many label offsets as it has names; tells when that takes
    /// some of the `count` at `place` away.
    template <class Basic>
    void DoubtOffsets(std::size_t count, const std::string& place, const Basic& basic) {
        DoubtOffsets(count, place, basic.ComponentName.size());
    }

private:
    void Complete(const ChartStream& stream, std::vector<std::string>& names,
                  std::vector<penlode::Color>& colors, std::vector<Message>& messages);
    void TakeNames(std::vector<std::string>& names);
    void DoubtOffsets(std::size_t count, const std::string& place, std::size_t names);
    Message Smallness(float width, bool isFixed) const;
    std::vector<Message> Doubts(std::size_t names, std::size_t colors, bool isFixed, float width) const;

    std::string m_place;
    PieData m_data;
    std::vector<Message> m_doubts; ///< those of the load
};

/// Without the legend, which only a whole pie has.
Json PieLayoutToJson(const millichart::PieLayout& layout);

} // namespace cli
