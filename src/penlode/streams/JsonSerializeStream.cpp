#include "penlode/streams/JsonSerializeStream.h"

#include "penlode/streams/JsonTree.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace penlode {
namespace {

using Kind = DiagnosticKind;

std::string ListText(const std::vector<std::string>& texts) {
    if (texts.empty()) {
        return "an empty list";
    }
    std::string joined = CStringUtil::AnsiToUtf8(texts.front());
    for (std::size_t i = 1; i < texts.size(); ++i) {
        joined += ", " + CStringUtil::AnsiToUtf8(texts[i]);
    }
    return joined;
}

} // namespace

struct CJsonSerializeStream::Document {
    struct Group {
        Json* Node; ///< null for a group that is not in the document; nothing is found in it or kept
        std::string Tag;
        std::string Place;
    };

    Json Root = Json::object();
    std::vector<Group> OpenGroups;
    std::string FileName;
    bool Saving = true;
    bool Unreadable = false;
    std::vector<Diagnostic> Problems;
    std::unordered_set<const Json*> Asked;   ///< entries that a load asked for
    std::unordered_set<const Json*> Entered; ///< the groups among them, whose own entries count too
    /// What was told of places that hold no text, by place.
    std::unordered_map<std::string, std::size_t> WrongTypes;
    const Json* LastList = nullptr; ///< the list that was loaded last, for what is refused of it
    std::string LastListPlace;
    std::vector<Diagnostic> UnknownBeforeSaving;

    bool HasRoom() const { return !Unreadable && Problems.size() < kMaxProblems; }

    Json* Current() { return OpenGroups.empty() ? &Root : OpenGroups.back().Node; }

    Json* Find(const std::string& tag);
    const Json* RefusedValue(const std::string& tag, const std::string& place);
    Json* Ask(const std::string& tag);
    std::string PlaceOf(const std::string& tag) const;
    void Report(Kind what, std::string place, std::string found, std::string expected);
    bool NameWhatWasExpected(const std::string& place, const std::string& expected);
    void Save(const std::string& tag, Json value);
    std::optional<std::string> LoadText(const std::string& tag, const std::string& defaultValue);
    std::optional<std::vector<std::string>> LoadList(const std::string& tag,
                                                     const std::vector<std::string>& defaults);
    const Json::array_t* AskList(const std::string& tag, const std::vector<std::string>& defaults);
    double LoadNumberOrGap(const std::string& tag, const Json& item, std::size_t index);
    std::string LoadItem(const std::string& tag, const Json::array_t& items, std::size_t index);
    Json* EnterGroup(const std::string& tag, int index, std::string& place);
    Json* MakeGroup(const std::string& tag, int index);
    void AddUnknown(const Json& group, const std::string& place, std::vector<Diagnostic>& unknown) const;
};

/// The entry of the current group, or null.
Json* CJsonSerializeStream::Document::Find(const std::string& tag) {
    Json* const group = Current();
    if (group == nullptr) {
        return nullptr;
    }
    const auto entry = group->find(CStringUtil::AnsiToUtf8(tag));
    return entry == group->end() ? nullptr : &*entry;
}

/// The value at the place of `tag`: an item of the list that was loaded last, whose tag ends as in
/// "values/3", or an entry; null for items of other lists, for which a search each would take too long.
const Json* CJsonSerializeStream::Document::RefusedValue(const std::string& tag, const std::string& place) {
    const std::size_t slash = tag.rfind('/');
    if (slash == std::string::npos) {
        return Find(tag);
    }
    const std::size_t digits = place.size() - (tag.size() - slash) + 1;
    std::size_t item = 0;
    const bool isIndex =
        std::from_chars(place.data() + digits, place.data() + place.size(), item).ec == std::errc();
    const bool isOfLastList = LastList != nullptr && place.compare(0, digits - 1, LastListPlace) == 0;
    return isIndex && isOfLastList && item < LastList->size() ? &(*LastList)[item] : nullptr;
}

Json* CJsonSerializeStream::Document::Ask(const std::string& tag) {
    Json* const entry = Find(tag);
    if (entry != nullptr) {
        Asked.insert(entry);
    }
    return entry;
}

