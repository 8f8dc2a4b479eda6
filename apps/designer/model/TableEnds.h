#pragma once

#include "model/DataTable.h"

#include <string>
#include <vector>

/// What the tables of all kinds share: names, which are narrow in a document, and where the data end.
namespace designer {

/// The names of a record, then those that came with the data.
std::vector<std::string> ShownNames(const std::vector<std::string>& ofRecord,
                                    const std::vector<std::string>& ofData);
/// Puts names where the chart looks for them; `standWithData` tells which place they get where neither has
/// any.
void TakeShownNames(const std::vector<std::string>& names, bool standWithData,
                    std::vector<std::string>& ofRecord, std::vector<std::string>& ofData);
/// Rows, and columns of numbers, without the empty ones at their ends.
std::size_t FilledRows(const DataTable& table);
std::size_t FilledColumns(const DataTable& table);
/// As narrow names; of heads that are all empty there are none.
std::vector<std::string> HeadingsOf(const DataTable& table, std::size_t columns);
std::vector<std::string> HeadsOf(const DataTable& table, std::size_t rows);

} // namespace designer
