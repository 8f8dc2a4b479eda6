#include "penlode/streams/JsonTree.h"

#include "penlode/streams/JsonFault.h"
#include "penlode/text/StringUtil.h"

#include <array>
#include <charconv>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace penlode {
namespace {

using Kind = DiagnosticKind;

template <class Number, class... Format> std::string Digits(Number value, Format... format) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
    return {digits.data(), end};
}

/// A whole number is written out, so that it is an integer's text as well: 1e5 as 100000.
std::string NumberText(double value) {
    const bool whole = std::trunc(value) == value && std::abs(value) < 1e15;
    return whole ? Digits(value, std::chars_format::fixed) : Digits(value);
}

/// Builds the document's tree. An ordered object searches all its keys for each new one and copies all its
/// values whenever it grows; collecting them here first keeps the work linear in the text.
class TreeBuilder final : public nlohmann::json_sax<Json> {
public:
    explicit TreeBuilder(std::string_view text) : m_text(text) { m_levels.reserve(kMaxLevels); }

    /// The tree, or an empty one and one Unreadable problem; else each key that was not alone.
    Json Build(std::vector<Diagnostic>& problems);

    bool null() override { return Put(nullptr); }

    bool boolean(bool value) override { return Put(value); }

    bool number_integer(number_integer_t value) override { return Put(value); }

    bool number_unsigned(number_unsigned_t value) override { return Put(value); }

    bool number_float(number_float_t value, const string_t&) override { return Put(value); }

    bool string(string_t& value) override { return Put(std::move(value)); }

    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return Open(true); }

    bool start_array(std::size_t) override { return Open(false); }

    bool key(string_t& name) override;
    bool end_object() override;
    bool end_array() override;
    bool parse_error(std::size_t bytesRead, const std::string& token,
                     const nlohmann::detail::exception& error) override;

private:
    struct Level {
        bool IsObject;
        Json::array_t Items;
        std::vector<std::pair<std::string, Json>> Entries;
        std::unordered_map<std::string, std::size_t> Places;
        std::size_t Current = 0;
    };

    bool Put(Json value);
    bool Open(bool isObject);
    bool Stop(Diagnostic problem);
    void Check();
    std::string PlaceOfKey() const;

    std::string_view m_text;
    Json m_root;
    std::vector<Level> m_levels;
    std::vector<Diagnostic> m_problems;
    bool m_stopped = false;
};

Json TreeBuilder::Build(std::vector<Diagnostic>& problems) {
    Json::sax_parse(m_text.begin(), m_text.end(), this);
    if (!m_stopped) {
        Check();
    }
    problems = std::move(m_problems);
    return m_stopped ? Json::object() : std::move(m_root);
}

/// What the parser lets pass: it takes a zero byte for the end of the text, and any value for a document.
void TreeBuilder::Check() {
    const std::size_t zero = m_text.find('\0');
    if (zero != std::string_view::npos) {
        Stop(UnreadableAt(m_text, zero, FoundAt(m_text, zero), "the end of the document"));
    } else if (!m_root.is_object()) {
        Stop(UnreadableAt(m_text, OffsetOfRoot(m_text), Shown(m_root), "a group in braces"));
    }
}

bool TreeBuilder::Put(Json value) {
    if (m_levels.empty()) {
        m_root = std::move(value);
    } else if (Level& level = m_levels.back(); level.IsObject) {
        level.Entries[level.Current].second = std::move(value);
    } else {
        level.Items.push_back(std::move(value));
    }
    return true;
}

bool TreeBuilder::Open(bool isObject) {
    if (m_levels.size() == kMaxLevels) {
        const std::size_t offset = OffsetOfLevelBeyond(m_text, kMaxLevels);
        return Stop(UnreadableAt(m_text, offset, FoundAt(m_text, offset),
                                 "at most " + std::to_string(kMaxLevels) + " levels of nesting"));
    }
    m_levels.push_back({isObject, {}, {}, {}, 0});
    return true;
}

bool TreeBuilder::key(string_t& name) {
    Level& level = m_levels.back();
    const auto [place, isNew] = level.Places.try_emplace(name, level.Entries.size());
    level.Current = place->second;
    if (isNew) {
        level.Entries.emplace_back(std::move(name), nullptr);
    } else if (m_problems.size() < kMaxProblems) {
        m_problems.push_back(StreamProblem(Kind::Refused, PlaceOfKey(), "the key again", "each key once"));
    }
    return true;
}

bool TreeBuilder::end_object() {
    Json::object_t object;
    object.reserve(m_levels.back().Entries.size());
    for (auto& [name, value] : m_levels.back().Entries) {
        object.emplace_back(std::move(name), std::move(value));
    }
    m_levels.pop_back();
    return Put(std::move(object));
}

bool TreeBuilder::end_array() {
    Json::array_t items = std::move(m_levels.back().Items);
    m_levels.pop_back();
    return Put(std::move(items));
}

bool TreeBuilder::parse_error(std::size_t bytesRead, const std::string& token,
                              const nlohmann::detail::exception& error) {
    return Stop(ParserFault(m_text, bytesRead, token, error.what()));
}

bool TreeBuilder::Stop(Diagnostic problem) {
    m_problems.clear();
    m_problems.push_back(std::move(problem));
    m_stopped = true;
    return false;
}

/// Keys are cut here, since a place is made for each of any number of doubled keys.
std::string TreeBuilder::PlaceOfKey() const {
    std::string place;
    for (const Level& level : m_levels) {
        place = JoinedPlace(place, level.IsObject ? Shortened(level.Entries[level.Current].first)
                                                  : std::to_string(level.Items.size()));
    }
    return place;
}

} // namespace

Json BuildJsonTree(std::string_view json, std::vector<Diagnostic>& problems) {
    return TreeBuilder(json).Build(problems);
}

std::string JoinedPlace(const std::string& place, const std::string& key) {
    return place.empty() ? key : place + '/' + key;
}

std::string Shown(const Json& value) {
    return Shortened(value.dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::optional<std::string> ScalarText(const Json& value) {
    switch (value.type()) {
    case Json::value_t::string:
        return CStringUtil::Utf8ToAnsi(value.get_ref<const std::string&>());
    case Json::value_t::boolean:
        return value.get<bool>() ? "1" : "0";
    case Json::value_t::number_integer:
        return Digits(value.get<std::int64_t>());
    case Json::value_t::number_unsigned:
        return Digits(value.get<std::uint64_t>());
    case Json::value_t::number_float:
        return NumberText(value.get<double>());
    default:
        return std::nullopt;
    }
}

} // namespace penlode
