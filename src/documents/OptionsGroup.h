#pragma once

#include "documents/ChartStream.h"
#include "documents/SavingStream.h"
#include "foundation/ChartOptions.h"

/// What a document asks of its chart beyond its record: the group "options", or in its place the word
/// "readable". A document without it draws as it always has.
namespace millichart::documents {

inline constexpr const char* kOptions = "options";

/// Missing keys of the group are as without it.
ChartOptions LoadOptions(ChartStream& stream);

/// Nothing is written of options that do nothing.
void SaveOptions(SavingStream& stream, const ChartOptions& options);

} // namespace millichart::documents
