#include "files/Message.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

namespace cli {
namespace {

using Json = nlohmann::ordered_json;

/// How the place of what is not JSON begins.
constexpr const char* kLinePlace = "line ";

constexpr std::size_t kMaxShown = 50;

/// Also the two bytes of a control character from U+0080 to U+009F.
bool IsControl(std::string_view text, std::size_t i) {
    const auto at = [text](std::size_t position) {
        return position < text.size() ? static_cast<unsigned char>(text[position]) : 0U;
    };
    const auto isHigh = [&at](std::size_t lead) {
        return at(lead) == 0xC2U && at(lead + 1) >= 0x80U && at(lead + 1) < 0xA0U;
    };
    return at(i) < 0x20U || at(i) == 0x7FU || isHigh(i) || (i > 0 && isHigh(i - 1));
}

Json ObjectOf(const Message& message) {
    Json object;
    object["file"] = message.File;
    object["line"] = message.Line == 0 ? Json(nullptr) : Json(message.Line);
    object["severity"] = NameOf(message.Weight);
    object["place"] = message.Place;
    object["found"] = message.Found;
    object["expected"] = message.Wanted;
    object["message"] = SentenceOf(message);
    return object;
}

} // namespace

Message At(const FilePlace& place, Severity severity, std::string sentence) {
    return {place.File, severity, place.Line, place.Place, "", "", std::move(sentence)};
}

std::string Printable(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (!IsControl(text, i)) {
            shown += text[i];
            continue;
        }
        shown += "\\x";
        shown += kDigits[byte >> 4U];
        shown += kDigits[byte & 15U];
    }
    return shown;
}

const char* NameOf(Severity severity) {
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    default:
        return "note";
    }
}

std::string SentenceOf(const Message& message) {
    return message.Text.empty() ? "found " + message.Found + ", expected " + message.Wanted : message.Text;
}

std::string ToLine(const Message& message) {
    std::string line = message.File;
    const bool placeHasLine = message.Place.starts_with(kLinePlace);
    if (message.Line != 0 && !placeHasLine) {
        line += ":" + std::to_string(message.Line);
    }
    line += ": ";
    if (message.Weight != Severity::Error) {
        line += std::string(NameOf(message.Weight)) + ": ";
    }
    if (!message.Place.empty()) {
        line += message.Place + ": ";
    }
    return Printable(line + SentenceOf(message));
}

std::vector<std::string> ToLines(const std::vector<Message>& messages, bool withNotes) {
    std::map<std::string, std::size_t> totals;
    std::set<std::string> withRest;
    for (const Message& message : messages) {
        totals[message.File] += message.Weight == Severity::Note || message.IsRest ? 0 : 1;
        if (message.IsRest) {
            withRest.insert(message.File);
        }
    }
    std::map<std::string, std::size_t> counts;
    std::vector<std::string> lines;
    for (const Message& message : messages) {
        const bool isNote = message.Weight == Severity::Note;
        const std::size_t count = isNote ? 0 : ++counts[message.File];
        if (isNote ? withNotes : count <= kMaxShown) {
            lines.push_back(ToLine(message));
        } else if (count == kMaxShown + 1) {
            const std::string more = std::to_string(totals[message.File] - kMaxShown);
            const char* const atLeast = withRest.contains(message.File) ? "at least " : "";
            lines.push_back(Printable(message.File + ": and " + atLeast + more + " more"));
        }
    }
    return lines;
}

std::string CountedMessages(const std::vector<Message>& messages, Severity severity) {
    std::size_t count = 0;
    bool hasRest = false;
    for (const Message& message : messages) {
        const bool isMeant = message.Weight == severity;
        count += isMeant && !message.IsRest ? 1 : 0;
        hasRest = hasRest || (isMeant && message.IsRest);
    }
    return (hasRest ? "at least " : "") + Counted(count, NameOf(severity));
}

std::string ToJson(const std::vector<Message>& messages) {
    std::string text = "[";
    for (const Message& message : messages) {
        text += text.size() == 1 ? "\n  " : ",\n  ";
        text += ObjectOf(message).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    return text + (messages.empty() ? "]\n" : "\n]\n");
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

bool HasErrors(const std::vector<Message>& messages) {
    return std::any_of(messages.begin(), messages.end(),
                       [](const Message& message) { return message.Weight == Severity::Error; });
}

} // namespace cli
