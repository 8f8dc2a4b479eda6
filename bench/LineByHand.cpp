#include "LineByHand.h"

#include <algorithm>
#include <array>
#include <limits>

namespace byhand {
namespace {

constexpr std::size_t kPointsPerStroke = 32;
constexpr std::size_t kFewPointsPerColumn = 4;

/// Pixels. Whole columns would widen the line by half a pixel each side.
constexpr double kColumn = 0.5;

/// Rectangles that overlap are filled together, lest their edges darken.
constexpr int kColumnsPerFill = 16;

/// How far a column's rectangle reaches above and below its points, in line widths: tips are narrow.
constexpr double kTip = 0.25;

/// What a column shows, in values.
struct Column {
    double First = 0.0;
    double Low = std::numeric_limits<double>::max();
    double High = std::numeric_limits<double>::lowest();
    double Last = 0.0;
};

double PerTime(const Line& line, int width) {
    return width / (static_cast<double>(line.Times.back()) - line.Times.front());
}

/// Few points: short strokes, each of which begins with the last segment of the one before.
void Stroke(cairo_t* context, const Line& line, int width, int height) {
    const double perTime = PerTime(line, width);
    const std::size_t size = line.Values.size();
    for (std::size_t first = 0; first + 1 < size; first += kPointsPerStroke - 2) {
        const std::size_t end = std::min(first + kPointsPerStroke, size);
        for (std::size_t i = first; i < end; ++i) {
            cairo_line_to(context, (line.Times[i] - line.Times.front()) * perTime,
                          (1.0 - line.Values[i]) * height);
        }
        cairo_stroke(context);
    }
}

/// The points of a column stand side by side in the list, so that each point costs two comparisons, several
/// of which a processor makes at once.
Column Gathered(const Line& line, std::size_t first, std::size_t end) {
    constexpr std::size_t kLanes = 8;
    Column column;
    column.First = line.Values[first];
    column.Last = line.Values[end - 1];
    std::array<double, kLanes> low;
    std::array<double, kLanes> high;
    low.fill(column.First);
    high.fill(column.First);
    std::size_t i = first;
    for (; i + kLanes <= end; i += kLanes) {
        const double* const values = line.Values.data() + i;
        for (std::size_t k = 0; k < kLanes; ++k) {
            low[k] = values[k] < low[k] ? values[k] : low[k];
            high[k] = values[k] > high[k] ? values[k] : high[k];
        }
    }
    for (; i < end; ++i) {
        low[0] = std::min(low[0], line.Values[i]);
        high[0] = std::max(high[0], line.Values[i]);
    }
    column.Low = *std::min_element(low.begin(), low.end());
    column.High = *std::max_element(high.begin(), high.end());
    return column;
}

/// The first of the points from `first` on that is right of a column, as times are known to ascend.
std::size_t EndOfColumn(const Line& line, std::size_t first, double right) {
    const auto from = line.Times.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end =
        std::partition_point(from, line.Times.end(), [right](auto time) { return time < right; });
    return static_cast<std::size_t>(end - line.Times.begin());
}

/// Many points: what each column shows of the line, as a rectangle that is wider by the line's width and
/// meets the next one's.
void Fill(cairo_t* context, const Line& line, int width, int height) {
    const double perTime = PerTime(line, width);
    std::size_t first = 0;
    double before = line.Values.front();
    int columns = 0;
    for (double x = 0.0; x < width && first < line.Values.size(); x += kColumn) {
        const bool isLast = x + kColumn >= width;
        const double right = line.Times.front() + (x + kColumn) / perTime;
        const std::size_t end = isLast ? line.Values.size() : EndOfColumn(line, first, right);
        if (end == first) {
            continue;
        }
        const Column column = Gathered(line, first, end);
        const double middle = x == 0.0 ? column.First : (before + column.First) / 2.0;
        const double low = std::min(column.Low, middle) * height - kTip * line.Width;
        const double high = std::max(column.High, middle) * height + kTip * line.Width;
        cairo_rectangle(context, x - line.Width / 2.0, height - high, kColumn + line.Width, high - low);
        if (++columns % kColumnsPerFill == 0) {
            cairo_fill(context);
        }
        before = column.Last;
        first = end;
    }
    cairo_fill(context);
}

} // namespace

Picture DrawnLine(const Line& line, int width, int height) {
    Picture picture(width, height);
    cairo_t* context = picture.Context.get();
    cairo_set_source_rgb(context, 0.0, 0.0, 0.0);
    cairo_set_line_width(context, line.Width);
    if (line.Values.size() < kFewPointsPerColumn * static_cast<std::size_t>(width)) {
        Stroke(context, line, width, height);
    } else {
        Fill(context, line, width, height);
    }
    return picture;
}

} // namespace byhand
