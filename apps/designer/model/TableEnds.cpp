#include "model/TableEnds.h"

#include "model/CellTexts.h"

#include <algorithm>
#include <cmath>

namespace designer {
namespace {

bool AnyNamed(const std::vector<std::string>& names) {
    return std::any_of(names.begin(), names.end(), [](const std::string& name) { return !name.empty(); });
}

} // namespace

std::vector<std::string> ShownNames(const std::vector<std::string>& ofRecord,
                                    const std::vector<std::string>& ofData) {
    std::vector<std::string> names = ofRecord;
    for (std::size_t i = names.size(); i < ofData.size(); ++i) {
        names.push_back(ofData[i]);
    }
    return names;
}

void TakeShownNames(const std::vector<std::string>& names, bool standWithData,
                    std::vector<std::string>& ofRecord, std::vector<std::string>& ofData) {
    std::vector<std::string> before = ShownNames(ofRecord, ofData);
    if (before.size() <= names.size()) {
        before.resize(names.size());
        if (before == names) {
            return;
        }
    }
    const std::vector<std::string> now = AnyNamed(names) ? names : std::vector<std::string>();
    const bool hasOwn = !ofRecord.empty();
    const bool hasData = !ofData.empty();
    if (hasData || (!hasOwn && standWithData)) {
        ofData = now;
    }
    if (hasOwn || (!hasData && !standWithData)) {
        ofRecord = now;
    }
}

std::size_t FilledColumns(const DataTable& table) {
    std::size_t columns = std::min(table.ColumnCount() - 1, table.UsedColumns());
    for (; columns > 0 && table.Heading(columns).empty(); --columns) {
        const std::vector<double>& numbers = table.Numbers(columns);
        if (std::any_of(numbers.begin(), numbers.end(), [](double number) { return !std::isnan(number); })) {
            break;
        }
    }
    return columns;
}

std::size_t FilledRows(const DataTable& table) {
    const std::size_t columns = std::min(table.ColumnCount() - 1, table.UsedColumns());
    const auto isEmpty = [&](std::size_t row) {
        for (std::size_t column = 1; column <= columns; ++column) {
            if (!std::isnan(table.Numbers(column)[row])) {
                return false;
            }
        }
        return table.Text(row, 0).empty();
    };
    std::size_t rows = table.RowCount();
    while (rows > 0 && isEmpty(rows - 1)) {
        --rows;
    }
    return rows;
}

std::vector<std::string> HeadingsOf(const DataTable& table, std::size_t columns) {
    std::vector<std::string> names;
    for (std::size_t column = 1; column <= columns; ++column) {
        names.push_back(ToNarrow(table.Heading(column)));
    }
    return names;
}

std::vector<std::string> HeadsOf(const DataTable& table, std::size_t rows) {
    std::vector<std::string> names(rows);
    for (std::size_t row = 0; row < rows; ++row) {
        names[row] = ToNarrow(table.Text(row, 0));
    }
    return AnyNamed(names) ? names : std::vector<std::string>();
}

} // namespace designer
