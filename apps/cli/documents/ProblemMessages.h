#pragma once

#include "documents/ChartStream.h"
#include "files/Message.h"

#include <string>
#include <vector>

namespace cli {

/// What a load met, in words: errors, unknown keys as warnings, and missing keys as notes. Without file and
/// line.
std::vector<Message> ProblemMessages(const penlode::CJsonSerializeStream& json, const ChartStream& stream);

/// Gives the messages about the document, which have no file yet, the lines on which their places stand in
/// it, and sorts all: by place, those without one after them, notes last.
void PutInDocumentOrder(const penlode::CJsonSerializeStream& json, std::vector<Message>& messages);

} // namespace cli
