#include "charts/pie/PieSlices.h"

#include "charts/reading/Shade.h"
#include "foundation/Hatching.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::RectF;

namespace {

/// The walls of a slice that begins at `start`: what of its rim lies on the front half of the ellipse. Angles
/// outside the ranges have none.
void FindWalls(float start, PieSlice& slice) {
    const float sweep = slice.SweepAngle;
    const float overrun = start + sweep - kFullTurn;
    const auto add = [&slice](float from, float to) { slice.Walls[slice.WallCount++] = {from, to}; };
    if (start >= 0.0F && start < kHalfTurn && sweep >= 0.0F && sweep <= kFullTurn) {
        add(start, sweep < kHalfTurn - start ? start + sweep : kHalfTurn);
        if (sweep > kFullTurn - start) {
            add(0.0F, overrun);
        }
    } else if (start >= kHalfTurn && start < kFullTurn && sweep > kFullTurn - start && sweep <= kFullTurn) {
        add(0.0F, sweep < kFullTurn + kHalfTurn - start ? overrun : kHalfTurn);
    }
}

/// Along the face's rim one way, down, and back along the bottom's.
void FillWall(IGraphicsEngine& engine, const PieWall& wall, const PieShapes& shapes, penlode::Color color) {
    penlode::GraphicsPath path;
    path.AddArc(shapes.Face, wall.From, wall.To - wall.From);
    path.AddArc(penlode::Translated(shapes.Face, {0.0F, shapes.Depth}), wall.To, wall.From - wall.To);
    const penlode::SolidBrush brush{color};
    engine.FillPath(&brush, &path);
}

PieSlice SliceOf(float start, float sweep, const std::vector<Fill>& fills, std::size_t index) {
    PieSlice slice;
    slice.StartAngle = start;
    slice.SweepAngle = sweep;
    if (index < fills.size()) {
        slice.Fill = fills[index].Color;
        slice.Hatch = fills[index].Hatch;
    }
    return slice;
}

} // namespace

double TotalOf(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

float ShareOf(double value, double total) {
    return static_cast<float>(value / total);
}

std::vector<float> SliceSweeps(const std::vector<double>& values, float totalSweep) {
    const double total = TotalOf(values);
    std::vector<float> sweeps;
    if (total == 0.0) {
        return sweeps;
    }
    std::transform(values.begin(), values.end(), std::back_inserter(sweeps),
                   [&](double value) { return ShareOf(value, total) * totalSweep; });
    return sweeps;
}

std::vector<PieSlice> FlatSlices(float startAngle, const std::vector<float>& sweeps,
                                 const std::vector<Fill>& fills) {
    std::vector<PieSlice> slices;
    float angle = startAngle;
    for (std::size_t i = 0; i < sweeps.size(); ++i) {
        slices.push_back(SliceOf(angle, sweeps[i], fills, i));
        angle += sweeps[i];
    }
    return slices;
}

std::vector<PieSlice> DeepSlices(float startAngle, const std::vector<float>& sweeps,
                                 const std::vector<Fill>& fills, const ChartOptions& options) {
    std::vector<PieSlice> slices;
    float angle = startAngle;
    for (std::size_t i = 0; i < sweeps.size(); ++i) {
        const float seen = angle < kFullTurn ? angle : angle - kFullTurn;
        slices.push_back(SliceOf(angle, sweeps[i], fills, i));
        if (slices.back().Fill) {
            slices.back().WallFill = ShadeOf(*slices.back().Fill, ShadedFace::PieWall, options);
            FindWalls(seen, slices.back());
        }
        angle = seen + sweeps[i];
    }
    return slices;
}

void DrawSlices(IGraphicsEngine& engine, const PieShapes& shapes) {
    for (const PieSlice& slice : shapes.Slices) {
        if (slice.Fill) {
            const penlode::SolidBrush brush{*slice.Fill};
            engine.FillPie(&brush, shapes.Face, slice.StartAngle, slice.SweepAngle);
            HatchPie(engine, shapes.Face, slice.StartAngle, slice.SweepAngle, slice.Hatch);
            for (const PieWall& wall : slice.FrontWalls()) {
                FillWall(engine, wall, shapes, slice.WallFill);
            }
        }
        if (shapes.Outline != nullptr) {
            engine.DrawPie(shapes.Outline, shapes.Face, slice.StartAngle, slice.SweepAngle);
        }
    }
}

} // namespace millichart
