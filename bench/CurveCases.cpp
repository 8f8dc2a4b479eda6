#include "ByHand.h"
#include "Suite.h"
#include "penlode/cairo/GraphicsEngine.h"

#include <cmath>
#include <memory>
#include <numbers>

/// Twenty curves of 500 points each on a picture of 1600 × 1200, every point with a marker of one of four
/// kinds: the drawing calls of a line chart, without its axes.
namespace bench {
namespace {

using penlode::PointF;

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
constexpr float kLineWidth = 3.0F;
constexpr float kRadius = 5.0F;
constexpr float kMarkerLine = 2.0F;

struct Curve {
    std::uint32_t Rgb;
    std::size_t Marker;
    std::vector<PointF> Points; ///< pixels
};

std::vector<Curve> Twenty() {
    std::vector<Curve> curves;
    for (std::uint32_t c = 0; c < 20; ++c) {
        Curve curve{0x102030U * (c % 8U) + c, c % 4U, {}};
        for (int i = 0; i < 500; ++i) {
            const double wave = std::sin(i * 0.02 * (1.0 + c * 0.1) + c);
            curve.Points.push_back(
                {static_cast<float>(50.0 + 3.0 * i), static_cast<float>(600.0 + 400.0 * wave)});
        }
        curves.push_back(std::move(curve));
    }
    return curves;
}

void DrawMarkers(penlode::CGraphicsEngine& engine, const Curve& curve) {
    const penlode::SolidBrush brush{{0xFF000000U | curve.Rgb}};
    const penlode::Pen pen(brush.FillColor, kMarkerLine);
    constexpr float r = kRadius;
    for (const PointF p : curve.Points) {
        switch (curve.Marker) {
        case 0:
            engine.FillRectangle(&brush, p.X - r, p.Y - r, 2 * r, 2 * r);
            break;
        case 1:
            engine.FillEllipse(&brush, p.X - r, p.Y - r, 2 * r, 2 * r);
            break;
        case 2:
            engine.DrawEllipse(&pen, p.X - r, p.Y - r, 2 * r, 2 * r);
            break;
        default:
            const PointF triangle[] = {{p.X, p.Y - r}, {p.X - r, p.Y + r}, {p.X + r, p.Y + r}};
            engine.FillPolygon(&brush, triangle, 3);
        }
    }
}

std::size_t ByEngine(const std::vector<Curve>& curves) {
    // 25.4 dots per inch: a millimetre is a pixel.
    const auto engine = penlode::CGraphicsEngine::ForRaster({kWidth, kHeight}, 25.4, penlode::kWhite);
    for (const Curve& curve : curves) {
        const penlode::Pen pen({0xFF000000U | curve.Rgb}, kLineWidth);
        engine->DrawLines(&pen, curve.Points.data(), static_cast<std::int32_t>(curve.Points.size()));
        DrawMarkers(*engine, curve);
    }
    return engine->EncodePng().size();
}

void DrawMarkers(cairo_t* c, const Curve& curve) {
    constexpr double r = kRadius;
    for (const PointF p : curve.Points) {
        const double x = static_cast<double>(p.X);
        const double y = static_cast<double>(p.Y);
        if (curve.Marker == 0) {
            cairo_rectangle(c, std::round(x - r), std::round(y - r), 2 * r, 2 * r);
        } else if (curve.Marker == 3) {
            cairo_move_to(c, x, y - r);
            cairo_line_to(c, x - r, y + r);
            cairo_line_to(c, x + r, y + r);
        } else {
            cairo_arc(c, x, y, r, 0.0, 2.0 * std::numbers::pi);
        }
        if (curve.Marker == 2) {
            cairo_stroke(c);
        } else {
            cairo_fill(c);
        }
    }
}

std::size_t ByHand(const std::vector<Curve>& curves) {
    const byhand::Picture picture(kWidth, kHeight);
    cairo_t* c = picture.Context.get();
    for (const Curve& curve : curves) {
        cairo_set_source_rgb(c, (curve.Rgb >> 16U) / 255.0, (curve.Rgb >> 8U & 0xFFU) / 255.0,
                             (curve.Rgb & 0xFFU) / 255.0);
        cairo_set_line_width(c, static_cast<double>(kLineWidth));
        for (const PointF p : curve.Points) {
            cairo_line_to(c, static_cast<double>(p.X), static_cast<double>(p.Y));
        }
        cairo_stroke(c);
        cairo_set_line_width(c, static_cast<double>(kMarkerLine));
        DrawMarkers(c, curve);
    }
    return byhand::EncodePng(picture).size();
}

} // namespace

void AddCurveCases(Suite& suite) {
    const auto curves = std::make_shared<const std::vector<Curve>>(Twenty());
    suite.Add("20 curves of 500, PNG", [curves] { return ByEngine(*curves); });
    suite.Add("20 curves of 500, PNG by hand", [curves] { return ByHand(*curves); });
    suite.Compare("20 curves of 500, PNG / by hand", "20 curves of 500, PNG", "20 curves of 500, PNG by hand",
                  1.5);
}

} // namespace bench
