#include "charts/reading/LegendSeat.h"

#include "foundation/LegendSide.h"
#include "foundation/NarrowText.h"
#include "penlode/engine/Finite.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <numeric>

namespace millichart {

using penlode::CStringUtil;
using penlode::RectF;
using penlode::SizeF;

namespace {

/// Parts of a line's height.
constexpr float kGapOfLine = 1.0F / 3.0F;
constexpr float kColumnGapOfLine = 2.0F / 3.0F;

/// What all entries have alike.
struct Measures {
    float LineHeight;
    float SwatchFactor;
    float Gap;     ///< before a name, after the last letter
    float Edge;    ///< between the frame and the entries on its other sides
    SizeF Between; ///< neighbouring columns, neighbouring rows

    /// An entry without a name has its sample.
    SizeF Entry(SizeF text) const {
        const float height = std::max(text.Height, LineHeight);
        return {height * SwatchFactor + Gap + text.Width, height};
    }
};

Measures MeasuresOf(const LegendProp& prop, float swatchFactor, bool hasAir) {
    const float line = CStringUtil::MeasureFont(*prop.Font).LineHeight;
    // No number of the record's brings entries over each other.
    const float distance = std::max(0.0F, prop.ItemDist);
    const bool inRows = IsInRows(prop.LegendPos);
    return {line,
            swatchFactor,
            line * kGapOfLine,
            hasAir ? line * kGapOfLine : 0.0F,
            {std::max(line * kColumnGapOfLine, inRows ? distance : 0.0F), inRows ? 0.0F : distance}};
}

/// Entries in columns and rows, the first `Shown` of them.
struct Grid {
    std::size_t Columns = 1;
    std::size_t Rows = 1;
    std::size_t Shown = 0;
    bool DownFirst = true; ///< the second entry stands below the first, not beside it

    std::size_t ColumnOf(std::size_t entry) const { return DownFirst ? entry / Rows : entry % Columns; }

    std::size_t RowOf(std::size_t entry) const { return DownFirst ? entry % Rows : entry / Columns; }
};

/// Each as long as its longest entry.
struct Tracks {
    std::vector<float> Widths;
    std::vector<float> Heights;
};

Tracks TracksOf(const Grid& grid, const std::vector<SizeF>& entries) {
    Tracks tracks{std::vector<float>(grid.Columns), std::vector<float>(grid.Rows)};
    for (std::size_t i = 0; i < std::min(entries.size(), grid.Columns * grid.Rows); ++i) {
        float& width = tracks.Widths[grid.ColumnOf(i)];
        float& height = tracks.Heights[grid.RowOf(i)];
        width = std::max(width, entries[i].Width);
        height = std::max(height, entries[i].Height);
    }
    return tracks;
}

float LengthOf(const std::vector<float>& tracks, float between) {
    return std::accumulate(tracks.begin(), tracks.end(), between * static_cast<float>(tracks.size() - 1));
}

std::size_t PartsOf(std::size_t count, std::size_t part) {
    return (count + part - 1) / part;
}

/// From entries and the room that they have to the grid in which they stand.
class GridSearch {
public:
    GridSearch(const std::vector<SizeF>& entries, SizeF room, const Measures& measures, bool downFirst)
        : m_entries(entries), m_room(room), m_between(measures.Between), m_downFirst(downFirst),
          m_mostRows(MostRows()) {}

    Grid Find() const {
        const std::size_t count = m_entries.size();
        if (const Grid line = m_downFirst ? Of(1, count) : Of(count, 1); Fits(line)) {
            return line;
        }
        const std::size_t columns = MostColumns(m_downFirst ? PartsOf(count, m_mostRows) : count);
        const std::size_t rows = std::min(m_mostRows, PartsOf(count, columns));
        if (columns * rows < count) {
            Grid grid = Of(columns, rows);
            // The last cell is for the count of the others.
            grid.Shown = columns * rows - 1;
            return grid;
        }
        const Grid even = m_downFirst ? Of(columns, rows) : Of(PartsOf(count, rows), rows);
        return Fits(even) ? even : Of(columns, m_downFirst ? m_mostRows : rows);
    }

private:
    Grid Of(std::size_t columns, std::size_t rows) const {
        return {columns, rows, m_entries.size(), m_downFirst};
    }

