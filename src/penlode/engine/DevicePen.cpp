#include "penlode/engine/DevicePen.h"

#include "penlode/PenDrawing.h"

#include <numeric>
#include <utility>

namespace penlode {
namespace {

constexpr double kMaxLineWidth = 65536.0;
constexpr double kMaxDashes = 100000.0;

bool IsRound(const Matrix& m) {
    constexpr double kNoise = 1e-6;
    const double first = std::hypot(m.M11, m.M12);
    const double second = std::hypot(m.M21, m.M22);
    const double slant = m.M11 * m.M21 + m.M12 * m.M22;
    return std::abs(first - second) <= kNoise && std::abs(slant) <= kNoise;
}

/// Leaves out points next to the one before. A surface may count in fractions of a pixel: shorter steps would
/// go in wrong directions, and the pieces of a line that creeps along would pile up on one pixel.
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

} // namespace

DevicePen::DevicePen(const Pen& pen, const DeviceView& view, bool snapped)
    : m_color(pen.GetColor()), m_dashStyle(pen.GetDashStyle()),
      m_width(std::clamp(std::abs(static_cast<double>(pen.GetWidth())) * view.ToDevice().LengthFactor(),
                         view.ThinnestLine(), kMaxLineWidth)) {
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

DevicePen DevicePen::ForThinned(bool isThinned) const {
    constexpr double kMaxTip = 0.75;
    DevicePen pen = *this;
    if (isThinned) {
        pen.m_miterLimit = std::min(kMiterLimit, 1.0 + 2.0 * kMaxTip / m_width);
    }
    return pen;
}

double DevicePen::Margin() const {
    return m_width * kMiterLimit;
}

Matrix PenShape(const Matrix& toDevice) {
    const double k = toDevice.LengthFactor();
    return {toDevice.M11 / k, toDevice.M12 / k, toDevice.M21 / k, toDevice.M22 / k, 0.0, 0.0};
}

bool HasRoundPen(const DeviceView& view) {
    return IsRound(PenShape(view.ToDevice()));
}

double LengthOf(std::span<const PointD> points) {
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        length += std::hypot(points[i].X - points[i - 1].X, points[i].Y - points[i - 1].Y);
    }
    return length;
}

std::vector<PolylineRun> RunsOf(const DeviceView& view, std::vector<PointD> points, bool closed,
                                const DevicePen& pen) {
    points = WithoutCreeping(std::move(points), view.HasPixels() ? kMinStepInPixels : kMinStepOnPages);
    if (closed) {
        points = ClosedPolyline(std::move(points), pen.IsSolid());
    }
    return ClippedPolyline(std::move(points), view.GuardBand(pen.Margin()));
}

std::vector<double> DashesFor(const std::vector<PolylineRun>& runs, const DevicePen& pen) {
    std::vector<double> dashes = pen.Dashes();
    if (dashes.empty()) {
        return dashes;
    }
    const double period = std::accumulate(dashes.begin(), dashes.end(), 0.0);
    double length = 0.0;
    for (const PolylineRun& run : runs) {
        length += LengthOf(run.Points);
    }
    if (length / period * static_cast<double>(dashes.size()) > 2.0 * kMaxDashes) {
        dashes.clear();
    }
    return dashes;
}

bool IsPlain(const std::vector<PointD>& points, const BoxD& box) {
    return points.size() <= kMaxPathPoints &&
           std::all_of(points.begin(), points.end(), [&](PointD p) { return box.Contains(p); });
}

} // namespace penlode
