#pragma once

#include "penlode/Region.h"

#include <type_traits>
#include <utility>
#include <variant>

/// What a region's steps come to, in the terms of one platform.
namespace penlode {

template <class Algebra>
using AreaOf = decltype(std::declval<Algebra&>().Of(std::declval<const Region::Everything&>()));

template <class Algebra>
AreaOf<Algebra> Joined(const AreaOf<Algebra>& old, const AreaOf<Algebra>& operand, CombineMode mode,
                       Algebra& algebra) {
    switch (mode) {
    case CombineMode::Intersect:
        return algebra.Both(old, operand);
    case CombineMode::Union:
        return algebra.Either(old, operand);
    case CombineMode::Xor:
        return algebra.OneOf(old, operand);
    case CombineMode::Exclude:
        return algebra.Without(old, operand);
    case CombineMode::Complement:
        return algebra.Without(operand, old);
    default:
        return operand;
    }
}

/// An algebra makes areas, `Of` each shape that is no region itself, and joins them: `Both`, `Either`,
/// `OneOf` but not both, one `Without` the other. What it makes once it `IsExhausted` is of no use: the steps
/// from there on are left out.
template <class Algebra> AreaOf<Algebra> Folded(const Region& region, Algebra& algebra) {
    AreaOf<Algebra> area = algebra.Of(Region::Everything{});
    for (const Region::Step& step : region.Steps()) {
        const auto areaOf = [&](const auto& shape) {
            if constexpr (std::is_same_v<decltype(shape), const Region::Nested&>) {
                return Folded(*shape.Area, algebra);
            } else {
                return algebra.Of(shape);
            }
        };
        AreaOf<Algebra> next = Joined(area, std::visit(areaOf, step.Operand), step.Mode, algebra);
        if (algebra.IsExhausted()) {
            break;
        }
        area = std::move(next);
    }
    return area;
}

} // namespace penlode
