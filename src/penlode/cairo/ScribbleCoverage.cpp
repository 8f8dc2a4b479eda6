#include "penlode/cairo/ScribbleCoverage.h"

#include "penlode/cairo/CairoHandles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace penlode {
namespace {

/// Samples a side: of a pixel, of a tile, and of a block of tiles of which it is known together that they are
/// full.
constexpr int kPixel = 8;
constexpr int kTile = 64;
constexpr int kBlock = 512;

constexpr int kTilePixels = kTile / kPixel;
constexpr int kBlockTiles = kBlock / kTile;

/// Edges of less height, in samples, count as upright: the one row that they pass may begin at either end.
constexpr double kMinHeight = 1e-4;

constexpr std::uint64_t kAll = ~std::uint64_t{0};

/// Samples stand in the middle of their squares; an edge between two leaves the one to the other side.
int FirstBeyond(double edge, int end) {
    return static_cast<int>(std::clamp(edge, 0.0, static_cast<double>(end)) + 0.5);
}

/// How many samples of a pixel's eight rows are marked, for eight pixels: a byte each.
std::uint64_t Count(const std::uint64_t* rows) {
    std::uint64_t sum = 0;
    for (int i = 0; i < kPixel; ++i) {
        std::uint64_t marks = rows[i];
        marks -= (marks >> 1U) & 0x5555555555555555U;
        marks = (marks & 0x3333333333333333U) + ((marks >> 2U) & 0x3333333333333333U);
        sum += (marks + (marks >> 4U)) & 0x0F0F0F0F0F0F0F0FU;
    }
    return sum;
}

int TilesFor(double pixels) {
    return static_cast<int>(std::ceil(pixels / kTilePixels));
}

int BlocksFor(int tiles) {
    return (tiles + kBlockTiles - 1) / kBlockTiles;
}

} // namespace

/// Of a shape's outline, by rows of samples.
struct ScribbleCoverage::Edge {
    int Top;
    int Bottom;
    double X; ///< in row 0
    double Slope;

    double At(int row) const { return X + row * Slope; }
};

/// Rows of a shape that one edge bounds on either side.
struct ScribbleCoverage::Rows {
    const Edge& Left;
    const Edge& Right;
    int Top;
    int Bottom;
};

ScribbleCoverage::ScribbleCoverage(const BoxD& area, const StrokeShapes& shapes)
    : m_area(area), m_shapes(shapes), m_columns(TilesFor(area.Width())), m_rows(TilesFor(area.Height())),
      m_blockColumns(BlocksFor(m_columns)),
      m_tiles(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows)),
      m_open(static_cast<std::size_t>(m_blockColumns) * static_cast<std::size_t>(BlocksFor(m_rows))) {
    m_full.fill(kAll);
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            ++OpenAround(row, column);
        }
    }
}

int& ScribbleCoverage::OpenAround(int row, int column) {
    return m_open[static_cast<std::size_t>(row / kBlockTiles * m_blockColumns + column / kBlockTiles)];
}

PointD ScribbleCoverage::Sampled(PointD p) const {
    return {(p.X - m_area.Left) * kPixel, (p.Y - m_area.Top) * kPixel};
}

void ScribbleCoverage::Add(std::span<const PointD> points) {
    m_shapes.ForEach(points, [this](std::span<const PointD> corners) { AddConvex(corners); });
}

/// Edges that lead down are on the left, and those that lead up on the right. Those that pass no row are left
/// out.
void ScribbleCoverage::AddConvex(std::span<const PointD> corners) {
    std::array<Edge, 4> lefts;
    std::array<Edge, 4> rights;
    Edge* left = lefts.data();
    Edge* right = rights.data();
    const int end = m_rows * kTile;
    int top = end;
    int bottom = 0;
    PointD from = Sampled(corners.back());
    int before = FirstBeyond(from.Y, end);
    for (const PointD corner : corners) {
        const PointD to = Sampled(corner);
        const int row = FirstBeyond(to.Y, end);
        if (row != before) {
            const double height = to.Y - from.Y;
            const double slope = std::abs(height) < kMinHeight ? 0.0 : (to.X - from.X) / height;
            Edge*& edge = before < row ? left : right;
            *edge++ = {std::min(row, before), std::max(row, before), from.X + (0.5 - from.Y) * slope, slope};
        }
        top = std::min(top, row);
        bottom = std::max(bottom, row);
        from = to;
        before = row;
    }
    while (top < bottom) {
        const auto passes = [top](const Edge& e) { return e.Top <= top && top < e.Bottom; };
        const Edge& onLeft = *std::find_if(lefts.data(), left, passes);
        const Edge& onRight = *std::find_if(rights.data(), right, passes);
        const int next = std::min(onLeft.Bottom, onRight.Bottom);
        AddRows({onLeft, onRight, top, next});
        top = next;
    }
}

