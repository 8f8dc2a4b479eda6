#pragma once

#include "documents/ChartDocument.h"

namespace designer {

/// What a new chart of a kind begins as: its example, with names and captions in the language of the program.
millichart::ChartDocument ExampleOf(const millichart::ChartKind& kind);

} // namespace designer
