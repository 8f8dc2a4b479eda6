#include "editing/VerAxisPages.h"

#include "editing/PageGrid.h"

namespace millichart {
namespace {

using enum ControlKind;

/// The controls' ids in one chart's dialogs.
struct Ids {
    int ShowAxis;
    int AxisPen;
    int ShowCaption;
    int Caption;
    int CaptionText;
    std::array<int, 4> MajorScale; ///< none, outer, inner, cross
    std::array<int, 4> MinorScale;
    int ShowLabel;
    int LabelText;
    int ShowMajorGrid;
    int MajorGridPen;
    int ShowMinorGrid;
    int MinorGridPen;
};

constexpr Ids kHistogram{
    18428, 18430, 18441, 18467, 18442, {18431, 18433, 18432, 18434}, {18435, 18437, 18436, 18438}, 18439,
    18440, 18443, 18444, 18445, 18446};
constexpr Ids kCurve{
    18511, 18512, 18513, 18514, 18515, {18516, 18517, 18518, 18519}, {18520, 18521, 18522, 18523}, 18524,
    18525, 18526, 18528, 18527, 18529};

constexpr auto ControlsOf(const Ids& ids) {
    return std::array{
        Control{ids.ShowAxis, CheckBox, "显示纵坐标轴", 7, 9, 80, 10},
        Control{ids.AxisPen, Button, "线型...", 221, 7, 70, 14},
        Control{kNoId, GroupBox, "标题", 7, 27, 290, 54},
        Control{ids.ShowCaption, CheckBox, "显示", 13, 42, 40, 10},
        Control{ids.CaptionText, Button, "标题属性...", 221, 40, 70, 14},
        Control{kNoId, Label, "标题文本:", 13, 62, 44, 8},
        Control{ids.Caption, Edit, "", 57, 59, 234, 14},
        Control{kNoId, GroupBox, "主刻度类型", 7, 85, 290, 32},
        ScaleRadio(ids.MajorScale, 0, 100),
        ScaleRadio(ids.MajorScale, 1, 100),
        ScaleRadio(ids.MajorScale, 2, 100),
        ScaleRadio(ids.MajorScale, 3, 100),
        Control{kNoId, GroupBox, "次刻度类型", 7, 121, 290, 32},
        ScaleRadio(ids.MinorScale, 0, 136),
        ScaleRadio(ids.MinorScale, 1, 136),
        ScaleRadio(ids.MinorScale, 2, 136),
        ScaleRadio(ids.MinorScale, 3, 136),
        Control{kNoId, GroupBox, "主刻度标注", 7, 157, 290, 34},
        Control{ids.ShowLabel, CheckBox, "显示", 13, 172, 40, 10},
        Control{ids.LabelText, Button, "文本属性...", 221, 170, 70, 14},
        Control{kNoId, GroupBox, "横向网格线", 7, 195, 290, 52},
        Control{ids.ShowMajorGrid, CheckBox, "显示主网格线", 13, 210, 80, 10},
        Control{ids.MajorGridPen, Button, "主网格线线型...", 201, 208, 90, 14},
        Control{ids.ShowMinorGrid, CheckBox, "显示次网格线", 13, 228, 80, 10},
        Control{ids.MinorGridPen, Button, "次网格线线型...", 201, 226, 90, 14},
    };
}

using P = VerAxisProp;

constexpr std::array<Field<P>, 13> FieldsOf(const Ids& ids) {
    return {
        FlagField<P>{ids.ShowAxis, &P::ShowVerAxis, {ids.AxisPen, kNoId}},
        PenField<P>{ids.AxisPen, &P::VerAxisPen},
        FlagField<P>{ids.ShowCaption, &P::ShowVerCaption, {ids.Caption, ids.CaptionText}},
        TextField<P>{ids.Caption, &P::VerCaption},
        TextPropertyField<P>{ids.CaptionText, &P::VerCaptionTextProperty},
        ChoiceField<P>{&P::MajorScaleStyle, ids.MajorScale},
        ChoiceField<P>{&P::MinorScaleStyle, ids.MinorScale},
        FlagField<P>{ids.ShowLabel, &P::ShowVerAxisLabel, {ids.LabelText, kNoId}},
        TextPropertyField<P>{ids.LabelText, &P::VerAxisLabelTextProperty},
        FlagField<P>{ids.ShowMajorGrid, &P::ShowHorMajorGrid, {ids.MajorGridPen, kNoId}},
        PenField<P>{ids.MajorGridPen, &P::HorMajorGridPen},
        FlagField<P>{ids.ShowMinorGrid, &P::ShowHorMinorGrid, {ids.MinorGridPen, kNoId}},
        PenField<P>{ids.MinorGridPen, &P::HorMinorGridPen},
    };
}

constexpr auto kHistogramControls = ControlsOf(kHistogram);
constexpr auto kCurveControls = ControlsOf(kCurve);
constexpr auto kHistogramFields = FieldsOf(kHistogram);
constexpr auto kCurveFields = FieldsOf(kCurve);
constexpr DialogTemplate kHistogramTemplate{14203, "纵坐标轴", kPageWidth, kPageHeight, kHistogramControls};
constexpr DialogTemplate kCurveTemplate{14210, "纵坐标轴", kPageWidth, kPageHeight, kCurveControls};

} // namespace

CPageHistogramVerAxis::CPageHistogramVerAxis(const VerAxisProp& prop)
    : RecordDialog(prop, kHistogramTemplate, kHistogramFields) {}

CPageCurveVerAxis::CPageCurveVerAxis(const VerAxisProp& prop)
    : RecordDialog(prop, kCurveTemplate, kCurveFields) {}

} // namespace millichart
