#pragma once

#include "PagePixels.h"
#include "model/ChartModel.h"

#include <optional>
#include <windows.h>

namespace host {

/// Over the page: a faint frame round what is under the mouse and a firm one round the selected part; while
/// that moves, a thick one where it would come to stand.
void DrawOverlay(HDC context, const ChartModel& model, const std::optional<millichart::PlacedPart>& hovered,
                 const PageView& view);

} // namespace host