    bool Fits(const Grid& grid) const {
        const Tracks tracks = TracksOf(grid, m_entries);
        return LengthOf(tracks.Widths, m_between.Width) <= m_room.Width &&
               LengthOf(tracks.Heights, m_between.Height) <= m_room.Height;
    }

    /// As if all entries were as high as the highest. Two at least, a name and the count of the others.
    std::size_t MostRows() const {
        float highest = 0.0F;
        for (const SizeF& entry : m_entries) {
            highest = std::max(highest, entry.Height);
        }
        const float rows = (m_room.Height + m_between.Height) / (highest + m_between.Height);
        const auto count = static_cast<float>(m_entries.size());
        const auto most = rows >= 2.0F ? static_cast<std::size_t>(std::min(rows, count)) : 2;
        return std::min(most, m_entries.size());
    }

    /// One at least, the most up to `most` that find room side by side.
    std::size_t MostColumns(std::size_t most) const {
        std::size_t fitting = 1;
        while (fitting < most) {
            const std::size_t tried = fitting + PartsOf(most - fitting, 2);
            const std::size_t rows =
                m_downFirst ? m_mostRows : std::min(m_mostRows, PartsOf(m_entries.size(), tried));
            const Tracks tracks = TracksOf(Of(tried, rows), m_entries);
            if (LengthOf(tracks.Widths, m_between.Width) <= m_room.Width) {
                fitting = tried;
            } else {
                most = tried - 1;
            }
        }
        return fitting;
    }

