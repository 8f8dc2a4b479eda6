#pragma once

#include "charts/curve/CurveProp.h"
#include "editing/DialogView.h"

/// The list of a line chart's curves: a row a curve, and all its settings.
namespace millichart {

std::span<const ListColumn> CurveColumns();

/// Settings that a curve has not are shown as they count, and a marker or a treatment of nulls without a name
/// as its number.
std::vector<ListRow> CurveRows(const CurvePlotProp& plot);

/// Each list becomes as long as there are rows, once the user has changed one. A marker's width that is not
/// above 0 becomes 1.
void ReadCurveRows(const std::vector<ListRow>& rows, CurvePlotProp& plot);

} // namespace millichart