std::string CJsonSerializeStream::Document::PlaceOf(const std::string& tag) const {
    return JoinedPlace(OpenGroups.empty() ? std::string() : OpenGroups.back().Place,
                       CStringUtil::AnsiToUtf8(tag));
}

/// A document that could not be read has one problem, not one for each key that it therefore lacks.
void CJsonSerializeStream::Document::Report(Kind what, std::string place, std::string found,
                                            std::string expected) {
    if (HasRoom()) {
        if (what == Kind::WrongType) {
            WrongTypes.emplace(place, Problems.size());
        }
        Problems.push_back(StreamProblem(what, std::move(place), std::move(found), std::move(expected)));
    }
}

/// A value of which was told that it is no text need not be told to be the wrong text, but who refuses it
/// knows better what it should be.
bool CJsonSerializeStream::Document::NameWhatWasExpected(const std::string& place,
                                                         const std::string& expected) {
    const auto told = WrongTypes.find(place);
    if (told != WrongTypes.end()) {
        Diagnostic& problem = Problems[told->second];
        problem = StreamProblem(Kind::WrongType, problem.Place, problem.Found, expected);
    }
    return told != WrongTypes.end();
}

void CJsonSerializeStream::Document::Save(const std::string& tag, Json value) {
    if (Json* const group = Current()) {
        (*group)[CStringUtil::AnsiToUtf8(tag)] = std::move(value);
    }
}

std::optional<std::string> CJsonSerializeStream::Document::LoadText(const std::string& tag,
                                                                    const std::string& defaultValue) {
    const Json* const entry = Ask(tag);
    if (entry == nullptr) {
        Report(Kind::MissingKey, PlaceOf(tag), "", CStringUtil::AnsiToUtf8(defaultValue));
        return std::nullopt;
    }
    auto text = ScalarText(*entry);
    if (!text) {
        Report(Kind::WrongType, PlaceOf(tag), Shown(*entry), "a text");
    }
    return text;
}

std::optional<std::vector<std::string>>
CJsonSerializeStream::Document::LoadList(const std::string& tag, const std::vector<std::string>& defaults) {
    const Json::array_t* const items = AskList(tag, defaults);
    if (items == nullptr) {
        return std::nullopt;
    }
    std::vector<std::string> texts;
    texts.reserve(items->size());
    for (std::size_t i = 0; i < items->size(); ++i) {
        texts.push_back(LoadItem(tag, *items, i));
    }
    return texts;
}

/// The items of a list that is asked for; null, and reported, when there is none.
const Json::array_t* CJsonSerializeStream::Document::AskList(const std::string& tag,
                                                             const std::vector<std::string>& defaults) {
    const Json* const entry = Ask(tag);
    if (entry == nullptr) {
        Report(Kind::MissingKey, PlaceOf(tag), "", ListText(defaults));
        return nullptr;
    }
    if (!entry->is_array()) {
        Report(Kind::WrongType, PlaceOf(tag), Shown(*entry), "a list");
        return nullptr;
    }
    LastList = entry;
    LastListPlace = PlaceOf(tag);
    return &entry->get_ref<const Json::array_t&>();
}

double CJsonSerializeStream::Document::LoadNumberOrGap(const std::string& tag, const Json& item,
                                                       std::size_t index) {
    constexpr double gap = std::numeric_limits<double>::quiet_NaN();
    if (item.is_number()) {
        return item.get<double>();
    }
    if (item.is_boolean()) {
        return item.get<bool>() ? 1.0 : 0.0;
    }
    std::string text = item.is_string() ? item.get<std::string>() : std::string();
    double number = gap;
    const bool isGap = item.is_null() || (item.is_string() && text.empty());
    if (!isGap && !(item.is_string() && ser_evaluate(number, text, false) && std::isfinite(number))) {
        Report(Kind::Refused, JoinedPlace(PlaceOf(tag), std::to_string(index)), Shown(item), kFloatForm);
        return gap;
    }
    return number;
}

/// An item that is no text is empty, so that the others keep their places.
std::string CJsonSerializeStream::Document::LoadItem(const std::string& tag, const Json::array_t& items,
                                                     std::size_t index) {
    auto text = ScalarText(items[index]);
    if (!text && HasRoom()) {
        Report(Kind::WrongType, JoinedPlace(PlaceOf(tag), std::to_string(index)), Shown(items[index]),
               "a text");
    }
    return std::move(text).value_or(std::string());
}

