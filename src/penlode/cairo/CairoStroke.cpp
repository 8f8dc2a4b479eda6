#include "penlode/cairo/CairoStroke.h"

#include "penlode/PenDrawing.h"

#include <numeric>
#include <span>
#include <utility>

namespace penlode {
namespace {

constexpr double kMaxLineWidth = 65536.0;
constexpr std::size_t kMaxPathPoints = 64;
constexpr std::size_t kPieceLength = 32;

/// A line with more dashes than any eye can tell apart is drawn solid.
constexpr double kMaxDashes = 100000.0;

double LengthOf(std::span<const PointD> points) {
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        length += std::hypot(points[i].X - points[i - 1].X, points[i].Y - points[i - 1].Y);
    }
    return length;
}

double Sum(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

/// The transform without its scale, in which the pen's width counts: a circle but where axes are scaled
/// differently.
Matrix PenShape(const Matrix& toDevice) {
    const double k = toDevice.LengthFactor();
    return {toDevice.M11 / k, toDevice.M12 / k, toDevice.M21 / k, toDevice.M22 / k, 0.0, 0.0};
}

bool IsRound(const Matrix& m) {
    constexpr double kNoise = 1e-6;
    const double first = std::hypot(m.M11, m.M12);
    const double second = std::hypot(m.M21, m.M22);
    const double slant = m.M11 * m.M21 + m.M12 * m.M22;
    return std::abs(first - second) <= kNoise && std::abs(slant) <= kNoise;
}

/// A pen that is not round is drawn at this scale: a matrix without one, Cairo 1.16 takes for a turn when it
/// looks how far the pen reaches, and cuts its lines off.
constexpr double kPenScale = 2.0;

/// A length in device units as the context counts it while it strokes.
double PenLength(const Painter& painter, double length) {
    return HasRoundPen(painter) ? length : length / kPenScale;
}

void SetDashes(const Painter& painter, std::vector<double> dashes, double offset) {
    for (double& length : dashes) {
        length = PenLength(painter, length);
    }
    cairo_set_dash(painter.Context(), dashes.data(), static_cast<int>(dashes.size()),
                   PenLength(painter, offset));
}

void SetUpLine(const Painter& painter, const DevicePen& pen, const std::vector<double>& dashes) {
    cairo_t* context = painter.Context();
    cairo_set_line_width(context, PenLength(painter, pen.Width()));
    cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_MITER);
    cairo_set_miter_limit(context, kMiterLimit);
    SetDashes(painter, dashes, 0.0);
}

void StrokeInPenShape(const Painter& painter) {
    if (HasRoundPen(painter)) {
        cairo_stroke(painter.Context());
        return;
    }
    painter.SetMatrix(PenShape(painter.ToDevice()) * Matrix::Scale(kPenScale, kPenScale));
    cairo_stroke(painter.Context());
    painter.SetMatrix({});
}

/// A section of a polyline, its dashes as the whole line has them there.
void StrokePart(const Painter& painter, std::span<const PointD> points, double before,
                const std::vector<double>& dashes) {
    cairo_t* context = painter.Context();
    if (!dashes.empty()) {
        SetDashes(painter, dashes, std::fmod(before, Sum(dashes)));
    }
    for (const PointD p : points) {
        cairo_line_to(context, p.X, p.Y);
    }
    StrokeInPenShape(painter);
}

/// Each piece begins one segment early, so that the joint between two pieces is a corner like any other.
void StrokeRun(const Painter& painter, const PolylineRun& run, const std::vector<double>& dashes) {
    const std::span<const PointD> points = run.Points;
    if (points.size() <= kMaxPathPoints) {
        StrokePart(painter, points, run.Before, dashes);
        return;
    }
    double before = run.Before;
    for (std::size_t first = 0; first + 2 < points.size(); first += kPieceLength - 2) {
        const auto piece = points.subspan(first, std::min(kPieceLength, points.size() - first));
        StrokePart(painter, piece, before, dashes);
        before += LengthOf(piece.first(std::min(kPieceLength - 1, piece.size())));
    }
}

/// Leaves out points next to the one before. Cairo counts in 1/256 of a pixel: shorter steps would go in
/// wrong directions, and the pieces of a line that creeps along would pile up on one pixel.
std::vector<PointD> WithoutCreeping(std::vector<PointD> points, double shortestStep) {
    if (points.size() <= kMaxPathPoints) {
        return points;
    }
    std::size_t kept = 1;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PointD last = points[kept - 1];
        const bool moved = std::abs(points[i].X - last.X) + std::abs(points[i].Y - last.Y) >= shortestStep;
        if (moved || i + 1 == points.size()) {
            points[kept++] = points[i];
        }
    }
    points.resize(kept);
    return points;
}

