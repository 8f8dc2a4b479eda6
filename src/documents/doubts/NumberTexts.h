#pragma once

#include "charts/curve/BasicCurve.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/SlicedCircle.h"
#include "documents/ChartData.h"
#include "documents/doubts/Wording.h"

#include <string>

/// Written numbers that are not what they stand for.
namespace millichart::documents {

/// Of labels of the value axis that lie beside their ticks by more than a reader would overlook.
void AddAxisLabelDoubts(const CBasicHistogram& chart, Diagnostics& diagnostics);
void AddAxisLabelDoubts(const CBasicCurve& chart, Diagnostics& diagnostics);

/// Of bars whose values are written as whole numbers and are none.
void AddBarValueDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics);

/// Of slices too small for the one decimal of their labels. `place` is their data's.
void AddSliceValueDoubts(const CSlicedCircle& circle, const PieLabelProp& label,
                         const std::vector<std::string>& names, const std::string& place,
                         Diagnostics& diagnostics);

} // namespace millichart::documents
