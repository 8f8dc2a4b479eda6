#include "editing/PlotPages.h"

#include "editing/CurveRows.h"
#include "editing/PageGrid.h"

namespace millichart {
namespace {

using enum ControlKind;

constexpr std::string_view kWidthMessage = "绘图区宽度应在5～1000毫米之间。";
constexpr std::string_view kHeightMessage = "绘图区高度应在5～1000毫米之间。";

constexpr int kFlat = 18478;
constexpr int kWithDepth = 18479;

constexpr std::array kHistogramControls{
    Control{kNoId, GroupBox, "成分", 7, 7, 290, 92},
    Control{18460, EditableList, "", 13, 18, 278, 74},
    Control{18477, CheckBox, "并列显示", 7, 104, 60, 10},
    Control{18425, CheckBox, "对数刻度", 75, 104, 60, 10},
    Control{kNoId, GroupBox, "大小", 7, 118, 290, 34},
    Control{kNoId, Label, "宽度:", 13, 134, 28, 8},
    Control{18450, Edit, "", 41, 131, 40, 14},
    Control{kNoId, Label, "毫米", 85, 134, 20, 8},
    Control{kNoId, Label, "高度:", 155, 134, 28, 8},
    Control{18429, Edit, "", 183, 131, 40, 14},
    Control{kNoId, Label, "毫米", 227, 134, 20, 8},
    Control{18461, CheckBox, "显示边框", 7, 159, 48, 10},
    Control{18462, Button, "边框线型...", 61, 157, 60, 14},
    Control{18463, CheckBox, "填充背景", 155, 159, 48, 10},
    Control{18464, ColorPane, "", 227, 157, 18, 14},
    Control{18465, Button, "背景色...", 249, 157, 48, 14},
    Control{kNoId, Label, "分类间距:", 7, 178, 44, 8},
    Control{18456, Edit, "", 51, 175, 40, 14},
    Control{kNoId, Label, "毫米", 95, 178, 20, 8},
    Control{kNoId, GroupBox, "显示样式", 7, 195, 84, 34},
    Control{kFlat, RadioButton, "2维", 13, 210, 34, 10},
    Control{kWithDepth, RadioButton, "3维", 51, 210, 34, 10},
    Control{kNoId, GroupBox, "标签包括", 95, 195, 202, 34},
    Control{18421, CheckBox, "成分名称", 101, 210, 46, 10},
    Control{18422, CheckBox, "值", 161, 210, 22, 10},
    Control{18423, Button, "标签文本属性...", 217, 208, 74, 14},
};

using H = HistogramPlotProp;

constexpr std::array<Field<H>, 13> kHistogramFields{
    ComponentsField<H>{18460, &H::ComponentName, &H::ComponentColor},
    FlagField<H>{18461, &H::ShowEdge, {18462, kNoId}},
    PenField<H>{18462, &H::EdgePen},
    FlagField<H>{18463, &H::ShowBackground, {18465, kNoId}},
    ColorField<H>{18465, 18464, &H::PlotBackgroundColor},
    NumberField<H>{18450, &H::PlotWidth, 5.0, 1000.0, kWidthMessage},
    NumberField<H>{18429, &H::PlotHeight, 5.0, 1000.0, kHeightMessage},
    NumberField<H>{18456, &H::GroupDistane, 0.0, 1000.0, "分类间距应在0～1000毫米之间。"},
    FlagField<H>{18477, &H::Juxtaposition},
    FlagField<H>{18425, &H::LogarithmScale},
    FlagField<H>{18421, &H::ShowComponentName},
    FlagField<H>{18422, &H::ShowComponentValue},
    TextPropertyField<H>{18423, &H::ComponentInfoTextProperty},
};

constexpr DialogTemplate kHistogramTemplate{14205, "绘图区", kPageWidth, kPageHeight, kHistogramControls};

constexpr int kCurves = 18490;

constexpr std::array kCurveControls{
    Control{kNoId, GroupBox, "成分", 7, 7, 290, 146},
    Control{kCurves, EditableList, "", 13, 18, 278, 128},
    Control{18489, CheckBox, "对数刻度", 7, 158, 60, 10},
    Control{kNoId, GroupBox, "大小", 7, 172, 290, 34},
    Control{kNoId, Label, "宽度:", 13, 188, 28, 8},
    Control{18491, Edit, "", 41, 185, 40, 14},
    Control{kNoId, Label, "毫米", 85, 188, 20, 8},
    Control{kNoId, Label, "高度:", 155, 188, 28, 8},
    Control{18492, Edit, "", 183, 185, 40, 14},
    Control{kNoId, Label, "毫米", 227, 188, 20, 8},
    Control{18493, CheckBox, "显示边框", 7, 213, 48, 10},
    Control{18494, Button, "边框线型...", 61, 211, 60, 14},
    Control{18495, CheckBox, "填充背景", 155, 213, 48, 10},
    Control{18496, ColorPane, "", 227, 211, 18, 14},
    Control{18497, Button, "背景色...", 249, 211, 48, 14},
};

using C = CurvePlotProp;

constexpr std::array<Field<C>, 7> kCurveFields{
    FlagField<C>{18493, &C::ShowEdge, {18494, kNoId}},
    PenField<C>{18494, &C::EdgePen},
    FlagField<C>{18495, &C::ShowBackground, {18497, kNoId}},
    ColorField<C>{18497, 18496, &C::PlotBackgroundColor},
    NumberField<C>{18491, &C::PlotWidth, 5.0, 1000.0, kWidthMessage, &WholeText},
    NumberField<C>{18492, &C::PlotHeight, 5.0, 1000.0, kHeightMessage, &WholeText},
    FlagField<C>{18489, &C::LogarithmScale},
};

constexpr DialogTemplate kCurveTemplate{14208, "绘图区", kPageWidth, kPageHeight, kCurveControls};

} // namespace

CPageHistogramPlot::CPageHistogramPlot(const HistogramPlotProp& prop)
    : RecordDialog(prop, kHistogramTemplate, kHistogramFields) {}

void CPageHistogramPlot::OnInitDialog(DialogView& view) {
    RecordDialog::OnInitDialog(view);
    view.SetChecked(m_record.PieStyle == BarStyle::Flat ? kFlat : kWithDepth, true);
}

bool CPageHistogramPlot::OnOK(DialogView& view) {
    if (!RecordDialog::OnOK(view)) {
        return false;
    }
    m_record.PieStyle = view.IsChecked(kFlat) ? BarStyle::Flat : BarStyle::WithDepth;
    return true;
}

CPageCurvePlot::CPageCurvePlot(const CurvePlotProp& prop)
    : RecordDialog(prop, kCurveTemplate, kCurveFields) {}

void CPageCurvePlot::OnInitDialog(DialogView& view) {
    view.SetColumns(kCurves, CurveColumns());
    view.SetRows(kCurves, CurveRows(m_record));
    RecordDialog::OnInitDialog(view);
}

bool CPageCurvePlot::OnOK(DialogView& view) {
    ReadCurveRows(view.Rows(kCurves), m_record);
    return RecordDialog::OnOK(view);
}

} // namespace millichart
