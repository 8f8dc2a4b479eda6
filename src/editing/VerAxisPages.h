#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// The value axis of a bar chart.
class CPageHistogramVerAxis : public RecordDialog<VerAxisProp> {
public:
    explicit CPageHistogramVerAxis(const VerAxisProp& prop);
};

/// The value axis of a line chart: the same fields under other ids.
class CPageCurveVerAxis : public RecordDialog<VerAxisProp> {
public:
    explicit CPageCurveVerAxis(const VerAxisProp& prop);
};

} // namespace millichart
