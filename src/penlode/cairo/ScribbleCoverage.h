#pragma once

#include "penlode/cairo/StrokeShapes.h"

#include <cairo.h>
#include <cstdint>
#include <deque>
#include <vector>

namespace penlode {

/// How much of each pixel a stroked line covers that goes to and fro over the surface. Samples of each pixel
/// are marked, a bit each, so that crossings count once. Where all are marked, as soon most are, nothing is
/// left to do: a segment then costs little more than the walk along it.
///
///     tiles of 8 x 8 pixels, each of      |        |  /#####|########|
///     8 x 8 samples: 64 words of bits     |    /###|########|########|  full: no longer kept
class ScribbleCoverage {
public:
    /// `area` is what can be seen, on whole pixels.
    ScribbleCoverage(const BoxD& area, const StrokeShapes& shapes);

    ScribbleCoverage(const ScribbleCoverage&) = delete;
    ScribbleCoverage& operator=(const ScribbleCoverage&) = delete;

    /// A polyline in device units, near the area. Its caps are flat.
    void Add(std::span<const PointD> points);

    /// Lays the context's source on the surface, as thick as the line covers each pixel. The context's matrix
    /// maps from device units.
    void Paint(cairo_t* context) const;

private:
    using Tile = std::array<std::uint64_t, 64>;
    struct Edge;
    struct Rows;

    PointD Sampled(PointD point) const;
    void AddConvex(std::span<const PointD> corners);
    template <int Side, class Visit> void Divide(const Rows& rows, Visit&& visit) const;
    void AddRows(const Rows& rows);
    /// What lies in one row of tiles, from the first to the end of those that it reaches.
    void AddBand(const Rows& band, int row, int first, int end);
    static void Mark(const Rows& band, Tile** tiles, int begin, int stop);
    int& OpenAround(int row, int column);
    Tile* NewTile();
    /// Writes a row of tiles into a mask of their size; whether anything is marked.
    bool Write(std::size_t row, unsigned char* pixels, std::size_t stride) const;

    BoxD m_area;
    StrokeShapes m_shapes;
    int m_columns; ///< of tiles
    int m_rows;
    int m_blockColumns;
    Tile m_full;                ///< stands for all that are
    std::vector<Tile*> m_tiles; ///< row by row; none where nothing is marked
    std::vector<int> m_open;    ///< of each block, tiles that are not full
    std::deque<Tile> m_kept;
    std::vector<Tile*> m_unused; ///< what is full gives its tile back
};

} // namespace penlode
