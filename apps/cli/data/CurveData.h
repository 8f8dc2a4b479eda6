#pragma once

#include "data/ChartData.h"

#include <cstdint>
#include <string>
#include <vector>

namespace cli {

/// The curves of a chart: one list a curve of values and of the times at which they are. A gap is a value
/// that the library takes as null.
struct CurveData {
    std::vector<std::string> CurveNames; ///< narrow; one a curve, or none
    std::vector<std::vector<double>> Values;
    std::vector<std::vector<std::int32_t>> Times;
    std::vector<std::string>
        Labels;       ///< narrow; of the horizontal axis, those of the data if they are no times
    std::string File; ///< of the CSV file that they come from, as messages call it; or empty
    std::vector<std::uint32_t> Lines; ///< of that file: where the values of each time stand
    std::size_t EmptyColumns = 0; ///< so many of the last curves are columns of that file without any text
    bool NamesGoFirst = false;    ///< the user put these data in the place of the document's, names and all

    /// Where a value stands.
    FilePlace PlaceOf(std::size_t curve, std::size_t value) const;
};

/// The group "data" of a document: "curves", each values and their times, or "csv" with a file of a column of
/// times or labels and one of values a curve; and "labels". What is wrong is told.
CurveData LoadCurveData(ChartStream& stream, const DataSource& source);

/// Labels for an axis over these times that has none of its own: whole numbers, evenly spread, from the first
/// to the last.
std::vector<std::string> TimeLabels(const CurveData& data);

} // namespace cli
