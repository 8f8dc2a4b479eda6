#include "penlode/engine/ThinnedLine.h"

#include "penlode/engine/LineThinning.h"

namespace penlode {
namespace {

constexpr double kColumnsPerPixel = 2.0;

double ColumnWidth(const DeviceSetting& setting) {
    return setting.HasPixels ? 1.0 / kColumnsPerPixel : setting.Dpi / kDocumentColumnsPerInch;
}

ThinningGrid GridOf(const DeviceView& view, double margin) {
    const BoxD box = view.GuardBand(margin);
    return {ColumnWidth(view.Setting()), box.Left, box.Right};
}

} // namespace

std::optional<std::vector<PointD>> ThinnedLine(const DeviceView& view, double margin, DataRun& run) {
    std::vector<PointD> thinned;
    ThinLine(run, view.ToDevice(), GridOf(view, margin), [&](PointD point) { thinned.push_back(point); });
    return run.IsSound() ? std::optional(std::move(thinned)) : std::nullopt;
}

std::vector<float> ColumnsOf(const DeviceView& view, float left, float right) {
    return ColumnsBetween(left, right, view.ToDevice(), ColumnWidth(view.Setting()));
}

} // namespace penlode
