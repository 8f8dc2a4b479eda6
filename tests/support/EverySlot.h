#pragma once

#include "penlode/IGraphicsEngine.h"

#include <span>

/// A kind of operation, drawn within 24 by 19 mm.
struct SlotCell {
    const wchar_t* Caption;
    void (*Draw)(penlode::IGraphicsEngine&);
};

/// Together they use every operation of the surface.
std::span<const SlotCell> SlotCells();

/// Size of the page that DrawEverySlot fills, in mm.
inline constexpr penlode::SizeF kEverySlotPage{150.0F, 105.0F};

/// All cells with their captions on one page, to compare engines by eye.
void DrawEverySlot(penlode::IGraphicsEngine& engine);
