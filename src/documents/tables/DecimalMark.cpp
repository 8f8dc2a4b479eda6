#include "documents/tables/DecimalMark.h"

#include "documents/tables/WrittenNumber.h"

namespace millichart::documents {
namespace {

/// Takes what a row tells; true if that decides.
bool Look(const TableRow& row, std::size_t from, DecimalMark& found) {
    for (std::size_t column = from; column < row.Cells.size(); ++column) {
        const std::string& cell = row.Cells[column];
        const WrittenNumber number =
            cell.find_first_of(",.") == std::string::npos ? WrittenNumber() : ReadWritten(cell);
        if (number.ByPoint.has_value() != number.ByComma.has_value()) {
            found = {number.ByComma ? ',' : '.', row.Line, column, ""};
            return true;
        }
        if (number.IsOpen() && found.Open.empty()) {
            found = {found.Mark, row.Line, column, cell};
        }
    }
    return false;
}

} // namespace

DecimalMark FindDecimalMark(LookedAtRows& rows, const TableShape& shape, std::size_t from) {
    DecimalMark found;
    found.Mark = rows.Reader().Separator() == ';' ? ',' : '.';
    rows.Rewind();
    const std::size_t above = shape.Titles + (shape.HasHeading ? 1 : 0);
    TableRow row;
    for (std::size_t i = 0; rows.Next(row); ++i) {
        if (i >= above && Look(row, from, found)) {
            break;
        }
    }
    rows.Rewind();
    return found;
}

} // namespace millichart::documents
