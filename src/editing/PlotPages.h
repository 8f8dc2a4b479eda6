#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// The plot of a bar chart and its components.
class CPageHistogramPlot : public RecordDialog<HistogramPlotProp> {
public:
    explicit CPageHistogramPlot(const HistogramPlotProp& prop);

    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;
};

/// The plot of a line chart and its curves.
class CPageCurvePlot : public RecordDialog<CurvePlotProp> {
public:
    explicit CPageCurvePlot(const CurvePlotProp& prop);

    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;
};

} // namespace millichart
