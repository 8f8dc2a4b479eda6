#include "documents/tables/QuerySource.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace millichart {
namespace {

constexpr std::string_view kSqlite = "sqlite:";
constexpr std::string_view kOdbc = "odbc:";
constexpr const char* kHidden = "***";

constexpr std::array<std::string_view, 12> kHarmlessKeys{"dsn",  "driver", "server",   "servername",
                                                         "host", "port",   "database", "db",
                                                         "uid",  "user",   "sslmode",  "encrypt"};
constexpr std::array<std::string_view, 6> kSecretKeys{"pwd", "pass", "secret", "token", "key", "credential"};
/// Attributes within an attribute, or an address with a user in it.
constexpr std::array<std::string_view, 3> kSecretValues{"password=", "pwd=", "://"};

/// A part of a connection string.
struct Attribute {
    std::string Key;  ///< in lower case
    std::string Text; ///< the whole part as it stands
    std::string Value;
    bool IsSecret = false;
};

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

std::string Trimmed(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(" \t"), text.size());
    return std::string(text.substr(begin, text.find_last_not_of(" \t") + 1 - begin));
}

template <class Words> bool HasAny(const std::string& text, const Words& words) {
    return std::any_of(words.begin(), words.end(),
                       [&text](std::string_view word) { return text.find(word) != std::string::npos; });
}

/// Where the part that begins there ends. A value in braces may hold semicolons, and closing braces twice.
std::size_t EndOfPart(std::string_view text, std::size_t begin) {
    const std::size_t plainEnd = std::min(text.find(';', begin), text.size());
    const std::size_t equals = text.find('=', begin);
    const std::size_t value =
        equals < plainEnd ? text.find_first_not_of(" \t", equals + 1) : std::string_view::npos;
    if (value >= text.size() || text[value] != '{') {
        return plainEnd;
    }
    std::size_t brace = text.find('}', value);
    while (brace != std::string_view::npos && text.substr(brace + 1, 1) == "}") {
        brace = text.find('}', brace + 2);
    }
    return brace == std::string_view::npos ? text.size() : std::min(text.find(';', brace), text.size());
}

bool IsInBraces(const std::string& value) {
    return value.size() > 1 && value.front() == '{' && value.back() == '}';
}

Attribute AttributeOf(std::string_view part) {
    const std::size_t equals = std::min(part.find('='), part.size());
    Attribute attribute{Lower(Trimmed(part.substr(0, equals))), std::string(part),
                        Trimmed(part.substr(std::min(equals + 1, part.size())))};
    attribute.IsSecret = HasAny(attribute.Key, kSecretKeys) || HasAny(Lower(attribute.Value), kSecretValues);
    return attribute;
}

std::vector<Attribute> AttributesOf(const std::string& connection) {
    std::vector<Attribute> attributes;
    for (std::size_t begin = 0; begin < connection.size();) {
        const std::size_t end = EndOfPart(connection, begin);
        Attribute attribute = AttributeOf(std::string_view(connection).substr(begin, end - begin));
        // What has no key is the rest of a value with a semicolon in it.
        if (attribute.Text.find('=') == std::string::npos && !attributes.empty() &&
            attributes.back().IsSecret) {
            attribute.Value = attribute.Text;
            attribute.IsSecret = true;
        }
        attributes.push_back(std::move(attribute));
        begin = end + 1;
    }
    return attributes;
}

std::string ShownAttribute(const Attribute& attribute) {
    if (!attribute.IsSecret) {
        return attribute.Text;
    }
    const std::size_t equals = attribute.Text.find('=');
    return (equals == std::string::npos ? "" : attribute.Text.substr(0, equals + 1)) + kHidden;
}

void Hide(std::string& text, const std::string& secret) {
    for (std::size_t at = secret.empty() ? std::string::npos : text.find(secret); at != std::string::npos;
         at = text.find(secret, at + std::string_view(kHidden).size())) {
        text.replace(at, secret.size(), kHidden);
    }
}

/// A driver may take a value with further attributes in it apart in another way; a driver or a data base that
/// is a file is loaded or made.
bool IsHarmless(const Attribute& attribute) {
    const bool isKnown =
        std::find(kHarmlessKeys.begin(), kHarmlessKeys.end(), attribute.Key) != kHarmlessKeys.end();
    const bool isServer =
        attribute.Key == "server" || attribute.Key == "servername" || attribute.Key == "host";
    const std::string& value = attribute.Value;
    const std::string inner = IsInBraces(value) ? value.substr(1, value.size() - 2) : value;
    return isKnown && inner.find_first_of(isServer ? ";{}" : ";{}/\\") == std::string::npos &&
           attribute.Text.find('\0') == std::string::npos;
}

} // namespace

bool IsQuerySource(std::string_view name) {
    return name.starts_with(kSqlite) || name.starts_with(kOdbc);
}

TableInput QueryInput(const std::string& source, TableOptions options) {
    return {{ShownSource(source)}, std::move(options), source};
}

std::string QuerySourceIn(const std::filesystem::path& folder, const std::string& source) {
    const std::string file = FileOfQuerySource(source);
    return file.empty() ? source : std::string(kSqlite) + Utf8FromPath(folder / PathFromUtf8(file));
}

std::string FileOfQuerySource(const std::string& source) {
    return source.starts_with(kSqlite) ? source.substr(kSqlite.size()) : "";
}

std::string OdbcConnection(const std::string& source) {
    if (!source.starts_with(kOdbc)) {
        return {};
    }
    const std::string text = source.substr(kOdbc.size());
    const bool isName = text.find('=') >= std::min(text.find(';'), text.size());
    return (isName ? "DSN=" : "") + text;
}

std::string ShownSource(const std::string& source) {
    if (!source.starts_with(kOdbc)) {
        return source.starts_with(kSqlite) ? FileOfQuerySource(source) : source;
    }
    std::string shown(kOdbc);
    for (const Attribute& attribute : AttributesOf(source.substr(kOdbc.size()))) {
        shown += (shown.size() > kOdbc.size() ? ";" : "") + ShownAttribute(attribute);
    }
    return shown;
}

bool HoldsPassword(const std::string& source) {
    const std::vector<Attribute> attributes = AttributesOf(OdbcConnection(source));
    return std::any_of(attributes.begin(), attributes.end(),
                       [](const Attribute& attribute) { return attribute.IsSecret; });
}

std::string WithoutPasswords(std::string text, const std::string& source) {
    for (const Attribute& attribute : AttributesOf(OdbcConnection(source))) {
        if (attribute.IsSecret) {
            Hide(text, attribute.Value);
            Hide(text, IsInBraces(attribute.Value) ? attribute.Value.substr(1, attribute.Value.size() - 2)
                                                   : std::string());
        }
    }
    return text;
}

std::string ExpectedOfDocument(const std::string& source) {
    const std::vector<Attribute> attributes = AttributesOf(OdbcConnection(source));
    if (HoldsPassword(source)) {
        return "no password in a document; the driver finds it in odbc.ini or in a file of its own, such as "
               "PGPASSFILE";
    }
    if (!std::all_of(attributes.begin(), attributes.end(), IsHarmless)) {
        return "a DSN, or Driver by its name, Server, Port, Database and UID in a document; all else belongs "
               "in odbc.ini";
    }
    return {};
}

} // namespace millichart
