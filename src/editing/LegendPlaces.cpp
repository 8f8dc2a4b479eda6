#include "editing/LegendPlaces.h"

#include "foundation/Legend.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace millichart {
namespace {

/// A place on a grid of five by five, of which the plot takes the nine in the middle.
struct Cell {
    int Column;
    int Row;
};

constexpr std::array<Cell, kLegendPlaceCount> kCells{{
    {0, 1},
    {0, 2},
    {0, 3}, // at the left
    {4, 1},
    {4, 2},
    {4, 3}, // at the right
    {1, 0},
    {2, 0},
    {3, 0}, // above
    {1, 4},
    {2, 4},
    {3, 4}, // below
}};

constexpr std::array<const char*, kLegendPlaceCount> kNames{"左侧靠上", "左侧居中", "左侧靠下", "右侧靠上",
                                                            "右侧居中", "右侧靠下", "上方靠左", "上方居中",
                                                            "上方靠右", "下方靠左", "下方居中", "下方靠右"};

penlode::RectF BoxOf(float column, float row, float columns, float rows, penlode::SizeF picture) {
    const float width = picture.Width / 5;
    const float height = picture.Height / 5;
    return {std::round(column * width + 2), std::round(row * height + 2), std::round(columns * width - 4),
            std::round(rows * height - 4)};
}

void DrawBox(penlode::IGraphicsEngine& engine, const penlode::RectF& box, const penlode::SolidBrush& brush,
             const penlode::Pen& pen) {
    engine.FillRectangle(&brush, box.X, box.Y, box.Width, box.Height);
    engine.DrawRectangle(&pen, box.X, box.Y, box.Width, box.Height);
}

/// Four pale bars stand for the chart.
void DrawBars(penlode::IGraphicsEngine& engine, const penlode::RectF& plot, penlode::Color line) {
    constexpr std::array kHeights{0.35F, 0.7F, 0.5F, 0.85F};
    const penlode::SolidBrush pale{penlode::Color::FromArgb(0x50U, line.R(), line.G(), line.B())};
    const float width = plot.Width / 9;
    for (std::size_t i = 0; i < kHeights.size(); ++i) {
        const float height = std::round(kHeights[i] * (plot.Height - 4));
        engine.FillRectangle(&pale, std::round(plot.X + width * static_cast<float>(2 * i + 1)),
                             plot.Bottom() - height, std::round(width), height);
    }
}

} // namespace

penlode::RectF LegendPlace(int place, penlode::SizeF picture) {
    const Cell cell = kCells[static_cast<std::size_t>(std::clamp(place, 0, kLegendPlaceCount - 1))];
    return BoxOf(static_cast<float>(cell.Column), static_cast<float>(cell.Row), 1, 1, picture);
}

int LegendPlaceAt(penlode::PointF point, penlode::SizeF picture) {
    for (int place = 0; place < kLegendPlaceCount; ++place) {
        const penlode::RectF box = LegendPlace(place, picture);
        if (point.X >= box.X && point.X < box.Right() && point.Y >= box.Y && point.Y < box.Bottom()) {
            return place;
        }
    }
    return -1;
}

int LegendPlaceBeside(int place, int stepRight, int stepDown) {
    if (place < 0 || place >= kLegendPlaceCount) {
        return LegendPosition::RightCenter;
    }
    const Cell from = kCells[static_cast<std::size_t>(place)];
    int nearest = place;
    int shortest = 1000;
    for (int other = 0; other < kLegendPlaceCount; ++other) {
        const Cell to = kCells[static_cast<std::size_t>(other)];
        const int right = to.Column - from.Column;
        const int down = to.Row - from.Row;
        const int ahead = right * stepRight + down * stepDown;
        const int aside = std::abs(right * stepDown) + std::abs(down * stepRight);
        // Straight ahead first, else as little aside as can be.
        const int distance = ahead + 10 * aside;
        if (ahead > 0 && distance < shortest) {
            shortest = distance;
            nearest = other;
        }
    }
    return nearest;
}

const char* LegendPlaceName(int place) {
    return place >= 0 && place < kLegendPlaceCount ? kNames[static_cast<std::size_t>(place)] : "";
}

void DrawLegendPlaces(penlode::IGraphicsEngine& engine, penlode::SizeF picture, int selected,
                      const LegendPlaceColors& colors) {
    const penlode::Pen pen(colors.Line, 1.0F);
    const penlode::SolidBrush ground{colors.Ground};
    const penlode::SolidBrush chosen{colors.Selected};
    const penlode::RectF plot = BoxOf(1, 1, 3, 3, picture);
    DrawBox(engine, plot, ground, pen);
    DrawBars(engine, plot, colors.Line);
    for (int place = 0; place < kLegendPlaceCount; ++place) {
        DrawBox(engine, LegendPlace(place, picture), place == selected ? chosen : ground, pen);
    }
}

} // namespace millichart
