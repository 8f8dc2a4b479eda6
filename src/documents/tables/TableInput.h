#pragma once

#include "documents/Files.h"
#include "documents/tables/PointsTable.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace millichart {

class ByteSource;

/// In which order a table's rows are shown.
enum class TableOrder { AsItStands, Ascending, Descending, ByName };

/// How a table is to be read, where it does not tell by itself.
struct TableOptions {
    std::string Sheet{};  ///< of a spreadsheet file, UTF-8; the first one if empty
    std::string Query{};  ///< of a data base, UTF-8
    PointsTable Points{}; ///< of a data base, in place of a query
    /// The first is that of the names or times. Each by its heading (UTF-8) or its number from 1; all if
    /// empty.
    std::vector<std::string> Columns{};
    std::optional<bool> HasHeading{}; ///< without, the table tells
    bool IsTransposed = false;        ///< a row of the table is a column here
    TableOrder Order = TableOrder::AsItStands;
    std::size_t Top = 0;               ///< so many of the largest rows, and the rest as one; 0: all
    std::optional<char> DecimalMark{}; ///< '.' or ','; without, the table tells

    friend bool operator==(const TableOptions&, const TableOptions&) = default;
};

/// A table and how it is to be read: the bytes of a text or spreadsheet file; or the source of a data base,
/// of which `QueryInput` makes one.
struct TableInput {
    InputText Input;
    TableOptions Options = {};
    /// Of a data base, which has no text and may have passwords in its source, but none in its name.
    std::string Source = {};
    /// Of a text that may be too long to be held: it is read from here, and `Input` has none of it yet.
    std::shared_ptr<ByteSource> Stream = {};
};

} // namespace millichart
