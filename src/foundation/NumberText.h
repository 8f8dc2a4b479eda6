#pragma once

#include "foundation/Export.h"

#include <string>

namespace millichart {

/// A number with a fixed count of decimals, as C's printf("%.Nf") writes it in the "C" locale: rounded
/// exactly, ties to even, "-" for negatives, "inf" and "nan".
MILLICHART_API std::string FixedText(double value, int decimals);

/// 2.500 as 2.5 and 3.00 as 3: a number's text without the zeros at the end of its decimals.
MILLICHART_API std::string WithoutTrailingZeros(std::string number);

} // namespace millichart
