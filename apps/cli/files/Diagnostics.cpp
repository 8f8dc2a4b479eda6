#include "files/Diagnostics.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

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

Json ObjectOf(const Diagnostic& diagnostic) {
    Json object;
    object["file"] = diagnostic.File;
    object["line"] = diagnostic.Line == 0 ? Json(nullptr) : Json(diagnostic.Line);
    object["severity"] = NameOf(diagnostic.Severity);
    object["place"] = diagnostic.Place;
    object["found"] = diagnostic.Found;
    object["expected"] = diagnostic.Expected;
    object["message"] = diagnostic.Text;
    return object;
}

} // namespace

std::string Printable(std::string_view text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsControl(text, i)) {
            shown += "\\x" + penlode::HexDigits(static_cast<unsigned char>(text[i]), 2);
        } else {
            shown += text[i];
        }
    }
    return shown;
}

std::string ToLine(const Diagnostic& diagnostic) {
    std::string line = diagnostic.File;
    const bool placeHasLine = diagnostic.Place.starts_with(kLinePlace);
    if (diagnostic.Line != 0 && !placeHasLine) {
        line += ":" + std::to_string(diagnostic.Line);
    }
    line += ": ";
    if (diagnostic.Severity != Severity::Error) {
        line += std::string(NameOf(diagnostic.Severity)) + ": ";
    }
    if (!diagnostic.Place.empty()) {
        line += diagnostic.Place + ": ";
    }
    return Printable(line + diagnostic.Text);
}

std::vector<std::string> ToLines(const std::vector<Diagnostic>& diagnostics, bool withNotes) {
    std::map<std::string, std::size_t> totals;
    std::set<std::string> withRest;
    for (const Diagnostic& diagnostic : diagnostics) {
        totals[diagnostic.File] += diagnostic.Severity == Severity::Note || diagnostic.IsRest ? 0 : 1;
        if (diagnostic.IsRest) {
            withRest.insert(diagnostic.File);
        }
    }
    std::map<std::string, std::size_t> counts;
    std::vector<std::string> lines;
    for (const Diagnostic& diagnostic : diagnostics) {
        const bool isNote = diagnostic.Severity == Severity::Note;
        const std::size_t count = isNote ? 0 : ++counts[diagnostic.File];
        if (isNote ? withNotes : count <= kMaxShown) {
            lines.push_back(ToLine(diagnostic));
        } else if (count == kMaxShown + 1) {
            const std::string more = std::to_string(totals[diagnostic.File] - kMaxShown);
            const char* const atLeast = withRest.contains(diagnostic.File) ? "at least " : "";
            lines.push_back(Printable(diagnostic.File + ": and " + atLeast + more + " more"));
        }
    }
    return lines;
}

std::string CountedDiagnostics(const std::vector<Diagnostic>& diagnostics, Severity severity) {
    std::size_t count = 0;
    bool hasRest = false;
    for (const Diagnostic& diagnostic : diagnostics) {
        const bool isMeant = diagnostic.Severity == severity;
        count += isMeant && !diagnostic.IsRest ? 1 : 0;
        hasRest = hasRest || (isMeant && diagnostic.IsRest);
    }
    return (hasRest ? "at least " : "") + std::to_string(count) + " " + NameOf(severity) +
           (count == 1 ? "" : "s");
}

std::string ToJson(const std::vector<Diagnostic>& diagnostics) {
    std::string text = "[";
    for (const Diagnostic& diagnostic : diagnostics) {
        text += text.size() == 1 ? "\n  " : ",\n  ";
        text += ObjectOf(diagnostic).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    return text + (diagnostics.empty() ? "]\n" : "\n]\n");
}

} // namespace cli
