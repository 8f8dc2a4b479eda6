#pragma once

namespace cli {

/// From now on a query that takes long is shown on a terminal, on a line that goes again, and is stopped by
/// an interrupt (Ctrl+C), which then ends the program as it does at other times.
void WatchQueries();

} // namespace cli
