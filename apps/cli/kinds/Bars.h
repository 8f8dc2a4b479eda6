#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "data/HistogramData.h"
#include "documents/ChartStream.h"
#include "documents/Json.h"

#include <string>
#include <vector>

namespace cli {

/// The bars of a bar chart: a document's groups, with the names and colours that its record gives or lacks.
class Bars {
public:
    /// Lets the records that are loaded from here on have no colours.
    static void AllowShortForms(ChartStream& stream);

    /// Completes a plot's record, which was loaded from `place`.
    Bars(const ChartStream& stream, HistogramData data, millichart::HistogramPlotProp& plot,
         std::string place);

    const std::vector<std::vector<double>>& Values() const { return m_data.Values; }

    const std::vector<std::string>& GroupNames() const { return m_data.GroupNames; }

    /// The largest value, or the largest sum on the way up a stack. -infinity when there is none.
    double Largest() const;

    /// What was hardly meant in the chart that shows them.
    std::vector<Message> Doubts(const millichart::CBasicHistogram& chart) const;

    /// A warning if a linear axis that another range could be given is far too long for them.
    std::vector<Message> Invisibility(const millichart::CBasicHistogram& chart) const;

    /// What is told of a chart that has nothing to draw.
    Message Emptiness() const;

private:
    void TakeNames(std::vector<std::string>& names, bool areMissing);
    void CloseGaps();
    std::vector<Message> DoubtSizes(const millichart::CBasicHistogram& chart) const;
    std::vector<Message> ValuesOutside(const millichart::CBasicHistogram& chart) const;
    template <class Look> void ForEachHeight(const Look& look) const;

    std::string m_place;
    HistogramData m_data;
    std::size_t m_components = 0;
    bool m_isStacked = false;
    std::vector<Message> m_doubts; ///< those of the load
};

Json HistogramLayoutToJson(const millichart::HistogramLayout& layout);

} // namespace cli
