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

/// Gives the diagnostics about the document `shownName` the lines on which their places stand in its text,
/// and sorts all: by place, those without one after them, notes last.
void PutInDocumentOrder(const std::string& text, const std::string& shownName,
                        std::vector<penlode::Diagnostic>& diagnostics);

} // namespace millichart::documents
