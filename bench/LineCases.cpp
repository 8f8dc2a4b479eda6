#include "ByHand.h"
#include "Suite.h"
#include "penlode/cairo/GraphicsEngine.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>

/// One curve of many values over a picture of 1600 × 1200, its line 1.5 pixels wide.
namespace bench {
namespace {

using Values = std::shared_ptr<const std::vector<double>>;

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
constexpr double kLineWidth = 1.5;

/// Values from 0 to 1: a random walk, or noise.
Values MakeValues(std::size_t count, bool isWalk) {
    std::mt19937_64 random(20);
    std::normal_distribution<double> step;
    std::uniform_real_distribution<double> anywhere;
    std::vector<double> values(count);
    double place = 0.0;
    for (double& value : values) {
        place = isWalk ? place + step(random) : anywhere(random);
        value = place;
    }
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    const double first = *low;
    const double extent = *high - *low;
    for (double& value : values) {
        value = (value - first) / extent;
    }
    return std::make_shared<const std::vector<double>>(std::move(values));
}

std::unique_ptr<penlode::CGraphicsEngine> DrawnByEngine(const std::vector<double>& values) {
    const auto points = std::make_unique_for_overwrite<penlode::PointF[]>(values.size());
    const double step = static_cast<double>(kWidth) / static_cast<double>(values.size() - 1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        points[i] = {static_cast<float>(static_cast<double>(i) * step),
                     static_cast<float>(values[i] * kHeight)};
    }
    // 25.4 dots per inch: a millimetre is a pixel.
    auto engine = penlode::CGraphicsEngine::ForRaster({kWidth, kHeight}, 25.4, penlode::kWhite);
    const penlode::Pen pen(penlode::kBlack, static_cast<float>(kLineWidth));
    engine->DrawLines(&pen, points.get(), static_cast<std::int32_t>(values.size()));
    return engine;
}

struct Column {
    double First;
    double Low;
    double High;
    double Last;
};

/// Few points: strokes of 32, each of which begins with the last segment of the one before.
void StrokeByHand(cairo_t* context, const std::vector<double>& values, double step) {
    constexpr std::size_t kPiece = 32;
    for (std::size_t first = 0; first + 1 < values.size(); first += kPiece - 2) {
        const std::size_t end = std::min(first + kPiece, values.size());
        for (std::size_t i = first; i < end; ++i) {
            cairo_line_to(context, static_cast<double>(i) * step, values[i] * kHeight);
        }
        cairo_stroke(context);
    }
}

/// Many points: what each column of pixels shows of the line, as a rectangle that meets the next column's.
void FillByHand(cairo_t* context, const std::vector<double>& values, double step) {
    std::vector<Column> columns(kWidth, {0.0, 2.0 * kHeight, -1.0, 0.0});
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double y = values[i] * kHeight;
        Column& column = columns[std::min<std::size_t>(
            static_cast<std::size_t>(static_cast<double>(i) * step), kWidth - 1)];
        column.First = column.High < 0.0 ? y : column.First;
        column.Low = std::min(column.Low, y);
        column.High = std::max(column.High, y);
        column.Last = y;
    }
    for (std::size_t x = 0; x < columns.size(); ++x) {
        const double before = x == 0 ? columns[x].First : (columns[x - 1].Last + columns[x].First) / 2.0;
        const double low = std::min(columns[x].Low, before) - kLineWidth / 2.0;
        const double high = std::max(columns[x].High, before) + kLineWidth / 2.0;
        cairo_rectangle(context, static_cast<double>(x), low, 1.0, high - low);
        cairo_fill(context);
    }
}

byhand::Picture DrawnByHand(const std::vector<double>& values) {
    byhand::Picture picture(kWidth, kHeight);
    cairo_t* context = picture.Context.get();
    cairo_set_source_rgb(context, 0.0, 0.0, 0.0);
    cairo_set_line_width(context, kLineWidth);
    const double step = static_cast<double>(kWidth) / static_cast<double>(values.size() - 1);
    if (values.size() < 4 * kWidth) {
        StrokeByHand(context, values, step);
    } else {
        FillByHand(context, values, step);
    }
    return picture;
}

void AddWays(Suite& suite, const std::string& name, const Values& values) {
    suite.Add(name + ", drawn", [values] { return DrawnByEngine(*values) != nullptr ? 1U : 0U; });
    suite.Add(name + ", PNG", [values] { return DrawnByEngine(*values)->EncodePng().size(); });
    suite.Add(name + ", drawn by hand", [values] {
        return static_cast<std::size_t>(cairo_image_surface_get_stride(DrawnByHand(*values).Surface.get()));
    });
    suite.Add(name + ", PNG by hand", [values] { return byhand::EncodePng(DrawnByHand(*values)).size(); });
}

} // namespace

void AddLineCases(Suite& suite) {
    for (const bool isWalk : {true, false}) {
        const std::string kind = isWalk ? "walk" : "noise";
        for (const auto& [count, title] :
             {std::pair<std::size_t, const char*>{1000, "1e3"}, {1000000, "1e6"}, {10000000, "1e7"}}) {
            const std::string name = std::string("line ") + title + " " + kind;
            AddWays(suite, name, MakeValues(count, isWalk));
        }
        const std::string million = "line 1e6 " + kind;
        suite.Compare(million + ", drawn / by hand", million + ", drawn", million + ", drawn by hand", 2.0);
        suite.Compare(million + ", PNG / by hand", million + ", PNG", million + ", PNG by hand", 1.3);
        suite.Compare("line 1e6 / 1e3 " + kind + ", PNG", million + ", PNG", "line 1e3 " + kind + ", PNG",
                      isWalk ? 1.8 : 1.2);
        suite.Compare("line 1e7 / 1e3 " + kind + ", PNG", "line 1e7 " + kind + ", PNG",
                      "line 1e3 " + kind + ", PNG", 8.0);
    }
}

} // namespace bench
