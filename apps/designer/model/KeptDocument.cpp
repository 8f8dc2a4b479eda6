#include "model/KeptDocument.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>

namespace designer {
namespace {

constexpr std::string_view kFormat = "millichart-designer recovery 1\n";

/// So far a cell may stand that a file tells of, which anybody may have written.
constexpr std::size_t kMaxRows = 20000000;
constexpr std::size_t kMaxColumns = 20000;

/// FNV-1a, which tells damage and no more.
std::uint64_t SumOf(std::string_view text) {
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (const char c : text) {
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    return sum;
}

/// Numbers are compared as such, since writing each takes long in a large table.
bool IsSameCell(const DataTable& a, const DataTable& b, std::size_t row, std::size_t column) {
    const bool areNumbers = column > 0 && !a.IsOdd(row, column) && !b.IsOdd(row, column);
    if (!areNumbers) {
        return a.Text(row, column) == b.Text(row, column);
    }
    const double number = a.Number(row, column);
    const double other = b.Number(row, column);
    return number == other || (std::isnan(number) && std::isnan(other));
}

void Add(std::string& text, std::uint64_t number) {
    text += penlode::Digits(number) + "\n";
}

void Add(std::string& text, std::string_view part) {
    Add(text, part.size());
    text.append(part).append("\n");
}

void Add(std::string& text, const std::vector<KeptDocument::Cell>& cells) {
    Add(text, cells.size());
    for (const KeptDocument::Cell& cell : cells) {
        Add(text, cell.Table);
        Add(text, cell.Row);
        Add(text, cell.Column);
        Add(text, cell.Text);
    }
}

/// Takes one thing after the other off a text's beginning.
class Reader {
public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    template <class Number> bool TakeNumber(Number& number) {
        const std::size_t end = m_rest.find('\n');
        const std::optional<Number> read = penlode::NumberOf<Number>(m_rest.substr(0, end));
        if (end == std::string_view::npos || !read) {
            return false;
        }
        number = *read;
        m_rest.remove_prefix(end + 1);
        return true;
    }

    bool Take(std::string& text) {
        std::size_t size = 0;
        if (!TakeNumber(size) || size >= m_rest.size() || m_rest[size] != '\n') {
            return false;
        }
        text = m_rest.substr(0, size);
        m_rest.remove_prefix(size + 1);
        return true;
    }

    bool Take(std::vector<KeptDocument::Cell>& cells) {
        std::size_t count = 0;
        if (!TakeNumber(count)) {
            return false;
        }
        for (; count > 0; --count) {
            KeptDocument::Cell cell;
            if (!TakeNumber(cell.Table) || !TakeNumber(cell.Row) || !TakeNumber(cell.Column) ||
                !Take(cell.Text) || cell.Row > kMaxRows || cell.Column > kMaxColumns) {
                return false;
            }
            cells.push_back(std::move(cell));
        }
        return true;
    }

    std::string_view Rest() const { return m_rest; }

    bool IsAtEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

} // namespace

void KeptDocument::TakeTables(const std::vector<DataTable>& tables,
                              const std::vector<DataTable>& ofDocument) {
    for (std::size_t i = 0; i < std::min(tables.size(), ofDocument.size()); ++i) {
        const DataTable& table = tables[i];
        const DataTable& plain = ofDocument[i];
        for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
            for (std::size_t row = 0; row < table.RowCount(); ++row) {
                if (!IsSameCell(table, plain, row, column)) {
                    Cells.push_back({i, row, column, table.Text(row, column)});
                }
            }
            if (table.Heading(column) != plain.Heading(column)) {
                Headings.push_back({i, 0, column, table.Heading(column)});
            }
        }
    }
}

void KeptDocument::PutInto(std::vector<DataTable>& tables) const {
    for (const Cell& cell : Cells) {
        if (cell.Table < tables.size()) {
            tables[cell.Table].SetText(cell.Row, cell.Column, cell.Text);
        }
    }
    for (const Cell& heading : Headings) {
        if (heading.Table < tables.size()) {
            tables[heading.Table].SetHeading(heading.Column, heading.Text);
        }
    }
    for (DataTable& table : tables) {
        table.ForgetOrigins();
    }
}

std::string Written(const KeptDocument& kept) {
    std::string text;
    Add(text, kept.Time);
    Add(text, kept.File);
    Add(text, kept.Text);
    Add(text, kept.Cells);
    Add(text, kept.Headings);
    return std::string(kFormat) + penlode::Digits(SumOf(text)) + "\n" + text;
}

std::optional<KeptDocument> ReadKept(std::string_view text) {
    if (!text.starts_with(kFormat)) {
        return std::nullopt;
    }
    Reader reader(text.substr(kFormat.size()));
    KeptDocument kept;
    std::uint64_t sum = 0;
    const bool isWhole = reader.TakeNumber(sum) && sum == SumOf(reader.Rest()) &&
                         reader.TakeNumber(kept.Time) && reader.Take(kept.File) && reader.Take(kept.Text) &&
                         reader.Take(kept.Cells) && reader.Take(kept.Headings) && reader.IsAtEnd();
    return isWhole ? std::optional(std::move(kept)) : std::nullopt;
}

} // namespace designer
