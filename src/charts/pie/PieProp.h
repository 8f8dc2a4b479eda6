#pragma once

#include "foundation/Legend.h"
#include "foundation/TextProperty.h"
#include "penlode/Color.h"
#include "penlode/Equality.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"

#include <cstdint>
#include <string>
#include <vector>

namespace millichart {

/// How a pie's slices are drawn; any other number draws none, while labels and legend still are.
namespace PieStyle {
inline constexpr std::int32_t Flat = 0;
inline constexpr std::int32_t WithDepth = 1;
} // namespace PieStyle

/// The pie itself. Lengths in mm, angles in degrees, clockwise on screen from the positive x axis.
struct PieBasicProp {
    std::int32_t PieStyle = millichart::PieStyle::Flat;
    std::int32_t FixedSize = 0; ///< non-zero: the diameter is FixedWidth; zero: it follows the values' total
    float FixedWidth = 20.0F;
    float BaseValue = 100.0F; ///< the total that gives a pie of diameter BasePieWidth; others in proportion
    float BasePieWidth = 10.0F;
    /// Where the first slice begins, from 0 to below 360; 180 is the left-hand side. Below 0 or from 720 on,
    /// labels find no place, and slices with depth no walls.
    float StartAngle = 180.0F;
    std::int32_t DrawSepLine = 1; ///< 1: every slice of a flat pie is outlined with PenSepLine
    penlode::Owned<penlode::Pen> PenSepLine = penlode::Pen(penlode::kBlack, 0.1F);
    std::vector<std::string> ComponentName;     ///< one per slice; narrow (GBK; CStringUtil::Utf8ToAnsi)
    std::vector<penlode::Color> ComponentColor; ///< one per slice; a slice without a colour is not filled

    friend bool operator==(const PieBasicProp& a, const PieBasicProp& b) {
        return penlode::HaveEqualMembers<10>(a, b);
    }
};

/// The labels round a pie. A flag of 1 puts its part into every label. One without any part stays empty, its
/// look's prefix and postfix included.
struct PieLabelProp {
    std::int32_t ShowNameLabel = 0;
    std::int32_t ShowValueLabel = 0;    ///< with one decimal
    std::int32_t ShowPercentLabel = 0;  ///< share of the total, with one decimal and "%"
    std::int32_t LabelsInSingleRow = 1; ///< zero: a line break follows every separator
    std::string LabelSeparator = ";";   ///< narrow (GBK; CStringUtil::Utf8ToAnsi)
    TextProperty PieLabelTextProperty;
    float DistBetweenLabelCenterAndPieCenter = 0.0F; ///< mm from the pie's rim to the label's nearest corner
    std::int32_t ShowLabelLeadLine = 1;              ///< 1: drawn where options keep labels apart
    penlode::Owned<penlode::Pen> LabelLeadLinePen = penlode::Pen(penlode::kBlack, 0.1F);

    friend bool operator==(const PieLabelProp& a, const PieLabelProp& b) {
        return penlode::HaveEqualMembers<9>(a, b);
    }
};

struct PieProp {
    PieBasicProp Basic;
    PieLabelProp Label;
    LegendProp Legend;

    friend bool operator==(const PieProp&, const PieProp&) = default;
};

} // namespace millichart
