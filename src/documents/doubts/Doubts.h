#pragma once

#include "charts/curve/BasicCurve.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/BasicHalfPie.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"
#include "documents/ChartContent.h"
#include "penlode/streams/Diagnostic.h"

#include <vector>

/// What a laid-out chart does not show as a reader would take it: warnings, one an idea and part of the
/// chart. The document's data may have gone into the chart; where they came from must be left.
namespace millichart::documents {

using Diagnostics = std::vector<penlode::Diagnostic>;

void AddDoubts(const PieDocument& document, const CBasicPie& chart, Diagnostics& diagnostics);
void AddDoubts(const HalfPieDocument& document, const CBasicHalfPie& chart, Diagnostics& diagnostics);
void AddDoubts(const HalfPieHalfPieDocument& document, const CBasicHalfPieHalfPie& chart,
               Diagnostics& diagnostics);
void AddDoubts(const HalfPieHistogramDocument& document, const CBasicHalfPieHistogram& chart,
               Diagnostics& diagnostics);
void AddDoubts(const HistogramDocument& document, const CBasicHistogram& chart, Diagnostics& diagnostics);
void AddDoubts(const CurveDocument& document, const CBasicCurve& chart, Diagnostics& diagnostics);

} // namespace millichart::documents