/// Calls `visit` with the parts of rows that lie in one row of squares each, its number, and the first and
/// the end of the squares that they reach.
template <int Side, class Visit> void ScribbleCoverage::Divide(const Rows& rows, Visit&& visit) const {
    const int width = m_columns * kTile;
    for (int top = rows.Top; top < rows.Bottom;) {
        const int bottom = std::min((top / Side + 1) * Side, rows.Bottom);
        const double left = std::min(rows.Left.At(top), rows.Left.At(bottom - 1));
        const double right = std::max(rows.Right.At(top), rows.Right.At(bottom - 1));
        const int first = FirstBeyond(left, width) / Side;
        const int end = (FirstBeyond(right, width) + Side - 1) / Side;
        visit(Rows{rows.Left, rows.Right, top, bottom}, top / Side, first, std::max(first, end));
        top = bottom;
    }
}

void ScribbleCoverage::AddRows(const Rows& rows) {
    Divide<kBlock>(rows, [this](const Rows& part, int blockRow, int firstBlock, int endBlock) {
        const int* const open = m_open.data() + blockRow * m_blockColumns;
        if (std::any_of(open + firstBlock, open + endBlock, [](int count) { return count > 0; })) {
            Divide<kTile>(part, [this](const Rows& band, int row, int first, int end) {
                AddBand(band, row, first, end);
            });
        }
    });
}

void ScribbleCoverage::AddBand(const Rows& band, int row, int first, int end) {
    Tile** const tiles = m_tiles.data() + row * m_columns;
    if (std::all_of(tiles + first, tiles + end, [&](const Tile* tile) { return tile == &m_full; })) {
        return;
    }
    for (int column = first; column < end; ++column) {
        tiles[column] = tiles[column] == nullptr ? NewTile() : tiles[column];
    }
    Mark(band, tiles, first * kTile, end * kTile);
    for (int column = first; column < end; ++column) {
        if (tiles[column] != &m_full && *tiles[column] == m_full) {
            m_unused.push_back(std::exchange(tiles[column], &m_full));
            --OpenAround(row, column);
        }
    }
}

/// Marks what lies between two columns of samples. In tiles that are full this changes nothing.
void ScribbleCoverage::Mark(const Rows& band, Tile** tiles, int begin, int stop) {
    constexpr int kFraction = 16;
    const auto fixed = [](double x) { return static_cast<std::int64_t>(x * (1 << kFraction)); };
    const std::int64_t leftStep = fixed(band.Left.Slope);
    const std::int64_t rightStep = fixed(band.Right.Slope);
    std::int64_t left = fixed(band.Left.At(band.Top) + 0.5);
    std::int64_t right = fixed(band.Right.At(band.Top) + 0.5);
    for (int row = band.Top; row < band.Bottom; ++row, left += leftStep, right += rightStep) {
        const std::int64_t first = std::max<std::int64_t>(left >> kFraction, begin);
        const std::int64_t last = std::min<std::int64_t>(right >> kFraction, stop) - 1;
        if (first > last) {
            continue;
        }
        const std::size_t word = static_cast<std::size_t>(row) % kTile;
        const std::uint64_t from = kAll << (static_cast<std::uint64_t>(first) % kTile);
        const std::uint64_t upTo = kAll >> (kTile - 1 - static_cast<std::uint64_t>(last) % kTile);
        Tile** tile = tiles + static_cast<std::uint64_t>(first) / kTile;
        Tile** const lastTile = tiles + static_cast<std::uint64_t>(last) / kTile;
        if (tile == lastTile) {
            (**tile)[word] |= from & upTo;
            continue;
        }
        (**tile)[word] |= from;
        while (++tile < lastTile) {
            (**tile)[word] = kAll;
        }
        (**lastTile)[word] |= upTo;
    }
}

ScribbleCoverage::Tile* ScribbleCoverage::NewTile() {
    if (m_unused.empty()) {
        return &m_kept.emplace_back();
    }
    Tile* const tile = m_unused.back();
    m_unused.pop_back();
    tile->fill(0);
    return tile;
}

bool ScribbleCoverage::Write(std::size_t row, unsigned char* pixels, std::size_t stride) const {
    bool isMarked = false;
    std::fill_n(pixels, stride * kTilePixels, static_cast<unsigned char>(0));
    const auto columns = static_cast<std::size_t>(m_columns);
    for (std::size_t column = 0; column < columns; ++column) {
        const Tile* const tile = m_tiles[row * columns + column];
        isMarked = isMarked || tile != nullptr;
        for (std::size_t y = 0; tile != nullptr && y < kTilePixels; ++y) {
            const std::uint64_t counts = Count(tile->data() + y * kPixel);
            for (std::size_t x = 0; x < kTilePixels; ++x) {
                pixels[y * stride + column * kTilePixels + x] =
                    static_cast<unsigned char>(((counts >> (8 * x) & 0xFFU) * 255U + 32U) / 64U);
            }
        }
    }
    return isMarked;
}

void ScribbleCoverage::Paint(cairo_t* context) const {
    const CairoSurface mask(
        cairo_image_surface_create(CAIRO_FORMAT_A8, m_columns * kTilePixels, kTilePixels));
    unsigned char* pixels = cairo_image_surface_get_data(mask.get());
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(mask.get()));
    for (int row = 0; pixels != nullptr && row < m_rows; ++row) {
        if (Write(static_cast<std::size_t>(row), pixels, stride)) {
            cairo_surface_mark_dirty(mask.get());
            cairo_mask_surface(context, mask.get(), m_area.Left, m_area.Top + row * kTilePixels);
        }
    }
}

} // namespace penlode
