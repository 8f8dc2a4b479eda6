#pragma once

#include "editing/RecordDialog.h"
#include "foundation/CaptionProp.h"
#include "foundation/Legend.h"

namespace millichart {

/// The caption of a bar or line chart.
class CPageCaption : public RecordDialog<CaptionProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<CaptionProp>> Fields() const override;
};

/// The legend of any chart.
class CPageLegend : public RecordDialog<LegendProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;
    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;

private:
    std::span<const Field<LegendProp>> Fields() const override;
};

} // namespace millichart