/// Adds the index to the place of a group that stands in a list.
Json* CJsonSerializeStream::Document::EnterGroup(const std::string& tag, int index, std::string& place) {
    Json* entry = Ask(tag);
    if (entry != nullptr && entry->is_array() && index >= 0) {
        Entered.insert(entry);
        const auto item = static_cast<std::size_t>(index);
        entry = item < entry->size() ? &(*entry)[item] : nullptr;
        Asked.insert(entry);
        place = JoinedPlace(place, std::to_string(index));
    } else if (entry != nullptr && index > 0) {
        Report(Kind::WrongType, place, Shown(*entry), "a list of groups");
        return nullptr;
    }
    if (entry == nullptr) {
        Report(Kind::MissingKey, place, "", "a group");
    } else if (!entry->is_object()) {
        Report(Kind::WrongType, place, Shown(*entry), "a group");
    } else {
        Entered.insert(entry);
        return entry;
    }
    return nullptr;
}

/// One level is left for a list in the innermost group.
Json* CJsonSerializeStream::Document::MakeGroup(const std::string& tag, int index) {
    Json* const group = Current();
    if (group == nullptr || OpenGroups.size() + 2 >= kMaxLevels) {
        return nullptr;
    }
    Json& held = (*group)[CStringUtil::AnsiToUtf8(tag)];
    if (index >= 0 && !held.is_array()) {
        held = Json::array();
    }
    Json& entry = index >= 0 ? held[static_cast<std::size_t>(index)] : held;
    if (!entry.is_object()) {
        entry = Json::object();
    }
    return &entry;
}

void CJsonSerializeStream::Document::AddUnknown(const Json& group, const std::string& place,
                                                std::vector<Diagnostic>& unknown) const {
    for (const auto& [key, entry] : group.items()) {
        const bool asked = Asked.contains(&entry);
        if (!asked) {
            unknown.push_back(StreamProblem(Kind::UnknownKey, JoinedPlace(place, key), Shown(entry), ""));
        } else if (Entered.contains(&entry)) {
            AddUnknown(entry, JoinedPlace(place, key), unknown);
        }
    }
}

CJsonSerializeStream::CJsonSerializeStream() : m_document(std::make_unique<Document>()) {}

CJsonSerializeStream::CJsonSerializeStream(std::string_view json, std::string fileName)
    : m_document(std::make_unique<Document>()) {
    auto& problems = m_document->Problems;
    m_document->Root = BuildJsonTree(json, problems);
    m_document->FileName = std::move(fileName);
    m_document->Saving = false;
    m_document->Unreadable = !problems.empty() && problems.front().Kind == Kind::Unreadable;
}

CJsonSerializeStream::CJsonSerializeStream(CJsonSerializeStream&&) noexcept = default;
CJsonSerializeStream& CJsonSerializeStream::operator=(CJsonSerializeStream&&) noexcept = default;
CJsonSerializeStream::~CJsonSerializeStream() = default;

/// What was asked for is remembered by address, which saving may change.
void CJsonSerializeStream::BeginSaving() {
    m_document->UnknownBeforeSaving = UnknownKeys();
    m_document->OpenGroups.clear();
    m_document->Saving = true;
}

