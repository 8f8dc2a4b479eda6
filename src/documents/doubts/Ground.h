#pragma once

#include "charts/curve/BasicCurve.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/PieLayout.h"
#include "penlode/Color.h"
#include "penlode/Geometry.h"

#include <functional>
#include <vector>

/// What colour is under a chart's texts.
namespace millichart::documents {

/// Lays what a part of a chart shows at a point over the colour there, which stays opaque.
using Paint = std::function<void(penlode::PointF, penlode::Color& seen)>;

/// What the parts of a chart show, in the order in which they are drawn.
using Ground = std::vector<Paint>;

Paint PaintOf(const PieShapes& shapes);
/// The chart must outlive it.
Paint PaintOf(const CBasicHistogram& chart);
Paint PaintOf(const CBasicCurve& chart);
Paint PaintOf(const penlode::RectF& box, penlode::Color fill);

/// On a white page.
penlode::Color ColorAt(const Ground& ground, penlode::PointF point);

} // namespace millichart::documents
