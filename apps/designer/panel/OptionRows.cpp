#include "panel/OptionRows.h"

#include <QtGlobal>
#include <algorithm>

namespace designer {
namespace {

using namespace millichart;

/// The bits stand in the order of ChartKinds().
constexpr std::uint32_t kPie = 1;
constexpr std::uint32_t kHalfPie = 2;
constexpr std::uint32_t kTwoHalves = 4;
constexpr std::uint32_t kHalfAndBars = 8;
constexpr std::uint32_t kBars = 16;
constexpr std::uint32_t kLines = 32;
constexpr std::uint32_t kSliced = kPie | kHalfPie | kTwoHalves | kHalfAndBars;
constexpr std::uint32_t kWithAxes = kHalfAndBars | kBars | kLines;
constexpr std::uint32_t kWithLegend = kPie | kWithAxes;
constexpr std::uint32_t kAll = kSliced | kWithAxes;

constexpr OptionChoice kFlag[] = {{0, nullptr}, {1, nullptr}};
constexpr OptionChoice kThousands[] = {
    {ThousandsStyle::None, QT_TRANSLATE_NOOP("designer::OptionsPanel", "不分隔（12500）")},
    {ThousandsStyle::Comma, QT_TRANSLATE_NOOP("designer::OptionsPanel", "逗号（12,500）")},
    {ThousandsStyle::ThinSpace, QT_TRANSLATE_NOOP("designer::OptionsPanel", "细空格（12 500）")},
    {ThousandsStyle::Chinese, QT_TRANSLATE_NOOP("designer::OptionsPanel", "万、亿（1.25万）")}};
constexpr OptionChoice kTimeUnits[] = {
    {TimeUnit::Number, QT_TRANSLATE_NOOP("designer::OptionsPanel", "普通的数")},
    {TimeUnit::Days, QT_TRANSLATE_NOOP("designer::OptionsPanel", "日期")},
    {TimeUnit::Seconds, QT_TRANSLATE_NOOP("designer::OptionsPanel", "日期和时刻")}};
constexpr OptionChoice kPalettes[] = {
    {ChartPalette::Record, QT_TRANSLATE_NOOP("designer::OptionsPanel", "逐项设定")},
    {ChartPalette::Safe, QT_TRANSLATE_NOOP("designer::OptionsPanel", "人人可辨")},
    {ChartPalette::Print, QT_TRANSLATE_NOOP("designer::OptionsPanel", "黑白打印")}};

constexpr OptionRow kRows[] = {
    {&ChartOptions::Palette, QT_TRANSLATE_NOOP("designer::OptionsPanel", "配色(&P)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "扇区、柱和线的颜色"), kPalettes, kAll},
    {&ChartOptions::Contrast, QT_TRANSLATE_NOOP("designer::OptionsPanel", "明暗对比(&K)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "深色上的数用白色，侧面与正面同色相，网格浅而在后"), kFlag,
     kAll},
    {&ChartOptions::Air, QT_TRANSLATE_NOOP("designer::OptionsPanel", "留白(&W)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "图表各部分之间留出三分之一行"), kFlag, kAll},
    {&ChartOptions::Legend, QT_TRANSLATE_NOOP("designer::OptionsPanel", "图例靠近图形(&G)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "图例与图形对齐，放不下时排成几行或几列"), kFlag,
     kWithLegend},
    {&ChartOptions::SliceLabels, QT_TRANSLATE_NOOP("designer::OptionsPanel", "扇区标签错开(&S)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "标签互不相碰，移开的用引线连到扇区"), kFlag, kSliced},
    {&ChartOptions::Labels, QT_TRANSLATE_NOOP("designer::OptionsPanel", "名称不重叠(&L)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "名称放不下时换行、倾斜或隔几个显示一个"), kFlag, kWithAxes},
    {&ChartOptions::BarBase, QT_TRANSLATE_NOOP("designer::OptionsPanel", "柱从零线起(&Z)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "负值的柱向下"), kFlag, kHalfAndBars | kBars},
    {&ChartOptions::ValueRange, QT_TRANSLATE_NOOP("designer::OptionsPanel", "数轴两端取整(&R)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "数轴从最小值到最大值，刻度是整齐的数"), kFlag, kWithAxes},
    {&ChartOptions::TimeUnit, QT_TRANSLATE_NOOP("designer::OptionsPanel", "时间轴(&M)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "数据第一列的时间是什么"), kTimeUnits, kLines},
    {&ChartOptions::TimeLabels, QT_TRANSLATE_NOOP("designer::OptionsPanel", "标签对准时间(&A)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "横轴的标签各在其时间处，而不是均匀排开"), kFlag, kLines},
    {&ChartOptions::Numbers, QT_TRANSLATE_NOOP("designer::OptionsPanel", "数字按原样(&N)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "数字需要几位小数就写几位"), kFlag, kAll},
    {&ChartOptions::Thousands, QT_TRANSLATE_NOOP("designer::OptionsPanel", "千位分隔(&T)"),
     QT_TRANSLATE_NOOP("designer::OptionsPanel", "较大的数怎样写；数字按原样时有效"), kThousands, kAll},
};

} // namespace

const std::uint32_t kKindsWithTitle = kSliced;
const std::uint32_t kKindsWithTwoTitles = kTwoHalves;
const std::uint32_t kKindsWithValues = kSliced | kBars;

std::span<const OptionRow> OptionRows() {
    return kRows;
}

bool IsKindIn(const ChartKind* kind, std::uint32_t kinds) {
    const auto all = ChartKinds();
    const auto found =
        std::find_if(all.begin(), all.end(), [kind](const ChartKind& k) { return &k == kind; });
    return found != all.end() && (kinds >> (found - all.begin()) & 1U) != 0;
}

} // namespace designer
