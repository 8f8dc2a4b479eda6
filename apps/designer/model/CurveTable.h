#pragma once

#include "documents/ChartContent.h"
#include "model/DataTable.h"

/// The lines of a chart as a table with a row a time, and back.
namespace designer {

DataTable TableOfCurves(const millichart::CurveDocument& document, std::int32_t timeUnit);

/// `former` is the table that the document has now.
void TakeCurves(millichart::CurveDocument& document, const DataTable& former, const DataTable& table);

} // namespace designer
