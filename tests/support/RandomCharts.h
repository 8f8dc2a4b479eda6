#pragma once

#include "charts/curve/BasicCurve.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/BasicHalfPie.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"

#include <cstdint>

/// How far random charts go.
enum class Variety {
    /// Whatever a record may say: any size and angle, texts that a user has moved, flags that are neither 0
    /// nor 1, missing pens and fonts, lists that are too short, values that are no number.
    Full,
    /// Sizes, fonts and angles that a person would choose, on data of every kind.
    Moderate,
};

/// Whole charts, which wait for their Layout: record, data, range, place. A seed gives the same chart on
/// every platform.
millichart::CBasicPie RandomPie(std::uint32_t seed, Variety variety);
millichart::CBasicHalfPie RandomHalfPie(std::uint32_t seed, Variety variety);
millichart::CBasicHalfPieHalfPie RandomHalfPieHalfPie(std::uint32_t seed, Variety variety);
millichart::CBasicHalfPieHistogram RandomHalfPieHistogram(std::uint32_t seed, Variety variety);
millichart::CBasicHistogram RandomHistogram(std::uint32_t seed, Variety variety);
millichart::CBasicCurve RandomCurve(std::uint32_t seed, Variety variety);
