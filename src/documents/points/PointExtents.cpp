#include "documents/points/PointExtents.h"

#include "penlode/text/Digits.h"

namespace millichart::documents {
namespace {

std::uint64_t CountIn(const SqlValue& value) {
    return static_cast<std::uint64_t>(NumberIn(value).value_or(0.0));
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

bool AskExtents(SqlSession& session, const PointsSql& sql, std::size_t most, PointExtents& extents) {
    const std::size_t of = sql.HasSeries() ? 1 : 0;
    const bool isAnswered = session.Ask(sql.Extents(), [&](std::span<const SqlValue> row) {
        if (CountIn(row[of + 2]) > 0) {
            extents[of == 0 ? SqlValue() : row[0]] = {
                row[of],     row[of + 1], CountIn(row[of + 2]), CountIn(row[of + 3]),
                row[of + 4], row[of + 5], row[of + 6],          row[of + 7]};
        }
        return extents.size() <= most;
    });
    return isAnswered && extents.size() <= most;
}

} // namespace millichart::documents
