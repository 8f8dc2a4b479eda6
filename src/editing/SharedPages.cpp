#include "editing/SharedPages.h"

#include "editing/PageGrid.h"

namespace millichart {
namespace {

using enum ControlKind;

constexpr std::array kCaptionControls{
    Control{18560, CheckBox, "显示标题", 7, 9, 80, 10},
    Control{18562, Button, "标题属性...", 227, 7, 70, 14},
    Control{kNoId, Label, "标题文本:", 7, 33, 44, 8},
    Control{18561, Edit, "", 51, 30, 246, 14},
};

constexpr std::array<Field<CaptionProp>, 3> kCaptionFields{
    FlagField<CaptionProp>{18560, &CaptionProp::ShowCaption, {18561, 18562}},
    TextField<CaptionProp>{18561, &CaptionProp::Caption},
    TextPropertyField<CaptionProp>{18562, &CaptionProp::CaptionTextProperty},
};

constexpr DialogTemplate kCaptionTemplate{14211, "标题", kPageWidth, kPageHeight, kCaptionControls};

constexpr int kPosition = 18571;

constexpr std::array kLegendControls{
    Control{18570, CheckBox, "显示图例", 7, 9, 80, 10},
    Control{18572, Button, "字体...", 227, 7, 70, 14},
    Control{kNoId, GroupBox, "位置", 7, 27, 290, 124},
    Control{kPosition, PositionPicker, "", 77, 40, 150, 104},
    Control{18573, CheckBox, "显示边框", 7, 160, 48, 10},
    Control{18574, Button, "边框线型...", 61, 158, 60, 14},
    Control{18575, CheckBox, "填充背景", 155, 160, 48, 10},
    Control{18576, ColorPane, "", 227, 158, 18, 14},
    Control{18577, Button, "背景色...", 249, 158, 48, 14},
    Control{kNoId, Label, "图例项间距:", 7, 181, 50, 8},
    Control{18578, Edit, "", 61, 178, 40, 14},
    Control{kNoId, Label, "毫米", 105, 181, 20, 8},
};

using L = LegendProp;

constexpr std::array<Field<L>, 7> kLegendFields{
    FlagField<L>{18570, &L::ShowLegend},
    FontField<L>{18572, &L::Font},
    FlagField<L>{18573, &L::ShowEdge, {18574, kNoId}},
    PenField<L>{18574, &L::PenEdge},
    FlagField<L>{18575, &L::ShowBackground, {18577, kNoId}},
    ColorField<L>{18577, 18576, &L::BackgroundColor},
    NumberField<L>{18578, &L::ItemDist, 0.0, 1000.0, "图例项间距应在0～1000毫米之间。"},
};

constexpr DialogTemplate kLegendTemplate{14212, "图例", kPageWidth, kPageHeight, kLegendControls};

} // namespace

CPageCaption::CPageCaption(const CaptionProp& prop) : RecordDialog(prop, kCaptionTemplate, kCaptionFields) {}

CPageLegend::CPageLegend(const LegendProp& prop) : RecordDialog(prop, kLegendTemplate, kLegendFields) {}

void CPageLegend::OnInitDialog(DialogView& view) {
    RecordDialog::OnInitDialog(view);
    view.Select(kPosition, m_record.LegendPos);
}

/// A position that is none of the twelve stays as long as none is picked.
bool CPageLegend::OnOK(DialogView& view) {
    const int position = view.Selection(kPosition);
    m_record.LegendPos = position < 0 ? m_record.LegendPos : position;
    return RecordDialog::OnOK(view);
}

} // namespace millichart
