#pragma once

#include <cstddef>
#include <vector>

namespace millichart::documents {

/// What a record says of its lines on which it depends which rows of a table show.
struct LineRules {
    bool IsLogarithmic = false;     ///< a value that is not above 0 breaks the line
    std::vector<bool> NullsAreZero; ///< a curve each, where the line runs through 0 for want of a value
    std::size_t Names = 0;          ///< so many curves have names; empty columns without one are no curves

    bool IsZero(std::size_t curve) const { return curve < NullsAreZero.size() && NullsAreZero[curve]; }
};

} // namespace millichart::documents
