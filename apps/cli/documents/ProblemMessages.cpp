#include "documents/ProblemMessages.h"

#include "documents/NearestName.h"

#include <algorithm>
#include <utility>

namespace cli {
namespace {

using penlode::Diagnostic;
using penlode::DiagnosticKind;
using AskedKeys = std::map<std::string, std::vector<std::string>>;

std::pair<std::string, std::string> GroupAndKey(const std::string& place) {
    const std::size_t slash = place.rfind('/');
    return slash == std::string::npos ? std::pair(std::string(), place)
                                      : std::pair(place.substr(0, slash), place.substr(slash + 1));
}

/// The place of a known key of that very name in another group.
std::string PlaceElsewhere(const std::string& key, const AskedKeys& asked) {
    for (const auto& [group, keys] : asked) {
        if (std::find(keys.begin(), keys.end(), key) != keys.end()) {
            return group.empty() ? key : group + "/" + key;
        }
    }
    return {};
}

/// The keys that were asked for in a group. What was asked for in the groups of a list counts for each.
AskedKeys::const_iterator KeysOf(const std::string& group, const AskedKeys& asked) {
    const auto keys = asked.find(group);
    const auto [list, index] = GroupAndKey(group);
    const bool isIndex = !index.empty() && index.find_first_not_of("0123456789") == std::string::npos;
    return keys == asked.end() && isIndex ? asked.find(list) : keys;
}

/// What an unknown key was probably meant to be.
std::string Guess(const std::string& place, const AskedKeys& asked) {
    const auto [group, key] = GroupAndKey(place);
    const auto known = KeysOf(group, asked);
    const std::string near = known == asked.end() ? std::string() : NearestName(key, known->second);
    return near.empty() ? PlaceElsewhere(key, asked) : near;
}

Message UnknownKey(const Diagnostic& problem, const AskedKeys& asked) {
    const std::string guess = Guess(problem.Place, asked);
    return {"",
            Severity::Warning,
            0,
            problem.Place,
            problem.Found,
            guess,
            "an unknown key, ignored" + (guess.empty() ? "" : "; is \"" + guess + "\" meant?")};
}

Message MessageOf(const Diagnostic& problem) {
    const bool isMissing = problem.Kind == DiagnosticKind::MissingKey;
    return {"",
            isMissing ? Severity::Note : Severity::Error,
            problem.Line,
            problem.Place,
            problem.Found,
            problem.Expected,
            isMissing ? problem.Text : ""};
}

} // namespace

std::vector<Message> ProblemMessages(const penlode::CJsonSerializeStream& json, const ChartStream& stream) {
    std::vector<Message> messages;
    for (const Diagnostic& problem : json.Problems()) {
        const bool missingKind =
            problem.Kind == DiagnosticKind::MissingKey && problem.Place == "kind"; // told as an error
        if (!missingKind) {
            messages.push_back(MessageOf(problem));
        }
    }
    if (json.Problems().size() >= kMaxKept) {
        messages.push_back(
            {"", Severity::Error, 0, "", "", "",
             "too many problems; those after the first " + std::to_string(kMaxKept) + " are not told", true});
    }
    if (!stream.AskedKeys().contains("property")) {
        return messages; // the record was not asked for, so that none of its keys is known
    }
    for (const Diagnostic& problem : json.UnknownKeys()) {
        messages.push_back(UnknownKey(problem, stream.AskedKeys()));
    }
    return messages;
}

void PutInDocumentOrder(const penlode::CJsonSerializeStream& json, std::vector<Message>& messages) {
    std::vector<Diagnostic> told;
    for (const Message& message : messages) {
        told.push_back({DiagnosticKind::Other,
                        message.Weight == Severity::Note ? penlode::Severity::Note : penlode::Severity::Error,
                        message.File, message.Line, message.Place, std::to_string(told.size())});
    }
    json.PutInOrder(told);
    std::vector<Message> sorted;
    for (const Diagnostic& diagnostic : told) {
        sorted.push_back(std::move(messages[std::stoul(diagnostic.Found)]));
        sorted.back().Line = diagnostic.Line;
    }
    messages = std::move(sorted);
}

} // namespace cli
