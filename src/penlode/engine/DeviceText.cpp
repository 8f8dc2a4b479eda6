#include "penlode/engine/DeviceText.h"

namespace penlode {
namespace {

constexpr double kMaxEm = 16384.0;
constexpr double kMinEm = 0.1;

/// Cairo's coordinates wrap around at twice this distance.
constexpr double kMaxDistance = 4194304.0;

/// Underline and strikeout by the middle of the line above the baseline, and its thickness, in ems: the same
/// for every face, clear of ideographs as of Latin letters.
constexpr double kUnderline = -0.18;
constexpr double kStrikeout = 0.3;
constexpr double kDecorationThickness = 0.05;

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

/// A stroke along the whole line whose middle lies `height` ems above the baseline, in the line's own units.
BoxD Decoration(const SetText& line, double height) {
    const double top = -(height + kDecorationThickness / 2.0) * line.Em;
    return {0.0, top, line.Width, top + kDecorationThickness * line.Em};
}

std::vector<BoxD> DecorationsOf(const SetText& line, const Font& font) {
    std::vector<BoxD> decorations;
    if (font.Has(FontStyle::Underline)) {
        decorations.push_back(Decoration(line, kUnderline));
    }
    if (font.Has(FontStyle::Strikeout)) {
        decorations.push_back(Decoration(line, kStrikeout));
    }
    return decorations;
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
    for (const BoxD& decoration : DecorationsOf(line, font)) {
        const std::vector<PointD> corners = MappedAll(toDevice, CornersOf(decoration));
        if (painter.Snaps()) {
            painter.FillPolygon(CornersOf(WholePixelStroke(BoxBetween(corners[0], corners[2]))), color);
        } else {
            painter.FillPolygon(corners, color);
        }
    }
}

void AddDecorations(GraphicsPath& outline, const SetText& line, const Font& font) {
    const double scale = font.Size / line.Em;
    for (const BoxD& d : DecorationsOf(line, font)) {
        outline.AddRectangle({0.0F, static_cast<float>(d.Top * scale), static_cast<float>(d.Right * scale),
                              static_cast<float>(kDecorationThickness * line.Em * scale)});
    }
}

} // namespace penlode
