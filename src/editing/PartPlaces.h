#pragma once

#include "editing/SheetStart.h"
#include "foundation/ChartPart.h"

/// On which page of a chart's sheet, and by which of its controls, a part of the chart is set. What a sheet
/// does not set, such as a pie's title, has its first page.
namespace millichart {

SheetStart PlaceInPieSheet(const ChartPart& part);
SheetStart PlaceInHalfPieSheet(const ChartPart& part);
SheetStart PlaceInHistogramSheet(const ChartPart& part);
SheetStart PlaceInCurveSheet(const ChartPart& part);

/// Of sheets that have the pages of both parts of a composite chart.
SheetStart PlaceInHalfPieHalfPieSheet(const ChartPart& part);
SheetStart PlaceInHalfPieHistogramSheet(const ChartPart& part);

} // namespace millichart
