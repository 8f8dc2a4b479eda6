#include "charts/reading/Contrast.h"

#include "foundation/Light.h"

namespace millichart {

using penlode::Color;
using penlode::Pen;

namespace {

constexpr Pen kLightGrid{Color{0xFFD9D9D9U}, 0.1F};

/// Black, of the width that records have when they are made or loaded.
bool IsUnchosen(const Pen& pen) {
    return pen == Pen(penlode::kBlack, 0.1F) || pen == Pen(penlode::kBlack, 0.0F);
}

} // namespace

Color ReadableOn(Color ground) {
    const Color seen = Over(ground, penlode::kWhite);
    return ContrastOf(penlode::kWhite, seen) > ContrastOf(penlode::kBlack, seen) ? penlode::kWhite
                                                                                 : penlode::kBlack;
}

Color ReadableOver(Color text, Color ground) {
    constexpr double kLeast = 3.0; // of large letters, by WCAG 2
    return ContrastOf(text, Over(ground, penlode::kWhite)) < kLeast ? ReadableOn(ground) : text;
}

const Pen* GridPen(const Pen* record, const ChartOptions& options) {
    const bool isDefault = record != nullptr && IsUnchosen(*record);
    return isDefault && options.Contrast == ChartContrast::Kept ? &kLightGrid : record;
}

} // namespace millichart
