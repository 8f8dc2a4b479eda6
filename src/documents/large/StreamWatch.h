#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace millichart {

/// Watches one long table while its rows are read: made when that begins, gone when it has ended.
class StreamWatch {
public:
    StreamWatch() = default;
    StreamWatch(const StreamWatch&) = delete;
    StreamWatch& operator=(const StreamWatch&) = delete;
    virtual ~StreamWatch() = default;

    /// Is told many times a second; `part` of all has been read, unless nobody knows how much that is.
    virtual void Tell(std::size_t rows, std::optional<double> part) = 0;
};

/// Gives a table, called as messages call it, its watch.
using StreamWatchMaker = std::function<std::unique_ptr<StreamWatch>(const std::string& name)>;

/// For all tables of the program from now on, on whatever thread they are read; not while one is. Without a
/// maker none is watched, as at first.
void WatchStreams(StreamWatchMaker maker);

namespace documents {

/// Null where nobody watches.
std::unique_ptr<StreamWatch> WatchStream(const std::string& name);

} // namespace documents
} // namespace millichart
