#include "window/Examples.h"

#include "window/Language.h"

#include <array>
#include <string_view>

namespace designer {
namespace {

/// A text or a list of texts in the example of a kind.
struct ChineseText {
    std::string_view Kind;
    const char* Place;
    const char* Text;
};

constexpr const char* kMadeUp = "示例数字，请换成自己的。";
constexpr const char* kRegions = R"(["北区", "东区", "南区", "西区"])";
constexpr const char* kQuarters = R"(["一季度", "二季度", "三季度", "四季度"])";

constexpr std::array kTexts{
    ChineseText{"pie", "title", "各区销售额"},
    ChineseText{"pie", "options/Title/Caption", "各区销售额"},
    ChineseText{"pie", "property/PieBasicProp/ComponentName", kRegions},
    ChineseText{"half-pie", "title", "各区销售额"},
    ChineseText{"half-pie", "options/Title/Caption", "各区销售额"},
    ChineseText{"half-pie", "property/HalfPieBasicProp/ComponentName", kRegions},
    ChineseText{"half-pie-half-pie", "title", "今年和去年的各区销售额"},
    ChineseText{"half-pie-half-pie", "options/Title/Caption", "今年"},
    ChineseText{"half-pie-half-pie", "options/SecondTitle/Caption", "去年"},
    ChineseText{"half-pie-half-pie", "property/TopHalf/HalfPieBasicProp/ComponentName", kRegions},
    ChineseText{"half-pie-half-pie", "property/LowerHalf/HalfPieBasicProp/ComponentName", kRegions},
    ChineseText{"half-pie-histogram", "title", "全年销售额，按地区和季度"},
    ChineseText{"half-pie-histogram", "options/Title/Caption", "全年销售额，按地区和季度"},
    ChineseText{"half-pie-histogram", "property/HalfPie/HalfPieBasicProp/ComponentName", kRegions},
    ChineseText{"half-pie-histogram", "property/Histogram/HistogramPlotProp/ComponentName", kQuarters},
    ChineseText{"half-pie-histogram", "data/groups/0/name", "今年"},
    ChineseText{"histogram", "title", "各季度销量"},
    ChineseText{"histogram", "property/CaptionProp/Caption", "各季度销量"},
    ChineseText{"histogram", "property/HistogramVerAxisProp/VerCaption", "千件"},
    ChineseText{"histogram", "property/HistogramPlotProp/ComponentName", R"(["茶", "咖啡", "可可"])"},
    ChineseText{"histogram", "data/groups/0/name", "一季度"},
    ChineseText{"histogram", "data/groups/1/name", "二季度"},
    ChineseText{"histogram", "data/groups/2/name", "三季度"},
    ChineseText{"histogram", "data/groups/3/name", "四季度"},
    ChineseText{"curve", "title", "各月参观人数"},
    ChineseText{"curve", "property/CaptionProp/Caption", "各月参观人数"},
    ChineseText{"curve", "property/CurveVerAxisProp/VerCaption", "千人"},
    ChineseText{"curve", "property/CurvePlotProp/CurveName", R"([" 博物馆", " 植物园"])"},
    ChineseText{"curve", "data/labels",
                R"(["1月", "2月", "3月", "4月", "5月", "6月",
                    "7月", "8月", "9月", "10月", "11月", "12月"])"},
};

} // namespace

millichart::ChartDocument ExampleOf(const millichart::ChartKind& kind) {
    std::vector<millichart::Setting> settings;
    if (ShownLanguage().startsWith(QLatin1String("zh"))) {
        settings.push_back({"description", kMadeUp});
        for (const ChineseText& text : kTexts) {
            if (text.Kind == kind.Name) {
                settings.push_back({text.Place, text.Text});
            }
        }
    }
    return millichart::ChartDocument::FromInput({"", std::string(kind.Template)}, std::nullopt, settings);
}

} // namespace designer
