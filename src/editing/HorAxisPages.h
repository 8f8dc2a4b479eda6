#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// The group axis of a bar chart.
class CPageHistogramHorAxis : public RecordDialog<HistogramHorAxisProp> {
public:
    explicit CPageHistogramHorAxis(const HistogramHorAxisProp& prop);
};

/// The horizontal axis of a line chart. Its steps are at least 1.
class CPageCurveHorAxis : public RecordDialog<CurveHorAxisProp> {
public:
    explicit CPageCurveHorAxis(const CurveHorAxisProp& prop);
};

} // namespace millichart
