#pragma once

#include "charts/pie/PieProp.h"

namespace millichart {

/// Which half of the circle a half pie fills; any number but 0 is the lower one.
namespace HalfPiePart {
inline constexpr std::int32_t Upper = 0; ///< slices from the left over the top to the right
inline constexpr std::int32_t Lower = 1; ///< slices from the right under the bottom to the left
} // namespace HalfPiePart

/// The half pie itself. Lengths in mm.
struct HalfPieBasicProp {
    std::int32_t WhichPart = HalfPiePart::Upper;
    std::int32_t DrawSepLine = 1; ///< 1: every slice is outlined with PenSepLine
    penlode::Owned<penlode::Pen> PenSepLine = penlode::Pen(penlode::kBlack, 0.1F);
    std::int32_t FixedSize = 0; ///< non-zero: the diameter is FixedWidth; zero: it follows the values' total
    float FixedWidth = 20.0F;
    float BaseValue = 100.0F; ///< the total that gives a diameter of BasePieWidth; others in proportion
    float BasePieWidth = 10.0F;
    std::vector<std::string> ComponentName;     ///< one per slice; narrow (GBK; CStringUtil::Utf8ToAnsi)
    std::vector<penlode::Color> ComponentColor; ///< one per slice; a slice without a colour is not filled

    friend bool operator==(const HalfPieBasicProp& a, const HalfPieBasicProp& b) {
        return penlode::HaveEqualMembers<9>(a, b);
    }
};

struct HalfPieProp {
    HalfPieBasicProp Basic;
    PieLabelProp Label;

    friend bool operator==(const HalfPieProp&, const HalfPieProp&) = default;
};

/// Two half pies round one centre. Each says itself which half of the circle it fills: as constructed both
/// fill the upper one, the second over the first.
struct HalfPieHalfPieProp {
    HalfPieProp First;
    HalfPieProp Second;

    friend bool operator==(const HalfPieHalfPieProp&, const HalfPieHalfPieProp&) = default;
};

} // namespace millichart