std::string CJsonSerializeStream::Text() const {
    return m_document->Root.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

const std::vector<Diagnostic>& CJsonSerializeStream::Problems() const {
    return m_document->Problems;
}

std::vector<Diagnostic> CJsonSerializeStream::UnknownKeys() const {
    if (m_document->Saving) {
        return m_document->UnknownBeforeSaving;
    }
    std::vector<Diagnostic> unknown;
    m_document->AddUnknown(m_document->Root, "", unknown);
    return unknown;
}

bool CJsonSerializeStream::IsUnreadable() const {
    return m_document->Unreadable;
}

void CJsonSerializeStream::Ser(const std::string& tag, std::vector<std::string>& values,
                               const std::vector<std::string>& defaults) {
    if (m_document->Saving) {
        Json::array_t items;
        for (const std::string& value : values) {
            items.emplace_back(CStringUtil::AnsiToUtf8(value));
        }
        m_document->Save(tag, std::move(items));
    } else {
        auto loaded = m_document->LoadList(tag, defaults);
        values = std::move(loaded).value_or(defaults);
    }
}

void CJsonSerializeStream::Ser(const std::string& tag, std::string& value, const std::string& defaultValue) {
    if (m_document->Saving) {
        m_document->Save(tag, CStringUtil::AnsiToUtf8(value));
    } else {
        auto loaded = m_document->LoadText(tag, defaultValue);
        value = std::move(loaded).value_or(defaultValue);
    }
}

int CJsonSerializeStream::GetSize() {
    const Json* const group = m_document->Current();
    return group == nullptr ? 0 : static_cast<int>(group->size());
}

bool CJsonSerializeStream::Push(const std::string& tag, int index) {
    Document& document = *m_document;
    std::string place = document.PlaceOf(tag);
    Json* const group =
        document.Saving ? document.MakeGroup(tag, index) : document.EnterGroup(tag, index, place);
    document.OpenGroups.push_back({group, tag, std::move(place)});
    return group != nullptr;
}

bool CJsonSerializeStream::Push(const char* tag, int index) {
    return Push(std::string(tag == nullptr ? "" : tag), index);
}

void CJsonSerializeStream::Pop() {
    if (!m_document->OpenGroups.empty()) {
        m_document->OpenGroups.pop_back();
    }
}

bool CJsonSerializeStream::IsSaving() const {
    return m_document->Saving;
}

std::string CJsonSerializeStream::GetTag() {
    return m_document->OpenGroups.empty() ? std::string() : m_document->OpenGroups.back().Tag;
}

void* CJsonSerializeStream::GetObjectCreator() {
    return nullptr;
}

std::string CJsonSerializeStream::GetFullFileName() {
    return m_document->FileName;
}

/// Shows the value as the document has it.
void CJsonSerializeStream::Refuse(const std::string& tag, const std::string& found,
                                  const std::string& expected) {
    Document& document = *m_document;
    const std::string wanted = CStringUtil::AnsiToUtf8(expected);
    std::string place = document.PlaceOf(tag);
    if (document.Saving || document.NameWhatWasExpected(place, wanted) || !document.HasRoom()) {
        return;
    }
    const Json* const value = document.RefusedValue(tag, place);
    const Json shown =
        value != nullptr && value->is_primitive() ? *value : Json(CStringUtil::AnsiToUtf8(found));
    document.Report(Kind::Refused, std::move(place), Shown(shown), wanted);
}

bool CJsonSerializeStream::Has(const std::string& tag) const {
    return m_document->Find(tag) != nullptr;
}

std::size_t CJsonSerializeStream::CountGroups(const std::string& tag) {
    const Json* const entry = m_document->Ask(tag);
    if (entry == nullptr || !entry->is_array()) {
        return 0;
    }
    m_document->Entered.insert(entry);
    return entry->size();
}

std::vector<double> CJsonSerializeStream::LoadNumbersAndGaps(const std::string& tag) {
    const Json::array_t* const items = m_document->AskList(tag, {});
    std::vector<double> numbers;
    if (items == nullptr) {
        return numbers;
    }
    numbers.reserve(items->size());
    for (std::size_t i = 0; i < items->size(); ++i) {
        numbers.push_back(m_document->LoadNumberOrGap(tag, (*items)[i], i));
    }
    return numbers;
}

void CJsonSerializeStream::SaveNumbers(const std::string& tag, std::span<const double> numbers) {
    Json::array_t items;
    for (const double number : numbers) {
        const bool isWhole = number == std::trunc(number) && std::abs(number) < 1e15;
        items.push_back(isWhole ? Json(static_cast<std::int64_t>(number)) : Json(number));
    }
    m_document->Save(tag, std::move(items));
}

void CJsonSerializeStream::Remove(const std::string& tag) {
    if (Json* const group = m_document->Current()) {
        group->erase(CStringUtil::AnsiToUtf8(tag));
    }
}

bool CJsonSerializeStream::IsList(const std::string& tag) const {
    const Json* const entry = m_document->Find(tag);
    return entry != nullptr && entry->is_array();
}

} // namespace penlode
