#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoStroke.h"
#include "penlode/cairo/LineCoverage.h"
#include "penlode/cairo/ScribbleCoverage.h"
#include "penlode/engine/ThinnedLine.h"

#include <optional>
#include <utility>

namespace penlode {
namespace {

/// Sections of a pixel in which coverage is looked for: as fine as Cairo's own rows, or coarser where the
/// line is too dense to show it, or so wide that it would take long.
constexpr double kSectionsPerPixel = 16.0;
constexpr double kSectionsPerDensePixel = 6.0;
constexpr double kMaxSections = 1e7;

/// A line that goes to and fro over the surface's width more often than this scribbles: what its parts cover
/// in a section seldom meets.
constexpr double kMaxPasses = 8.0;

bool Scribbles(const Painter& painter, std::span<const PointD> points) {
    const BoxD area = painter.Setting().Area;
    const auto seen = [&](PointD p) { return std::clamp(p.X, area.Left, area.Right); };
    double travelled = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        travelled += std::abs(seen(points[i]) - seen(points[i - 1]));
    }
    return travelled > kMaxPasses * area.Width();
}

int SectionsFor(const std::vector<PolylineRun>& runs, double lineWidth, bool thinned) {
    double width = 0.0;
    for (const PolylineRun& run : runs) {
        for (std::size_t i = 1; i < run.Points.size(); ++i) {
            width += std::abs(run.Points[i].X - run.Points[i - 1].X) + lineWidth;
        }
    }
    const double finest = thinned ? kSectionsPerDensePixel : kSectionsPerPixel;
    return static_cast<int>(std::clamp(kMaxSections / width, 1.0, finest));
}

/// The whole pixels on which the line can be seen.
BoxD SeenArea(const Painter& painter, const std::vector<PolylineRun>& runs, double margin) {
    BoxD line = BoxBetween(runs.front().Points.front(), runs.front().Points.front());
    for (const PolylineRun& run : runs) {
        for (const PointD p : run.Points) {
            line = Union(line, BoxBetween(p, p));
        }
    }
    return RoundedOut(Common(line.Grown(margin), painter.Setting().Area));
}

template <class Coverage>
void Paint(const Painter& painter, const std::vector<PolylineRun>& runs, Coverage coverage) {
    for (const PolylineRun& run : runs) {
        coverage.Add(run.Points);
    }
    coverage.Paint(painter.Context());
}

void StrokeByCoverage(const Painter& painter, const DevicePen& pen, std::vector<PointD> points,
                      bool thinned) {
    const bool scribbles = Scribbles(painter, points);
    const std::vector<PolylineRun> runs = ClippedPolyline(std::move(points), painter.GuardBand(pen.Margin()));
    if (runs.empty()) {
        return;
    }
    const BoxD area = SeenArea(painter, runs, pen.Margin());
    const StrokeShapes shapes(pen.Width(), pen.ForThinned(thinned).MiterLimit());
    painter.SetColor(pen.GetColor());
    if (scribbles) {
        Paint(painter, runs, ScribbleCoverage(area, shapes));
    } else {
        Paint(painter, runs, LineCoverage(area, shapes, SectionsFor(runs, pen.Width(), thinned)));
    }
}

} // namespace

Status StrokeDataLine(const Painter& painter, DataRun& run, const Pen& pen) {
    const DevicePen drawn(pen, painter, false);
    std::optional<std::vector<PointD>> line = ThinnedLine(painter, drawn.Margin(), run);
    if (!line) {
        return Status::InvalidParameter;
    }
    const bool smooth = cairo_get_antialias(painter.Context()) != CAIRO_ANTIALIAS_NONE;
    if (painter.HasPixels() && smooth && drawn.IsSolid() && HasRoundPen(painter)) {
        const bool thinned = IsThinned(*line, run);
        StrokeByCoverage(painter, drawn, std::move(*line), thinned);
    } else {
        painter.StrokePolyline(drawn, std::move(*line), false);
    }
    return Status::Ok;
}

} // namespace penlode
