#include "penlode/EngineText.h"
#include "penlode/StringUtil.h"
#include "penlode/TextPlacement.h"
#include "penlode/cairo/CairoTarget.h"
#include "penlode/cairo/CairoText.h"
#include "penlode/cairo/PangoText.h"

namespace penlode {

Status CGraphicsEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const PointF& origin, const StringFormat* format,
                                   const SolidBrush* brush) {
    return DrawString(text, length, font, RectF{origin.X, origin.Y, 0.0F, 0.0F}, format, brush);
}

Status CGraphicsEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const PointF& origin, const SolidBrush* brush) {
    return DrawString(text, length, font, origin, nullptr, brush);
}

Status CGraphicsEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const RectF& layout, const StringFormat* format, const SolidBrush* brush) {
    if (text == nullptr || font == nullptr || brush == nullptr || !IsDrawable(*font) || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    const StringFormat plain;
    return m_target->Draw([&](const Painter& p) {
        return PaintText(p, TextOf(text, length), *font, layout, format == nullptr ? plain : *format,
                         brush->FillColor);
    });
}

Status CGraphicsEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const RectF& layout, const StringFormat* format, RectF* bounds,
                                      std::int32_t* charactersFitted, std::int32_t* linesFilled) {
    if (text == nullptr || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    return MeasureInLayout(TextOf(text, length), font, layout, format, bounds, charactersFitted, linesFilled);
}

Status CGraphicsEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const PointF& origin, RectF* bounds) {
    return MeasureString(text, length, font, origin, nullptr, bounds);
}

Status CGraphicsEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const PointF& origin, const StringFormat* format, RectF* bounds) {
    return MeasureString(text, length, font, RectF{origin.X, origin.Y, 0.0F, 0.0F}, format, bounds, nullptr,
                         nullptr);
}

SizeF CGraphicsEngine::MeasureScriptText(const wchar_t* text, const Font* font) {
    return CStringUtil::MeasureWideString(TextOf(text, -1), font);
}

void CGraphicsEngine::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                     const SolidBrush* brush) {
    DrawString(text, -1, font, PointF{x, y}, brush);
}

} // namespace penlode
