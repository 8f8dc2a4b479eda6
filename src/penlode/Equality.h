#pragma once

#include "penlode/Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <vector>

/// Equality of values that hold floating-point numbers. A NaN equals a NaN here, so that a record equals its
/// copy whatever it holds; else an editor would see a change at every look, and an undo that never arrives.
namespace penlode {

inline bool AreEqual(PointF a, PointF b);

template <class T> bool AreEqual(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>) {
        return a == b || (std::isnan(a) && std::isnan(b));
    } else if constexpr (requires { a.has_value(); }) {
        return a.has_value() == b.has_value() && (!a || AreEqual(*a, *b));
    } else if constexpr (requires { a.begin(); }) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](const auto& x, const auto& y) { return AreEqual(x, y); });
    } else {
        return a == b;
    }
}

inline bool AreEqual(PointF a, PointF b) {
    return AreEqual(a.X, b.X) && AreEqual(a.Y, b.Y);
}

/// A plain structure's members in one tuple. `Count` must be their number, or this does not compile: a member
/// that is added cannot be forgotten.
template <std::size_t Count, class Plain> auto MembersOf(const Plain& plain) {
    if constexpr (Count == 2) {
        const auto& [a, b] = plain;
        return std::tie(a, b);
    } else if constexpr (Count == 4) {
        const auto& [a, b, c, d] = plain;
        return std::tie(a, b, c, d);
    } else if constexpr (Count == 5) {
        const auto& [a, b, c, d, e] = plain;
        return std::tie(a, b, c, d, e);
    } else if constexpr (Count == 6) {
        const auto& [a, b, c, d, e, f] = plain;
        return std::tie(a, b, c, d, e, f);
    } else if constexpr (Count == 3) {
        const auto& [a, b, c] = plain;
        return std::tie(a, b, c);
    } else if constexpr (Count == 8) {
        const auto& [a, b, c, d, e, f, g, h] = plain;
        return std::tie(a, b, c, d, e, f, g, h);
    } else if constexpr (Count == 9) {
        const auto& [a, b, c, d, e, f, g, h, i] = plain;
        return std::tie(a, b, c, d, e, f, g, h, i);
    } else if constexpr (Count == 10) {
        const auto& [a, b, c, d, e, f, g, h, i, j] = plain;
        return std::tie(a, b, c, d, e, f, g, h, i, j);
    } else if constexpr (Count == 15) {
        const auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o] = plain;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o);
    } else {
        const auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q] = plain;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q);
    }
}

/// Whether two structures of `Count` members agree in each.
template <std::size_t Count, class Plain> bool HaveEqualMembers(const Plain& a, const Plain& b) {
    return std::apply(
        [&b](const auto&... left) {
            return std::apply([&](const auto&... right) { return (AreEqual(left, right) && ...); },
                              MembersOf<Count>(b));
        },
        MembersOf<Count>(a));
}

} // namespace penlode
