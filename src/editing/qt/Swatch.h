#pragma once

#include <QRect>
#include <QWidget>
#include <cstdint>

namespace millichart {

/// Paints a Windows RGB value in a thin frame that shows on a light and on a dark widget.
void PaintSwatch(QWidget& widget, const QRect& box, std::uint32_t colorRef);

/// Lets a screen reader say which colour a widget shows.
void DescribeColor(QWidget& widget, std::uint32_t colorRef);

} // namespace millichart
