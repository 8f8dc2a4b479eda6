#include "editing/TextPropDlg.h"

#include "editing/NestedDialogs.h"

#include <array>

namespace millichart {
namespace {

enum : int {
    kDrawEdge = 18404,
    kDrawBackground = 18405,
    kPrefix = 18406,
    kPostfix = 18407,
    kFont = 18408,
    kPickEdgeColor = 18409,
    kPickBackgroundColor = 18410,
    kEdgeColor = 18411,
    kBackgroundColor = 18412,
    kAngle = 18414,
};

using enum ControlKind;

constexpr std::array kControls{
    Control{kNoId, GroupBox, "边框", 7, 7, 232, 36},
    Control{kDrawEdge, CheckBox, "显示边框(&E)", 13, 22, 88, 10},
    Control{kEdgeColor, ColorPane, "", 105, 20, 38, 14},
    Control{kPickEdgeColor, Button, "边框颜色(&D)...", 149, 20, 84, 14},
    Control{kNoId, GroupBox, "背景", 7, 47, 232, 36},
    Control{kDrawBackground, CheckBox, "显示背景颜色(&B)", 13, 62, 88, 10},
    Control{kBackgroundColor, ColorPane, "", 105, 60, 38, 14},
    Control{kPickBackgroundColor, Button, "背景颜色(&K)...", 149, 60, 84, 14},
    Control{kNoId, GroupBox, "附加文本", 7, 87, 232, 56},
    Control{kNoId, Label, "前缀(&P):", 13, 103, 56, 8},
    Control{kPrefix, Edit, "", 69, 100, 164, 14},
    Control{kNoId, Label, "后缀(&T):", 13, 123, 56, 8},
    Control{kPostfix, Edit, "", 69, 120, 164, 14},
    Control{kNoId, Label, "旋转角度(&A):", 13, 153, 56, 8},
    Control{kAngle, Edit, "", 69, 150, 50, 14},
    Control{kFont, Button, "字体(&F)...", 149, 150, 84, 14},
    Control{kOkButton, DefaultButton, "确定", 133, 175, 50, 14},
    Control{kCancelButton, Button, "取消", 189, 175, 50, 14},
};

constexpr DialogTemplate kTemplate{14200, "文本框属性", 246, 196, kControls};

constexpr std::array<Field<TextProperty>, 7> kFields{
    FlagField<TextProperty>{kDrawEdge, &TextProperty::DrawEdge, {kPickEdgeColor, kNoId}},
    ColorField<TextProperty>{kPickEdgeColor, kEdgeColor, &TextProperty::EdgeColor},
    FlagField<TextProperty>{kDrawBackground, &TextProperty::DrawBackGround, {kPickBackgroundColor, kNoId}},
    ColorField<TextProperty>{kPickBackgroundColor, kBackgroundColor, &TextProperty::BkColor},
    TextField<TextProperty>{kPrefix, &TextProperty::Prefix},
    TextField<TextProperty>{kPostfix, &TextProperty::Postfix},
    IntegerField<TextProperty>{kAngle, &TextProperty::Angle},
};

} // namespace

CTextPropDlg::CTextPropDlg(const TextProperty& prop) : RecordDialog(prop, kTemplate, kFields) {
    if (!m_record.Font) {
        m_record.Font = penlode::Font{};
    }
}

void CTextPropDlg::OnClicked(DialogView& view, int id) {
    RecordDialog::OnClicked(view, id);
    if (id == kFont) {
        PickFontOn(view, m_record.Font, m_record.TextColor);
    }
}

} // namespace millichart
