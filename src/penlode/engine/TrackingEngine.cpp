#include "penlode/engine/TrackingEngine.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

namespace penlode {
namespace {

std::size_t LinesThatFit(std::size_t lines, float height, float lineHeight) {
    if (height <= 0.0F || lineHeight <= 0.0F) {
        return lines;
    }
    return static_cast<std::size_t>(
        std::min(static_cast<double>(lines), std::floor(height / lineHeight + 1e-3)));
}

/// Characters of the first lines, with the line breaks that end them.
std::size_t CharactersIn(std::wstring_view text, const std::vector<std::wstring_view>& lines,
                         std::size_t count) {
    return count == lines.size() ? text.size() : static_cast<std::size_t>(lines[count].data() - text.data());
}

} // namespace

Status CTrackingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const PointF& origin, const StringFormat* format,
                                   const SolidBrush* brush) {
    return DrawString(text, length, font, RectF{origin.X, origin.Y, 0.0F, 0.0F}, format, brush);
}

Status CTrackingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const PointF& origin, const SolidBrush* brush) {
    return DrawString(text, length, font, origin, nullptr, brush);
}

Status CTrackingEngine::DrawImage(const Image* image, const RectF& destination) {
    if (image == nullptr) {
        return Status::InvalidParameter;
    }
    return DrawImage(image, destination, 0.0F, 0.0F, static_cast<float>(image->Width),
                     static_cast<float>(image->Height), Unit::Pixel, nullptr, nullptr, nullptr);
}

Status CTrackingEngine::ResetClip() {
    m_state.ResetClip();
    return Status::Ok;
}

Status CTrackingEngine::GetClip(Region* region) {
    if (region == nullptr || !m_state.WorldToDevice().IsInvertible()) {
        return Status::InvalidParameter;
    }
    *region = m_state.WorldClip();
    return Status::Ok;
}

Status CTrackingEngine::SetClip(const GraphicsPath* path, CombineMode mode) {
    if (path == nullptr || !IsFinite(*path) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    return m_state.CombineClip(Region::Shape{*path}, mode);
}

Status CTrackingEngine::SetClip(const Region* region, CombineMode mode) {
    if (region == nullptr || !IsFinite(*region) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    return m_state.CombineClip(*region, mode);
}

Status CTrackingEngine::SetClip(const RectF& rect, CombineMode mode) {
    if (!IsFinite(rect) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    return m_state.CombineClip(Region::Shape{rect}, mode);
}

Status CTrackingEngine::SetClip(Region* region, CombineMode mode) {
    return SetClip(static_cast<const Region*>(region), mode);
}

Status CTrackingEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const RectF& layout, const StringFormat* format, RectF* bounds,
                                      std::int32_t* charactersFitted, std::int32_t* linesFilled) {
    if (text == nullptr || font == nullptr || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    const std::wstring_view whole = TextOf(text, length);
    if (bounds != nullptr) {
        *bounds = TextBounds(whole, *font, layout, format == nullptr ? StringFormat{} : *format);
    }
    const std::vector<std::wstring_view> lines = SplitLines(whole);
    const std::size_t fitting =
        LinesThatFit(lines.size(), layout.Height, CStringUtil::MeasureFont(*font).LineHeight);
    if (charactersFitted != nullptr) {
        *charactersFitted = static_cast<std::int32_t>(CharactersIn(whole, lines, fitting));
    }
    if (linesFilled != nullptr) {
        *linesFilled = static_cast<std::int32_t>(whole.empty() ? 0 : fitting);
    }
    return Status::Ok;
}

Status CTrackingEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const PointF& origin, RectF* bounds) {
    return MeasureString(text, length, font, origin, nullptr, bounds);
}

Status CTrackingEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const PointF& origin, const StringFormat* format, RectF* bounds) {
    return MeasureString(text, length, font, RectF{origin.X, origin.Y, 0.0F, 0.0F}, format, bounds, nullptr,
                         nullptr);
}

Status CTrackingEngine::SetTransform(const Matrix* matrix) {
    return m_state.SetTransform(matrix);
}

Status CTrackingEngine::GetTransform(Matrix* matrix) {
    return m_state.GetTransform(matrix);
}

Status CTrackingEngine::TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                                        std::int32_t count) {
    return m_state.TransformPoints(destination, source, points, count);
}

Status CTrackingEngine::TranslateTransform(float dx, float dy, MatrixOrder order) {
    return m_state.Transform(Matrix::Translation(dx, dy), order);
}

Status CTrackingEngine::RotateTransform(float degrees, MatrixOrder order) {
    return m_state.Transform(Matrix::Rotation(degrees), order);
}

Status CTrackingEngine::ScaleTransform(float sx, float sy, MatrixOrder order) {
    return m_state.Transform(Matrix::Scale(sx, sy), order);
}

Status CTrackingEngine::ResetTransform() {
    m_state.ResetTransform();
    return Status::Ok;
}

float CTrackingEngine::GetPageScale() {
    return m_state.GetPageScale();
}

Unit CTrackingEngine::GetPageUnit() {
    return m_state.GetPageUnit();
}

Status CTrackingEngine::SetPageScale(float scale) {
    return m_state.SetPageScale(scale);
}

Status CTrackingEngine::SetPageUnit(Unit unit) {
    return m_state.SetPageUnit(unit);
}

std::uint32_t CTrackingEngine::BeginContainer() {
    return m_state.BeginContainer();
}

Status CTrackingEngine::EndContainer(std::uint32_t container) {
    return m_state.EndContainer(container);
}

Status CTrackingEngine::SetSmoothingMode(SmoothingMode mode) {
    if (mode < SmoothingMode::Default || mode > SmoothingMode::AntiAlias) {
        return Status::InvalidParameter;
    }
    m_state.SetSmoothingMode(mode);
    return Status::Ok;
}

SmoothingMode CTrackingEngine::GetSmoothingMode() {
    return m_state.GetSmoothingMode();
}

SizeF CTrackingEngine::MeasureScriptText(const wchar_t* text, const Font* font) {
    return CStringUtil::MeasureWideString(TextOf(text, -1), font);
}

void CTrackingEngine::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                     const SolidBrush* brush) {
    DrawString(text, -1, font, PointF{x, y}, brush);
}

} // namespace penlode
