#include "penlode/cairo/CairoStroke.h"

#include <numeric>
#include <span>
#include <utility>

namespace penlode {
namespace {

constexpr std::size_t kPieceLength = 32;

double Sum(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
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

/// Pieces overlap, which a translucent line would show: it is drawn opaque on a sheet of its own, and the
/// sheet is laid on translucent.
void StrokeRuns(const Painter& painter, const DevicePen& pen, const std::vector<PolylineRun>& runs) {
    const std::vector<double> dashes = DashesFor(runs, pen);
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

void Painter::StrokePolyline(const DevicePen& pen, std::vector<PointD> points, bool closed) const {
    if (points.size() < 2) {
        return;
    }
    if (!IsPlain(points, GuardBand(pen.Margin()))) {
        StrokeRuns(*this, pen, RunsOf(*this, std::move(points), closed, pen));
        return;
    }
    for (const PointD p : points) {
        cairo_line_to(Context(), p.X, p.Y);
    }
    if (closed) {
        cairo_close_path(Context());
    }
    StrokeCurrentPath(*this, pen);
}

void StrokeCurrentPath(const Painter& painter, const DevicePen& pen) {
    painter.SetColor(pen.GetColor());
    SetUpLine(painter, pen, pen.Dashes());
    StrokeInPenShape(painter);
}

} // namespace penlode
