#include "editing/ListRows.h"

#include "editing/CellTexts.h"
#include "editing/LineStyleItem.h"
#include "penlode/streams/TextForms.h"

#include <algorithm>

namespace millichart {
namespace {

/// A cell without what would end it in a table.
std::string OneLine(std::string cell) {
    std::replace_if(
        cell.begin(), cell.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return cell;
}

/// What stands before the next `end`, which is taken off the text with it.
std::string_view TakeUntil(std::string_view& text, char end) {
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return taken;
}

/// Three numbers that the dialog of lines would accept?
bool IsLine(std::string_view text) {
    const LineCellValues line = LineOfCell(text);
    return std::count(text.begin(), text.end(), ' ') >= 2 && line.Width >= 0.0F && line.Width <= 20.0F &&
           line.DashStyle >= 0 && line.DashStyle < kLineStyleCount;
}

/// A text as a column's cells hold it; nothing if it is none for them. A colour may come as #RRGGBB.
std::optional<std::string> Taken(const ListColumn& column, std::string text) {
    const bool beginsWithDigit = !text.empty() && text.front() >= '0' && text.front() <= '9';
    const auto& choices = column.Choices;
    penlode::Color color;
    switch (column.Kind) {
    case CellKind::Choice:
        return std::find(choices.begin(), choices.end(), text) != choices.end() ? std::optional(text)
                                                                                : std::nullopt;
    case CellKind::Color:
        if (text.starts_with('#') && ser_evaluate(color, text, false)) {
            return ColorCell(color);
        }
        return beginsWithDigit ? std::optional(text) : std::nullopt;
    case CellKind::Line:
        return beginsWithDigit && IsLine(text) ? std::optional(text) : std::nullopt;
    default:
        return text;
    }
}

} // namespace

void ListRows::SetRows(std::vector<ListRow> rows) {
    m_rows = std::move(rows);
    for (ListRow& row : m_rows) {
        row.resize(m_columns.size());
    }
}

bool ListRows::SetCell(std::size_t row, std::size_t column, std::string_view text) {
    const std::optional<std::string> taken = Taken(m_columns[column], std::string(text));
    if (taken) {
        m_rows[row][column] = *taken;
    }
    return taken.has_value();
}

ListRow ListRows::NewRow(std::size_t index) const {
    ListRow row;
    for (const ListColumn& column : m_columns) {
        row.push_back(column.NewCell == nullptr ? "" : column.NewCell(static_cast<int>(index)));
    }
    return row;
}

void ListRows::Add(std::size_t at) {
    at = std::min(at, m_rows.size());
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(at), NewRow(m_rows.size()));
}

void ListRows::Remove(std::size_t first, std::size_t count) {
    const auto begin = m_rows.begin() + static_cast<std::ptrdiff_t>(std::min(first, m_rows.size()));
    m_rows.erase(begin, begin + std::min(static_cast<std::ptrdiff_t>(count), m_rows.end() - begin));
}

std::size_t ListRows::Move(std::size_t row, int step) {
    const std::size_t other = step < 0 ? row - 1 : row + 1; // wraps beyond the last row at the top
    if (row >= m_rows.size() || other >= m_rows.size()) {
        return row;
    }
    std::swap(m_rows[row], m_rows[other]);
    return other;
}

std::string ListRows::Copied(std::size_t first, std::size_t count) const {
    std::string text;
    for (std::size_t row = first; row < std::min(first + count, m_rows.size()); ++row) {
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            text += (column == 0 ? "" : "\t") + OneLine(Cell(row, column));
        }
        text += "\n";
    }
    return text;
}

void ListRows::Paste(std::size_t row, std::size_t column, std::string_view text) {
    for (row = std::min(row, m_rows.size()); !text.empty(); ++row) {
        std::string_view line = TakeUntil(text, '\n');
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        if (row == m_rows.size()) {
            Add(row);
        }
        for (std::size_t at = column; at < m_columns.size(); ++at) {
            const bool isLast = line.find('\t') == std::string_view::npos;
            SetCell(row, at, TakeUntil(line, '\t'));
            if (isLast) {
                break;
            }
        }
    }
}

} // namespace millichart
