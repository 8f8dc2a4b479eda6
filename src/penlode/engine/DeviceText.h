#pragma once

#include "penlode/engine/DeviceShapes.h"
#include "penlode/text/TextPlacement.h"

/// How lines of text that were set in units of their own lie on a device: the same on all of them.
namespace penlode {

/// A line that was set at an em size of its own, its baseline beginning at (0, 0).
struct SetText {
    double Em;
    double Width;
};

/// The map from a set line's own units to device units. A baseline that runs along an axis of a surface of
/// pixels stands on a whole pixel; glyphs keep their exact places along it.
Matrix LineToDevice(const DeviceView& view, const PlacedLine& line, const Font& font, double em);

/// False for a line that lies out of sight, or whose glyphs are larger than a surface can count or too small
/// to see.
bool CanBeSeen(const DeviceView& view, const SetText& line, const Matrix& toDevice);

/// Underline and strikeout, if the font has them. On pixels those of one text are equally thick, wherever
/// they fall on the grid.
void Decorate(const ShapePainter& painter, const SetText& line, const Matrix& toDevice, const Font& font,
              Color color);

/// The same as part of the outline of a line that begins at the origin, in units of the font's size.
void AddDecorations(GraphicsPath& outline, const SetText& line, const Font& font);

} // namespace penlode
