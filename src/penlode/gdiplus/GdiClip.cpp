#include "penlode/gdiplus/GdiCanvas.h"

namespace penlode {
namespace {

GdipRegion InfiniteRegion() {
    return Created<GdipRegion>(flat::GdipCreateRegion);
}

Gdiplus::CombineMode ModeOf(CombineMode mode) {
    return static_cast<Gdiplus::CombineMode>(mode);
}

GdipRegion RegionOf(const Region& region, const DeviceSetting& setting);

/// Combines a shape with what stands. One that cannot be made leaves that as it is.
struct ShapeCombiner {
    Gdiplus::GpRegion* Standing;
    Gdiplus::CombineMode Mode;
    const DeviceSetting& Setting;

    void operator()(const Region::Everything&) const { Combine(InfiniteRegion()); }

    void operator()(const Region::Nothing&) const {
        GdipRegion nothing = InfiniteRegion();
        flat::GdipSetEmpty(nothing.get());
        Combine(nothing);
    }

    void operator()(const RectF& rect) const {
        const Matrix& m = Setting.FromState;
        const BoxD box = Common(
            Far(), BoxBetween(Mapped(m, rect.TopLeft()), Mapped(m, PointF{rect.Right(), rect.Bottom()})));
        if (!m.KeepsAxes()) {
            GraphicsPath path;
            path.AddRectangle(rect);
            (*this)(path);
            return;
        }
        const BoxD edges = Setting.HasPixels ? PixelGrid::Box(box) : box;
        const Gdiplus::RectF area(static_cast<float>(edges.Left), static_cast<float>(edges.Top),
                                  static_cast<float>(edges.Width()), static_cast<float>(edges.Height()));
        flat::GdipCombineRegionRect(Standing, &area, Mode);
    }

    void operator()(const GraphicsPath& path) const {
        if (const GdipPath area = AreaOf(path, Setting.FromState, Far())) {
            flat::GdipCombineRegionPath(Standing, area.get(), Mode);
        }
    }

    void operator()(const Region::Nested& nested) const { Combine(RegionOf(*nested.Area, Setting)); }

private:
    BoxD Far() const { return Setting.Area.Grown(64.0); }

    void Combine(const GdipRegion& region) const {
        flat::GdipCombineRegionRegion(Standing, region.get(), Mode);
    }
};

GdipRegion RegionOf(const Region& region, const DeviceSetting& setting) {
    GdipRegion area = InfiniteRegion();
    for (const Region::Step& step : region.Steps()) {
        std::visit(ShapeCombiner{area.get(), ModeOf(step.Mode), setting}, step.Operand);
    }
    return area;
}

} // namespace

GdipRegion ClipRegion(const std::vector<Region>& regions, const DeviceSetting& setting) {
    GdipRegion all = InfiniteRegion();
    for (const Region& region : regions) {
        const GdipRegion one = RegionOf(region, setting);
        flat::GdipCombineRegionRegion(all.get(), one.get(), Gdiplus::CombineModeIntersect);
    }
    return all;
}

} // namespace penlode
