#include "documents/tables/Spreadsheet.h"

#include "documents/tables/Dates.h"
#include "documents/tables/SheetRows.h"
#include "documents/tables/ZipFile.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace millichart::documents {

void SheetRows::Put(std::size_t row, std::size_t column, std::string text) {
    constexpr std::size_t kMostCells = std::size_t{1} << 24U;
    if (text.empty() || !m_fault.empty()) {
        return;
    }
    if (m_rows.empty() || m_rows.back().Line != row + 1) {
        m_rows.push_back({row + 1, {}});
    }
    std::vector<std::string>& cells = m_rows.back().Cells;
    if (column >= cells.size()) {
        m_cells += column + 1 - cells.size();
        if (m_cells > kMostCells) {
            m_fault = "has more than 16 million cells";
            return;
        }
        cells.resize(column + 1);
    }
    cells[column] = std::move(text);
}

bool SheetRows::Next(TableRow& row) {
    if (m_next == m_rows.size() || !m_fault.empty()) {
        return false;
    }
    row = m_rows[m_next++];
    return true;
}

bool SheetRows::Rewind() {
    m_next = 0;
    return true;
}

std::string DateOfDays(double days, bool isTimeAlone) {
    constexpr double kFar = 1e6;
    constexpr double kSecondsADay = 86400.0;
    if (!(std::abs(days) < kFar)) {
        return {};
    }
    const std::chrono::seconds moment(std::llround(days * kSecondsADay));
    const std::string clock = ClockText(moment, std::chrono::seconds(1));
    if (isTimeAlone) {
        return clock;
    }
    return DayText(moment) + (moment % std::chrono::hours(24) == std::chrono::seconds(0) ? "" : "T" + clock);
}

std::string_view LocalName(const char* name) {
    const std::string_view whole(name);
    const std::size_t colon = whole.find(':');
    return colon == std::string_view::npos ? whole : whole.substr(colon + 1);
}

std::vector<pugi::xml_node> Children(pugi::xml_node parent, std::string_view name) {
    std::vector<pugi::xml_node> children;
    for (const pugi::xml_node child : parent.children()) {
        if (LocalName(child.name()) == name) {
            children.push_back(child);
        }
    }
    return children;
}

pugi::xml_node Child(pugi::xml_node parent, std::string_view name) {
    return parent.find_child([name](pugi::xml_node child) { return LocalName(child.name()) == name; });
}

std::string_view Attribute(pugi::xml_node node, std::string_view name) {
    for (const pugi::xml_attribute attribute : node.attributes()) {
        if (LocalName(attribute.name()) == name) {
            return attribute.value();
        }
    }
    return {};
}

std::unique_ptr<RowReader> OpenSpreadsheet(std::string_view bytes, const std::string& sheet) {
    auto rows = std::make_unique<SheetRows>();
    const ZipFile file(bytes);
    if (file.Part("xl/workbook.xml")) {
        ReadXlsx(file, sheet, *rows);
    } else if (file.Part("content.xml")) {
        ReadOds(file, sheet, *rows);
    } else {
        rows->SetFault("found an archive or a broken file, expected .xlsx, .ods or CSV");
    }
    return rows;
}

} // namespace millichart::documents
