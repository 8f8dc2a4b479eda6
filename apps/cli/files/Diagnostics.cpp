#include "files/Diagnostics.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
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

/// "property/CaptionProp" for "property/CaptionProp/Caption"; empty for what is in no group.
std::string GroupOf(const std::string& place) {
    const std::size_t slash = place.rfind('/');
    return slash == std::string::npos ? "" : place.substr(0, slash);
}

/// The missing keys of a group, each with what is taken for it. The group itself may be missing too.
struct MissingKeys {
    std::size_t Count = 0;
    std::string Taken;
    bool IsGroupMissing = false;

    void Add(const Diagnostic& note) {
        constexpr std::size_t kMaxNamed = 4;
        if (++Count <= kMaxNamed) {
            Taken += (Count == 1 ? "" : ", ") + note.Place.substr(note.Place.rfind('/') + 1) + " " +
                     (note.Expected.empty() ? "empty" : penlode::Shortened(note.Expected));
        } else if (Count == kMaxNamed + 1) {
            Taken += " ...";
        }
    }

    std::string Text() const {
        const std::string keys = std::to_string(Count) + (Count == 1 ? " key" : " keys");
        return IsGroupMissing ? "missing, its " + keys + " taken as " + Taken
                              : keys + " missing, taken as " + Taken;
    }
};

bool IsMissingKey(const Diagnostic& diagnostic) {
    return diagnostic.Kind == penlode::DiagnosticKind::MissingKey;
}

/// The notes of missing keys by group, told in the place of the group's first.
class Folding {
public:
    explicit Folding(const std::vector<Diagnostic>& diagnostics) {
        for (const Diagnostic& told : diagnostics) {
            if (IsMissingKey(told)) {
                m_groups[{told.File, GroupOf(told.Place)}];
            }
        }
        for (const Diagnostic& told : diagnostics) {
            const auto own = m_groups.find({told.File, told.Place});
            if (IsMissingKey(told) && own != m_groups.end()) {
                own->second.IsGroupMissing = true;
            } else if (IsMissingKey(told)) {
                m_groups[{told.File, GroupOf(told.Place)}].Add(told);
            }
        }
    }

    /// Nothing for what was told before.
    std::optional<Diagnostic> Fold(Diagnostic told) {
        if (!IsMissingKey(told)) {
            return told;
        }
        const bool isGroup = m_groups.contains({told.File, told.Place});
        const std::string place = isGroup ? told.Place : GroupOf(told.Place);
        const MissingKeys& keys = m_groups[{told.File, place}];
        const bool isOne = keys.Count == 0 || (keys.Count == 1 && !keys.IsGroupMissing);
        if (place.empty() || isOne) {
            return told;
        }
        if (!m_told.insert({told.File, place}).second) {
            return std::nullopt;
        }
        told.Place = place;
        told.Text = keys.Text();
        return told;
    }

private:
    using GroupName = std::pair<std::string, std::string>; ///< file and place

    std::map<GroupName, MissingKeys> m_groups;
    std::set<GroupName> m_told;
};

std::vector<Diagnostic> Folded(const std::vector<Diagnostic>& diagnostics) {
    Folding folding(diagnostics);
    std::vector<Diagnostic> folded;
    for (const Diagnostic& told : diagnostics) {
        if (std::optional<Diagnostic> line = folding.Fold(told)) {
            folded.push_back(*std::move(line));
        }
    }
    return folded;
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

std::vector<std::string> ToLines(const std::vector<Diagnostic>& diagnostics) {
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
    for (const Diagnostic& diagnostic : Folded(diagnostics)) {
        const bool isNote = diagnostic.Severity == Severity::Note;
        const std::size_t count = isNote ? 0 : ++counts[diagnostic.File];
        if (count <= kMaxShown) {
            lines.push_back(ToLine(diagnostic));
        } else if (count == kMaxShown + 1) {
            const std::string more = std::to_string(totals[diagnostic.File] - kMaxShown);
            const char* const atLeast = withRest.contains(diagnostic.File) ? "at least " : "";
            lines.push_back(Printable(diagnostic.File + ": and " + atLeast + more + " more"));
        }
    }
    return lines;
}

void TakeWarningsForErrors(std::vector<Diagnostic>& diagnostics) {
    for (Diagnostic& told : diagnostics) {
        told.Severity = told.Severity == Severity::Warning ? Severity::Error : told.Severity;
    }
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

std::string ToJsonLines(const std::vector<Diagnostic>& diagnostics) {
    std::string text;
    for (const Diagnostic& diagnostic : diagnostics) {
        text += ObjectOf(diagnostic).dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    }
    return text;
}

} // namespace cli
