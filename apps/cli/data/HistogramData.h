#pragma once

#include "data/ChartData.h"

#include <string>
#include <vector>

namespace cli {

/// The bars of a chart: one list a group, one number a component. NaN is a gap.
struct HistogramData {
    std::vector<std::string> GroupNames;     ///< narrow; one a group, or none
    std::vector<std::string> ComponentNames; ///< narrow; those of a CSV file's heading
    std::vector<std::vector<double>> Values;
    bool NamesGoFirst = false;      ///< the user put these data in the place of the document's, names and all
    std::string File;               ///< of the CSV file that they come from, as messages call it; or empty
    std::vector<std::size_t> Lines; ///< of that file: where each group stands

    /// Bars of the largest group.
    std::size_t Components() const;

    /// Where a value stands.
    FilePlace PlaceOf(std::size_t group, std::size_t component) const;
};

/// The group "data" of a document: "groups", each a name and values, or under `csvKey` a file of a column of
/// group names and one of values a component, under a heading with the components' names. What is wrong is
/// told.
HistogramData LoadHistogramData(ChartStream& stream, const DataSource& source, const char* csvKey = "csv");

} // namespace cli
