#pragma once

#include "millichart.h"
#include "penlode/GraphicsEngine.h"

#include <cstddef>
#include <memory>
#include <vector>

/// Curves of many values, and a line chart that shows them over a whole picture.
namespace bench {

inline constexpr int kPictureWidth = 1600; ///< pixels
inline constexpr int kPictureHeight = 1200;

/// One curve's data as a host has them.
struct Series {
    std::vector<double> Values; ///< from 0 to 1
    std::vector<std::int32_t> Times;
};

enum class Shape { Walk, Noise };

/// The same at each call.
std::shared_ptr<const Series> MakeSeries(std::size_t count, Shape shape);

/// A plot as large as the picture and nothing else, its value axis from 0 to 1; its data taken, not copied.
millichart::CBasicCurve ChartOf(std::vector<Series> curves, const millichart::CurveProp& prop);

/// A white picture on which a millimetre is a pixel.
std::unique_ptr<penlode::CGraphicsEngine> PictureEngine();

/// A record that shows the plot alone.
millichart::CurveProp BareRecord();

} // namespace bench
