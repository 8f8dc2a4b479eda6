#include "documents/tables/TableShape.h"

#include "documents/Fields.h"
#include "documents/tables/Dates.h"
#include "documents/tables/Heading.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <span>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;

constexpr std::size_t kLookedAt = 100;

std::size_t TextsIn(const TableRow& row) {
    return static_cast<std::size_t>(std::count_if(row.Cells.begin(), row.Cells.end(),
                                                  [](const std::string& cell) { return !cell.empty(); }));
}

std::string Quoted(const std::string& text) {
    return '"' + penlode::Shortened(text) + '"';
}

class Survey {
public:
    Survey(LookedAtRows& rows, const TableForm& form, const TableOptions& options,
           std::vector<Diagnostic>& diagnostics)
        : m_rows(rows), m_form(form), m_options(options), m_diagnostics(diagnostics) {}

    TableShape Shape() {
        m_shape.Titles = TitleRows(m_rows.First(), m_form.HeadingNames == nullptr, m_options.HasHeading);
        const std::span<const TableRow> rows = std::span(m_rows.First()).subspan(m_shape.Titles);
        if (rows.empty()) {
            return m_shape;
        }
        FindTitle();
        FindHeading(rows);
        const TableRow& first = rows.front();
        m_shape.Width = m_shape.HasHeading ? FilledCells(first) : first.Cells.size();
        if (m_options.Columns.empty()) {
            PassTextColumns(rows);
            TakeFirstOfMany(rows);
        } else {
            ChooseColumns(first);
        }
        m_rows.Rewind();
        return std::move(m_shape);
    }

private:
    void FindTitle() {
        if (m_shape.Titles != 0) {
            m_shape.Title = FirstText(m_rows.First().front());
        }
    }

    void FindHeading(std::span<const TableRow> rows) {
        // Times are no names, and bars need theirs.
        const HeadingGuess guess = GuessHeading(rows, m_form.HeadingNames == nullptr);
        m_shape.HasHeading = m_options.HasHeading.value_or(guess.IsHeading);
        if (guess.IsDoubtful && !m_options.HasHeading) {
            Warn(guess.IsHeading
                     ? "taken as the heading, though it may be data; --no-header, or \"heading\": "
                       "false beside data/csv, says so"
                     : "taken as data, though it may be the heading; --header, or \"heading\": "
                       "true beside data/csv, says so",
                 rows.front().Line);
        }
    }

    /// Does a column have texts and no number in these rows?
    static bool IsOfTexts(std::span<const TableRow> rows, std::size_t column) {
        bool hasTexts = false;
        for (const TableRow& row : rows) {
            const bool isFilled = column < row.Cells.size() && !row.Cells[column].empty();
            if (isFilled && IsNumberCell(row.Cells[column])) {
                return false;
            }
            hasTexts = hasTexts || isFilled;
        }
        return hasTexts;
    }

    /// The columns of texts in the whole table.
    std::vector<std::size_t> TextColumns(std::span<const TableRow> rows) {
        std::vector<std::size_t> columns;
        for (std::size_t column = 1; column < m_shape.Width; ++column) {
            if (IsOfTexts(rows.subspan(m_shape.HasHeading ? 1 : 0), column)) {
                columns.push_back(column);
            }
        }
        if (m_rows.CanRewind()) {
            m_rows.Rewind();
            TableRow row;
            for (std::size_t i = 0; !columns.empty() && m_rows.Next(row); ++i) {
                std::erase_if(columns, [&](std::size_t column) {
                    return i >= kLookedAt && column < row.Cells.size() && IsNumberCell(row.Cells[column]);
                });
            }
        }
        return columns;
    }

    /// Codes, units and remarks among the numbers, and an empty first column.
    void PassTextColumns(std::span<const TableRow> rows) {
        std::vector<std::size_t> ofTexts = TextColumns(rows);
        std::vector<std::size_t> others;
        for (std::size_t column = 1; column < m_shape.Width; ++column) {
            if (!std::binary_search(ofTexts.begin(), ofTexts.end(), column)) {
                others.push_back(column);
            }
        }
        const bool hasNames = std::any_of(rows.begin(), rows.end(), [](const TableRow& row) {
            return !row.Cells.empty() && !row.Cells.front().empty();
        });
        if (ofTexts.empty() || others.empty()) {
            return;
        }
        std::size_t names = 0;
        if (!hasNames) {
            names = ofTexts.front();
            ofTexts.erase(ofTexts.begin());
        }
        m_shape.Columns = others;
        m_shape.Columns.insert(m_shape.Columns.begin(), names);
        for (const std::size_t column : ofTexts) {
            Warn(CalledIn(rows.front(), column) + " has no numbers and is passed over", 0);
        }
    }

