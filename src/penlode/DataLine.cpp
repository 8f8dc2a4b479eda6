#include "penlode/DataLine.h"

#include "penlode/IGraphicsEngine.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace penlode {
namespace {

constexpr std::size_t kBlock = DataLine::kBlock;
using Places = std::array<float, kBlock>;

/// The least and the most of two halves of a list, and so on down to one x and one y: a loop over places that
/// do not depend on each other, where a running minimum would be a chain.
template <std::size_t Half> void Fold(Places& least, Places& most) {
    for (std::size_t k = 0; k < Half; ++k) {
        least[k] = least[k] < least[k + Half] ? least[k] : least[k + Half];
        most[k] = most[k] > most[k + Half] ? most[k] : most[k + Half];
    }
    if constexpr (Half > 2) {
        Fold<Half / 2>(least, most);
    }
}

/// Points are looked at without a branch between them, so that a compiler looks at several at once.
bool BoundsOfBlock(const PointF* points, PointBounds& bounds) {
    std::array<float, 2 * kBlock> places; // x and y by turns, as they lie in memory
    for (std::size_t i = 0; i < kBlock; ++i) {
        places[2 * i] = points[i].X;
        places[2 * i + 1] = points[i].Y;
    }
    Places least;
    Places most;
    unsigned unordered = 0; // comparisons pass over what is no number
    for (std::size_t k = 0; k < kBlock; ++k) {
        least[k] = places[k] < places[k + kBlock] ? places[k] : places[k + kBlock];
        most[k] = places[k] > places[k + kBlock] ? places[k] : places[k + kBlock];
        unordered |= static_cast<unsigned>(std::isunordered(places[k], places[k + kBlock]));
    }
    Fold<kBlock / 2>(least, most);
    bounds = {least[0], most[0], least[1], most[1]};
    return unordered == 0 && std::isfinite(bounds.Left) && std::isfinite(bounds.Right) &&
           std::isfinite(bounds.Low) && std::isfinite(bounds.High);
}

auto FirstGap(std::span<PointF> points) {
    return std::find_if_not(points.begin(), points.end(), [](PointF p) { return IsFinite(p); });
}

/// The points from `first` on, up to the first gap. Where gaps are dense, few points are looked at ahead.
std::vector<PointF> PointsUpToGap(const DataLine& line, std::size_t first) {
    std::vector<PointF> points;
    std::array<PointF, kBlock> places;
    for (std::size_t count = 4; first < line.Size(); count = std::min(4 * count, kBlock)) {
        const std::span block = std::span(places).first(std::min(count, line.Size() - first));
        line.Place(first, block);
        const auto gap = FirstGap(block);
        points.insert(points.end(), block.begin(), gap);
        if (gap != block.end()) {
            break;
        }
        first += block.size();
    }
    return points;
}

} // namespace

DataLine::~DataLine() = default;

IDataLineSurface::~IDataLineSurface() = default;

bool DataLine::Bound(std::size_t first, std::size_t count, PointBounds& bounds) const {
    std::array<PointF, kBlock> points;
    const std::span block = std::span(points).first(std::min(count, kBlock));
    Place(first, block);
    return BoundsOf(block, bounds);
}

PointF DataLine::At(std::size_t place) const {
    PointF point;
    Place(place, {&point, 1});
    return point;
}

bool BoundsOf(std::span<const PointF> points, PointBounds& bounds) {
    if (points.size() == kBlock) {
        return BoundsOfBlock(points.data(), bounds);
    }
    bounds = points.empty() ? PointBounds{} : PointBounds{points[0].X, points[0].X, points[0].Y, points[0].Y};
    for (const PointF p : points) {
        bounds = {std::min(bounds.Left, p.X), std::max(bounds.Right, p.X), std::min(bounds.Low, p.Y),
                  std::max(bounds.High, p.Y)};
    }
    return AreFinite(points);
}

std::size_t FindGap(const DataLine& line, std::size_t first) {
    for (; first < line.Size(); first += kBlock) {
        const std::size_t count = std::min(kBlock, line.Size() - first);
        PointBounds bounds;
        if (line.Bound(first, count, bounds)) {
            continue;
        }
        std::array<PointF, kBlock> points;
        const std::span block = std::span(points).first(count);
        line.Place(first, block);
        const auto gap = FirstGap(block);
        if (gap != block.end()) {
            return first + static_cast<std::size_t>(gap - block.begin());
        }
    }
    return line.Size();
}

std::size_t DrawAsList(IGraphicsEngine& engine, const Pen& pen, const DataLine& line, std::size_t first) {
    const std::vector<PointF> points = PointsUpToGap(line, first);
    const PointF none;
    const PointF* const list = line.Size() == 0 ? nullptr : points.empty() ? &none : points.data();
    engine.DrawLines(&pen, list, static_cast<std::int32_t>(std::min<std::size_t>(points.size(), INT32_MAX)));
    return first + points.size();
}

} // namespace penlode
