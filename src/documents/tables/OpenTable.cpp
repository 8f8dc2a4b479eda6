#include "documents/tables/OpenTable.h"

#include "documents/tables/Csv.h"
#include "documents/tables/NoRows.h"
#include "documents/tables/Query.h"

namespace millichart::documents {

std::unique_ptr<RowReader> OpenTable(const TableInput& input) {
    const std::string_view bytes = input.Input.Text;
    if (!input.Input.Fault.empty()) {
        return std::make_unique<NoRows>(input.Input.Fault);
    }
    if (!input.Source.empty()) {
        return OpenQuery(input);
    }
    if (bytes.starts_with("\xD0\xCF\x11\xE0")) {
        return std::make_unique<NoRows>(
            "found an old or an encrypted workbook, expected .xlsx, .ods or CSV; a "
            "spreadsheet program saves it as one, without a password");
    }
    return std::make_unique<CsvReader>(bytes);
}

} // namespace millichart::documents
