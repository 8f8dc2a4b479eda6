#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "documents/ChartData.h"
#include "documents/ChartStream.h"
#include "documents/DataSource.h"
#include "documents/SavingStream.h"
#include "penlode/streams/Diagnostic.h"

#include <string>
#include <vector>

namespace millichart::documents {

/// The stream's group "data": "groups", each a name and values, or under `csvKey` a table of group names and
/// values a component, under a heading with the components' names. What is wrong is told.
BarData LoadBars(ChartStream& stream, const DataSource& source, const char* csvKey = "csv");

/// Into the stream's group "data".
void SaveBars(SavingStream& stream, const BarData& data, const char* csvKey = "csv");

/// The bars of a chart while it is laid out.
class Bars {
public:
    /// Completes a plot's record, which was loaded from `place`, and in a stack closes the gaps.
    Bars(std::string place, BarData& data, HistogramPlotProp& plot, const OpenPlaces& open);

    /// The largest value, or the largest sum on the way up a stack. -infinity when there is none.
    double Largest() const;

    /// Tells what was hardly meant in the chart that shows them.
    void Doubt(const CBasicHistogram& chart, std::vector<penlode::Diagnostic>& diagnostics) const;

    /// Warns if a linear axis that another range could be given is far too long for them.
    void DoubtVisibility(const CBasicHistogram& chart, std::vector<penlode::Diagnostic>& diagnostics) const;

    /// What is told of a chart that has nothing to draw.
    penlode::Diagnostic Emptiness() const;

private:
    void CloseGaps();
    std::vector<penlode::Diagnostic> DoubtSizes(const CBasicHistogram& chart) const;
    void DoubtRange(const CBasicHistogram& chart, std::vector<penlode::Diagnostic>& diagnostics) const;
    template <class Look> void ForEachHeight(const Look& look) const;

    std::string m_place;
    BarData& m_data;
    std::size_t m_components;
    bool m_isStacked;
    std::vector<penlode::Diagnostic> m_ofCompletion;
};

} // namespace millichart::documents
