#pragma once

#include "documents/tables/RowReader.h"

#include <cstddef>
#include <cstdint>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

/// What the readers of .xlsx and .ods files share.
namespace millichart::documents {

class ZipFile;

/// A sheet's rows that have any text, in memory.
class SheetRows final : public RowReader {
public:
    /// A row's and a column's number from 0. Rows come in their order; empty texts and what is beyond the
    /// most cells are not kept.
    void Put(std::size_t row, std::size_t column, std::string text);

    bool IsEmpty() const { return m_rows.empty(); }

    void SetName(std::string name) { m_name = std::move(name); }

    void SetFault(std::string fault) { m_fault = std::move(fault); }

    bool Next(TableRow& row) override;

    std::string Fault() const override { return m_fault; }

    bool IsExact() const override { return true; }

    bool Rewind() override;

    std::string Sheet() const override { return m_name; }

private:
    std::string m_name;
    std::string m_fault;
    std::vector<TableRow> m_rows;
    std::size_t m_cells = 0;
    std::size_t m_next = 0;
};

/// A sheet of a file, as its list of sheets has it.
struct SheetEntry {
    std::string Name;
    std::string Part;    ///< of the archive, where each sheet has one
    pugi::xml_node Node; ///< else
    bool IsHidden = false;
};

/// Days since the beginning of 1970 as 2024-01-05, 2024-01-05T14:30:00; less than a day as 14:30:00.
std::string DateOfDays(double days, bool isTimeAlone);

/// An element's or attribute's name without its prefix.
std::string_view LocalName(const char* name);

/// The children of that name, whatever their prefix.
std::vector<pugi::xml_node> Children(pugi::xml_node parent, std::string_view name);
pugi::xml_node Child(pugi::xml_node parent, std::string_view name);
std::string_view Attribute(pugi::xml_node node, std::string_view name);

/// Reads the sheets in `entries` by `read`, which puts one's cells into rows: the one that is named, or the
/// first that is not empty.
template <class Read>
void ReadSheet(const std::vector<SheetEntry>& entries, const std::string& name, SheetRows& rows,
               const Read& read) {
    std::string names;
    for (const SheetEntry& entry : entries) {
        if (name.empty() ? !entry.IsHidden : entry.Name == name) {
            read(entry, rows);
            rows.SetName(entry.Name);
            if (!name.empty() || !rows.IsEmpty() || !rows.Fault().empty()) {
                return;
            }
        }
        names += (names.empty() ? "\"" : ", \"") + entry.Name + "\"";
    }
    if (!name.empty()) {
        rows.SetFault("found no sheet \"" + name + "\", expected one of " + names);
    }
}

void ReadXlsx(const ZipFile& file, const std::string& sheet, SheetRows& rows);
void ReadOds(const ZipFile& file, const std::string& sheet, SheetRows& rows);

} // namespace millichart::documents
