#pragma once

#include "foundation/Legend.h"
#include "penlode/Color.h"
#include "penlode/Geometry.h"
#include "penlode/Pen.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace millichart {

/// Degrees of a whole pie and of a half one.
inline constexpr float kFullTurn = 360.0F;
inline constexpr float kHalfTurn = 180.0F;

/// From the middle of a slice's rim to its label.
struct LeadLine {
    penlode::PointF From;
    penlode::PointF To;

    friend bool operator==(const LeadLine&, const LeadLine&) = default;
};

/// Where everything of a pie stands, in mm of the page.
struct PieLayout {
    penlode::RectF Whole;                ///< pie, labels, legend and title
    penlode::RectF Pie;                  ///< the square round the whole circle
    std::vector<std::string> LabelTexts; ///< one per slice, or none; prefix and postfix included. Of a label
                                         ///< that options leave out: empty
    std::vector<penlode::RectF> LabelRects;      ///< parallel to the texts
    std::vector<penlode::RectF> LegendItemRects; ///< one per name that is shown, or none
    LegendFrame Legend;                          ///< of a legend that sits on its plot
    std::vector<LeadLine> LeadLines;             ///< of labels that options keep apart
    std::optional<penlode::RectF> Title;         ///< of the options, where it is shown
};

/// A part of a slice's rim that faces the viewer and has a wall below it: degrees of the face's ellipse,
/// within 0 to 180.
struct PieWall {
    float From = 0.0F;
    float To = 0.0F;

    friend bool operator==(const PieWall&, const PieWall&) = default;
};

/// A slice of the face's ellipse. Degrees, clockwise on screen from the positive x axis.
struct PieSlice {
    float StartAngle = 0.0F;
    float SweepAngle = 0.0F;
    std::optional<penlode::Color> Fill; ///< none: the slice is outlined at most
    penlode::Color WallFill;
    millichart::Hatch Hatch = millichart::Hatch::None;
    std::array<PieWall, 2> Walls; ///< see FrontWalls
    std::size_t WallCount = 0;

    /// In the order in which they are drawn; none for a flat slice or one that is not filled. A slice that
    /// reaches round the back may show two.
    std::span<const PieWall> FrontWalls() const { return std::span(Walls).first(WallCount); }
};

/// The slices of a pie as they are drawn, in mm of the page.
struct PieShapes {
    penlode::RectF Face; ///< the ellipse that the slices are parts of
    float Depth = 0.0F;  ///< how far the walls reach down; 0 for a flat pie
    const penlode::Pen* Outline =
        nullptr;                  ///< in the chart, until that changes or moves; null: no slice is outlined
    std::vector<PieSlice> Slices; ///< one a value; none when there is nothing to draw
};

} // namespace millichart
