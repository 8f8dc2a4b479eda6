#include "documents/tables/OpenTable.h"

#include "documents/tables/Csv.h"
#include "documents/tables/Query.h"
#include "documents/tables/QuerySource.h"

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

std::unique_ptr<RowReader> OpenTable(const TableInput& input) {
    const std::string_view bytes = input.Input.Text;
    if (!input.Input.Fault.empty()) {
        return std::make_unique<NoRows>(input.Input.Fault);
    }
    if (IsQuerySource(input.Input.Name)) {
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
