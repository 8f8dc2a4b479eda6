#include "penlode/engine/DeviceText.h"

namespace penlode {
namespace {

constexpr double kMaxEm = 16384.0;
constexpr double kMinEm = 0.1;

/// Cairo's coordinates wrap around at twice this distance.
constexpr double kMaxDistance = 4194304.0;

/// A box round the line in device units, with room for glyphs that leave their line.
BoxD Surroundings(const SetText& line, const Matrix& toDevice) {
    const double room = 2.0 * line.Em;
    return Mapped(toDevice, BoxD{-room, -room, line.Width + room, room});
}

bool IsInSight(const DeviceView& view, const BoxD& line) {
    const BoxD countable{-kMaxDistance, -kMaxDistance, kMaxDistance, kMaxDistance};
    return line.Meets(view.GuardBand()) && Common(line, countable) == line;
}

bool HasCountableGlyphs(double ownEm, const Matrix& toDevice) {
    const double em = toDevice.LengthFactor() * ownEm;
    const double longest =
        ownEm * std::max(std::hypot(toDevice.M11, toDevice.M12), std::hypot(toDevice.M21, toDevice.M22));
    return toDevice.IsInvertible() && em >= kMinEm && longest <= kMaxEm;
}

BoxD WholePixelStroke(const BoxD& stroke) {
    BoxD box = PixelGrid::Box(stroke);
    if (stroke.Height() < stroke.Width()) {
        box.Bottom = box.Top + PixelGrid::WholeWidth(stroke.Height());
    } else {
        box.Right = box.Left + PixelGrid::WholeWidth(stroke.Width());
    }
    return box;
}

/// A stroke along the whole line whose middle lies `height` ems above the baseline.
void StrokeAlong(const ShapePainter& painter, const SetText& line, const Matrix& toDevice, double height,
                 Color color) {
    const double top = -(height + kDecorationThickness / 2.0) * line.Em;
    const double bottom = top + kDecorationThickness * line.Em;
    const std::vector<PointD> corners = MappedAll(toDevice, CornersOf(BoxD{0.0, top, line.Width, bottom}));
    if (painter.Snaps()) {
        painter.FillPolygon(CornersOf(WholePixelStroke(BoxBetween(corners[0], corners[2]))), color);
    } else {
        painter.FillPolygon(corners, color);
    }
}

} // namespace

Matrix LineToDevice(const DeviceView& view, const PlacedLine& line, const Font& font, double em) {
    const double scale = font.Size / em;
    Matrix m =
        Matrix::Scale(scale, scale) * Matrix::Translation(line.Baseline.X, line.Baseline.Y) * view.ToDevice();
    if (view.Snaps()) {
        const bool horizontal = std::abs(m.M11) > std::abs(m.M12);
        double& across = horizontal ? m.Dy : m.Dx;
        across = PixelGrid::Edge(across);
    }
    return m;
}

bool CanBeSeen(const DeviceView& view, const SetText& line, const Matrix& toDevice) {
    return HasCountableGlyphs(line.Em, toDevice) && IsInSight(view, Surroundings(line, toDevice));
}

void Decorate(const ShapePainter& painter, const SetText& line, const Matrix& toDevice, const Font& font,
              Color color) {
    if (font.Has(FontStyle::Underline)) {
        StrokeAlong(painter, line, toDevice, kUnderline, color);
    }
    if (font.Has(FontStyle::Strikeout)) {
        StrokeAlong(painter, line, toDevice, kStrikeout, color);
    }
}

} // namespace penlode
