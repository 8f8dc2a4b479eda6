#pragma once

#include "documents/ChartContent.h"
#include "model/DataTable.h"

/// The lines of a chart as a table with a row a time, and back.
namespace designer {

DataTable TableOfCurves(const millichart::CurveDocument& document, std::int32_t timeUnit);

/// `former` is the table that the document has now.
void TakeCurves(millichart::CurveDocument& document, const DataTable& former, const DataTable& table);

/// What both conversions, and those of bars, share: the texts of a record, then those that came with the
/// data.
std::vector<std::string> ShownNames(const std::vector<std::string>& ofRecord,
                                    const std::vector<std::string>& ofData);
/// Puts names where the chart looks for them; `mayStandWithData` where neither place has any.
void TakeShownNames(const std::vector<std::string>& names, bool standWithData,
                    std::vector<std::string>& ofRecord, std::vector<std::string>& ofData);
/// Rows, and columns of numbers, without the empty ones at their ends.
std::size_t FilledRows(const DataTable& table);
std::size_t FilledColumns(const DataTable& table);
/// UTF-8 headings as narrow names.
std::vector<std::string> HeadingsOf(const DataTable& table, std::size_t columns);
std::vector<std::string> HeadsOf(const DataTable& table, std::size_t rows);

} // namespace designer
