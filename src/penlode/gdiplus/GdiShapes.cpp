#include "penlode/engine/Finite.h"
#include "penlode/engine/ThinnedLine.h"
#include "penlode/gdiplus/GdiCanvas.h"

#include <cmath>
#include <utility>

namespace penlode {
namespace {

Gdiplus::PointF Narrowed(PointD p) {
    return {static_cast<float>(p.X), static_cast<float>(p.Y)};
}

std::vector<Gdiplus::PointF> Narrowed(std::span<const PointD> points) {
    std::vector<Gdiplus::PointF> narrowed;
    narrowed.reserve(points.size());
    for (const PointD p : points) {
        narrowed.push_back(Narrowed(p));
    }
    return narrowed;
}

INT Count(const std::vector<Gdiplus::PointF>& points) {
    return static_cast<INT>(points.size());
}

GdipPath EmptyPath() {
    return Created<GdipPath>(flat::GdipCreatePath, Gdiplus::FillModeAlternate);
}

/// Sends an outline to a path of GDI+'s as it is.
class OutlineWriter final : public OutlineSink {
public:
    explicit OutlineWriter(Gdiplus::GpPath* path) : m_path(path) {}

    void MoveTo(PointD p) override {
        flat::GdipStartPathFigure(m_path);
        m_last = Narrowed(p);
    }

    void LineTo(PointD p) override {
        const Gdiplus::PointF end = Narrowed(p);
        flat::GdipAddPathLine(m_path, m_last.X, m_last.Y, end.X, end.Y);
        m_last = end;
    }

    void CurveTo(PointD a, PointD b, PointD p) override {
        const Gdiplus::PointF first = Narrowed(a);
        const Gdiplus::PointF second = Narrowed(b);
        const Gdiplus::PointF end = Narrowed(p);
        flat::GdipAddPathBezier(m_path, m_last.X, m_last.Y, first.X, first.Y, second.X, second.Y, end.X,
                                end.Y);
        m_last = end;
    }

    void Close() override { flat::GdipClosePathFigure(m_path); }

private:
    Gdiplus::GpPath* m_path;
    Gdiplus::PointF m_last;
};

void AddPolygon(Gdiplus::GpPath* path, std::vector<PointD> corners, const BoxD& box) {
    const auto points = Narrowed(ClippedPolygon(std::move(corners), box));
    if (!points.empty()) {
        flat::GdipAddPathPolygon(path, points.data(), Count(points));
    }
}

void AddLine(Gdiplus::GpPath* path, std::span<const PointD> line, bool closed) {
    const auto points = Narrowed(line);
    flat::GdipAddPathLine2(path, points.data(), Count(points));
    if (closed) {
        flat::GdipClosePathFigure(path);
    }
}

} // namespace

GdipPath AreaOf(std::span<const PointD> corners, const BoxD& box) {
    GdipPath area = EmptyPath();
    if (area != nullptr) {
        AddPolygon(area.get(), {corners.begin(), corners.end()}, box);
    }
    return area;
}

GdipPath AreaOf(const GraphicsPath& path, const Matrix& toDevice, const BoxD& box) {
    const Reach reach = ReachOf(path, toDevice, box);
    GdipPath area = reach == Reach::NotFinite ? nullptr : EmptyPath();
    if (area == nullptr) {
        return nullptr;
    }
    if (reach == Reach::Inside) {
        OutlineWriter writer(area.get());
        WalkOutline(path, toDevice, writer);
        return area;
    }
    OutlineFlattener flattener(box);
    WalkOutline(path, toDevice, flattener);
    for (FlatFigure& figure : flattener.Take()) {
        AddPolygon(area.get(), std::move(figure.Points), box);
    }
    return area;
}

void GdiPainter::FillPolygon(std::span<const PointD> corners, Color color) const {
    if (const GdipPath area = AreaOf(corners, GuardBand())) {
        flat::GdipFillPath(Graphics(), m_canvas.BrushFor(color), area.get());
    }
}

Status GdiPainter::FillPath(const GraphicsPath& path, Color color) const {
    const GdipPath area = AreaOf(path, ToDevice(), GuardBand());
    if (area == nullptr) {
        return Status::ValueOverflow;
    }
    flat::GdipFillPath(Graphics(), m_canvas.BrushFor(color), area.get());
    return Status::Ok;
}

void GdiPainter::StrokePolyline(const DevicePen& pen, std::vector<PointD> points, bool closed) const {
    if (points.size() < 2) {
        return;
    }
    if (IsPlain(points, GuardBand(pen.Margin()))) {
        StrokeRun(pen, points, closed, 0.0, !pen.IsSolid());
        return;
    }
    const std::vector<PolylineRun> runs = RunsOf(*this, std::move(points), closed, pen);
    const bool dashed = !DashesFor(runs, pen).empty();
    for (const PolylineRun& run : runs) {
        StrokeRun(pen, run.Points, false, run.Before, dashed);
    }
}

bool GdiPainter::StrokeNear(const GraphicsPath& path, const DevicePen& pen) const {
    if (const GdipPath outline = EmptyPath()) {
        OutlineWriter writer(outline.get());
        WalkOutline(path, ToDevice(), writer);
        StrokeAsShaped(outline.get(), pen, 0.0, !pen.IsSolid());
    }
    return true;
}

void GdiPainter::StrokeRun(const DevicePen& pen, std::span<const PointD> points, bool closed, double before,
                           bool dashed) const {
    if (const GdipPath line = EmptyPath()) {
        AddLine(line.get(), points, closed);
        StrokeAsShaped(line.get(), pen, before, dashed);
    }
}

/// Where axes are scaled differently, GDI+ strokes under the pen's shape what was mapped back through it.
void GdiPainter::StrokeAsShaped(Gdiplus::GpPath* outline, const DevicePen& pen, double before,
                                bool dashed) const {
    Gdiplus::GpPen* made = m_canvas.PenFor(pen, before, dashed);
    if (HasRoundPen(*this)) {
        flat::GdipDrawPath(Graphics(), made, outline);
        return;
    }
    const Matrix shape = PenShape(ToDevice());
    if (const GdipMatrix back = MatrixOf(shape.Inverted())) {
        flat::GdipTransformPath(outline, back.get());
        m_canvas.SetTransform(shape);
        flat::GdipDrawPath(Graphics(), made, outline);
        m_canvas.GoHome();
    }
}

Status StrokeDataLine(const GdiPainter& painter, DataRun& run, const Pen& pen) {
    const DevicePen drawn(pen, painter, false);
    std::optional<std::vector<PointD>> line = ThinnedLine(painter, drawn.Margin(), run);
    if (!line) {
        return Status::InvalidParameter;
    }
    painter.StrokePolyline(drawn.ForThinned(IsThinned(*line, run)), std::move(*line), false);
    return Status::Ok;
}

} // namespace penlode
