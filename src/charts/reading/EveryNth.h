#pragma once

#include <cstddef>

namespace millichart {

/// The least n for which no two neighbours of every n-th of `count` things touch, the first included.
/// `touch` tells of two indexes, the smaller first. Takes n log n steps.
template <class Touch> std::size_t LeastStepApart(std::size_t count, const Touch& touch) {
    const auto areApart = [&](std::size_t step) {
        for (std::size_t i = step; i < count; i += step) {
            if (touch(i - step, i)) {
                return false;
            }
        }
        return true;
    };
    std::size_t step = 1;
    while (step < count && !areApart(step)) {
        ++step;
    }
    return step;
}

} // namespace millichart
