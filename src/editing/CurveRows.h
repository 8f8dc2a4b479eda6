#pragma once

#include "charts/curve/CurveProp.h"
#include "editing/DialogView.h"

/// The list of a line chart's curves: a row a curve, and all its settings.
namespace millichart {

std::span<const ListColumn> CurveColumns();

/// Settings that a curve has not are shown as they count.
std::vector<ListRow> CurveRows(const CurvePlotProp& plot);

/// Each list becomes as long as there are rows. A marker's width that is not above 0 becomes 1, and a name of
/// no marker and no treatment of nulls leaves them as they were.
void ReadCurveRows(const std::vector<ListRow>& rows, CurvePlotProp& plot);

} // namespace millichart
