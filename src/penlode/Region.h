#pragma once

#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/GraphicsTypes.h"

#include <memory>
#include <utility>
#include <variant>
#include <vector>

namespace penlode {

/// An area of the plane, kept as the steps that make it: starting from the whole plane, each step combines a
/// shape with what stands. An engine turns the steps into its platform's clip.
class Region {
public:
    struct Everything {
        friend bool operator==(const Everything&, const Everything&) = default;
    };

    struct Nothing {
        friend bool operator==(const Nothing&, const Nothing&) = default;
    };

    /// A region as the operand of a step.
    struct Nested {
        std::shared_ptr<const Region> Area;
        inline friend bool operator==(const Nested& a, const Nested& b);
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

    explicit Region(GraphicsPath path) { Combine(std::move(path), CombineMode::Replace); }

    void MakeInfinite() { m_steps.clear(); }

    void MakeEmpty() { m_steps.assign(1, {CombineMode::Replace, Nothing{}}); }

    void Combine(Shape shape, CombineMode mode) {
        if (mode == CombineMode::Replace) {
            m_steps.clear();
        }
        m_steps.push_back({mode, std::move(shape)});
    }

    bool IsInfinite() const { return m_steps.empty(); }

    const std::vector<Step>& Steps() const { return m_steps; }

    friend bool operator==(const Region&, const Region&) = default;

private:
    std::vector<Step> m_steps;
};

bool operator==(const Region::Nested& a, const Region::Nested& b) {
    return a.Area == b.Area || (a.Area && b.Area && *a.Area == *b.Area);
}

} // namespace penlode
