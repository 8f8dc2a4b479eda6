#include "documents/tables/Spreadsheet.h"

#include "documents/tables/SheetRows.h"
#include "documents/tables/ZipFile.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

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
    using namespace std::chrono;
    constexpr double kFar = 1e7;
    if (!(std::abs(days) < kFar)) {
        return {};
    }
    constexpr double kSecondsADay = 86400.0;
    const sys_seconds moment{seconds(std::llround(days * kSecondsADay))};
    const sys_days day = floor<std::chrono::days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    std::array<char, 64> text{};
    const auto print = [&text](const char* form, auto... numbers) {
        std::snprintf(text.data(), text.size(), form, numbers...);
        return std::string(text.data());
    };
    const std::string clock = print("%02d:%02d:%02d", static_cast<int>(time.hours().count()),
                                    static_cast<int>(time.minutes().count()),
                                    static_cast<int>(time.seconds().count()));
    if (isTimeAlone) {
        return clock;
    }
    const std::string calendar =
        print("%04d-%02u-%02u", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
              static_cast<unsigned>(date.day()));
    return moment == day ? calendar : calendar + "T" + clock;
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
