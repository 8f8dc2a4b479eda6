#pragma once

#include "foundation/ChartOptions.h"
#include "foundation/Export.h"
#include "penlode/Color.h"

namespace millichart {

/// The faces of bars and pies that lie in shadow.
enum class ShadedFace { BarTop, BarSide, PieWall };

/// The opaque colour of a face in shadow of something that is `color` in front. With contrast kept its hue
/// stays: it is darker or, of what is too dark for that, lighter.
MILLICHART_API penlode::Color ShadeOf(penlode::Color color, ShadedFace face, const ChartOptions& options);

} // namespace millichart
