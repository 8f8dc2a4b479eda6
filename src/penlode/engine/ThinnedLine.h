#pragma once

#include "penlode/engine/DataRun.h"
#include "penlode/engine/DeviceView.h"

#include <optional>
#include <vector>

namespace penlode {

/// A run of data thinned to what a device can show of it, in device units; `margin` is how far its pen
/// reaches beyond its points. Finds the run's end. Nothing when it ends at a gap and may not.
std::optional<std::vector<PointD>> ThinnedLine(const DeviceView& view, double margin, DataRun& run);

/// Were points left out?
inline bool IsThinned(const std::vector<PointD>& line, const DataRun& run) {
    return line.size() < *run.End - run.First;
}

/// The places across the page at which a column of the device begins; see IDataLineSurface::DataColumns.
std::vector<float> ColumnsOf(const DeviceView& view, float left, float right);

} // namespace penlode
