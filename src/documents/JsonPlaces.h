#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace millichart::documents {

/// Where the keys and list items of a JSON text stand, by their keys joined with "/".
class JsonPlaces {
public:
    struct Spot {
        std::size_t Line = 0;  ///< from 1; 0 for a place that is not in the text
        std::size_t Order = 0; ///< grows along the text
    };

    /// A text that is not JSON has the places before its fault.
    explicit JsonPlaces(std::string_view json);

    Spot Find(std::string_view place) const;

private:
    /// By the place's hash, since places may be far longer than the text that they stand in.
    std::unordered_map<std::uint64_t, Spot> m_spots;
};

} // namespace millichart::documents
