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

/// Lets the records that are loaded from here on have their names as a list and no colours.
void AllowSliceShortForms(ChartStream& stream);

/// The stream's group "data": "values", or "csv" with a table of names and values. What is wrong is told;
/// data with more slices than a pie can show are told and empty.
SliceData LoadSlices(ChartStream& stream, const DataSource& source);

/// Two pies in the group "data": "first" and "second", each as LoadSlices has its group, or "csv" with a
/// table of names and each half's values, under a heading.
void LoadHalves(ChartStream& stream, const DataSource& source, SliceData& first, SliceData& second);

/// Empties names of which there are more than a pie can show, which is told.
void CheckSliceNames(const SlicesPlace& place, std::vector<std::string>& names,
                     std::vector<penlode::Diagnostic>& diagnostics);

/// Into the stream's current group.
void SaveSlices(SavingStream& stream, const SliceData& data);

/// The slices of one pie while it is laid out.
class Slices {
public:
    Slices(const SlicesPlace& place, const SliceData& data, std::vector<penlode::Diagnostic>& diagnostics)
        : m_place(place), m_data(data), m_diagnostics(diagnostics) {}

    /// The names and colours that a record leaves open.
    template <class Basic> void Complete(Basic& basic, const OpenPlaces& open) {
        Complete(basic.ComponentName, basic.ComponentColor, open);
    }

    /// A half pie in a chart of several keeps as many label offsets as it has names; tells when that takes
    /// some of the `count` at `place` away.
    template <class Basic>
    void DoubtOffsets(std::size_t count, const std::string& place, const Basic& basic) {
        DoubtOffsets(count, place, basic.ComponentName.size());
    }

    /// Tells what was hardly meant, `width` being the whole circle's.
    template <class Basic> void Doubt(const Basic& basic, float width) {
        Doubt(basic.ComponentName.size(), basic.ComponentColor.size(), basic.FixedSize != 0, width);
    }

    /// What is told of a chart without size.
    penlode::Diagnostic Emptiness() const;

private:
    void Complete(std::vector<std::string>& names, std::vector<penlode::Color>& colors,
                  const OpenPlaces& open);
    void DoubtOffsets(std::size_t count, const std::string& place, std::size_t names);
    penlode::Diagnostic Smallness(float width, bool isFixed) const;
    void Doubt(std::size_t names, std::size_t colors, bool isFixed, float width);

    const SlicesPlace& m_place;
    const SliceData& m_data;
    std::vector<penlode::Diagnostic>& m_diagnostics;
    std::vector<penlode::Diagnostic> m_ofCompletion;
};

} // namespace millichart::documents
