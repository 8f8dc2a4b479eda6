#pragma once

#include "documents/ChartDocument.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// What people ask of a chart in a word each, whatever its kind calls it. Texts are UTF-8.
struct Look {
    std::optional<std::string> Title;
    std::optional<std::string> XTitle;
    std::optional<std::string> YTitle;
    std::optional<std::string> Legend; ///< as LegendPlace gives it, or empty for none
    bool IsLogarithmic = false;
    bool IsStacked = false;
    bool Is3D = false;

    friend bool operator==(const Look&, const Look&) = default;
};

/// What a chart's record calls a place for its legend that was named "right", "top-left", "RightCenter" or
/// the like; empty for "none", and nothing for other words.
std::optional<std::string> LegendPlace(const std::string& word);

/// The same as settings of a document. Throws UsageError for what the kind does not have.
std::vector<millichart::Setting> SettingsOf(const Look& look, const millichart::ChartKind& kind);

/// Does this kind draw its title?
bool DrawsTitle(const millichart::ChartKind& kind);

} // namespace cli
