#include "documents/tables/Heading.h"

#include "documents/tables/Dates.h"
#include "documents/tables/WrittenNumber.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace millichart::documents {
namespace {

using Rows = std::span<const TableRow>;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// As in "2023年", "2023 Q1", "2023/24" or "2023-01".
bool BeginsWithYear(const std::string& cell) {
    const std::size_t digits = std::min(cell.find_first_not_of("0123456789"), cell.size());
    return digits == 4 && cell.size() > digits &&
           std::string_view(".,:").find(cell[digits]) == std::string::npos;
}

bool HasLetters(const std::string& cell) {
    return std::any_of(cell.begin(), cell.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80U;
    });
}

/// "nan" and "inf" are numbers too, if not ones to draw; "#N/A" stands for one.
bool IsNoNumber(const std::string& cell) {
    double number = 0.0;
    std::string text = cell;
    return cell.front() != '#' && !IsNumberCell(cell) && !penlode::ser_evaluate(number, text, false);
}

/// A word, or a year with more behind it, and no malformed or missing number?
bool IsWord(const std::string& cell) {
    const bool isWord = HasLetters(cell) && !IsDigit(cell.front());
    return (isWord || BeginsWithYear(cell)) && IsNoNumber(cell);
}

/// Do these cells name columns though they begin with digits, as "2 % a year" does? A single one may be a
/// number that somebody wrote with its unit, unless more words follow.
bool AreNamesWithDigits(const TableRow& row, const std::vector<std::size_t>& columns) {
    const auto isName = [&](std::size_t column) {
        const std::string& cell = row.Cells[column];
        return HasLetters(cell) && IsNoNumber(cell) &&
               (columns.size() > 1 || std::count(cell.begin(), cell.end(), ' ') > 1);
    };
    return !columns.empty() && std::all_of(columns.begin(), columns.end(), isName);
}

const std::string& CellOf(const TableRow& row, std::size_t column) {
    static const std::string kNone;
    return column < row.Cells.size() ? row.Cells[column] : kNone;
}

bool HasNumbers(Rows rows, std::size_t column) {
    return std::any_of(rows.begin(), rows.end(),
                       [column](const TableRow& row) { return IsNumberCell(CellOf(row, column)); });
}

bool IsNumberOrDate(const std::string& cell) {
    return IsNumberCell(cell) || ReadDate(cell);
}

/// Its whole numbers in these columns; nothing if there is anything else.
std::optional<std::vector<double>> WholeNumbers(const TableRow& row,
                                                const std::vector<std::size_t>& columns) {
    std::vector<double> numbers;
    for (const std::size_t column : columns) {
        const std::optional<double> number = penlode::NumberOf<double>(CellOf(row, column));
        if (!number || std::trunc(*number) != *number) {
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    return numbers;
}

/// By how much each is more than the one before; nothing if that differs.
std::optional<double> StepOf(const std::vector<double>& numbers) {
    const double step = numbers.size() < 2 ? 0.0 : numbers[1] - numbers[0];
    for (std::size_t i = 2; i < numbers.size(); ++i) {
        if (numbers[i] - numbers[i - 1] != step) {
            return std::nullopt;
        }
    }
    return step;
}

bool AreWithin(const std::vector<double>& numbers, double least, double most) {
    return std::all_of(numbers.begin(), numbers.end(),
                       [=](double number) { return number >= least && number <= most; });
}

/// Several numbers are years if they are evenly spaced, a single one if it is of our times.
bool AreYears(const std::vector<double>& numbers) {
    constexpr double kMostStep = 50.0;
    const std::optional<double> step = StepOf(numbers);
    const bool areMany = numbers.size() > 1;
    return areMany ? step && *step != 0.0 && std::abs(*step) <= kMostStep && AreWithin(numbers, 1000, 2999)
                   : AreWithin(numbers, 1800, 2100);
}

/// Numbers alone stand over numbers.
HeadingGuess GuessOfNumbers(const std::vector<double>& numbers, Rows below,
                            const std::vector<std::size_t>& columns) {
    const auto alike = [&](auto predicate) {
        return std::any_of(below.begin(), below.end(), [&](const TableRow& row) {
            const auto others = WholeNumbers(row, columns);
            return others && predicate(*others);
        });
    };
    if (AreYears(numbers)) {
        const bool hasYearsBelow = alike(AreYears);
        return {!hasYearsBelow, hasYearsBelow};
    }
    // 1, 2, 3 may count quarters, and be a row of small numbers.
    const bool isCounted = numbers.size() > 2 && (numbers[0] == 0.0 || numbers[0] == 1.0) &&
                           StepOf(numbers) == 1.0 &&
                           !alike([](const std::vector<double>& others) { return StepOf(others) == 1.0; });
    return {isCounted, isCounted};
}

} // namespace

bool IsNumberCell(const std::string& cell) {
    const std::optional<double> plain = penlode::NumberOf<double>(cell);
    return plain ? std::isfinite(*plain) : ReadWritten(cell).IsNumber();
}

HeadingGuess GuessHeading(Rows rows, bool mayLackNames) {
    if (rows.empty()) {
        return {};
    }
    const TableRow& first = rows.front();
    const Rows below = rows.subspan(1);
    std::vector<std::size_t> filled;
    std::vector<std::size_t> ofNumbers;
    for (std::size_t column = 1; column < first.Cells.size(); ++column) {
        if (!first.Cells[column].empty()) {
            filled.push_back(column);
            if (HasNumbers(below, column)) {
                ofNumbers.push_back(column);
            }
        }
    }
    const std::vector<std::size_t>& columns = ofNumbers.empty() ? filled : ofNumbers;
    const auto isWord = [&](std::size_t column) { return IsWord(first.Cells[column]); };
    if (std::any_of(columns.begin(), columns.end(), isWord) || AreNamesWithDigits(first, columns)) {
        return {true, false};
    }
    const std::string& corner = CellOf(first, 0);
    const auto isBelow = [](const TableRow& row) { return IsNumberOrDate(CellOf(row, 0)); };
    if (!below.empty() && (corner.empty() || !IsDigit(corner.front())) && !IsNumberOrDate(corner) &&
        !mayLackNames && std::all_of(below.begin(), below.end(), isBelow)) {
        return {true, false};
    }
    const std::optional<std::vector<double>> numbers = WholeNumbers(first, columns);
    if (columns.empty() || !std::all_of(columns.begin(), columns.end(), [&](std::size_t column) {
            return IsNumberCell(first.Cells[column]);
        })) {
        return {};
    }
    if (corner.empty() && !mayLackNames) {
        return {true, false};
    }
    return numbers && !IsNumberOrDate(corner) ? GuessOfNumbers(*numbers, below, columns) : HeadingGuess();
}

} // namespace millichart::documents
