#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "documents/ChartContent.h"
#include "documents/DataSource.h"
#include "documents/LayoutTask.h"
#include "documents/SavingStream.h"

#include <string>
#include <vector>

namespace millichart::documents {

/// Where nothing else is said, so much of what a group and its gap share is the gap.
inline constexpr float kUsualGap = 0.3F;

/// The bars of a document.
class Bars {
public:
    /// `record` is the place of their plot's record.
    Bars(const char* record, BarData& data, HistogramPlotProp& plot, const char* csvKey = "csv")
        : m_record(record), m_data(data), m_plot(plot), m_csvKey(csvKey) {}

    /// The stream's group "data": "groups", each a name and values, or under the CSV key a table of group
    /// names and values a component, under a heading with the components' names. What is wrong is told.
    void Load(ChartStream& stream, const DataSource& source);

    void Save(SavingStream& stream) const;

    void TakeTableNames(bool inPlaceOfOwn) {
        TakeNames(m_plot.ComponentName, m_data.ComponentNames, inPlaceOfOwn);
    }

    /// Completes the plot's record, and in a stack closes the gaps.
    void Complete(const LayoutTask& task);

    /// The largest value, or the largest sum on the way up a stack. -infinity when there is none.
    double Largest() const;

    /// The range that they fill in a chart with such options.
    ValueRange FittedRange(const ChartOptions& options) const;

    /// Warns of what was hardly meant in the chart that shows them; of a linear axis far too long for them
    /// too, if it may be set to another range.
    void Check(const CBasicHistogram& chart, bool mayBeSet,
               std::vector<penlode::Diagnostic>& diagnostics) const;

    /// What is told of a chart that has nothing to draw.
    penlode::Diagnostic Emptiness() const;

private:
    void CheckWidths(const HistogramLayout& layout, std::vector<penlode::Diagnostic>& diagnostics) const;
    void CheckRange(const CBasicHistogram& chart, bool mayBeSet,
                    std::vector<penlode::Diagnostic>& diagnostics) const;
    template <class Look> void ForEachHeight(const Look& look) const;

    std::string m_record;
    BarData& m_data;
    HistogramPlotProp& m_plot;
    const char* m_csvKey;
    std::size_t m_named = 0; ///< components with a name of the document or its table
};

} // namespace millichart::documents
