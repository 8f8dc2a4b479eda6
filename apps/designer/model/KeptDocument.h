#pragma once

#include "model/DataTable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace designer {

/// A document as it is kept against a crash: its text, and what its tables have beside it. As a text file it
/// is a line that names the format, a sum of what follows, and then texts each after its length in bytes, so
/// that it holds anything and whatever was cut off or changed is noticed.
struct KeptDocument {
    /// A cell that the document cannot hold, and its text. Column 0 has the heads.
    struct Cell {
        std::size_t Table = 0;
        std::size_t Row = 0;
        std::size_t Column = 0;
        std::string Text;
    };

    std::string File;       ///< its own; empty if it never had one
    std::uint64_t Time = 0; ///< when it was kept, in seconds since 1970
    std::string Text;
    std::vector<Cell> Cells;
    std::vector<Cell> Headings; ///< without a row

    /// Takes what the tables show otherwise than those that the document itself gives.
    void TakeTables(const std::vector<DataTable>& tables, const std::vector<DataTable>& ofDocument);
    /// Puts that into those of the document.
    void PutInto(std::vector<DataTable>& tables) const;
};

std::string Written(const KeptDocument& kept);
/// Nothing for a text that is damaged anywhere.
std::optional<KeptDocument> ReadKept(std::string_view text);

} // namespace designer
