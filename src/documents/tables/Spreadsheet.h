#pragma once

#include "documents/tables/RowReader.h"

#include <memory>
#include <string>
#include <string_view>

namespace millichart::documents {

/// The rows of a sheet in an .xlsx or .ods file: the named one, or without a name the first with anything in
/// it that is not hidden. Cells hold what the file stores: numbers with all their digits, also those shown as
/// percents; texts; TRUE and FALSE; what formulas gave when the file was saved, errors such as #DIV/0! too;
/// dates as 2024-01-05, 2024-01-05T14:30:00 or 14:30:00. Of merged cells the first has the text. What cannot
/// be read is the reader's fault.
std::unique_ptr<RowReader> OpenSpreadsheet(std::string_view bytes, const std::string& sheet);

} // namespace millichart::documents
