#include "documents/ChartStream.h"
#include "documents/DocumentDefaults.h"
#include "documents/NearestName.h"
#include "documents/tables/Table.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace millichart::documents {
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

bool IsOfData(const std::string& key) {
    return std::find(std::begin(kKeysOfData), std::end(kKeysOfData), key) != std::end(kKeysOfData);
}

} // namespace

std::vector<Diagnostic> LoadDiagnostics(const penlode::CJsonSerializeStream& json,
                                        const ChartStream& stream) {
    std::vector<Diagnostic> diagnostics = json.Problems();
    const bool areCut = diagnostics.size() >= penlode::kMaxDiagnostics;
    // A missing kind is told as an error, and what follows the data is missing on purpose.
    std::erase_if(diagnostics, [](const Diagnostic& problem) {
        return problem.Kind == DiagnosticKind::MissingKey &&
               (problem.Place == "kind" || IsOfData(GroupAndKey(problem.Place).second));
    });
    if (areCut) {
        diagnostics.push_back(penlode::Error("", "too many problems; those after the first " +
                                                     std::to_string(penlode::kMaxDiagnostics) +
                                                     " are not told"));
        diagnostics.back().IsRest = true;
    }
    diagnostics.insert(diagnostics.end(), stream.Warnings().begin(), stream.Warnings().end());
    if (!stream.AskedKeys().contains("property")) {
        return diagnostics; // the record was not asked for, so that none of its keys is known
    }
    for (const Diagnostic& unknown : json.UnknownKeys()) {
        diagnostics.push_back(penlode::StreamProblem(DiagnosticKind::UnknownKey, unknown.Place, unknown.Found,
                                                     Guess(unknown.Place, stream.AskedKeys())));
    }
    return diagnostics;
}

} // namespace millichart::documents
