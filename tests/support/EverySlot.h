#pragma once

#include "penlode/IGraphicsEngine.h"

/// Size of the page that DrawEverySlot fills, in mm.
inline constexpr penlode::SizeF kEverySlotPage{150.0F, 105.0F};

/// One drawing that uses every operation of the surface, a captioned cell for each kind, to compare engines
/// by eye.
void DrawEverySlot(penlode::IGraphicsEngine& engine);
