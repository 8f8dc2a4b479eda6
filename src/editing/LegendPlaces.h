#pragma once

#include "penlode/IGraphicsEngine.h"

/// The small picture on which a user picks one of a legend's twelve places: a plot with a box at each.
namespace millichart {

inline constexpr int kLegendPlaceCount = 12;

/// The box of a place (numbered as LegendPosition) on a picture of that size.
penlode::RectF LegendPlace(int place, penlode::SizeF picture);

/// The place at a point, −1 if there is none.
int LegendPlaceAt(penlode::PointF point, penlode::SizeF picture);

/// Where an arrow key leads from a place: the nearest one that way (each step is −1, 0 or 1), or the same.
int LegendPlaceBeside(int place, int stepRight, int stepDown);

/// Chinese names, for screen readers and tips.
const char* LegendPlaceName(int place);

struct LegendPlaceColors {
    penlode::Color Ground;
    penlode::Color Line;
    penlode::Color Selected;
};

/// On a surface that counts in pixels.
void DrawLegendPlaces(penlode::IGraphicsEngine& engine, penlode::SizeF picture, int selected,
                      const LegendPlaceColors& colors);

} // namespace millichart
