#pragma once

#include "commands/Json.h"
#include "penlode/recording/RecordingEngine.h"

#include <vector>

namespace cli {

/// One object a call: its operation under "call", and each argument under a name. Colours, pens and fonts are
/// written as documents write them.
Json CallsToJson(const std::vector<penlode::RecordedCall>& calls);

} // namespace cli
