#pragma once

#include "documents/ChartStream.h"
#include "penlode/streams/Diagnostic.h"

#include <string>
#include <vector>

namespace millichart::documents {

/// What a load met: errors, unknown keys as warnings with what they were probably meant to be, and missing
/// keys as notes.
std::vector<penlode::Diagnostic> LoadDiagnostics(const penlode::CJsonSerializeStream& json,
                                                 const ChartStream& stream);

} // namespace millichart::documents
