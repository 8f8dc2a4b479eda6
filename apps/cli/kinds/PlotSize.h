#pragma once

#include "files/Message.h"

#include <string>
#include <vector>

namespace cli {

/// An error for each extent of the plot of a bar or line chart that is not above 0. `place` is its record's.
std::vector<Message> PlotSizeFaults(const std::string& place, float width, float height);

} // namespace cli
