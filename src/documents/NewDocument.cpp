#include "documents/NewDocument.h"

#include "documents/ChartLayouts.h"
#include "documents/DocumentDefaults.h"
#include "documents/tables/QuerySource.h"
#include "documents/tables/Table.h"
#include "penlode/streams/JsonSerializeStream.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace millichart {
namespace {

using penlode::CJsonSerializeStream;
using penlode::CStringUtil;

/// Where a kind's example has texts and looks of its own data.
constexpr std::array kGroups{"property/CaptionProp",
                             "property/HistogramVerAxisProp",
                             "property/CurveVerAxisProp",
                             "property/CurveHorAxisProp",
                             "property/PieBasicProp",
                             "property/HalfPieBasicProp",
                             "property/TopHalf/HalfPieBasicProp",
                             "property/LowerHalf/HalfPieBasicProp",
                             "property/HalfPie/HalfPieBasicProp",
                             "property/Histogram/HistogramPlotProp",
                             "property/HistogramPlotProp",
                             "property/CurvePlotProp",
                             "options/Title",
                             "options/SecondTitle"};
constexpr std::array kTexts{"title", "description", "source", "Caption", "VerCaption"};
constexpr std::array kFlags{"ShowCaption", "ShowVerCaption"};
constexpr std::array kOrderNames{"", "ascending", "descending", "name"};

/// Empties the group that is open, at a place that ends in "/".
void EmptyGroup(CJsonSerializeStream& json, const std::string& place) {
    for (const char* const text : kTexts) {
        if (json.Has(text)) {
            json.Set(place + text, "");
        }
    }
    for (const char* const flag : kFlags) {
        if (json.Has(flag)) {
            json.Set(place + flag, "false");
        }
    }
    for (const std::string_view key : documents::kKeysOfData) {
        json.Remove(std::string(key));
    }
}

/// Goes down to a group that is still to be opened.
void EmptyBelow(CJsonSerializeStream& json, std::string_view rest, const std::string& place) {
    const std::size_t slash = rest.find('/');
    const std::string key(rest.substr(0, slash));
    if (!json.Has(key)) {
        return;
    }
    json.Push(key, -1);
    if (slash == std::string_view::npos) {
        EmptyGroup(json, place + key + "/");
    } else {
        EmptyBelow(json, rest.substr(slash + 1), place + key + "/");
    }
    json.Pop();
}

void SaveText(CJsonSerializeStream& json, const char* key, const std::string& text) {
    if (!text.empty()) {
        std::string narrow = CStringUtil::Utf8ToAnsi(text);
        json.Ser(key, narrow, {});
    }
}

void SaveTexts(CJsonSerializeStream& json, const char* key, const std::vector<std::string>& texts) {
    if (!texts.empty()) {
        std::vector<std::string> narrow;
        for (const std::string& text : texts) {
            narrow.push_back(CStringUtil::Utf8ToAnsi(text));
        }
        json.Ser(key, narrow, {});
    }
}

void SaveOptions(CJsonSerializeStream& json, const TableOptions& options) {
    SaveText(json, "query", options.Query);
    SaveText(json, "table", options.Points.Name);
    SaveText(json, "time", options.Points.Time);
    SaveText(json, "value", options.Points.Value);
    SaveText(json, "by", options.Points.Series);
    SaveTexts(json, "where", options.Points.Where);
    SaveText(json, "sheet", options.Sheet);
    SaveTexts(json, "columns", options.Columns);
    if (options.HasHeading) {
        json.Set("data/heading", *options.HasHeading ? "true" : "false");
    }
    if (options.IsTransposed) {
        json.Set("data/transpose", "true");
    }
    SaveText(json, "order", kOrderNames[static_cast<std::size_t>(options.Order)]);
    if (options.Top > 0) {
        json.Set("data/top", penlode::Digits(options.Top));
    }
    if (options.DecimalMark) {
        SaveText(json, "decimal", std::string(1, *options.DecimalMark));
    }
}

/// The title that stands above a table's heading; of a data base there is none.
std::string TitleAbove(const TableInput& table) {
    const bool isThere = table.Source.empty() && table.Input.Fault.empty();
    return isThere ? documents::TableTitle(table) : "";
}

/// Also as the caption, or as the title of a chart without one.
void SaveTitle(CJsonSerializeStream& json, const std::string& title) {
    SaveText(json, "title", title);
    json.Push("property", -1);
    const bool hasCaption = json.Has("CaptionProp");
    json.Pop();
    const char* const group = hasCaption ? "property" : "options";
    const char* const caption = hasCaption ? "CaptionProp" : "Title";
    if (!title.empty()) {
        json.Push(group, -1);
        json.Push(caption, -1);
        SaveText(json, "Caption", title);
        json.Set(std::string(group) + "/" + caption + "/ShowCaption", "true");
        json.Pop();
        json.Pop();
    }
}

/// The kind's example without what is of its own data, on a table if that has a name.
std::string EmptyDocument(const ChartKind& kind, const NewTable& table) {
    CJsonSerializeStream json(kind.Template);
    json.BeginSaving();
    EmptyGroup(json, "");
    for (const char* const group : kGroups) {
        EmptyBelow(json, group, "");
    }
    SaveTitle(json, TitleAbove(table.Table));
    json.Remove("data");
    if (!table.Name.empty()) {
        json.Push("data", -1);
        SaveText(json, IsQuerySource(table.Name) ? "source" : "csv", table.Name);
        SaveOptions(json, table.Table.Options);
        json.Pop();
    }
    ChartContent content = kind.Make();
    documents::WithContent(content, [&json](auto& document) {
        if constexpr (requires { document.Range; }) {
            json.Set("range", "fit");
        }
    });
    return json.Text();
}

/// Makes what nobody asked for suit the data.
class Suit {
public:
    explicit Suit(const std::vector<Setting>& settings) : m_settings(settings) {}

