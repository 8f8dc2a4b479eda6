#include "kinds/PieSlices.h"

#include "documents/Fields.h"
#include "kinds/Palette.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace cli {
namespace {

constexpr const char* kNames = "ComponentName";
constexpr const char* kColors = "ComponentColor";

constexpr float kMinPie = 5.0F;
constexpr const char* kSizesAboveZero =
    "FixedWidth above 0 with a FixedSize of 1, or BaseValue and BasePieWidth above 0";

} // namespace

void PieSlices::AllowShortForms(ChartStream& stream) {
    stream.AllowList(kNames);
    stream.SetDefaultList(kColors, PaletteTexts());
}

void PieSlices::Complete(const ChartStream& stream, std::vector<std::string>& names,
                         std::vector<penlode::Color>& colors, std::vector<Message>& messages) {
    // A legend would lay out each of them, values or not.
    if (names.size() > kMaxSlices) {
        messages.push_back(
            {"", Severity::Error, 0, m_place + "/" + kNames, Counted(names.size(), "name"), FewerSlices()});
        names.clear();
    }
    TakeNames(names);
    if (stream.TookDefault(m_place + "/" + kColors)) {
        colors = PaletteColors(m_data.Values.size());
    }
}

/// The document's own names stand, unless the user put other data in its place.
void PieSlices::TakeNames(std::vector<std::string>& names) {
    if (names.empty() || (m_data.NamesGoFirst && !m_data.Names.empty())) {
        names = m_data.Names;
    } else if (!m_data.Names.empty() && m_data.Names != names) {
        m_doubts.push_back(OtherNames(m_place + "/" + kNames));
    }
}

void PieSlices::DoubtOffsets(std::size_t count, const std::string& place, std::size_t names) {
    if (count > names) {
        m_doubts.push_back({"", Severity::Warning, 0, place, Counted(count, "point"),
                            std::to_string(names) + ", as a label without a name does not move"});
    }
}

Message PieSlices::Emptiness() const {
    if (m_data.Values.empty()) {
        return {
            "", Severity::Error, 0, m_data.Place + "/values", "nothing to draw", "a number for each slice"};
    }
    if (std::accumulate(m_data.Values.begin(), m_data.Values.end(), 0.0) == 0.0) {
        return {"", Severity::Error, 0, m_data.Place, "no value above 0", "one for each slice"};
    }
    return {"", Severity::Error, 0, m_place, "nothing to draw, as the pie has no size", kSizesAboveZero};
}

Message PieSlices::Smallness(float width, bool isFixed) const {
    const std::string found = "the pie is only " + ToJson(static_cast<double>(width)).dump() + " mm across";
    return {"",
            Severity::Warning,
            0,
            m_place + (isFixed ? "/FixedWidth" : "/FixedSize"),
            "",
            "",
            found + (isFixed ? "" : ", by its values' total; with 1 here it is as wide as FixedWidth")};
}

std::vector<Message> PieSlices::Doubts(std::size_t names, std::size_t colors, bool isFixed,
                                       float width) const {
    const std::size_t values = m_data.Values.size();
    const bool isEmpty =
        std::all_of(m_data.Values.begin(), m_data.Values.end(), [](double value) { return value == 0.0; });
    const double total = std::accumulate(m_data.Values.begin(), m_data.Values.end(), 0.0);
    if (!std::isfinite(total)) {
        return {{"", Severity::Error, 0, m_data.Place, "a total that is too large", "smaller values"}};
    }
    std::vector<Message> doubts = m_doubts;
    if (isEmpty) {
        doubts.push_back({"", Severity::Warning, 0, m_data.Place, "no value above 0", "one for each slice"});
    } else if (width < 0.0F) {
        doubts.push_back(
            {"", Severity::Error, 0, m_place, "a pie of " + NumberText(width) + " mm", kSizesAboveZero});
    } else if (width < kMinPie) {
        doubts.push_back(Smallness(width, isFixed));
    }
    if (names != 0 && names != values) {
        doubts.push_back({"", Severity::Warning, 0, m_place + "/" + kNames, Counted(names, "name"),
                          std::to_string(values) + ", one a value"});
    }
    if (colors < values) {
        doubts.push_back({"", Severity::Warning, 0, m_place + "/" + kColors, Counted(colors, "colour"),
                          std::to_string(values) + ", one a value"});
    }
    return doubts;
}

Json PieLayoutToJson(const millichart::PieLayout& layout) {
    return {{"whole", ToJson(layout.Whole)},
            {"pie", ToJson(layout.Pie)},
            {"labelTexts", TextsToJson(layout.LabelTexts)},
            {"labelRects", ListToJson(layout.LabelRects)}};
}

} // namespace cli