std::vector<PolylineRun> RunsOf(const Painter& painter, std::vector<PointD> points, bool closed,
                                const DevicePen& pen) {
    points = WithoutCreeping(std::move(points), painter.HasPixels() ? kMinStepInPixels : kMinStepOnPages);
    if (closed) {
        points = ClosedPolyline(std::move(points), pen.IsSolid());
    }
    return ClippedPolyline(std::move(points), painter.GuardBand(pen.Margin()));
}

/// Few points that lie near: one path, closed by Cairo itself.
bool IsPlain(const std::vector<PointD>& points, const BoxD& box) {
    return points.size() <= kMaxPathPoints &&
           std::all_of(points.begin(), points.end(), [&](PointD p) { return box.Contains(p); });
}

bool HasTooManyDashes(const std::vector<PolylineRun>& runs, const std::vector<double>& dashes) {
    double length = 0.0;
    for (const PolylineRun& run : runs) {
        length += LengthOf(run.Points);
    }
    return length / Sum(dashes) * static_cast<double>(dashes.size()) > 2.0 * kMaxDashes;
}

/// Pieces overlap, which a translucent line would show: it is drawn opaque on a sheet of its own, and the
/// sheet is laid on translucent.
void StrokeRuns(const Painter& painter, const DevicePen& pen, const std::vector<PolylineRun>& runs) {
    std::vector<double> dashes = pen.Dashes();
    if (!dashes.empty() && HasTooManyDashes(runs, dashes)) {
        dashes.clear();
    }
    const bool translucent = pen.GetColor().A() != 0xFFU;
    if (translucent) {
        cairo_push_group(painter.Context());
    }
    painter.SetColor({pen.GetColor().Argb | 0xFF000000U});
    SetUpLine(painter, pen, dashes);
    for (const PolylineRun& run : runs) {
        StrokeRun(painter, run, dashes);
    }
    if (translucent) {
        cairo_pop_group_to_source(painter.Context());
        cairo_paint_with_alpha(painter.Context(), pen.GetColor().A() / 255.0);
    }
}

} // namespace

bool HasRoundPen(const Painter& painter) {
    return IsRound(PenShape(painter.ToDevice()));
}

DevicePen::DevicePen(const Pen& pen, const Painter& painter, bool snapped)
    : m_color(pen.GetColor()), m_dashStyle(pen.GetDashStyle()),
      m_width(std::clamp(std::abs(static_cast<double>(pen.GetWidth())) * painter.ToDevice().LengthFactor(),
                         painter.ThinnestLine(), kMaxLineWidth)) {
    if (snapped) {
        m_width = PixelGrid::WholeWidth(m_width);
    }
}

std::vector<double> DevicePen::Dashes() const {
    std::vector<double> lengths;
    for (const double part : DashPattern(m_dashStyle)) {
        lengths.push_back(part * m_width);
    }
    return lengths;
}

double DevicePen::Margin() const {
    return m_width * kMiterLimit;
}

void StrokePolyline(const Painter& painter, const DevicePen& pen, std::vector<PointD> points, bool closed) {
    const BoxD box = painter.GuardBand(pen.Margin());
    if (points.size() < 2) {
        return;
    }
    if (!IsPlain(points, box)) {
        StrokeRuns(painter, pen, RunsOf(painter, std::move(points), closed, pen));
        return;
    }
    for (const PointD p : points) {
        cairo_line_to(painter.Context(), p.X, p.Y);
    }
    if (closed) {
        cairo_close_path(painter.Context());
    }
    StrokeCurrentPath(painter, pen);
}

void StrokeCurrentPath(const Painter& painter, const DevicePen& pen) {
    painter.SetColor(pen.GetColor());
    SetUpLine(painter, pen, pen.Dashes());
    StrokeInPenShape(painter);
}

} // namespace penlode
