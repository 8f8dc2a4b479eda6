#include "documents/points/PointExtents.h"

#include "charts/curve/CurveProp.h"
#include "penlode/text/Digits.h"

#include <algorithm>

namespace millichart::documents {
namespace {

std::uint64_t CountIn(const SqlValue& value) {
    return static_cast<std::uint64_t>(NumberIn(value).value_or(0.0));
}

/// Is every value one to be drawn? A text is told of later.
bool HasGaps(const PointExtent& extent, bool isLogarithmic) {
    const std::optional<double> lowest = NumberIn(extent.Lowest);
    return extent.Gaps > 0 || (lowest && (IsCurveNull(*lowest) || (isLogarithmic && *lowest <= 0.0)));
}

/// As SQLite orders values: each text comes behind all numbers.
bool IsLess(const SqlValue& a, const SqlValue& b) {
    const std::optional<double> first = NumberIn(a);
    const std::optional<double> second = NumberIn(b);
    return first && (!second || *first < *second);
}

void Widen(SqlValue& least, SqlValue& greatest, const SqlValue& value) {
    const bool isFirst = std::holds_alternative<std::monostate>(least);
    if (isFirst || IsLess(value, least)) {
        least = value;
    }
    if (isFirst || IsLess(greatest, value)) {
        greatest = value;
    }
}

void Take(PointExtent& extent, const SqlValue& time, const SqlValue& value, bool isLogarithmic) {
    Widen(extent.First, extent.Last, time);
    ++extent.Rows;
    const std::optional<double> number = NumberIn(value);
    const bool isGap = std::holds_alternative<std::monostate>(value) ||
                       (number && (IsCurveNull(*number) || (isLogarithmic && *number <= 0.0)));
    if (!std::holds_alternative<std::monostate>(value)) {
        Widen(extent.Lowest, extent.Highest, value);
    }
    if (isGap) {
        ++extent.Gaps;
    } else {
        Widen(extent.Least, extent.Greatest, value);
    }
}

/// By all rows, of which nothing is sorted.
bool ScanExtents(SqlSession& session, const PointsSql& sql, bool isLogarithmic, std::size_t most,
                 PointExtents& extents) {
    auto latest = extents.end();
    const bool isAnswered = session.Ask(sql.Rows(), [&](std::span<const SqlValue> row) {
        if (latest == extents.end() || latest->first != row[0]) {
            latest = extents.try_emplace(row[0]).first;
        }
        Take(latest->second, row[1], row[2], isLogarithmic);
        return extents.size() <= most;
    });
    return isAnswered && extents.size() <= most;
}

} // namespace

std::optional<double> NumberIn(const SqlValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*whole);
    }
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

std::string TextOf(const SqlValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return penlode::Digits(*whole);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return penlode::PlainDigits(*number);
    }
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? "nothing" : *text;
}

bool AskExtents(SqlSession& session, const PointsSql& sql, bool isLogarithmic, std::size_t most,
                PointExtents& extents) {
    if (session.IsInProcess() && sql.HasSeries()) {
        return ScanExtents(session, sql, isLogarithmic, most, extents);
    }
    const std::size_t of = sql.HasSeries() ? 1 : 0;
    const bool isAnswered = session.Ask(sql.Extents(), [&](std::span<const SqlValue> row) {
        const std::uint64_t rows = CountIn(row[of + 2]);
        if (rows > 0) {
            extents[of == 0 ? SqlValue() : row[0]] = {
                row[of],     row[of + 1], rows,        rows - CountIn(row[of + 3]),
                row[of + 4], row[of + 5], row[of + 4], row[of + 5]};
        }
        return extents.size() <= most;
    });
    const bool haveGaps = std::any_of(extents.begin(), extents.end(), [&](const auto& curve) {
        return HasGaps(curve.second, isLogarithmic);
    });
    if (!isAnswered || extents.size() > most || !haveGaps) {
        return isAnswered && extents.size() <= most;
    }
    for (auto& [series, extent] : extents) {
        extent.Gaps = extent.Rows; // of a curve that has nothing else, there is no row
        extent.Least = extent.Greatest = SqlValue();
    }
    return session.Ask(sql.ValueExtents(), [&](std::span<const SqlValue> row) {
        const auto found = extents.find(of == 0 ? SqlValue() : row[0]);
        if (found != extents.end()) {
            PointExtent& extent = found->second;
            extent.Gaps -= std::min(extent.Gaps, CountIn(row[of + 2]));
            extent.Least = row[of + 4];
            extent.Greatest = row[of + 5];
        }
        return true;
    });
}

} // namespace millichart::documents
