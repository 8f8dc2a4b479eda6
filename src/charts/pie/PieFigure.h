#pragma once

#include "charts/pie/PieProp.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <string>
#include <vector>

/// What every chart of the pie family shares: the circle's size, the slices' angles, the labels round them.
namespace millichart {

/// Where everything of a pie stands, in mm of the page.
struct PieLayout {
    penlode::RectF Whole;                        ///< pie, labels and legend
    penlode::RectF Pie;                          ///< the square round the whole circle
    std::vector<std::string> LabelTexts;         ///< one per slice, or none
    std::vector<penlode::RectF> LabelRects;      ///< parallel to the texts
    std::vector<penlode::RectF> LegendItemRects; ///< one per name, or none
};

/// What a circle and its labels are laid out from.
struct PieFigure {
    penlode::PointF Center;
    float Diameter;
    float StartAngle;
    float TotalSweep; ///< 360 for a pie, 180 for a half
    const std::vector<double>& Values;
    const std::vector<std::string>& Names;
    const PieLabelProp& Label;
    const std::vector<penlode::PointF>& LabelOffsets; ///< the user's displacements; a missing one is (0, 0)
};

/// The sum in list order.
double TotalOf(const std::vector<double>& values);

/// Each slice's share of `totalSweep` in degrees; empty when there are no values or they add up to 0.
std::vector<float> SliceSweeps(const std::vector<double>& values, float totalSweep);

/// `BasePieWidth` × total / `BaseValue`, or `fixedWidth` if `fixedSize` is non-zero.
float PieDiameter(std::int32_t fixedSize, float fixedWidth, float baseValue, float basePieWidth,
                  double total);

/// Fills pie, label texts and label rectangles. False, and an empty pie at the centre, when there is nothing
/// to show.
bool LayOutFigure(const PieFigure& figure, PieLayout& layout);

/// The pie's rectangle united with every label's.
penlode::RectF FigureExtent(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels);

/// Fills the slices one after the other and outlines each with `outline`, unless that is null.
void DrawFlatSlices(penlode::IGraphicsEngine& engine, const penlode::RectF& circle, float startAngle,
                    const std::vector<float>& sweeps, const std::vector<penlode::Color>& colors,
                    const penlode::Pen* outline);

void DrawPieLabels(penlode::IGraphicsEngine& engine, const PieLayout& layout, const PieLabelProp& label);

/// Adds to every offset the move of its rectangle's top-left corner; entries that either list lacks stay.
void AddMoves(std::vector<penlode::PointF>& offsets, const std::vector<penlode::RectF>& from,
              const std::vector<penlode::RectF>& to);

} // namespace millichart
