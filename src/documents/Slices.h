#pragma once

#include "documents/ChartData.h"
#include "documents/ChartStream.h"
#include "documents/DataSource.h"
#include "documents/SavingStream.h"
#include "penlode/Color.h"
#include "penlode/streams/Diagnostic.h"

#include <string>
#include <vector>

namespace millichart::documents {

/// Where a document has one pie or half pie.
struct SlicesPlace {
    std::string Record; ///< of the PieBasicProp or HalfPieBasicProp
    std::string Data;   ///< of the group in which the values stand
};

/// The stream's group "data": "values", or "csv" with a table of names and values. What is wrong is told;
/// data with more slices than a pie can show are told and empty.
SliceData LoadSlices(ChartStream& stream, const DataSource& source);

/// Two pies in the group "data": "first" and "second", each as LoadSlices has its group, or "csv" with a
/// table of names and each half's values, under a heading.
void LoadHalves(ChartStream& stream, const DataSource& source, SliceData& first, SliceData& second);

/// Empties names of which there are more than a pie can show, which is told.
void CheckSliceNames(const SlicesPlace& place, std::vector<std::string>& names,
                     std::vector<penlode::Diagnostic>& diagnostics);

/// Into the stream's current group. `names` are the record's, which was saved before.
void SaveSlices(SavingStream& stream, const SlicesPlace& place, const SliceData& data,
                const std::vector<std::string>& names);

/// The slices of one pie while it is laid out.
class Slices {
public:
    /// Completes the names and colours that a record leaves open.
    template <class Basic>
    Slices(const SlicesPlace& place, const SliceData& data, Basic& basic, const OpenPlaces& open)
        : m_place(place), m_data(data), m_names(basic.ComponentName), m_colors(basic.ComponentColor),
          m_isFixed(basic.FixedSize != 0) {
        Complete(open);
    }

    /// A half pie in a chart of several keeps as many label offsets as it has names; tells when that takes
    /// some of the `count` at `place` away.
    void DoubtOffsets(std::size_t count, const std::string& place);

    /// Tells what was hardly meant, `width` being the whole circle's.
    void Doubt(float width, std::vector<penlode::Diagnostic>& diagnostics);

    /// What is told of a chart without size.
    penlode::Diagnostic Emptiness() const;

private:
    void Complete(const OpenPlaces& open);
    void DoubtSize(float width, double total);
    void DoubtCount(const char* key, std::size_t count, const char* noun);

    const SlicesPlace& m_place;
    const SliceData& m_data;
    std::vector<std::string>& m_names;
    std::vector<penlode::Color>& m_colors;
    bool m_isFixed;
    std::vector<penlode::Diagnostic> m_doubts;
};

} // namespace millichart::documents
