#pragma once

#include <cstdint>
#include <string_view>

namespace millichart {

/// The number that a text begins with, behind blanks, as C's atof reads it whatever the locale: 0 if there is
/// none. Words such as "inf" and hexadecimal digits are no numbers; beyond a double's range the largest
/// double is read, or 0.
double ReadNumber(std::string_view text);

/// The same for atoi; the nearest integer beyond the range of 32 bits.
std::int32_t ReadInteger(std::string_view text);

} // namespace millichart
