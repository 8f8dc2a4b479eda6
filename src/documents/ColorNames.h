#pragma once

#include "penlode/Color.h"

#include <optional>
#include <string_view>

namespace millichart::documents {

/// One of the 148 colours that style sheets know by name, opaque, or "transparent". Upper and lower case are
/// alike. Nothing for another word.
std::optional<penlode::Color> NamedColor(std::string_view name);

} // namespace millichart::documents
