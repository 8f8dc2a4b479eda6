#pragma once

#include "editing/RecordDialog.h"
#include "foundation/CaptionProp.h"
#include "foundation/Legend.h"

namespace millichart {

/// The caption of a bar or line chart.
class CPageCaption : public RecordDialog<CaptionProp> {
public:
    explicit CPageCaption(const CaptionProp& prop);
};

/// The legend of any chart.
class CPageLegend : public RecordDialog<LegendProp> {
public:
    explicit CPageLegend(const LegendProp& prop);

    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;
};

} // namespace millichart
