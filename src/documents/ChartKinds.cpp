#include "ChartTemplates.h"
#include "documents/ChartContent.h"

#include <algorithm>
#include <iterator>

namespace millichart {
namespace {

template <class Document> ChartContent Make() {
    return Document();
}

/// In the order of ChartContent, behind content of no kind.
constexpr ChartKind kKinds[] = {
    {"pie", templates::pie, Make<PieDocument>},
    {"half-pie", templates::half_pie, Make<HalfPieDocument>},
    {"half-pie-half-pie", templates::half_pie_half_pie, Make<HalfPieHalfPieDocument>},
    {"half-pie-histogram", templates::half_pie_histogram, Make<HalfPieHistogramDocument>},
    {"histogram", templates::histogram, Make<HistogramDocument>},
    {"curve", templates::curve, Make<CurveDocument>}};
static_assert(std::size(kKinds) + 1 == std::variant_size_v<ChartContent>);

} // namespace

std::span<const ChartKind> ChartKinds() {
    return kKinds;
}

const ChartKind* FindChartKind(std::string_view name) {
    const auto found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                    [name](const ChartKind& kind) { return kind.Name == name; });
    return found == std::end(kKinds) ? nullptr : found;
}

const ChartKind* KindOf(const ChartContent& content) {
    return content.index() == 0 ? nullptr : &kKinds[content.index() - 1];
}

std::string ChartKindNames() {
    std::string names;
    for (const ChartKind& kind : kKinds) {
        names += (names.empty() ? "\"" : ", \"") + std::string(kind.Name) + "\"";
    }
    return names;
}

} // namespace millichart
