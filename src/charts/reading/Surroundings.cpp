#include "charts/reading/Surroundings.h"

#include "foundation/Legend.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <limits>

namespace millichart {

using penlode::RectF;
using penlode::SizeF;

namespace {

constexpr float kFar = std::numeric_limits<float>::max();

/// What is less than this apart, in mm, stands beside each other, or above, and not past each other.
constexpr float kNear = 0.5F;

bool MeetAcross(const RectF& a, const RectF& b) {
    return a.X < b.Right() + kNear && b.X < a.Right() + kNear;
}

bool MeetDown(const RectF& a, const RectF& b) {
    return a.Y < b.Bottom() + kNear && b.Y < a.Bottom() + kNear;
}

} // namespace

void Surroundings::Add(const RectF& box) {
    if (penlode::IsFinite(box)) {
        m_boxes.push_back(box);
    }
}

void Surroundings::AddAsOne(const std::vector<RectF>& boxes) {
    Surroundings one;
    for (const RectF& box : boxes) {
        one.Add(box);
    }
    if (!one.m_boxes.empty()) {
        Add(one.All());
    }
}

RectF Surroundings::PlaceAbove(SizeF size, float centerX, float gap) const {
    RectF placed{centerX - size.Width * 0.5F, 0.0F, size.Width, size.Height};
    float top = kFar;
    for (const RectF& box : m_boxes) {
        top = MeetAcross(box, placed) ? std::min(top, box.Y) : top;
    }
    placed.Y = (top == kFar ? All().Y : top) - gap - size.Height;
    return placed;
}

RectF Surroundings::PlaceBelow(SizeF size, float centerX, float gap) const {
    return {centerX - size.Width * 0.5F, All().Bottom() + gap, size.Width, size.Height};
}

RectF Surroundings::PlaceLeft(SizeF size, float centerY, float gap) const {
    RectF placed{0.0F, centerY - size.Height * 0.5F, size.Width, size.Height};
    float left = kFar;
    for (const RectF& box : m_boxes) {
        left = MeetDown(box, placed) ? std::min(left, box.X) : left;
    }
    placed.X = (left == kFar ? All().X : left) - gap - size.Width;
    return placed;
}

RectF Surroundings::All() const {
    return UnionOf(m_boxes);
}

} // namespace millichart
