#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// The value axis of a bar chart.
class CPageHistogramVerAxis : public RecordDialog<VerAxisProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<VerAxisProp>> Fields() const override;
};

/// The value axis of a line chart: the same fields under other ids.
class CPageCurveVerAxis : public RecordDialog<VerAxisProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<VerAxisProp>> Fields() const override;
};

} // namespace millichart
