#include "pages/Look.h"

#include "files/Streams.h"

#include <array>
#include <cctype>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

namespace cli {
namespace {

using millichart::ChartKind;
using millichart::Setting;

constexpr std::array kLegendPlaces{"LeftTop",     "LeftCenter",  "LeftBottom",   "RightTop",
                                   "RightCenter", "RightBottom", "TopLeft",      "TopCenter",
                                   "TopRight",    "BottomLeft",  "BottomCenter", "BottomRight"};

/// Where a kind's record has what can be asked for; empty for what it does not have.
struct KindPlaces {
    std::string_view Kind;
    std::string Caption = {};
    std::string VerAxis = {};
    std::string HorAxis = {};
    std::string Scale = {};
    std::string Stack = {};
    std::string Style = {};
    std::string Legend = {};
};

const std::array kPlaces{
    KindPlaces{.Kind = "pie", .Style = "property/PieBasicProp/PieStyle", .Legend = "property/PieLegendProp"},
    KindPlaces{"histogram", "property/CaptionProp", "property/HistogramVerAxisProp",
               "property/HistogramHorAxisProp", "property/HistogramPlotProp/LogarithmScale",
               "property/HistogramPlotProp/Juxtaposition", "property/HistogramPlotProp/PieStyle",
               "property/HistogramLegendProp"},
    KindPlaces{.Kind = "curve",
               .Caption = "property/CaptionProp",
               .VerAxis = "property/CurveVerAxisProp",
               .HorAxis = "property/CurveHorAxisProp",
               .Scale = "property/CurvePlotProp/LogarithmScale",
               .Legend = "property/CurveLegendProp"}};

KindPlaces PlacesOf(const ChartKind& kind) {
    for (const KindPlaces& places : kPlaces) {
        if (places.Kind == kind.Name) {
            return places;
        }
    }
    return {kind.Name};
}

/// As JSON, so that no title is taken for a number or a flag.
std::string Quoted(const std::string& text) {
    using Json = nlohmann::json;
    return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string Plain(const std::string& word) {
    std::string plain;
    for (const char c : word) {
        if (c != '-' && c != '_' && c != ' ') {
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return plain;
}

/// The kinds that have a place, for a message: "histogram or curve"
std::string KindsWith(std::string KindPlaces::*place) {
    std::string names;
    for (const KindPlaces& places : kPlaces) {
        if (!(places.*place).empty()) {
            names += (names.empty() ? "" : " or ") + std::string(places.Kind);
        }
    }
    return names;
}

class Wishes {
public:
    explicit Wishes(const ChartKind& kind) : m_places(PlacesOf(kind)) {}

    /// The place of what was asked for under an option.
    const std::string& Place(const char* option, std::string KindPlaces::*place) const {
        if ((m_places.*place).empty()) {
            throw UsageError(std::string(option) + ": not for the kind " + std::string(m_places.Kind) +
                             ", expected " + KindsWith(place));
        }
        return m_places.*place;
    }

    void Set(const std::string& place, const std::string& value) { m_settings.push_back({place, value}); }

    /// A group's text and the flag that shows it. An empty text is not shown.
    void SetText(const std::string& group, const std::string& key, const std::string& text,
                 const std::string& end) {
        Set(group + "/Show" + key, text.empty() ? "false" : "true");
        Set(group + "/" + key, Quoted(text.empty() ? text : text + end));
    }

    const KindPlaces& Places() const { return m_places; }

    std::vector<Setting> Take() { return std::move(m_settings); }

private:
    KindPlaces m_places;
    std::vector<Setting> m_settings;
};

/// Captions above and beside the plot end in a line break, which keeps them off it.
void SetTitles(const Look& look, Wishes& wishes) {
    if (look.Title) {
        wishes.Set("title", Quoted(*look.Title));
        if (const std::string& group = wishes.Places().Caption; !group.empty()) {
            wishes.SetText(group, "Caption", *look.Title, "\n");
        }
    }
    if (look.XTitle) {
        wishes.SetText(wishes.Place("--x-title", &KindPlaces::HorAxis), "HorCaption", *look.XTitle, "");
    }
    if (look.YTitle) {
        wishes.SetText(wishes.Place("--y-title", &KindPlaces::VerAxis), "VerCaption", *look.YTitle, "\n");
    }
}

} // namespace

std::optional<std::string> LegendPlace(const std::string& word) {
    const std::string plain = Plain(word);
    if (plain == "none") {
        return "";
    }
    for (const char* const place : kLegendPlaces) {
        if (plain == Plain(place) || plain + "center" == Plain(place)) {
            return place;
        }
    }
    return std::nullopt;
}

std::vector<Setting> SettingsOf(const Look& look, const ChartKind& kind) {
    Wishes wishes(kind);
    SetTitles(look, wishes);
    if (look.IsLogarithmic) {
        wishes.Set(wishes.Place("--log", &KindPlaces::Scale), "true");
    }
    if (look.IsStacked) {
        wishes.Set(wishes.Place("--stacked", &KindPlaces::Stack), "false");
    }
    if (look.Is3D) {
        wishes.Set(wishes.Place("--3d", &KindPlaces::Style), "3D");
    }
    if (look.Legend) {
        const std::string group = wishes.Place("--legend", &KindPlaces::Legend);
        wishes.Set(group + "/ShowLegend", look.Legend->empty() ? "false" : "true");
        if (!look.Legend->empty()) {
            wishes.Set(group + "/LegendPos", *look.Legend);
        }
    }
    return wishes.Take();
}

bool DrawsTitle(const ChartKind& kind) {
    return !PlacesOf(kind).Caption.empty();
}

} // namespace cli
