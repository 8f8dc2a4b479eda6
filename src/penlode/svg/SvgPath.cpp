#include "penlode/svg/SvgPath.h"

#include "penlode/engine/EllipseAngle.h"
#include "penlode/engine/Finite.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgWriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace penlode::svg {
namespace {

/// An arc command gives no centre: a viewer works it out from end points that are rounded, and the nearer an
/// arc comes to half a turn, the more the centre moves with them. A third of a turn keeps it in place.
constexpr double kMaxArc = 2.0 * std::numbers::pi / 3.0;

/// How far straight lines may stray from a curve, in millimetres.
constexpr double kFlatness = 0.01;

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
            WriteArc(EllipseArc(arc));
            return;
        }
        GraphicsPath alone;
        alone.AddArc(arc.Ellipse, arc.StartAngle, arc.SweepAngle);
        WalkOutline(alone, m_toPage, m_data);
    }

private:
    void WriteArc(const EllipseArc& arc) const {
        const auto at = [&](double t) { return OnPage(m_toPage, arc.At(t)); };
        const double sweep = arc.End - arc.Start;
        m_data.MoveTo(at(arc.Start));
        const int steps = static_cast<int>(std::ceil(std::abs(sweep) / kMaxArc - 1e-6));
        for (int i = 1; i <= steps; ++i) {
            m_data.ArcTo({arc.Rx * m_axes.X, arc.Ry * m_axes.Y, m_axes.Degrees, m_axes.Mirrored},
                         (sweep > 0.0) != m_axes.Mirrored, at(arc.Start + sweep * i / steps));
        }
    }

    const Matrix& m_toPage;
    DataWriter& m_data;
    MappedAxes m_axes;
    bool m_arcsStay;
};

/// Looks whether a piece reaches far; an arc by the box of its ellipse.
struct FarCheck {
    const Matrix& ToPage;

    bool operator()(const GraphicsPath::Line& line) const {
        return AnyFar(MapAll(ToPage, std::array{line.From, line.To}));
    }

    bool operator()(const GraphicsPath::Arc& arc) const {
        return AnyFar(MapAll(ToPage, CornersOf(arc.Ellipse)));
    }

    bool operator()(const GraphicsPath::Bezier& bezier) const {
        return AnyFar(MapAll(ToPage, bezier.Points));
    }
};

/// An ellipse on the page, by the parameter of its points.
struct PageEllipse {
    PointD Center;
    PointD First;
    PointD Second;

    PointD At(double t) const {
        return {Center.X + std::cos(t) * First.X + std::sin(t) * Second.X,
                Center.Y + std::cos(t) * First.Y + std::sin(t) * Second.Y};
    }

    /// How far a section of the ellipse can stray from its chord, at most.
    double Bend(double step) const {
        return (std::hypot(First.X, First.Y) + std::hypot(Second.X, Second.Y)) * step * step / 8.0;
    }
};

/// Flattens a figure. A far ellipse is so large that curves do not come near enough to it: its arcs are cut
/// as they are.
class PieceFlattener {
public:
    PieceFlattener(const Matrix& toPage, const BoxD& box, OutlineFlattener& lines)
        : m_toPage(toPage), m_box(box), m_lines(lines) {}

    void operator()(const GraphicsPath::Line& line) {
        Reach(Mapped(m_toPage, line.From));
        m_lines.LineTo(Mapped(m_toPage, line.To));
    }

    void operator()(const GraphicsPath::Bezier& bezier) {
        const std::vector<PointD> p = MapAll(m_toPage, bezier.Points);
        Reach(p[0]);
        m_lines.CurveTo(p[1], p[2], p[3]);
    }

    void operator()(const GraphicsPath::Arc& arc) {
        const EllipseArc whole(arc);
        const PageEllipse ellipse{Mapped(m_toPage, whole.Center),
                                  {whole.Rx * m_toPage.M11, whole.Rx * m_toPage.M12},
                                  {whole.Ry * m_toPage.M21, whole.Ry * m_toPage.M22}};
        Reach(ellipse.At(whole.Start));
        Cut(ellipse, whole.Start, whole.End);
    }

private:
    /// A far arc that passes the page takes some hundred cuts. Where its numbers are too large to tell its
    /// points apart there would be no end of them.
    static constexpr int kMaxCuts = 8192;

    void Reach(PointD point) {
        if (m_started) {
            m_lines.LineTo(point);
        } else {
            m_lines.MoveTo(point);
            m_started = true;
        }
    }

    /// Cuts in halves what is not flat yet; their ends wait here and not on the stack, which may be small.
    void Cut(const PageEllipse& ellipse, double from, double to) {
        std::vector<double> ends{to};
        for (int cuts = kMaxCuts; !ends.empty();) {
            const double end = ends.back();
            if (cuts > 0 && NeedsCut(ellipse, from, end)) {
                --cuts;
                ends.push_back(from + (end - from) / 2.0);
            } else {
                m_lines.LineTo(ellipse.At(end));
                from = end;
                ends.pop_back();
            }
        }
    }

    bool NeedsCut(const PageEllipse& ellipse, double from, double to) const {
        const double bend = ellipse.Bend(to - from);
        const BoxD around = BoxBetween(ellipse.At(from), ellipse.At(to)).Grown(bend);
        return around.Meets(m_box) && bend > kFlatness;
    }

    const Matrix& m_toPage;
    const BoxD& m_box;
    OutlineFlattener& m_lines;
    bool m_started = false;
};

std::string FarArea(const GraphicsPath& path, const PageMap& map) {
    const BoxD box = map.Surroundings();
    std::string data;
    for (FlatFigure& figure : Flattened(path, map.ToPage, box)) {
        const std::string area = PolygonData(ClippedPolygon(std::move(figure.Points), box));
        data += (data.empty() || area.empty() ? "" : " ") + area;
    }
    return data;
}

} // namespace

bool ReachesFar(const GraphicsPath& path, const Matrix& toPage) {
    const auto isFar = [&](const GraphicsPath::Piece& piece) { return std::visit(FarCheck{toPage}, piece); };
    return std::any_of(path.Figures().begin(), path.Figures().end(), [&](const GraphicsPath::Figure& figure) {
        return std::any_of(figure.Pieces.begin(), figure.Pieces.end(), isFar);
    });
}

std::vector<FlatFigure> Flattened(const GraphicsPath& path, const Matrix& toPage, const BoxD& box) {
    if (!IsFinite(path)) {
        return {};
    }
    OutlineFlattener lines(box, kFlatness);
    for (const GraphicsPath::Figure& figure : path.Figures()) {
        PieceFlattener flatten(toPage, box, lines);
        for (const GraphicsPath::Piece& piece : figure.Pieces) {
            std::visit(flatten, piece);
        }
        if (figure.Closed) {
            lines.Close();
        }
    }
    return lines.Take();
}

std::string PathData(const GraphicsPath& path, const PageMap& map) {
    if (ReachesFar(path, map.ToPage)) {
        return FarArea(path, map);
    }
    DataWriter data;
    const PieceWriter write(map.ToPage, data);
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
    return points.empty() ? "" : PolylineData(points) + " Z";
}

std::string PolylineData(std::span<const PointD> points) {
    DataWriter data;
    for (const PointD point : points) {
        data.MoveTo(point);
    }
    return data.Take();
}

} // namespace penlode::svg
