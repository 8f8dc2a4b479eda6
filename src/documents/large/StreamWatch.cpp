#include "documents/large/StreamWatch.h"

#include <utility>

namespace millichart {
namespace {

StreamWatchMaker& Maker() {
    static StreamWatchMaker maker;
    return maker;
}

} // namespace

void WatchStreams(StreamWatchMaker maker) {
    Maker() = std::move(maker);
}

std::unique_ptr<StreamWatch> documents::WatchStream(const std::string& name) {
    return Maker() ? Maker()(name) : nullptr;
}

} // namespace millichart
