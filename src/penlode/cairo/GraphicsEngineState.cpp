#include "penlode/cairo/CairoTarget.h"

namespace penlode {
namespace {

bool IsKnown(CombineMode mode) {
    return mode >= CombineMode::Replace && mode <= CombineMode::Complement;
}

} // namespace

Status CGraphicsEngine::ResetClip() {
    m_target->State.ResetClip();
    return Status::Ok;
}

Status CGraphicsEngine::GetClip(Region* region) {
    if (region == nullptr) {
        return Status::InvalidParameter;
    }
    *region = m_target->State.WorldClip();
    return Status::Ok;
}

Status CGraphicsEngine::SetClip(const GraphicsPath* path, CombineMode mode) {
    if (path == nullptr || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    m_target->State.CombineClip(Region::Shape{*path}, mode);
    return Status::Ok;
}

Status CGraphicsEngine::SetClip(const Region* region, CombineMode mode) {
    if (region == nullptr || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    m_target->State.CombineClip(*region, mode);
    return Status::Ok;
}

Status CGraphicsEngine::SetClip(const RectF& rect, CombineMode mode) {
    if (!IsFinite(rect) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    m_target->State.CombineClip(Region::Shape{rect}, mode);
    return Status::Ok;
}

Status CGraphicsEngine::SetClip(Region* region, CombineMode mode) {
    return SetClip(static_cast<const Region*>(region), mode);
}

Status CGraphicsEngine::SetTransform(const Matrix* matrix) {
    return m_target->State.SetTransform(matrix);
}

Status CGraphicsEngine::GetTransform(Matrix* matrix) {
    return m_target->State.GetTransform(matrix);
}

Status CGraphicsEngine::TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                                        std::int32_t count) {
    return m_target->State.TransformPoints(destination, source, points, count);
}

Status CGraphicsEngine::TranslateTransform(float dx, float dy, MatrixOrder order) {
    return m_target->State.Transform(Matrix::Translation(dx, dy), order);
}

Status CGraphicsEngine::RotateTransform(float degrees, MatrixOrder order) {
    return m_target->State.Transform(Matrix::Rotation(degrees), order);
}

Status CGraphicsEngine::ScaleTransform(float sx, float sy, MatrixOrder order) {
    return m_target->State.Transform(Matrix::Scale(sx, sy), order);
}

Status CGraphicsEngine::ResetTransform() {
    m_target->State.ResetTransform();
    return Status::Ok;
}

float CGraphicsEngine::GetPageScale() {
    return m_target->State.GetPageScale();
}

Unit CGraphicsEngine::GetPageUnit() {
    return m_target->State.GetPageUnit();
}

Status CGraphicsEngine::SetPageScale(float scale) {
    return m_target->State.SetPageScale(scale);
}

Status CGraphicsEngine::SetPageUnit(Unit unit) {
    return m_target->State.SetPageUnit(unit);
}

std::uint32_t CGraphicsEngine::BeginContainer() {
    return m_target->State.BeginContainer();
}

Status CGraphicsEngine::EndContainer(std::uint32_t container) {
    return m_target->State.EndContainer(container);
}

Status CGraphicsEngine::SetSmoothingMode(SmoothingMode mode) {
    if (mode < SmoothingMode::Default || mode > SmoothingMode::AntiAlias) {
        return Status::InvalidParameter;
    }
    m_target->State.SetSmoothingMode(mode);
    return Status::Ok;
}

SmoothingMode CGraphicsEngine::GetSmoothingMode() {
    return m_target->State.GetSmoothingMode();
}

} // namespace penlode
