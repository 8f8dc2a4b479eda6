#pragma once

#include "charts/pie/PieLayout.h"
#include "foundation/Palette.h"
#include "penlode/IGraphicsEngine.h"

#include <vector>

/// From values to slices, and their drawing.
namespace millichart {

/// The sum in list order.
double TotalOf(const std::vector<double>& values);

/// What part of the total a value is.
float ShareOf(double value, double total);

/// Each slice's share of `totalSweep` in degrees; empty when there are no values or they add up to 0.
std::vector<float> SliceSweeps(const std::vector<double>& values, float totalSweep);

/// One slice after the other from `startAngle` on; those that have no fill are not filled.
std::vector<PieSlice> FlatSlices(float startAngle, const std::vector<float>& sweeps,
                                 const std::vector<Fill>& fills);

/// The same with the walls of those that are filled, shaded as the options say. A start of 360 or more is
/// seen a turn back.
std::vector<PieSlice> DeepSlices(float startAngle, const std::vector<float>& sweeps,
                                 const std::vector<Fill>& fills, const ChartOptions& options);

/// Fills and hatches each slice, paints its walls and outlines it before the next. Walls lie wholly below the
/// face's rim, so no slice needs to be painted before another.
void DrawSlices(penlode::IGraphicsEngine& engine, const PieShapes& shapes);

} // namespace millichart
