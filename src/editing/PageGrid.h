#pragma once

#include "editing/DialogTemplate.h"

#include <array>

/// What the pages of all sheets have in common.
namespace millichart {

inline constexpr int kPageWidth = 304;
inline constexpr int kPageHeight = 254;

inline constexpr std::array<std::string_view, 4> kScaleStyleTexts{"无", "外部", "内部", "交叉"};

/// One of four radio buttons for a style of ticks, side by side.
constexpr Control ScaleRadio(const std::array<int, 4>& ids, std::size_t style, int y) {
    return {ids[style],
            ControlKind::RadioButton,
            kScaleStyleTexts[style],
            13 + 69 * static_cast<int>(style),
            y,
            50,
            10};
}

} // namespace millichart
