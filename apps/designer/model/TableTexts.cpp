#include "model/TableTexts.h"

#include "model/DataTable.h"

#include <algorithm>
#include <optional>

namespace designer {
namespace {

constexpr std::string_view kEnds = "\t\r\n";

bool IsEnd(std::string_view text, std::size_t at) {
    return at >= text.size() || kEnds.find(text[at]) != std::string_view::npos;
}

/// A cell in quotes at `at`, which then stands behind it.
std::optional<std::string> QuotedAt(std::string_view text, std::size_t& at) {
    std::string cell;
    for (std::size_t i = at + 1; i < text.size(); ++i) {
        if (text[i] != '"') {
            cell += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == '"') {
            cell += text[++i];
        } else if (IsEnd(text, i + 1)) {
            at = i + 1;
            return cell;
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::string CellAt(std::string_view text, std::size_t& at) {
    if (at < text.size() && text[at] == '"') {
        if (std::optional<std::string> quoted = QuotedAt(text, at)) {
            return *std::move(quoted);
        }
    }
    const std::size_t end = std::min(text.find_first_of(kEnds, at), text.size());
    std::string cell(text.substr(at, end - at));
    at = end;
    return cell;
}

} // namespace

std::vector<std::vector<std::string>> CellsOf(std::string_view texts) {
    std::vector<std::vector<std::string>> rows(1);
    std::size_t at = 0;
    while (true) {
        rows.back().push_back(CellAt(texts, at));
        if (at >= texts.size()) {
            return rows;
        }
        const char end = texts[at++];
        if (end == '\t') {
            continue;
        }
        at += end == '\r' && at < texts.size() && texts[at] == '\n' ? 1 : 0;
        if (at == texts.size()) {
            return rows;
        }
        rows.emplace_back();
    }
}

std::string QuotedCell(const std::string& text) {
    const bool isPlain = text.find_first_of(kEnds) == std::string::npos && !text.starts_with('"');
    if (isPlain) {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted.append(c == '"' ? 2 : 1, c);
    }
    return quoted + "\"";
}

CellRange DataTable::Paste(const CellRange& at, std::string_view texts) {
    const std::vector<std::vector<std::string>> rows = CellsOf(texts);
    CellRange filled{at.Row, at.Column, rows.size(), 1};
    for (const std::vector<std::string>& row : rows) {
        filled.Columns = std::max(filled.Columns, row.size());
    }
    const bool isOneCell = filled.Rows == 1 && filled.Columns == 1;
    if (isOneCell) {
        filled = at;
    }
    for (std::size_t row = 0; row < filled.Rows; ++row) {
        const std::vector<std::string>& cells = rows[isOneCell ? 0 : row];
        for (std::size_t column = 0; column < filled.Columns; ++column) {
            const std::size_t from = isOneCell ? 0 : column;
            SetText(at.Row + row, at.Column + column,
                    from < cells.size() ? std::string_view(cells[from]) : std::string_view());
        }
    }
    return filled;
}

std::string DataTable::Copy(const CellRange& range) const {
    std::string texts;
    for (std::size_t row = 0; row < range.Rows; ++row) {
        for (std::size_t column = 0; column < range.Columns; ++column) {
            texts += column == 0 ? "" : "\t";
            texts += QuotedCell(Text(range.Row + row, range.Column + column));
        }
        texts += range.Rows > 1 ? "\n" : "";
    }
    return texts;
}

void DataTable::Clear(const CellRange& range) {
    const std::size_t endRow = std::min(m_rowCount, range.Row + range.Rows);
    const std::size_t endColumn = std::min(ColumnCount(), range.Column + range.Columns);
    for (std::size_t column = range.Column; column < endColumn; ++column) {
        for (std::size_t row = range.Row; row < endRow; ++row) {
            SetText(row, column, {});
        }
    }
}

} // namespace designer
