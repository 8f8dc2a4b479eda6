#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// The plot of a bar chart and its components.
class CPageHistogramPlot : public RecordDialog<HistogramPlotProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;
    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;

private:
    std::span<const Field<HistogramPlotProp>> Fields() const override;
};

/// The plot of a line chart and its curves.
class CPageCurvePlot : public RecordDialog<CurvePlotProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;
    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;

private:
    std::span<const Field<CurvePlotProp>> Fields() const override;
};

} // namespace millichart
