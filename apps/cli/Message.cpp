#include "Message.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace cli {
namespace {

using Json = nlohmann::ordered_json;

/// How the place of what is not JSON begins.
constexpr const char* kLinePlace = "line ";

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
    return line + SentenceOf(message);
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
