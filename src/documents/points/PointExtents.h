#pragma once

#include "documents/points/PointsSql.h"
#include "documents/tables/SqlSession.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace millichart::documents {

/// Where the rows of one curve lie. What is no number or no time is found among these as well.
struct PointExtent {
    SqlValue First; ///< time
    SqlValue Last;
    std::uint64_t Rows = 0;
    std::uint64_t Gaps = 0;
    SqlValue Lowest; ///< of all values
    SqlValue Highest;
    SqlValue Least; ///< of those that are no gaps
    SqlValue Greatest;
};

/// By their series, in its order; one without a series where there is none.
using PointExtents = std::map<SqlValue, PointExtent>;

/// Asks for them, and once more where there are gaps. False where the session fails, or where there are more
/// curves than `most`.
bool AskExtents(SqlSession& session, const PointsSql& sql, bool isLogarithmic, std::size_t most,
                PointExtents& extents);

/// A number that an answer holds, if it is one.
std::optional<double> NumberIn(const SqlValue& value);

/// As messages and names of curves show it.
std::string TextOf(const SqlValue& value);

} // namespace millichart::documents