    /// Where a kind shows so many columns and the table has more.
    void TakeFirstOfMany(std::span<const TableRow> rows) {
        std::vector<std::size_t>& columns = m_shape.Columns;
        const std::size_t width = m_shape.IsWhole() ? FilledCells(rows.front()) : columns.size();
        if (m_form.Width == 0 || width <= m_form.Width) {
            return;
        }
        if (columns.empty()) {
            columns.resize(width);
            std::iota(columns.begin(), columns.end(), std::size_t{0});
        }
        std::string others;
        for (std::size_t i = m_form.Width; i < columns.size(); ++i) {
            others += (others.empty() ? "" : ", ") + CalledIn(rows.front(), columns[i]);
        }
        columns.resize(m_form.Width);
        Warn(CalledIn(rows.front(), columns[1]) + (m_form.Width > 2 ? " and the next are" : " is") +
                 " shown, and not " + penlode::Shortened(others) +
                 "; --columns, or \"columns\" beside data/csv, chooses others",
             0);
    }

    void ChooseColumns(const TableRow& first) {
        for (const std::string& name : m_options.Columns) {
            const auto begin = first.Cells.begin();
            const auto found =
                m_shape.HasHeading ? std::find(begin, first.Cells.end(), name) : first.Cells.end();
            const std::optional<std::size_t> number = penlode::NumberOf<std::size_t>(name);
            if (found != first.Cells.end()) {
                m_shape.Columns.push_back(static_cast<std::size_t>(found - begin));
            } else if (number && *number >= 1 && *number <= first.Cells.size()) {
                m_shape.Columns.push_back(*number - 1);
            } else {
                Refuse(Quoted(name), "a column's " + std::string(m_shape.HasHeading ? "heading or " : "") +
                                         "number, from 1 to " + std::to_string(first.Cells.size()));
            }
        }
        const std::size_t chosen = m_options.Columns.size();
        if (chosen < 2 || (m_form.Width != 0 && chosen != m_form.Width)) {
            Refuse(Counted(chosen, "chosen column"),
                   m_form.Width == 0 ? "that of the names or times, and one of numbers at least"
                                     : m_form.WidthForm);
        }
    }

    /// "column "Code"", or by its number where there is no heading.
    std::string CalledIn(const TableRow& first, std::size_t column) const {
        const bool isNamed =
            m_shape.HasHeading && column < first.Cells.size() && !first.Cells[column].empty();
        return "column " + (isNamed ? Quoted(first.Cells[column]) : std::to_string(column + 1));
    }

    void Warn(std::string text, std::size_t line) {
        m_diagnostics.push_back(penlode::Warning("", std::move(text)));
        m_diagnostics.back().Line = line;
    }

    void Refuse(std::string found, std::string expected) {
        m_diagnostics.push_back(penlode::Error("columns", std::move(found), std::move(expected)));
    }

    LookedAtRows& m_rows;
    const TableForm& m_form;
    const TableOptions& m_options;
    std::vector<Diagnostic>& m_diagnostics;
    TableShape m_shape;
};

} // namespace

const std::string& FirstText(const TableRow& row) {
    return *std::find_if(row.Cells.begin(), row.Cells.end(),
                         [](const std::string& cell) { return !cell.empty(); });
}

LookedAtRows::LookedAtRows(RowReader& reader) : m_reader(reader) {
    TableRow row;
    while (m_first.size() < kLookedAt && reader.Next(row)) {
        m_first.push_back(row);
    }
    if (m_first.size() == kLookedAt && reader.Rewind()) {
        m_isPast = true;
        Rewind();
    } else {
        m_canRewind = m_first.size() < kLookedAt;
    }
}

bool LookedAtRows::Next(TableRow& row) {
    if (m_next < m_first.size()) {
        row = m_first[m_next++];
        return true;
    }
    m_isPast = true;
    return m_reader.Next(row);
}

void LookedAtRows::Rewind() {
    m_next = 0;
    if (!m_isPast) {
        return;
    }
    m_reader.Rewind();
    TableRow row;
    for (std::size_t i = 0; i < m_first.size() && m_reader.Next(row); ++i) {
    }
    m_isPast = false;
}

TableShape ShapeOf(LookedAtRows& rows, const TableForm& form, const TableOptions& options,
                   std::vector<Diagnostic>& diagnostics) {
    return Survey(rows, form, options, diagnostics).Shape();
}

std::size_t TitleRows(const std::vector<TableRow>& rows, bool mayLackNames, std::optional<bool> hasHeading) {
    const auto isData = [](const std::string& cell) { return IsNumberCell(cell) || ReadDate(cell); };
    std::size_t titles = 0;
    bool areCellsAlone = true;
    while (titles < rows.size() && TextsIn(rows[titles]) == 1) {
        const std::vector<std::string>& cells = rows[titles].Cells;
        if (std::any_of(cells.begin(), cells.end(), isData)) {
            return 0;
        }
        areCellsAlone = areCellsAlone && cells.size() == 1;
        ++titles;
    }
    const bool isTitled =
        areCellsAlone ||
        hasHeading.value_or(GuessHeading(std::span(rows).subspan(titles), mayLackNames).IsHeading);
    return titles < rows.size() && isTitled ? titles : 0;
}

} // namespace millichart::documents
