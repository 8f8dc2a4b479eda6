#include "ChartTemplates.h"
#include "documents/ChartContent.h"
#include "documents/NearestName.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

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

/// What else people call a kind, without what Plain takes away.
constexpr std::pair<std::string_view, std::string_view> kOtherNames[] = {
    {"饼", "pie"},
    {"饼状", "pie"},
    {"饼形", "pie"},
    {"semicircle", "half-pie"},
    {"半饼", "half-pie"},
    {"double half pie", "half-pie-half-pie"},
    {"双半饼", "half-pie-half-pie"},
    {"half pie bar", "half-pie-histogram"},
    {"half pie column", "half-pie-histogram"},
    {"半饼直方", "half-pie-histogram"},
    {"半饼柱状", "half-pie-histogram"},
    {"bar", "histogram"},
    {"column", "histogram"},
    {"柱", "histogram"},
    {"柱状", "histogram"},
    {"柱形", "histogram"},
    {"直方", "histogram"},
    {"line", "curve"},
    {"线", "curve"},
    {"曲线", "curve"},
    {"折线", "curve"},
};

void Drop(std::string& name, std::string_view ending) {
    if (name.size() > ending.size() && name.ends_with(ending)) {
        name.resize(name.size() - ending.size());
    }
}

/// Lower case, without blanks, hyphens, a word for "chart" and the s of several: "Bar charts" is "bar".
std::string Plain(std::string_view name) {
    std::string plain;
    for (const char c : name) {
        if (c != ' ' && c != '-' && c != '_') {
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    for (const char* const ending : {"s", "chart", "graph", "plot", "图表", "图", "s"}) {
        Drop(plain, ending);
    }
    return plain;
}

} // namespace

std::span<const ChartKind> ChartKinds() {
    return kKinds;
}

const ChartKind* FindChartKind(std::string_view name) {
    const std::string plain = Plain(name);
    const auto other = std::find_if(std::begin(kOtherNames), std::end(kOtherNames),
                                    [&plain](const auto& names) { return Plain(names.first) == plain; });
    const std::string known = other == std::end(kOtherNames) ? plain : Plain(other->second);
    const auto found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                    [&known](const ChartKind& kind) { return Plain(kind.Name) == known; });
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

std::string ExpectedKind(const std::string& found) {
    std::vector<std::string> known;
    for (const ChartKind& kind : kKinds) {
        known.emplace_back(kind.Name);
    }
    for (const auto& [other, name] : kOtherNames) {
        known.emplace_back(other);
    }
    const std::string near = documents::NearestName(found, known);
    return ChartKindNames() + ", or bar, line and the like" +
           (near.empty() ? "" : "; is \"" + near + "\" meant?");
}

} // namespace millichart
