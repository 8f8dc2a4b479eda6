#include "documents/tables/OpenTable.h"

#include "documents/tables/Csv.h"
#ifdef MILLICHART_SPREADSHEETS
#include "documents/tables/Spreadsheet.h"
#endif

namespace millichart::documents {
namespace {

/// Of what cannot be opened.
class NoRows final : public RowReader {
public:
    explicit NoRows(std::string fault) : m_fault(std::move(fault)) {}

    bool Next(TableRow&) override { return false; }

    std::string Fault() const override { return m_fault; }

    bool IsExact() const override { return true; }

private:
    std::string m_fault;
};

} // namespace

bool IsDataBase(std::string_view name) {
    return name.starts_with("sqlite:") || name.starts_with("odbc:");
}

std::unique_ptr<RowReader> OpenTable(const TableInput& input) {
    const std::string_view bytes = input.Input.Text;
    if (!input.Input.Fault.empty()) {
        return std::make_unique<NoRows>(input.Input.Fault);
    }
    if (IsDataBase(input.Input.Name)) {
        return std::make_unique<NoRows>("this build reads no data bases");
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
