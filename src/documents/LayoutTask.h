#pragma once

#include "documents/ChartData.h"
#include "foundation/ChartOptions.h"
#include "foundation/Legend.h"
#include "penlode/Geometry.h"
#include "penlode/streams/Diagnostic.h"

#include <set>
#include <string>
#include <vector>

/// What the layouts of all kinds of charts are told, and what they complete and tell alike.
namespace millichart::documents {

inline constexpr const char* kLabelOffsets = "labelOffsets";
inline constexpr const char* kNames = "/ComponentName"; ///< in a record's place
inline constexpr const char* kColors = "/ComponentColor";

inline constexpr const char* kShowLegend = "/ShowLegend";

/// The places of keys that a document leaves open, so that what is taken for them follows the data.
using OpenPlaces = std::set<std::string>;

/// What a layout is told besides the document's content.
struct LayoutTask {
    penlode::PointF Location;
    ChartOptions Options;
    OpenPlaces Open;
    bool AreDataChanged = false; ///< since they were loaded, so that they do not stand where they came from
    std::vector<penlode::Diagnostic> Diagnostics; ///< takes what was hardly meant
    penlode::Diagnostic Emptiness;                ///< takes what is told when the chart has no extent
};

/// The document's own names stand, then those that came with the data, then empty ones, so that so many are
/// drawn. Gives how many were named; where all is left open, so many.
std::size_t CompleteNames(std::vector<std::string>& names, const std::vector<std::string>& ofData,
                          std::size_t count, bool areOpen);

/// A legend that the document neither asks for nor refuses is there when it tells several things apart.
void CompleteLegend(LegendProp& legend, const std::vector<std::string>& names, bool isOpen);

/// Puts the names that came with the data into the record: those that it lacks, or in the place of its own.
void TakeNames(std::vector<std::string>& names, const std::vector<std::string>& ofData, bool inPlaceOfOwn);

/// Do data come with names that are not these?
bool AreOthers(const std::vector<std::string>& names, const std::vector<std::string>& ofData);

/// The warning that a document's names at `place` are others than those that came with its table.
penlode::Diagnostic OtherNames(const std::string& place);

/// "found 2 names, expected 3, one a value"
penlode::Diagnostic WrongCount(const std::string& place, std::size_t count, const char* noun,
                               std::size_t expected, const std::string& which);

/// What is told of a chart whose data, at `place` in its document unless they are in a table, are none.
penlode::Diagnostic NothingIn(const TableOrigin& origin, const char* place, const char* expected);

} // namespace millichart::documents
