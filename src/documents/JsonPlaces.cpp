#include "documents/JsonPlaces.h"

#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace millichart::documents {
namespace {

using Json = nlohmann::ordered_json;
using Spots = std::unordered_map<std::uint64_t, JsonPlaces::Spot>;

constexpr std::uint64_t kHashStart = 14695981039346656037U;
constexpr std::uint64_t kHashFactor = 1099511628211U;

/// Goes on with the hash of what stands before `text`, so that a place is hashed key by key.
std::uint64_t Hash(std::uint64_t before, std::string_view text) {
    for (const char c : text) {
        before = (before ^ static_cast<unsigned char>(c)) * kHashFactor;
    }
    return before;
}

/// Lines that end before the last character read: the parser may have read one beyond a number.
struct LineCount {
    std::size_t Breaks = 0;
    bool AfterBreak = false;
};

/// Walks the text for the parser and counts its lines on the way.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, LineCount* count) : m_at(at), m_count(count) {}

    reference operator*() const { return *m_at; }

    CountingIterator& operator++() {
        m_count->Breaks += m_count->AfterBreak ? 1 : 0;
        m_count->AfterBreak = *m_at == '\n';
        ++m_at;
        return *this;
    }

    friend bool operator==(const CountingIterator& a, const CountingIterator& b) { return a.m_at == b.m_at; }

private:
    const char* m_at;
    LineCount* m_count;
};

/// Writes down the place of every key and list item that the parser meets.
class PlaceCollector final : public nlohmann::json_sax<Json> {
public:
    PlaceCollector(Spots& spots, const LineCount& count) : m_spots(spots), m_count(count) {}

    bool null() override { return Value(); }

    bool boolean(bool) override { return Value(); }

    bool number_integer(number_integer_t) override { return Value(); }

    bool number_unsigned(number_unsigned_t) override { return Value(); }

    bool number_float(number_float_t, const string_t&) override { return Value(); }

    bool string(string_t&) override { return Value(); }

    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return Open(false); }

    bool start_array(std::size_t) override { return Open(true); }

    bool end_object() override { return Close(); }

    bool end_array() override { return Close(); }

    bool key(string_t& name) override {
        Note(name);
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    struct Level {
        bool IsList;
        std::uint64_t Place;
        std::uint64_t Entry;
        std::size_t Items;
    };

    /// An entry of the innermost level, by its key or index.
    void Note(std::string_view name) {
        Level& level = m_levels.back();
        level.Entry = Hash(m_levels.size() == 1 ? level.Place : Hash(level.Place, "/"), name);
        m_spots[level.Entry] = {m_count.Breaks + 1, m_spots.size() + 1};
    }

    bool Value() {
        if (!m_levels.empty() && m_levels.back().IsList) {
            Note(std::to_string(m_levels.back().Items++));
        }
        return true;
    }

    /// Documents nest no deeper; what does is refused by the stream and needs no places.
    bool Open(bool isList) {
        constexpr std::size_t kMaxLevels = 64;
        if (m_levels.size() >= kMaxLevels) {
            return false;
        }
        Value();
        m_levels.push_back({isList, m_levels.empty() ? kHashStart : m_levels.back().Entry, 0, 0});
        return true;
    }

    bool Close() {
        m_levels.pop_back();
        return true;
    }

    Spots& m_spots;
    const LineCount& m_count;
    std::vector<Level> m_levels;
};

} // namespace

JsonPlaces::JsonPlaces(std::string_view json) {
    LineCount count;
    PlaceCollector collector(m_spots, count);
    Json::sax_parse(CountingIterator(json.data(), &count),
                    CountingIterator(json.data() + json.size(), &count), &collector);
}

JsonPlaces::Spot JsonPlaces::Find(std::string_view place) const {
    const auto found = m_spots.find(Hash(kHashStart, place));
    return found == m_spots.end() ? Spot() : found->second;
}

} // namespace millichart::documents
