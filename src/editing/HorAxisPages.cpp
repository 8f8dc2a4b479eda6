#include "editing/HorAxisPages.h"

#include "editing/PageGrid.h"

namespace millichart {
namespace {

using enum ControlKind;

constexpr std::array kGroupScale{18452, 18453, 18454, 18455};

constexpr std::array kHistogramControls{
    Control{18447, CheckBox, "显示横坐标轴", 7, 9, 80, 10},
    Control{18451, Button, "线型...", 221, 7, 70, 14},
    Control{kNoId, GroupBox, "标题", 7, 27, 290, 54},
    Control{18448, CheckBox, "显示", 13, 42, 40, 10},
    Control{18449, Button, "标题属性...", 221, 40, 70, 14},
    Control{kNoId, Label, "标题文本:", 13, 62, 44, 8},
    Control{18468, Edit, "", 57, 59, 234, 14},
    Control{kNoId, GroupBox, "分类", 7, 85, 290, 34},
    Control{18426, CheckBox, "显示分类名字", 13, 100, 80, 10},
    Control{18457, Button, "分类名字属性...", 201, 98, 90, 14},
    Control{kNoId, GroupBox, "刻度类型", 7, 123, 290, 32},
    ScaleRadio(kGroupScale, 0, 138),
    ScaleRadio(kGroupScale, 1, 138),
    ScaleRadio(kGroupScale, 2, 138),
    ScaleRadio(kGroupScale, 3, 138),
    Control{kNoId, GroupBox, "纵向网格线", 7, 159, 290, 34},
    Control{18458, CheckBox, "显示网格线", 13, 174, 80, 10},
    Control{18459, Button, "网格线线型...", 201, 172, 90, 14},
};

using H = HistogramHorAxisProp;

constexpr std::array<Field<H>, 10> kHistogramFields{
    FlagField<H>{18447, &H::ShowHorAxis, {18451, kNoId}},
    PenField<H>{18451, &H::HorAxisPen},
    FlagField<H>{18448, &H::ShowHorCaption, {18468, 18449}},
    TextField<H>{18468, &H::HorCaption},
    TextPropertyField<H>{18449, &H::HorCaptionTextProperty},
    FlagField<H>{18426, &H::ShowGroupName, {18457, kNoId}},
    TextPropertyField<H>{18457, &H::GroupNameTextProperty},
    ChoiceField<H>{&H::ScaleStyle, kGroupScale},
    FlagField<H>{18458, &H::ShowVerGrid, {18459, kNoId}},
    PenField<H>{18459, &H::VerGridPen},
};

constexpr DialogTemplate kHistogramTemplate{14204, "横坐标轴", kPageWidth, kPageHeight, kHistogramControls};

constexpr std::array kTimeScale{18505, 18506, 18507, 18508};

constexpr std::array kCurveControls{
    Control{18498, CheckBox, "显示横坐标轴", 7, 9, 80, 10},
    Control{18499, Button, "线型...", 221, 7, 70, 14},
    Control{kNoId, GroupBox, "标题", 7, 27, 290, 54},
    Control{18500, CheckBox, "显示", 13, 42, 40, 10},
    Control{18502, Button, "标题属性...", 221, 40, 70, 14},
    Control{kNoId, Label, "标题文本:", 13, 62, 44, 8},
    Control{18501, Edit, "", 57, 59, 234, 14},
    Control{kNoId, GroupBox, "标注", 7, 85, 290, 34},
    Control{18503, CheckBox, "显示", 13, 100, 40, 10},
    Control{kNoId, Label, "显示间隔:", 61, 101, 40, 8},
    Control{18546, Edit, "", 101, 98, 40, 14},
    Control{18504, Button, "文本属性...", 221, 98, 70, 14},
    Control{kNoId, GroupBox, "刻度", 7, 123, 290, 50},
    ScaleRadio(kTimeScale, 0, 138),
    ScaleRadio(kTimeScale, 1, 138),
    ScaleRadio(kTimeScale, 2, 138),
    ScaleRadio(kTimeScale, 3, 138),
    Control{kNoId, Label, "显示间隔:", 61, 155, 40, 8},
    Control{18548, Edit, "", 101, 152, 40, 14},
    Control{kNoId, GroupBox, "纵向网格线", 7, 177, 290, 34},
    Control{18509, CheckBox, "显示", 13, 192, 40, 10},
    Control{kNoId, Label, "显示间隔:", 61, 193, 40, 8},
    Control{18547, Edit, "", 101, 190, 40, 14},
    Control{18510, Button, "网格线线型...", 201, 190, 90, 14},
};

using C = CurveHorAxisProp;

constexpr std::array<Field<C>, 13> kCurveFields{
    FlagField<C>{18498, &C::ShowHorAxis, {18499, kNoId}},
    PenField<C>{18499, &C::HorAxisPen},
    FlagField<C>{18500, &C::ShowHorCaption, {18501, 18502}},
    TextField<C>{18501, &C::HorCaption},
    TextPropertyField<C>{18502, &C::HorCaptionTextProperty},
    FlagField<C>{18503, &C::ShowLabel, {18504, kNoId}},
    IntegerField<C>{18546, &C::LabelStep, 1, "标注的显示间隔应大于等于1。"},
    TextPropertyField<C>{18504, &C::HorLabelTextProperty},
    ChoiceField<C>{&C::ScaleStyle, kTimeScale},
    IntegerField<C>{18548, &C::ScaleStep, 1, "刻度的显示间隔应大于等于1。"},
    FlagField<C>{18509, &C::ShowVerGrid, {18510, kNoId}},
    IntegerField<C>{18547, &C::VerGridStep, 1, "纵向网格线的显示间隔应大于等于1。"},
    PenField<C>{18510, &C::VerGridPen},
};

constexpr DialogTemplate kCurveTemplate{14209, "横坐标轴", kPageWidth, kPageHeight, kCurveControls};

} // namespace

CPageHistogramHorAxis::CPageHistogramHorAxis(const HistogramHorAxisProp& prop)
    : RecordDialog(prop, kHistogramTemplate, kHistogramFields) {}

CPageCurveHorAxis::CPageCurveHorAxis(const CurveHorAxisProp& prop)
    : RecordDialog(prop, kCurveTemplate, kCurveFields) {}

} // namespace millichart
