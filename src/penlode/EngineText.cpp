#include "penlode/EngineText.h"

#include "penlode/StringUtil.h"
#include "penlode/TextPlacement.h"

#include <algorithm>
#include <cmath>

namespace penlode {
namespace {

std::size_t LinesThatFit(std::size_t lines, float height, float lineHeight) {
    if (height <= 0.0F || lineHeight <= 0.0F) {
        return lines;
    }
    return static_cast<std::size_t>(
        std::min(static_cast<double>(lines), std::floor(height / lineHeight + 1e-3)));
}

} // namespace

Status MeasureInLayout(std::wstring_view text, const Font* font, const RectF& layout,
                       const StringFormat* format, RectF* bounds, std::int32_t* charactersFitted,
                       std::int32_t* linesFilled) {
    if (font == nullptr) {
        return Status::InvalidParameter;
    }
    if (bounds != nullptr) {
        *bounds = TextBounds(text, *font, layout, format == nullptr ? StringFormat{} : *format);
    }
    const std::vector<std::wstring_view> lines = SplitLines(text);
    const std::size_t fitting =
        LinesThatFit(lines.size(), layout.Height, CStringUtil::MeasureFont(*font).LineHeight);
    if (charactersFitted != nullptr) {
        const bool all = fitting == lines.size();
        const auto characters =
            all ? text.size() : static_cast<std::size_t>(lines[fitting].data() - text.data());
        *charactersFitted = static_cast<std::int32_t>(characters);
    }
    if (linesFilled != nullptr) {
        *linesFilled = static_cast<std::int32_t>(text.empty() ? 0 : fitting);
    }
    return Status::Ok;
}

} // namespace penlode
