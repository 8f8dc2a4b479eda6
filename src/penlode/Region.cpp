#include "penlode/Region.h"

#include <algorithm>
#include <utility>

namespace penlode {
namespace {

/// What two rectangles share. A negative extent reaches the other way.
Region::Shape Common(const RectF& a, const RectF& b) {
    const float left = std::max(std::min(a.X, a.Right()), std::min(b.X, b.Right()));
    const float top = std::max(std::min(a.Y, a.Bottom()), std::min(b.Y, b.Bottom()));
    const float width = std::min(std::max(a.X, a.Right()), std::max(b.X, b.Right())) - left;
    const float height = std::min(std::max(a.Y, a.Bottom()), std::max(b.Y, b.Bottom())) - top;
    return width > 0.0F && height > 0.0F ? Region::Shape{RectF{left, top, width, height}}
                                         : Region::Shape{Region::Nothing{}};
}

} // namespace

bool operator==(const Region::Nested& a, const Region::Nested& b) {
    return a.Area == b.Area || (a.Area && b.Area && *a.Area == *b.Area);
}

/// A window clipped to another one is a window: the commonest clip stays one step however often it is
/// narrowed.
bool Region::MergeRectangles(const Shape& shape, CombineMode mode) {
    const RectF* const rect = std::get_if<RectF>(&shape);
    if (rect == nullptr || mode != CombineMode::Intersect || m_steps.size() != 1) {
        return false;
    }
    RectF* const standing = std::get_if<RectF>(&m_steps.front().Operand);
    if (standing == nullptr || m_steps.front().Mode != CombineMode::Replace) {
        return false;
    }
    m_steps.front().Operand = Common(*standing, *rect);
    return true;
}

Status Region::Combine(const Shape& shape, CombineMode mode) {
    const Nested* const nested = std::get_if<Nested>(&shape);
    if (nested != nullptr && nested->Area == nullptr) {
        return Status::InvalidParameter;
    }
    if (MergeRectangles(shape, mode)) {
        return Status::Ok;
    }
    const bool afresh = mode == CombineMode::Replace;
    const std::size_t size = (afresh ? 0 : m_size) + 1 + (nested != nullptr ? nested->Area->m_size : 0);
    const std::size_t levels =
        std::max(afresh ? 1 : m_levels, nested != nullptr ? nested->Area->m_levels + 1 : 1);
    if (size > kMaxSteps || levels > kMaxLevels) {
        return Status::OutOfMemory;
    }
    Step step{mode, shape}; // the shape may be one of our own steps
    if (afresh) {
        m_steps.clear();
    }
    m_steps.push_back(std::move(step));
    m_size = size;
    m_levels = levels;
    return Status::Ok;
}

Status Region::Combine(const Region& region, CombineMode mode) {
    if (mode == CombineMode::Replace) {
        *this = region;
        return Status::Ok;
    }
    if (region.IsInfinite()) {
        return Combine(Everything{}, mode);
    }
    const Step& first = region.m_steps.front();
    if (region.m_steps.size() == 1 && first.Mode == CombineMode::Replace) {
        return Combine(Shape{first.Operand}, mode);
    }
    return Combine(Nested{std::make_shared<const Region>(region)}, mode);
}

} // namespace penlode
