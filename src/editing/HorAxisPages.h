#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// The group axis of a bar chart.
class CPageHistogramHorAxis : public RecordDialog<HistogramHorAxisProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<HistogramHorAxisProp>> Fields() const override;
};

/// The horizontal axis of a line chart. Its steps are at least 1.
class CPageCurveHorAxis : public RecordDialog<CurveHorAxisProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<CurveHorAxisProp>> Fields() const override;
};

} // namespace millichart
