#pragma once

#include <string>

namespace penlode {

/// Something that a load could not use, or did not find, with its place. All texts are UTF-8.
struct StreamProblem {
    enum class Kind {
        Unreadable, ///< the stream itself: not JSON, truncated, wrong magic ...; nothing after it was loaded
        WrongType,  ///< a group where a text was expected, and the like; the default was taken
        Refused,    ///< a text that means nothing here; the default was taken
        MissingKey, ///< the default was taken
        UnknownKey, ///< nothing asked for it
    };
    Kind What;
    std::string Place;    ///< keys joined by "/", or "line 3, column 7", or "byte 12"
    std::string Found;    ///< empty for a missing key
    std::string Expected; ///< the default of a missing key; empty for an unknown one

    friend bool operator==(const StreamProblem&, const StreamProblem&) = default;
};

} // namespace penlode
