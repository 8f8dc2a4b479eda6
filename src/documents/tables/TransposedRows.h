#pragma once

#include "documents/tables/RowReader.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace millichart::documents {

/// A table whose columns are rows here, but for the titles above it. A row's line is its column in the table.
class TransposedRows final : public RowReader {
public:
    /// Reads all rows.
    explicit TransposedRows(std::unique_ptr<RowReader> table);

    bool Next(TableRow& row) override;

    std::string Fault() const override {
        return m_isTooLarge ? "is too large to be transposed" : m_table->Fault();
    }

    std::size_t FaultLine() const override { return m_table->FaultLine(); }

    bool IsExact() const override { return m_table->IsExact(); }

    bool Rewind() override;

    char Separator() const override { return m_table->Separator(); }

    std::string Sheet() const override { return m_table->Sheet(); }

    /// In the table, of each cell of a row.
    const std::vector<std::uint32_t>& Lines() const { return m_lines; }

    const std::string& Title() const { return m_title; }

private:
    std::unique_ptr<RowReader> m_table;
    std::vector<TableRow> m_rows;
    std::vector<std::uint32_t> m_lines;
    std::string m_title;
    std::size_t m_columns = 0;
    std::size_t m_next = 0;
    bool m_isTooLarge = false;
};

} // namespace millichart::documents
