#include "penlode/engine/SurfaceState.h"

#include "penlode/Units.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace penlode {
namespace {

RectF RectBetween(PointF a, PointF b) {
    return {std::min(a.X, b.X), std::min(a.Y, b.Y), std::abs(a.X - b.X), std::abs(a.Y - b.Y)};
}

bool IsKnown(CoordinateSpace space) {
    return space >= CoordinateSpace::World && space <= CoordinateSpace::Device;
}

Region Mapped(const Region& region, const Matrix& transform);

/// A shape under a transform. A rectangle stays one as long as its sides stay parallel to the axes.
struct ShapeMapper {
    const Matrix& Transform;

    Region::Shape operator()(const Region::Everything& all) const { return all; }

    Region::Shape operator()(const Region::Nothing& nothing) const { return nothing; }

    Region::Shape operator()(const RectF& rect) const {
        if (Transform.KeepsAxes()) {
            return RectBetween(Transform.Apply(rect.TopLeft()),
                               Transform.Apply({rect.Right(), rect.Bottom()}));
        }
        GraphicsPath path;
        path.AddRectangle(rect);
        return Transformed(path, Transform);
    }

    Region::Shape operator()(const GraphicsPath& path) const { return Transformed(path, Transform); }

    Region::Shape operator()(const Region::Nested& nested) const {
        return Region::Nested{std::make_shared<const Region>(Mapped(*nested.Area, Transform))};
    }
};

Region Mapped(const Region& region, const Matrix& transform) {
    Region mapped;
    for (const Region::Step& step : region.Steps()) {
        mapped.Combine(std::visit(ShapeMapper{transform}, step.Operand), step.Mode);
    }
    return mapped;
}

} // namespace

CSurfaceState::CSurfaceState(double dpiX, double dpiY) : m_dpiX(dpiX), m_dpiY(dpiY) {}

Status CSurfaceState::SetTransform(const Matrix* matrix) {
    if (matrix == nullptr || !IsFinite(*matrix)) {
        return Status::InvalidParameter;
    }
    m_now.World = *matrix;
    return Status::Ok;
}

Status CSurfaceState::GetTransform(Matrix* matrix) const {
    if (matrix == nullptr) {
        return Status::InvalidParameter;
    }
    *matrix = m_now.World;
    return Status::Ok;
}

Status CSurfaceState::Transform(const Matrix& step, MatrixOrder order) {
    const Matrix combined = Combined(m_now.World, step, order);
    return SetTransform(&combined);
}

Status CSurfaceState::SetPageScale(float scale) {
    if (!std::isfinite(scale) || scale <= 0.0F) {
        return Status::InvalidParameter;
    }
    m_now.PageScale = scale;
    return Status::Ok;
}

Status CSurfaceState::SetPageUnit(Unit unit) {
    if (unit <= Unit::World || unit > Unit::Millimeter) {
        return Status::InvalidParameter;
    }
    m_now.PageUnit = unit;
    return Status::Ok;
}

Matrix CSurfaceState::PageScaling() const {
    return Matrix::Scale(m_now.PageScale * PixelsPerUnit(m_now.PageUnit, m_dpiX),
                         m_now.PageScale * PixelsPerUnit(m_now.PageUnit, m_dpiY));
}

Matrix CSurfaceState::PageToDevice() const {
    return PageScaling() * m_now.ContainerBase;
}

Status CSurfaceState::TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                                      std::int32_t count) const {
    const auto toDevice = [this](CoordinateSpace space) {
        return space == CoordinateSpace::World  ? WorldToDevice()
               : space == CoordinateSpace::Page ? PageToDevice()
                                                : Matrix{};
    };
    const Matrix back = toDevice(destination);
    if (points == nullptr || count < 0 || !IsKnown(destination) || !IsKnown(source) || !back.IsInvertible()) {
        return Status::InvalidParameter;
    }
    if (destination != source) {
        const Matrix transform = toDevice(source) * back.Inverted();
        std::transform(points, points + count, points, [&](PointF point) { return transform.Apply(point); });
    }
    return Status::Ok;
}

void CSurfaceState::ResetClip() {
    ++m_clipGeneration;
    m_now.Clip.MakeInfinite();
}

Status CSurfaceState::CombineClip(const Region::Shape& shape, CombineMode mode) {
    ++m_clipGeneration;
    return m_now.Clip.Combine(std::visit(ShapeMapper{WorldToDevice()}, shape), mode);
}

Status CSurfaceState::CombineClip(const Region& region, CombineMode mode) {
    ++m_clipGeneration;
    return m_now.Clip.Combine(Mapped(region, WorldToDevice()), mode);
}

Region CSurfaceState::WorldClip() const {
    return Mapped(m_now.Clip, WorldToDevice().Inverted());
}

std::vector<Region> CSurfaceState::DeviceClips() const {
    std::vector<Region> clips = m_outerClips;
    if (!m_now.Clip.IsInfinite()) {
        clips.push_back(m_now.Clip);
    }
    return clips;
}

std::size_t CSurfaceState::ClipCount() const {
    return m_outerClips.size() + (m_now.Clip.IsInfinite() ? 0U : 1U);
}

std::uint32_t CSurfaceState::BeginContainer() {
    const std::uint32_t handle = ++m_lastHandle;
    ++m_clipGeneration;
    m_containers.push_back({handle, m_now, m_outerClips.size()});
    if (!m_now.Clip.IsInfinite()) {
        m_outerClips.push_back(m_now.Clip);
    }
    // What stood outside becomes part of the way to the device, in pixels: once the caller has set the same
    // units again, a point lands where it would have landed before.
    const Matrix scaling = PageScaling();
    State inner;
    inner.ContainerBase = scaling.Inverted() * m_now.World * scaling * m_now.ContainerBase;
    inner.PageUnit = Unit::Display;
    inner.Smoothing = m_now.Smoothing;
    m_now = std::move(inner);
    return handle;
}

Status CSurfaceState::EndContainer(std::uint32_t container) {
    const auto last = std::find_if(m_containers.rbegin(), m_containers.rend(),
                                   [container](const Container& open) { return open.Handle == container; });
    if (last == m_containers.rend()) {
        return Status::InvalidParameter;
    }
    ++m_clipGeneration;
    m_now = std::move(last->Saved);
    m_outerClips.resize(last->ClipsOutside);
    m_containers.erase(last.base() - 1, m_containers.end());
    return Status::Ok;
}

} // namespace penlode
