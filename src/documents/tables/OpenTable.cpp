#include "documents/tables/OpenTable.h"

#include "documents/large/ByteSource.h"
#include "documents/tables/Csv.h"
#include "documents/tables/NoRows.h"
#include "documents/tables/Query.h"
#ifdef MILLICHART_SPREADSHEETS
#include "documents/tables/Spreadsheet.h"
#endif

namespace millichart::documents {

std::unique_ptr<RowReader> OpenTable(const TableInput& input) {
    const std::string_view bytes =
        input.Stream ? input.Stream->Beginning() : std::string_view(input.Input.Text);
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
    if (bytes.starts_with("PK\x03\x04")) {
#ifdef MILLICHART_SPREADSHEETS
        return OpenSpreadsheet(bytes, input.Options.Sheet);
#else
        return std::make_unique<NoRows>(
            "found a spreadsheet file, which this build does not read; expected CSV");
#endif
    }
    return std::make_unique<CsvReader>(bytes);
}

} // namespace millichart::documents
