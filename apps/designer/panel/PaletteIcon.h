#pragma once

#include <QIcon>
#include <QSize>
#include <cstdint>

namespace designer {

/// The first colours, or hatches, of a millichart::ChartPalette side by side; empty for the record's own.
/// `size` is in device-independent pixels.
QIcon PaletteIcon(std::int32_t palette, QSize size, double pixelRatio);

} // namespace designer
