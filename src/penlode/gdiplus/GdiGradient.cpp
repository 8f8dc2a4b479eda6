#include "penlode/engine/GradientColors.h"
#include "penlode/engine/GuardBand.h"
#include "penlode/gdiplus/GdiCanvas.h"

#include <array>
#include <cmath>

namespace penlode {
namespace {

Gdiplus::ARGB OpaqueWord(const Rgb& rgb) {
    const auto channel = [](double value) { return static_cast<Gdiplus::ARGB>(std::lround(value)); };
    return 0xFF000000U | channel(rgb[0]) << 16U | channel(rgb[1]) << 8U | channel(rgb[2]);
}

Gdiplus::PointF Narrow(PointD p) {
    return {static_cast<float>(p.X), static_cast<float>(p.Y)};
}

/// The bounds that nothing leaves, in force while it lives.
class BoundsClip {
public:
    BoundsClip(const GdiPainter& painter, const RectL& bounds) : m_graphics(painter.Graphics()) {
        flat::GdipSaveGraphics(m_graphics, &m_before);
        // Soft edges of neighbours would let what lies below shine through between them.
        flat::GdipSetSmoothingMode(m_graphics, Gdiplus::SmoothingModeNone);
        std::vector<PointD> corners = MappedAll(painter.ToDevice(), CornersOf(BoxOf(bounds)));
        if (painter.Snaps()) {
            corners = PixelGrid::Face(corners);
        }
        if (const GdipPath area = AreaOf(corners, painter.GuardBand())) {
            flat::GdipSetClipPath(m_graphics, area.get(), Gdiplus::CombineModeIntersect);
        }
    }

    ~BoundsClip() { flat::GdipRestoreGraphics(m_graphics, m_before); }

    BoundsClip(const BoundsClip&) = delete;
    BoundsClip& operator=(const BoundsClip&) = delete;

private:
    Gdiplus::GpGraphics* m_graphics;
    Gdiplus::GraphicsState m_before = 0;
};

/// A blend along one axis of the world, cut to what can be seen of it: GDI+ counts in single precision.
GdipBrush AxisBlend(const GdiPainter& painter, const ColoredPoint& from, const ColoredPoint& to,
                    bool vertical) {
    const BoxD seen = Mapped(painter.ToDevice().Inverted(), painter.GuardBand());
    const auto along = [&](PointD p) { return vertical ? p.Y : p.X; };
    const double start = along(from.Place);
    const double end = along(to.Place);
    const double low = vertical ? seen.Top : seen.Left;
    const double high = vertical ? seen.Bottom : seen.Right;
    const double first = std::clamp(start, low, high);
    const double last = std::clamp(end, low, high);
    const auto colorAt = [&](double place) {
        return OpaqueWord(Between(from.Colour, to.Colour, (place - start) / (end - start)));
    };
    const auto onDevice = [&](double place) {
        return Mapped(painter.ToDevice(), vertical ? PointD{0.0, place} : PointD{place, 0.0});
    };
    const PointD a = onDevice(first);
    const PointD across = Mapped(painter.ToDevice(), vertical ? PointD{1.0, first} : PointD{first, 1.0});
    PointD b = onDevice(last);
    // GDI+ blends at a right angle to its line, which a slanted transform does not keep.
    const double dx = across.X - a.X;
    const double dy = across.Y - a.Y;
    const double beyond = ((b.X - a.X) * dx + (b.Y - a.Y) * dy) / (dx * dx + dy * dy);
    b = {b.X - beyond * dx, b.Y - beyond * dy};
    const Gdiplus::PointF p1 = Narrow(a);
    const Gdiplus::PointF p2 = Narrow(b);
    Gdiplus::GpLineGradient* brush = nullptr;
    flat::GdipCreateLineBrush(&p1, &p2, colorAt(first), colorAt(last), Gdiplus::WrapModeTileFlipXY, &brush);
    return GdipBrush(brush);
}

void FillRect(const GdiPainter& painter, const ColoredPoint& from, const ColoredPoint& to, bool vertical) {
    const RectF rect = Narrowed(BoxBetween(from.Place, to.Place));
    if (rect.Width <= 0.0F || rect.Height <= 0.0F) {
        return;
    }
    std::vector<PointD> corners = MappedAll(painter.ToDevice(), CornersOf(rect));
    if (const std::optional<BoxD> box = painter.DeviceBox(rect)) {
        std::ranges::copy(CornersOf(*box), corners.begin());
    }
    const GdipPath area = AreaOf(corners, painter.GuardBand());
    if (const GdipBrush blend = AxisBlend(painter, from, to, vertical); area != nullptr && blend != nullptr) {
        flat::GdipFillPath(painter.Graphics(), blend.get(), area.get());
    }
}

/// A triangle in device units. Its middle has the mean of its corners' colours, and GDI+ blends from there to
/// the corners: that is linear all over.
void FillTriangle(const GdiPainter& painter, const std::array<ColoredPoint, 3>& corners) {
    std::array<Gdiplus::PointF, 3> places;
    std::array<Gdiplus::ARGB, 3> colors{};
    Rgb mean{};
    for (std::size_t i = 0; i < 3; ++i) {
        places[i] = Narrow(corners[i].Place);
        colors[i] = OpaqueWord(corners[i].Colour);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            mean[channel] += corners[i].Colour[channel] / 3.0;
        }
    }
    Gdiplus::GpPathGradient* made = nullptr;
    flat::GdipCreatePathGradient(places.data(), 3, Gdiplus::WrapModeClamp, &made);
    const GdipBrush blend(made);
    const GdipPath area =
        AreaOf(std::array{corners[0].Place, corners[1].Place, corners[2].Place}, painter.GuardBand());
    if (made == nullptr || area == nullptr) {
        return;
    }
    INT count = 3;
    const Gdiplus::PointF middle((places[0].X + places[1].X + places[2].X) / 3.0F,
                                 (places[0].Y + places[1].Y + places[2].Y) / 3.0F);
    flat::GdipSetPathGradientCenterPoint(made, &middle);
    flat::GdipSetPathGradientCenterColor(made, OpaqueWord(mean));
    flat::GdipSetPathGradientSurroundColorsWithCount(made, colors.data(), &count);
    flat::GdipFillPath(painter.Graphics(), blend.get(), area.get());
}

} // namespace

Status PaintGradient(const GdiPainter& painter, const GradientMesh& mesh) {
    const BoundsClip clip(painter, mesh.Bounds);
    ForEachPatch(
        mesh, painter.ToDevice(),
        [&](const ColoredPoint& from, const ColoredPoint& to) {
            FillRect(painter, from, to, mesh.Mode == GradientMode::RectV);
        },
        [&](const std::array<ColoredPoint, 3>& corners) { FillTriangle(painter, corners); });
    return Status::Ok;
}

} // namespace penlode
