#include "charts/reading/Contrast.h"

#include "charts/cartesian/VerAxisFields.h"
#include "foundation/Light.h"

namespace millichart {

using penlode::Color;
using penlode::Pen;

namespace {

constexpr Pen kLightGrid{Color{0xFFD9D9D9U}, 0.1F};

} // namespace

Color ReadableOn(Color ground) {
    const Color seen = Over(ground, penlode::kWhite);
    return ContrastOf(penlode::kWhite, seen) > ContrastOf(penlode::kBlack, seen) ? penlode::kWhite
                                                                                 : penlode::kBlack;
}

const Pen* GridPen(const Pen* record, const ChartOptions& options) {
    const bool isDefault = record != nullptr && (*record == Pen() || *record == kDefaultVerGridPen);
    return isDefault && options.Contrast == ChartContrast::Kept ? &kLightGrid : record;
}

} // namespace millichart
