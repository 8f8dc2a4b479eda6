#pragma once

#include "documents/tables/SqlSession.h"

#include <optional>
#include <string>
#include <string_view>

namespace millichart::documents {

/// What holds for a row: a column, one of = <> < <= > >= and what its cell is held against.
struct RowCondition {
    std::string Column;
    std::string Operator;
    SqlValue Value;
};

/// Of a text as `site = 3` or `"my column" <> 'a text'`. A name that holds an operator stands in double
/// quotes. A value in single quotes is a text, and so is what is no number; a quote within is doubled.
/// Nothing for any other text.
std::optional<RowCondition> ConditionOf(std::string_view text);

} // namespace millichart::documents
