#pragma once

#include "documents/doubts/Ground.h"
#include "documents/doubts/SeenText.h"
#include "documents/doubts/Wording.h"

#include <vector>

namespace millichart::documents {

/// Of texts that cannot be read on what is under them: one warning for each kind of text.
void AddContrastDoubts(const std::vector<SeenText>& texts, const Ground& ground, const PartRecords& records,
                       Diagnostics& diagnostics);

} // namespace millichart::documents