    void operator()(PieDocument& document) const {
        SetFlag("property/PieLegendProp/ShowLegend", document.Prop.Legend.ShowLegend,
                !document.Data.Names.empty() || !document.Prop.Basic.ComponentName.empty());
    }

    void operator()(HistogramDocument& document) const {
        HistogramProp& prop = document.Prop;
        SetFlag("property/HistogramLegendProp/ShowLegend", prop.Legend.ShowLegend,
                document.Data.Components() > 1 && AreNamed(document.Data.ComponentNames));
        SetFlag("property/HistogramPlotProp/ShowComponentValue", prop.Plot.ShowComponentValue,
                AreFew(document.Data.Values));
        SetValueCaption("property/HistogramVerAxisProp", prop.VerAxis, document.Data.ComponentNames);
        if (document.Data.Origin.ArePercent) {
            SetPercent("property/HistogramVerAxisProp/VerAxisLabelTextProperty",
                       prop.VerAxis.VerAxisLabelTextProperty);
            SetPercent("property/HistogramPlotProp/ComponentInfoTextProperty",
                       prop.Plot.ComponentInfoTextProperty);
        }
        SuitWidth(prop, std::max<std::size_t>(document.Data.Values.size(), 1));
    }

    void operator()(CurveDocument& document) const {
        SetFlag("property/CurveLegendProp/ShowLegend", document.Prop.Legend.ShowLegend,
                document.Data.Values.size() > 1 && AreNamed(document.Data.CurveNames));
        SetValueCaption("property/CurveVerAxisProp", document.Prop.VerAxis, document.Data.CurveNames);
        if (document.Data.Origin.ArePercent) {
            SetPercent("property/CurveVerAxisProp/VerAxisLabelTextProperty",
                       document.Prop.VerAxis.VerAxisLabelTextProperty);
        }
    }

    template <class Document> void operator()(Document&) const {}

private:
    /// Gaps leave room for the bars.
    void SuitWidth(HistogramProp& prop, std::size_t groups) const {
        constexpr float kGapPart = 0.35F;
        if (!IsAsked("property/HistogramPlotProp/GroupDistane")) {
            const float width = prop.Plot.PlotWidth / static_cast<float>(groups);
            const float gap = std::round(width * kGapPart * 10.0F) / 10.0F;
            prop.Plot.GroupDistane = std::min(prop.Plot.GroupDistane, gap);
        }
    }

    void SetPercent(const std::string& place, TextProperty& look) const {
        if (!IsAsked(place + "/Postfix")) {
            look.Postfix = "%";
        }
    }

    static bool AreNamed(const std::vector<std::string>& names) {
        return std::any_of(names.begin(), names.end(), [](const std::string& name) { return !name.empty(); });
    }

    bool IsAsked(const std::string& place) const {
        return std::any_of(m_settings.begin(), m_settings.end(),
                           [&place](const Setting& setting) { return IsPlaceIn(place, setting.Place); });
    }

    void SetFlag(const std::string& place, std::int32_t& flag, bool isSet) const {
        if (!IsAsked(place)) {
            flag = isSet ? 1 : 0;
        }
    }

    /// The name of what alone is shown.
    template <class VerAxis>
    void SetValueCaption(const std::string& place, VerAxis& axis,
                         const std::vector<std::string>& names) const {
        const bool isNamed = names.size() == 1 && !names.front().empty();
        if (isNamed && !IsAsked(place + "/VerCaption") && !IsAsked(place + "/ShowVerCaption")) {
            axis.ShowVerCaption = 1;
            axis.VerCaption = names.front();
        }
    }

    /// Many values at bars have no place.
    static bool AreFew(const std::vector<std::vector<double>>& groups) {
        constexpr std::size_t kFewBars = 40;
        std::size_t bars = 0;
        for (const std::vector<double>& group : groups) {
            bars += group.size();
        }
        return bars <= kFewBars;
    }

    const std::vector<Setting>& m_settings;
};

} // namespace

ChartDocument NewDocument(const ChartKind& kind, NewTable table, const std::vector<Setting>& settings,
                          const std::string& file) {
    const bool isNamed = !table.Name.empty();
    InputText text{file, EmptyDocument(kind, table)};
    ChartDocument document = ChartDocument::FromInput(
        std::move(text), isNamed ? std::nullopt : std::optional(std::move(table.Table)), settings);
    documents::WithContent(document.Content, Suit(settings));
    return document;
}

} // namespace millichart
