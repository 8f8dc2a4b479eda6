#include "penlode/svg/SvgPath.h"

#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgWriter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace penlode::svg {
namespace {

/// An arc command gives no centre: a viewer works it out from end points that are rounded, and the nearer an
/// arc comes to half a turn, the more the centre moves with them. A third of a turn keeps it in place.
constexpr double kLongestArc = 2.0 * std::numbers::pi / 3.0;

/// Collects path commands. A step to where the figure stands already is left out.
class DataWriter final : public OutlineSink {
public:
    void BeginFigure() { m_started = false; }

    /// Begins the figure, or reaches the point by a straight line.
    void MoveTo(PointD point) override {
        if (m_started) {
            LineTo(point);
            return;
        }
        m_started = true;
        Command("M", Pair(Near(point)));
    }

    void LineTo(PointD point) override {
        const std::string end = Pair(Near(point));
        if (end != m_last) {
            Command("L", end);
        }
    }

    void CurveTo(PointD control1, PointD control2, PointD end) override {
        Command("C" + Pair(Near(control1)) + " " + Pair(Near(control2)) + " ", Pair(Near(end)));
    }

    void ArcTo(const MappedAxes& radii, bool clockwise, PointD end) {
        const std::string rx = Number(radii.X);
        const std::string ry = Number(radii.Y);
        const std::string turn = rx == ry ? "0" : Number(std::remainder(radii.Degrees, 180.0));
        Command("A" + rx + " " + ry + " " + turn + (clockwise ? " 0 1 " : " 0 0 "), Pair(Near(end)));
    }

    void Close() override { m_data += " Z"; }

    std::string Take() { return std::move(m_data); }

private:
    static PointD Near(PointD point) { return OnPage(Matrix{}, point); }

    void Command(const std::string& command, std::string end) {
        if (!m_data.empty()) {
            m_data += ' ';
        }
        m_data.append(command).append(end);
        m_last = std::move(end);
    }

    std::string m_data;
    std::string m_last;
    bool m_started = false;
};

/// The parameter t of (rx·cos t, ry·sin t) on the ray at `degrees`, in the same turn as the ray.
double ParameterAt(double rx, double ry, double degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    const double parameter = std::atan2(std::sin(angle) / ry, std::cos(angle) / rx);
    return parameter + 2.0 * std::numbers::pi * std::round((angle - parameter) / (2.0 * std::numbers::pi));
}

/// Writes a figure's pieces one after the other.
class PieceWriter {
public:
    PieceWriter(const Matrix& toPage, DataWriter& data)
        : m_toPage(toPage), m_data(data), m_axes(AxesUnder(toPage)), m_arcsStay(KeepsRightAngles(toPage)) {}

    void operator()(const GraphicsPath::Line& line) const {
        m_data.MoveTo(OnPage(m_toPage, line.From));
        m_data.LineTo(OnPage(m_toPage, line.To));
    }

    void operator()(const GraphicsPath::Bezier& bezier) const {
        const auto& p = bezier.Points;
        m_data.MoveTo(OnPage(m_toPage, p[0]));
        m_data.CurveTo(OnPage(m_toPage, p[1]), OnPage(m_toPage, p[2]), OnPage(m_toPage, p[3]));
    }

    void operator()(const GraphicsPath::Arc& arc) const {
        if (m_arcsStay && arc.Ellipse.Width > 0.0F && arc.Ellipse.Height > 0.0F) {
            WriteArc(arc);
            return;
        }
        GraphicsPath alone;
        alone.AddArc(arc.Ellipse, arc.StartAngle, arc.SweepAngle);
        WalkOutline(alone, m_toPage, m_data);
    }

private:
    void WriteArc(const GraphicsPath::Arc& arc) const {
        const double rx = arc.Ellipse.Width * 0.5;
        const double ry = arc.Ellipse.Height * 0.5;
        const double start = ParameterAt(rx, ry, arc.StartAngle);
        const double sweep =
            std::abs(arc.SweepAngle) >= 360.0F
                ? std::copysign(2.0 * std::numbers::pi, arc.SweepAngle)
                : ParameterAt(rx, ry, static_cast<double>(arc.StartAngle) + arc.SweepAngle) - start;
        const auto at = [&](double t) {
            return OnPage(m_toPage, PointD{arc.Ellipse.X + rx + rx * std::cos(t),
                                           arc.Ellipse.Y + ry + ry * std::sin(t)});
        };
        m_data.MoveTo(at(start));
        const int steps = static_cast<int>(std::ceil(std::abs(sweep) / kLongestArc - 1e-6));
        for (int i = 1; i <= steps; ++i) {
            m_data.ArcTo({rx * m_axes.X, ry * m_axes.Y, m_axes.Degrees, m_axes.Mirrored},
                         (sweep > 0.0) != m_axes.Mirrored, at(start + sweep * i / steps));
        }
    }

    const Matrix& m_toPage;
    DataWriter& m_data;
    MappedAxes m_axes;
    bool m_arcsStay;
};

} // namespace

std::string PathData(const GraphicsPath& path, const Matrix& toPage) {
    DataWriter data;
    const PieceWriter write(toPage, data);
    for (const GraphicsPath::Figure& figure : path.Figures()) {
        data.BeginFigure();
        for (const GraphicsPath::Piece& piece : figure.Pieces) {
            std::visit(write, piece);
        }
        if (figure.Closed) {
            data.Close();
        }
    }
    return data.Take();
}

std::string PolygonData(std::span<const PointD> points) {
    DataWriter data;
    for (const PointD point : points) {
        data.MoveTo(point);
    }
    data.Close();
    return data.Take();
}

} // namespace penlode::svg
