#pragma once

#include "data/ChartData.h"

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

/// The slices of a pie or half pie: one number each, 0 or more, and its name if the data came with names
/// (narrow).
struct PieData {
    std::vector<std::string> Names;
    std::vector<double> Values;
    std::string Place;         ///< of the document's group in which the values stand or would stand
    bool NamesGoFirst = false; ///< the user put these data in the place of the document's, names and all
};

/// A pie of more is a grey disk, and takes its layout minutes.
inline constexpr std::size_t kMaxSlices = 5000;

/// What is expected of data that have more.
std::string FewerSlices();

/// The group "data" of a document: "values", or "csv" with a file of two columns, names and values. What is
/// wrong is told; data with more slices than a pie can show are told and empty.
PieData LoadPieData(ChartStream& stream, const DataSource& source);

/// What two half pies show.
struct HalvesData {
    PieData First;
    PieData Second;
};

/// The group "data" of a document of two half pies: "first" and "second", each as LoadPieData has its group,
/// or "csv" with a file of three columns, names and each half's values, under a heading.
HalvesData LoadHalvesData(ChartStream& stream, const DataSource& source);

} // namespace cli
