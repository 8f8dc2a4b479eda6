#pragma once

#include "penlode/Export.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/GraphicsTypes.h"

#include <cstddef>
#include <memory>
#include <variant>
#include <vector>

namespace penlode {

/// An area of the plane, kept as the steps that make it: starting from the whole plane, each step combines a
/// shape with what stands. An engine turns the steps into its platform's clip.
///
/// A step that would make a region of more than kMaxSteps steps, or of regions within regions beyond
/// kMaxLevels, is refused with OutOfMemory and changes nothing.
class PENLODE_API Region {
public:
    static constexpr std::size_t kMaxSteps = 10000;
    static constexpr std::size_t kMaxLevels = 50;

    struct Everything {
        friend bool operator==(const Everything&, const Everything&) = default;
    };

    struct Nothing {
        friend bool operator==(const Nothing&, const Nothing&) = default;
    };

    /// A region as the operand of a step; never null in a region's steps.
    struct Nested {
        std::shared_ptr<const Region> Area;
        PENLODE_API friend bool operator==(const Nested& a, const Nested& b);
    };

    using Shape = std::variant<Everything, Nothing, RectF, GraphicsPath, Nested>;

    struct Step {
        CombineMode Mode;
        Shape Operand;
        friend bool operator==(const Step&, const Step&) = default;
    };

    /// The whole plane.
    Region() = default;

    explicit Region(const RectF& rect) { Combine(rect, CombineMode::Replace); }

    explicit Region(const GraphicsPath& path) { Combine(path, CombineMode::Replace); }

    void MakeInfinite() { *this = {}; }

    void MakeEmpty() { Combine(Nothing{}, CombineMode::Replace); }

    /// A null nested region is an InvalidParameter.
    Status Combine(const Shape& shape, CombineMode mode);
    Status Combine(const Region& region, CombineMode mode);

    bool IsInfinite() const { return m_steps.empty(); }

    const std::vector<Step>& Steps() const { return m_steps; }

    friend bool operator==(const Region& a, const Region& b) { return a.m_steps == b.m_steps; }

private:
    bool MergeRectangles(const Shape& shape, CombineMode mode);

    std::vector<Step> m_steps;
    std::size_t m_size = 0;   ///< steps, those of nested regions counted
    std::size_t m_levels = 1; ///< regions within each other
};

} // namespace penlode
