#pragma once

#include "foundation/Export.h"

#include <string>

namespace millichart {

/// A number with a fixed count of decimals, as C's printf("%.Nf") writes it in the "C" locale: rounded
/// exactly, ties to even, "-" for negatives, "inf" and "nan".
MILLICHART_API std::string FixedText(double value, int decimals);

} // namespace millichart
