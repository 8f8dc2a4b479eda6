#include "editing/PiePages.h"

#include "editing/PageGrid.h"

namespace millichart {
namespace {

using enum ControlKind;

constexpr double kAboveNothing = std::numeric_limits<float>::denorm_min();
constexpr double kUnbounded = std::numeric_limits<float>::max();

enum : int {
    kComponents = 18580,
    kFixedSize = 18581,
    kFixedWidth = 18582,
    kBaseValue = 18583,
    kBaseWidth = 18584,
    kShowLines = 18585,
    kLinePen = 18586,
    kFirstLook = 18587,
    kSecondLook = 18588,
    kStartAngle = 18589,
};

/// What both kinds of pie have, from the top.
constexpr std::array<Control, 17> CommonControls(std::string_view look, std::string_view first,
                                                 std::string_view second) {
    return {{
        {kNoId, GroupBox, "成分", 7, 7, 290, 110},
        {kComponents, EditableList, "", 13, 18, 278, 92},
        {kNoId, GroupBox, "大小", 7, 121, 290, 52},
        {kFixedSize, CheckBox, "固定大小", 13, 137, 52, 10},
        {kNoId, Label, "直径:", 147, 137, 40, 8},
        {kFixedWidth, Edit, "", 187, 134, 48, 14},
        {kNoId, Label, "毫米", 239, 137, 20, 8},
        {kNoId, Label, "基准值:", 13, 155, 36, 8},
        {kBaseValue, Edit, "", 49, 152, 64, 14},
        {kNoId, Label, "基准直径:", 147, 155, 40, 8},
        {kBaseWidth, Edit, "", 187, 152, 48, 14},
        {kNoId, Label, "毫米", 239, 155, 20, 8},
        {kShowLines, CheckBox, "显示分隔线", 7, 182, 60, 10},
        {kLinePen, Button, "分隔线线型...", 77, 180, 76, 14},
        {kNoId, GroupBox, look, 7, 200, 116, 34},
        {kFirstLook, RadioButton, first, 13, 215, 48, 10},
        {kSecondLook, RadioButton, second, 65, 215, 48, 10},
    }};
}

/// The fields that both kinds of record have under the same names.
template <class R>
constexpr std::array<Field<R>, 7> kCommonFields{
    ComponentsField<R>{kComponents, &R::ComponentName, &R::ComponentColor},
    FlagField<R>{kFixedSize, &R::FixedSize},
    NumberField<R>{kFixedWidth, &R::FixedWidth, kAboveNothing, 1000.0, "直径应大于0且不超过1000毫米。"},
    NumberField<R>{kBaseValue, &R::BaseValue, kAboveNothing, kUnbounded, "基准值应大于0。"},
    NumberField<R>{kBaseWidth, &R::BasePieWidth, kAboveNothing, 1000.0, "基准直径应大于0且不超过1000毫米。"},
    FlagField<R>{kShowLines, &R::DrawSepLine, {kLinePen, kNoId}, true},
    PenField<R>{kLinePen, &R::PenSepLine},
};

template <class T, std::size_t N, class... More>
constexpr std::array<T, N + sizeof...(More)> Joined(const std::array<T, N>& list, const More&... more) {
    std::array<T, N + sizeof...(More)> joined{};
    std::copy(list.begin(), list.end(), joined.begin());
    std::size_t next = N;
    ((joined[next++] = more), ...);
    return joined;
}

constexpr std::array kPieControls =
    Joined(CommonControls("显示样式", "2维", "3维"), Control{kNoId, Label, "起始角度:", 155, 215, 40, 8},
           Control{kStartAngle, Edit, "", 195, 212, 40, 14}, Control{kNoId, Label, "度", 239, 215, 12, 8});
constexpr std::array kPieFields =
    Joined(kCommonFields<PieBasicProp>,
           Field<PieBasicProp>(
               ChoiceField<PieBasicProp>{&PieBasicProp::PieStyle, {kFirstLook, kSecondLook, kNoId, kNoId}}),
           Field<PieBasicProp>(NumberField<PieBasicProp>{kStartAngle, &PieBasicProp::StartAngle}));
constexpr DialogTemplate kPieTemplate{14213, "饼图", kPageWidth, kPageHeight, kPieControls};

constexpr std::array kHalfPieControls = CommonControls("位置", "上半部", "下半部");
constexpr std::array kHalfPieFields =
    Joined(kCommonFields<HalfPieBasicProp>,
           Field<HalfPieBasicProp>(ChoiceField<HalfPieBasicProp>{&HalfPieBasicProp::WhichPart,
                                                                 {kFirstLook, kSecondLook, kNoId, kNoId}}));
constexpr DialogTemplate kHalfPieTemplate{14214, "半饼图", kPageWidth, kPageHeight, kHalfPieControls};

constexpr std::array kLabelControls{
    Control{kNoId, GroupBox, "标签包括", 7, 7, 290, 34},
    Control{18590, CheckBox, "成分名称", 13, 22, 48, 10},
    Control{18591, CheckBox, "值", 75, 22, 24, 10},
    Control{18592, CheckBox, "百分比", 113, 22, 40, 10},
    Control{18593, Button, "标签文本属性...", 217, 20, 74, 14},
    Control{18594, CheckBox, "单行显示", 7, 50, 60, 10},
    Control{kNoId, Label, "分隔符:", 147, 51, 36, 8},
    Control{18595, Edit, "", 183, 48, 40, 14},
    Control{kNoId, Label, "标签与饼图的距离:", 7, 73, 76, 8},
    Control{18596, Edit, "", 83, 70, 40, 14},
    Control{kNoId, Label, "毫米", 127, 73, 20, 8},
    Control{18597, CheckBox, "显示引线", 7, 94, 60, 10},
    Control{18598, Button, "引线线型...", 83, 92, 66, 14},
};

using P = PieLabelProp;

constexpr std::array<Field<P>, 9> kLabelFields{
    FlagField<P>{18590, &P::ShowNameLabel, {kNoId, kNoId}, true},
    FlagField<P>{18591, &P::ShowValueLabel, {kNoId, kNoId}, true},
    FlagField<P>{18592, &P::ShowPercentLabel, {kNoId, kNoId}, true},
    TextPropertyField<P>{18593, &P::PieLabelTextProperty},
    FlagField<P>{18594, &P::LabelsInSingleRow},
    TextField<P>{18595, &P::LabelSeparator},
    NumberField<P>{18596, &P::DistBetweenLabelCenterAndPieCenter, -1000.0, 1000.0,
                   "标签与饼图的距离应在-1000～1000毫米之间。"},
    FlagField<P>{18597, &P::ShowLabelLeadLine, {18598, kNoId}},
    PenField<P>{18598, &P::LabelLeadLinePen},
};

constexpr DialogTemplate kLabelTemplate{14215, "标签", kPageWidth, kPageHeight, kLabelControls};

} // namespace

CPagePie::CPagePie(const PieBasicProp& prop) : RecordDialog(prop, kPieTemplate, kPieFields) {}

CPageHalfPie::CPageHalfPie(const HalfPieBasicProp& prop)
    : RecordDialog(prop, kHalfPieTemplate, kHalfPieFields) {}

CPagePieLabel::CPagePieLabel(const PieLabelProp& prop) : RecordDialog(prop, kLabelTemplate, kLabelFields) {}

} // namespace millichart
