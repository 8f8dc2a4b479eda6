#pragma once

namespace cli {

/// From now on a table that takes long to be read row by row is shown on a terminal, on a line that goes
/// again: how many rows there were, how many a second, and how long it will still take.
void WatchStreams();

} // namespace cli
