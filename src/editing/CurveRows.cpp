#include "editing/CurveRows.h"

#include "charts/curve/CurveStyle.h"
#include "editing/CellTexts.h"
#include "editing/NumberInput.h"
#include "foundation/NumberText.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>

namespace millichart {
namespace {

using penlode::CStringUtil;

enum Column : std::size_t { kName, kLine, kDot, kDotColor, kDotWidth, kNull, kColumnCount };

constexpr std::array<std::string_view, 11> kDotNames{
    "不显示",   "实心正方形",   "空心正方形",   "实心圆",       "空心圆",      "实心菱形",
    "空心菱形", "实心正三角形", "空心正三角形", "实心倒三角形", "空心倒三角形"};
constexpr std::array<std::string_view, 2> kNullNames{"断开", "当成0值"};

std::string NewName(int) {
    return "曲线";
}

std::string NewLine(int row) {
    return NewColorCell(row) + " 0.300000 0";
}

std::string NewDot(int) {
    return std::string(kDotNames[0]);
}

std::string NewDotWidth(int) {
    return "1.0";
}

std::string NewNull(int) {
    return std::string(kNullNames[0]);
}

constexpr std::array kColumns{
    ListColumn{"成分", CellKind::Text, 42, &NewName},
    ListColumn{"线型", CellKind::Line, 36, &NewLine, {}, &EditLineCell},
    ListColumn{"点标志", CellKind::Choice, 56, &NewDot, kDotNames},
    ListColumn{"点颜色", CellKind::Color, 34, &NewColorCell, {}, &EditColorCell},
    ListColumn{"点宽度（毫米）", CellKind::Number, 64, &NewDotWidth},
    ListColumn{"空值处理", CellKind::Choice, 40, &NewNull, kNullNames},
};
static_assert(kColumns.size() == kColumnCount);

/// The number of a value that has no name.
std::string NameOf(std::span<const std::string_view> names, std::int32_t value) {
    const auto index = static_cast<std::size_t>(value);
    return value >= 0 && index < names.size() ? std::string(names[index]) : std::to_string(value);
}

std::int32_t ValueOf(std::span<const std::string_view> names, std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? ReadInteger(name) : static_cast<std::int32_t>(found - names.begin());
}

CurveStyle StyleOf(const ListRow& row) {
    CurveStyle style;
    const LineCellValues line = LineOfCell(row[kLine]);
    style.LineColor = penlode::FromColorRef(line.ColorRef);
    style.Width = line.Width;
    style.Dash = line.DashStyle;
    style.Dot = ValueOf(kDotNames, row[kDot]);
    style.DotColor = ColorOfCell(row[kDotColor]);
    const float dotWidth = TypedFloat(row[kDotWidth]);
    style.DotWidth = dotWidth > 0.0F ? dotWidth : 1.0F;
    style.NullValue = ValueOf(kNullNames, row[kNull]);
    return style;
}

template <class T> void Put(std::vector<T>& list, std::size_t index, const T& value) {
    if (index < list.size()) {
        list[index] = value;
    }
}

} // namespace

std::span<const ListColumn> CurveColumns() {
    return kColumns;
}

std::vector<ListRow> CurveRows(const CurvePlotProp& plot) {
    std::vector<ListRow> rows;
    rows.reserve(plot.CurveName.size());
    for (std::size_t i = 0; i < plot.CurveName.size(); ++i) {
        const CurveStyle style = StyleOf(plot, i);
        rows.push_back({CStringUtil::AnsiToUtf8(plot.CurveName[i]),
                        LineCell({ToColorRef(style.LineColor), style.Width, style.Dash}),
                        NameOf(kDotNames, style.Dot), ColorCell(style.DotColor),
                        FixedText(static_cast<double>(style.DotWidth), 1),
                        NameOf(kNullNames, style.NullValue)});
    }
    return rows;
}

void ReadCurveRows(const std::vector<ListRow>& rows, CurvePlotProp& plot) {
    if (rows != CurveRows(plot)) {
        const std::size_t count = rows.size();
        plot.CurveName.resize(count);
        plot.CurveColor.resize(count);
        plot.CurveWidth.resize(count);
        plot.CurveDashStyle.resize(count);
        plot.CurveDotStyle.resize(count);
        plot.CurveDotColor.resize(count);
        plot.CurveDotWidth.resize(count);
        plot.NullValueStyle.resize(count);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const CurveStyle style = StyleOf(rows[i]);
        plot.CurveName[i] = TypedText(rows[i][kName], plot.CurveName[i]);
        Put(plot.CurveColor, i, style.LineColor);
        Put(plot.CurveWidth, i, style.Width);
        Put(plot.CurveDashStyle, i, style.Dash);
        Put(plot.CurveDotStyle, i, style.Dot);
        Put(plot.CurveDotColor, i, style.DotColor);
        Put(plot.CurveDotWidth, i, style.DotWidth);
        Put(plot.NullValueStyle, i, style.NullValue);
    }
}

} // namespace millichart
