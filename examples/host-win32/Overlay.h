#pragma once

#include "model/ChartModel.h"
#include "model/PageView.h"

#include <windows.h>

namespace host {

/// Over the page: a dotted frame round the selected part; while it moves, a firm one where it would come to
/// stand.
void DrawOverlay(HDC context, const ChartModel& model, const PageView& view);

} // namespace host
