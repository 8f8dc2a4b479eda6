#include "penlode/engine/DataLine.h"

#include "penlode/engine/LineThinning.h"

namespace penlode {
namespace {

constexpr double kColumnsPerPixel = 2.0;

ThinningGrid GridOf(const DeviceView& view, double margin) {
    const BoxD box = view.GuardBand(margin);
    const DeviceSetting& setting = view.Setting();
    return {setting.HasPixels ? 1.0 / kColumnsPerPixel : setting.Dpi / kDocumentColumnsPerInch, box.Left,
            box.Right};
}

} // namespace

std::optional<std::vector<PointD>> ThinnedLine(const DeviceView& view, double margin,
                                               std::span<const PointF> points) {
    std::vector<PointD> thinned;
    const bool finite = ThinLine(points, view.ToDevice(), GridOf(view, margin),
                                 [&](PointD point) { thinned.push_back(point); });
    return finite ? std::optional(std::move(thinned)) : std::nullopt;
}

} // namespace penlode
