#include "documents/tables/TableKeys.h"

#include "documents/Fields.h"
#include "documents/tables/QuerySource.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;

constexpr const char* kSource = "source";
constexpr std::array<const char*, 14> kKeysBeside = {kSource,     "query", "table", "time",    "value",
                                                     "by",        "where", "sheet", "columns", "heading",
                                                     "transpose", "order", "top",   "decimal"};
constexpr std::array<std::pair<const char*, TableOrder>, 3> kOrders = {
    {{"ascending", TableOrder::Ascending},
     {"descending", TableOrder::Descending},
     {"name", TableOrder::ByName}}};

/// "groupsSheet" for "sheet" beside "groupsCsv".
std::string KeyBeside(const std::string& csvKey, std::string key) {
    const std::string group = csvKey.substr(0, csvKey.size() - std::string_view("csv").size());
    if (!group.empty()) {
        key.front() = static_cast<char>(key.front() - 'a' + 'A');
    }
    return group + key;
}

class OptionsLoad {
public:
    OptionsLoad(ChartStream& stream, const std::string& csvKey) : m_stream(stream), m_csvKey(csvKey) {}

    /// The narrow text under a key; nothing without one.
    std::optional<std::string> Text(const char* key) {
        const std::string at = KeyBeside(m_csvKey, key);
        return m_stream.Has(at) ? std::optional(LoadText(m_stream, at.c_str(), "")) : std::nullopt;
    }

    std::string Utf8(const char* key) { return CStringUtil::AnsiToUtf8(Text(key).value_or("")); }

    std::vector<std::string> Utf8List(const char* key) {
        const std::string at = KeyBeside(m_csvKey, key);
        std::vector<std::string> texts;
        if (m_stream.Has(at)) {
            m_stream.Ser(at, texts, {});
        }
        std::transform(texts.begin(), texts.end(), texts.begin(), CStringUtil::AnsiToUtf8);
        return texts;
    }

    std::optional<bool> Flag(const char* key) {
        const std::optional<std::string> text = Text(key);
        if (text && *text != "0" && *text != "1") {
            Refuse(key, *text, "true or false");
        }
        return text ? std::optional(*text == "1") : std::nullopt;
    }

    std::size_t Count(const char* key) {
        const std::optional<std::string> text = Text(key);
        const std::optional<std::size_t> count = text ? penlode::NumberOf<std::size_t>(*text) : std::nullopt;
        if (text && count.value_or(0) == 0) {
            Refuse(key, *text, "a whole number from 1");
        }
        return count.value_or(0);
    }

    TableOrder Order(const char* key) {
        const std::optional<std::string> text = Text(key);
        const auto found = std::find_if(kOrders.begin(), kOrders.end(),
                                        [&](const auto& order) { return text == order.first; });
        if (text && found == kOrders.end()) {
            Refuse(key, *text, "\"ascending\", \"descending\" or \"name\"");
        }
        return found == kOrders.end() ? TableOrder::AsItStands : found->second;
    }

    std::optional<char> Mark(const char* key) {
        const std::optional<std::string> text = Text(key);
        const bool isMark = text == "." || text == ",";
        if (text && !isMark) {
            Refuse(key, *text, "\".\" or \",\"");
        }
        return isMark ? std::optional(text->front()) : std::nullopt;
    }

private:
    void Refuse(const char* key, const std::string& found, const std::string& expected) {
        m_stream.Refuse(KeyBeside(m_csvKey, key), found, expected);
    }

    ChartStream& m_stream;
    const std::string& m_csvKey;
};

} // namespace

bool NamesTable(ChartStream& stream, const std::string& csvKey) {
    const bool hasCsv = stream.Has(csvKey);
    return stream.Has(KeyBeside(csvKey, kSource)) || hasCsv;
}

std::string LoadTableName(ChartStream& stream, const std::string& csvKey, const std::string& dataKey) {
    std::string name;
    std::string taken = stream.Has(dataKey) ? dataKey : "";
    for (const std::string& key : {csvKey, KeyBeside(csvKey, kSource)}) {
        if (!stream.Has(key)) {
            continue;
        }
        const std::string found = LoadText(stream, key.c_str(), "");
        // A password is refused by whoever opens the table, and not shown.
        if (!taken.empty() && !HoldsPassword(CStringUtil::AnsiToUtf8(found))) {
            stream.Refuse(key, found, "either " + taken + " or " + key + ", not both");
        }
        if (found.empty() || found.find('\0') != std::string::npos) {
            stream.Refuse(key, found, "the name of a CSV file");
        } else {
            name = found;
        }
        taken = key;
    }
    return name;
}

TableOptions LoadTableOptions(ChartStream& stream, const std::string& csvKey) {
    OptionsLoad load(stream, csvKey);
    TableOptions options;
    options.Query = load.Utf8("query");
    options.Points = {load.Utf8("table"), load.Utf8("time"), load.Utf8("value"), load.Utf8("by"),
                      load.Utf8List("where")};
    options.Sheet = load.Utf8("sheet");
    options.Columns = load.Utf8List("columns");
    options.HasHeading = load.Flag("heading");
    options.IsTransposed = load.Flag("transpose").value_or(false);
    options.Order = load.Order("order");
    options.Top = load.Count("top");
    options.DecimalMark = load.Mark("decimal");
    return options;
}

TableOptions Merged(TableOptions first, const TableOptions& second) {
    const auto take = [](auto& mine, const auto& other, const auto& unset) {
        mine = mine == unset ? other : mine;
    };
    const TableOptions unset;
    take(first.Sheet, second.Sheet, unset.Sheet);
    take(first.Query, second.Query, unset.Query);
    take(first.Points, second.Points, unset.Points);
    take(first.Columns, second.Columns, unset.Columns);
    take(first.HasHeading, second.HasHeading, unset.HasHeading);
    take(first.IsTransposed, second.IsTransposed, unset.IsTransposed);
    take(first.Order, second.Order, unset.Order);
    take(first.Top, second.Top, unset.Top);
    take(first.DecimalMark, second.DecimalMark, unset.DecimalMark);
    return first;
}

std::vector<std::string> TableKeys(const std::string& csvKey) {
    std::vector<std::string> keys{csvKey};
    std::transform(kKeysBeside.begin(), kKeysBeside.end(), std::back_inserter(keys),
                   [&](const char* key) { return KeyBeside(csvKey, key); });
    return keys;
}

} // namespace millichart::documents