    const std::vector<SizeF>& m_entries;
    SizeF m_room;
    SizeF m_between;
    bool m_downFirst;
    std::size_t m_mostRows;
};

/// What a legend's grid may take: at a side it may be as wide as the plot, otherwise as the whole.
SizeF RoomOf(const LegendProp& prop, const Measures& measures, const RectF& plot, const RectF& whole) {
    const float width = IsInRows(prop.LegendPos) ? whole.Width : plot.Width;
    return {width - measures.Edge - measures.Gap, whole.Height - 2.0F * measures.Edge};
}

/// Along the plot, and where it is longer centred on it; not out of the whole if it fits into it.
float PlacedAlong(std::int32_t position, float plot, float plotLength, float whole, float wholeLength,
                  float length) {
    const float start = length > plotLength ? plot + (plotLength - length) * 0.5F
                                            : AlignedAlong(position, plot, plotLength, length);
    const float last = whole + wholeLength - length;
    return last >= whole ? std::clamp(start, whole, last) : start;
}

RectF BoxOf(std::int32_t position, SizeF size, const RectF& plot, const RectF& whole) {
    const float x = PlacedAlong(position, plot.X, plot.Width, whole.X, whole.Width, size.Width);
    const float y = PlacedAlong(position, plot.Y, plot.Height, whole.Y, whole.Height, size.Height);
    switch (SideOf(position)) {
    case LegendSide::Left:
        return {whole.X - kLegendDistance - size.Width, y, size.Width, size.Height};
    case LegendSide::Right:
        return {whole.Right() + kLegendDistance, y, size.Width, size.Height};
    case LegendSide::Top:
        return {x, whole.Y - kLegendDistance - size.Height, size.Width, size.Height};
    default:
        return {x, whole.Bottom() + kLegendDistance, size.Width, size.Height};
    }
}

/// Where each track begins.
std::vector<float> StartsOf(const std::vector<float>& tracks, float start, float between) {
    std::vector<float> starts;
    starts.reserve(tracks.size());
    for (const float length : tracks) {
        starts.push_back(start);
        start += length + between;
    }
    return starts;
}

/// Each entry at its column's left edge and in the middle of its row.
void PlaceEntries(const Grid& grid, const Tracks& tracks, const std::vector<SizeF>& entries,
                  const Measures& measures, SeatedLegend& legend) {
    const std::vector<float> left =
        StartsOf(tracks.Widths, legend.Box.X + measures.Edge, measures.Between.Width);
    const std::vector<float> top =
        StartsOf(tracks.Heights, legend.Box.Y + measures.Edge, measures.Between.Height);
    legend.Items.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::size_t row = grid.RowOf(i);
        legend.Items.push_back({left[grid.ColumnOf(i)],
                                top[row] + (tracks.Heights[row] - entries[i].Height) * 0.5F, entries[i].Width,
                                entries[i].Height});
    }
}

/// The last of the items becomes the place of the rest's text, which begins where names do.
void TakeRest(float swatchFactor, SeatedLegend& legend) {
    const RectF cell = legend.Items.back();
    const float before = cell.Height * swatchFactor + legend.NameGap;
    legend.Rest = {cell.X + before, cell.Y, cell.Width - before, cell.Height};
    legend.Items.pop_back();
}

std::vector<SizeF> EntriesOf(const LegendProp& prop, const std::vector<std::string>& names,
                             const Measures& measures) {
    std::vector<SizeF> entries;
    entries.reserve(names.size());
    for (const std::string& name : names) {
        entries.push_back(measures.Entry(CStringUtil::MeasureWideString(WideText(name), prop.Font.Get())));
    }
    return entries;
}

/// Keeps what the grid shows, with an entry for the count of the others.
void LeaveOut(const Grid& grid, const LegendProp& prop, const Measures& measures, std::vector<SizeF>& entries,
              SeatedLegend& legend) {
    legend.LeftOut = entries.size() - grid.Shown;
    if (legend.LeftOut > 0) {
        const std::wstring rest = L"… " + std::to_wstring(legend.LeftOut);
        legend.RestText = CStringUtil::WideToAnsiString(rest);
        entries.resize(grid.Shown);
        entries.push_back(measures.Entry(CStringUtil::MeasureWideString(rest, prop.Font.Get())));
    }
}

bool CanBeSeated(const LegendProp& prop, const std::vector<std::string>& names) {
    return prop.ShowLegend != 0 && !names.empty() && prop.Font &&
           CStringUtil::MeasureFont(*prop.Font).LineHeight > 0.0F && IsNamedLegendPosition(prop.LegendPos);
}

} // namespace

SeatedLegend SeatLegend(const LegendProp& prop, const std::vector<std::string>& names, float swatchFactor,
                        const RectF& plot, const RectF& whole, bool hasAir) {
    if (!CanBeSeated(prop, names)) {
        return {};
    }
    const Measures measures = MeasuresOf(prop, swatchFactor, hasAir);
    std::vector<SizeF> entries = EntriesOf(prop, names, measures);
    const SizeF room = RoomOf(prop, measures, plot, whole);
    const Grid grid = GridSearch(entries, room, measures, !IsInRows(prop.LegendPos)).Find();
    SeatedLegend legend;
    legend.NameGap = measures.Gap;
    LeaveOut(grid, prop, measures, entries, legend);
    const Tracks tracks = TracksOf(grid, entries);
    const SizeF size{LengthOf(tracks.Widths, measures.Between.Width) + measures.Edge + measures.Gap,
                     LengthOf(tracks.Heights, measures.Between.Height) + 2.0F * measures.Edge};
    legend.Box = BoxOf(prop.LegendPos, size, plot, whole);
    if (!penlode::IsFinite(legend.Box)) {
        return {};
    }
    PlaceEntries(grid, tracks, entries, measures, legend);
    if (legend.LeftOut > 0) {
        TakeRest(swatchFactor, legend);
    }
    return legend;
}

SeatedLegend Translated(SeatedLegend legend, penlode::PointF offset) {
    for (RectF& item : legend.Items) {
        item = penlode::Translated(item, offset);
    }
    legend.Box = penlode::Translated(legend.Box, offset);
    legend.Rest = penlode::Translated(legend.Rest, offset);
    return legend;
}

} // namespace millichart
