#include "documents/ChartStream.h"

#include "documents/DocumentDefaults.h"
#include "documents/Fields.h"
#include "documents/Forms.h"
#include "documents/LayoutTask.h"
#include "documents/Palette.h"
#include "foundation/SerializeFrame.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <initializer_list>

namespace millichart::documents {
namespace {

using Form = std::string (*)(const std::string&);

bool IsOneOf(const std::string& tag, std::initializer_list<const char*> tags) {
    return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

/// What else people may write under a key, by the kind of its value; null for a kind of one form.
Form FormOf(const std::string& tag, const std::string& defaultValue) {
    if (tag == FontTag() || tag == kFontAlias) {
        return FontForm;
    }
    if (defaultValue.starts_with("#")) {
        return defaultValue.find(' ') == std::string::npos ? ColorForm : PenForm;
    }
    if (IsOneOf(tag, {"location", "legendOffset"})) {
        return PointForm;
    }
    const bool isLength = IsOneOf(tag, {"FixedWidth", "BasePieWidth", "DistBetweenLabelCenterAndPieCenter",
                                        "ItemDist", "PlotWidth", "PlotHeight", "GroupDistane"});
    return isLength ? LengthForm : nullptr;
}

Form FormOfItems(const std::string& tag) {
    if (IsOneOf(tag, {"ComponentColor", "CurveColor", "CurveDotColor"})) {
        return ColorForm;
    }
    if (IsOneOf(tag, {kLabelOffsets, "first", "second"})) {
        return PointForm;
    }
    return IsOneOf(tag, {"CurveWidth", "CurveDotWidth"}) ? LengthForm : nullptr;
}

} // namespace

/// Gives the place of the key.
std::string ChartStream::Ask(const std::string& tag) {
    const std::string key = penlode::CStringUtil::AnsiToUtf8(tag);
    std::vector<std::string>& keys = m_asked[m_places.back()];
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
        keys.push_back(key);
    }
    return PlaceOf(tag);
}

std::string ChartStream::PlaceOf(const std::string& tag) const {
    const std::string key = penlode::CStringUtil::AnsiToUtf8(tag);
    return m_places.back().empty() ? key : m_places.back() + "/" + key;
}

void ChartStream::Ser(const std::string& tag, std::vector<std::string>& values,
                      const std::vector<std::string>& defaults) {
    const std::string place = Ask(tag);
    if (!m_json.Has(tag)) {
        m_missing.insert(place);
    }
    const bool areColors = tag == "ComponentColor" || tag == "CurveColor";
    m_json.Ser(tag, values, areColors ? PaletteTexts() : defaults);
    if (const Form form = FormOfItems(tag)) {
        std::transform(values.begin(), values.end(), values.begin(), form);
    }
}

std::vector<double> ChartStream::LoadNumbersAndGaps(const std::string& tag) {
    Ask(tag);
    return m_json.LoadNumbersAndGaps(tag);
}

void ChartStream::Ser(const std::string& tag, std::string& value, const std::string& defaultValue) {
    const std::string& key = NameGiven(tag);
    const std::string place = Ask(key);
    if (!m_json.Has(key)) {
        m_missing.insert(place);
    }
    if (tag == "ComponentName" && m_json.IsList(tag)) {
        value = JoinedList(tag);
        return;
    }
    m_json.Ser(key, value, DefaultOf(tag, defaultValue));
    if (tag == "ComponentName") {
        WarnOfDroppedName(place, value);
    }
    if (const Form form = FormOf(tag, defaultValue)) {
        value = form(value);
    }
}

/// Who says what a label shows, or which total a pie's width stands for, has left out the rest on purpose. A
/// caption that is given is shown.
std::string ChartStream::DefaultOf(const std::string& tag, const std::string& ofRecord) const {
    const auto isGiven = [this](const char* given) { return m_json.Has(given); };
    const auto isAnyGiven = [&](std::initializer_list<const char*> tags) {
        return std::any_of(tags.begin(), tags.end(), isGiven);
    };
    const bool isLabelPart = IsOneOf(tag, {"ShowNameLabel", "ShowPercentLabel"});
    if ((isLabelPart && isAnyGiven({"ShowNameLabel", "ShowValueLabel", "ShowPercentLabel"})) ||
        (tag == "FixedSize" && isAnyGiven({"BaseValue", "BasePieWidth"}))) {
        return ofRecord;
    }
    if (IsOneOf(tag, {"ShowCaption", "ShowVerCaption", "ShowHorCaption"})) {
        return m_json.Has(tag.substr(std::string_view("Show").size())) ? "1" : "0";
    }
    const char* const ofDocument =
        DocumentDefault(m_kind, m_places.back(), penlode::CStringUtil::AnsiToUtf8(tag));
    return ofDocument == nullptr ? ofRecord : ofDocument;
}

/// The name under which the document has the key.
const std::string& ChartStream::NameGiven(const std::string& tag) {
    if (tag != FontTag() || !Has(kFontAlias)) {
        return tag;
    }
    if (Has(tag)) {
        std::string ignored;
        m_json.Ser(kFontAlias, ignored, {});
        Refuse(kFontAlias, ignored, "either it or " + tag);
        return tag;
    }
    return kFontAlias;
}

void ChartStream::WarnOfDroppedName(const std::string& place, const std::string& joined) {
    std::size_t kept = 0;
    for (const std::string& name : SplitJoinedTexts(joined)) {
        kept += name.size() + kTextSeparator.size();
    }
    if (kept < joined.size()) {
        const std::string dropped = penlode::CStringUtil::AnsiToUtf8(joined.substr(kept));
        m_warnings.push_back(penlode::Warning(place, '"' + penlode::Shortened(dropped) +
                                                         "\" is dropped, as no \"||\" follows it"));
    }
}

std::string ChartStream::JoinedList(const std::string& tag) {
    std::vector<std::string> texts;
    m_json.Ser(tag, texts, {});
    std::string joined;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!IsJoinable(texts[i])) {
            Refuse(tag + "/" + std::to_string(i), texts[i], kJoinableForm);
        }
        joined.append(texts[i]).append(kTextSeparator);
    }
    return joined;
}

bool ChartStream::Push(const std::string& tag, int index) {
    m_places.push_back(Ask(tag));
    return m_json.Push(tag, index);
}

void ChartStream::Pop() {
    if (m_places.size() > 1) {
        m_places.pop_back();
    }
    m_json.Pop();
}

} // namespace millichart::documents
