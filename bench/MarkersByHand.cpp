#include "MarkersByHand.h"

#include "ByHand.h"
#include "TextByHand.h"

#include <cmath>
#include <numbers>

namespace byhand {
namespace {

struct Point {
    double X;
    double Y;
};

std::vector<Point> Placed(const bench::Series& data, int width, int height) {
    const double perTime = width / (static_cast<double>(data.Times.back()) - data.Times.front());
    std::vector<Point> points;
    points.reserve(data.Values.size());
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        points.push_back({(data.Times[i] - data.Times.front()) * perTime, (1.0 - data.Values[i]) * height});
    }
    return points;
}

void DrawMarker(cairo_t* c, Marker kind, double r, Point p) {
    switch (kind) {
    case Marker::SolidSquare:
        cairo_rectangle(c, std::round(p.X - r), std::round(p.Y - r), 2.0 * r, 2.0 * r);
        break;
    case Marker::SolidTriangle:
        cairo_move_to(c, p.X, p.Y - r);
        cairo_line_to(c, p.X - r, p.Y + r);
        cairo_line_to(c, p.X + r, p.Y + r);
        break;
    default:
        cairo_arc(c, p.X, p.Y, r, 0.0, 2.0 * std::numbers::pi);
    }
    if (kind == Marker::HollowCircle) {
        cairo_stroke(c);
    } else {
        cairo_fill(c);
    }
}

} // namespace

std::string MarkedCurvesPng(const MarkedCurves& curves, int width, int height) {
    const Picture picture(width, height);
    cairo_t* c = picture.Context.get();
    for (const MarkedCurve& curve : curves.Curves) {
        const std::vector<Point> points = Placed(curve.Data, width, height);
        SetColor(c, curve.Color);
        cairo_set_line_width(c, curves.LineWidth);
        for (const Point p : points) {
            cairo_line_to(c, p.X, p.Y);
        }
        cairo_stroke(c);
        cairo_set_line_width(c, curves.MarkerLine);
        for (const Point p : points) {
            DrawMarker(c, curve.Kind, curves.MarkerWidth / 2.0, p);
        }
    }
    return EncodePng(picture);
}

} // namespace byhand
