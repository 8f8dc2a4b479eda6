#include "charts/reading/ValueLabels.h"

#include "penlode/engine/Finite.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

/// Between a label and what it stands at, in mm.
constexpr float kGap = 0.4F;
/// Half a blank, as a part of a label's height: nearer in one line numbers run together.
constexpr float kBlank = 0.15F;
/// Bars that a label would pass in front of; behind so many it could not be read anyway.
constexpr std::size_t kManyBars = 32;

bool Overlap(const RectF& a, const RectF& b) {
    return a.X < b.Right() && b.X < a.Right() && a.Y < b.Bottom() && b.Y < a.Bottom();
}

bool Holds(const RectF& outer, const RectF& inner) {
    return inner.X >= outer.X && inner.Right() <= outer.Right() && inner.Y >= outer.Y &&
           inner.Bottom() <= outer.Bottom();
}

RectF Around(PointF center, SizeF size) {
    return {center.X - size.Width * 0.5F, center.Y - size.Height * 0.5F, size.Width, size.Height};
}

/// Boxes in a room, by the cells of their centres. A cell is at least as large as the largest of them, so
/// that those which a box meets are in its own cell or next to it.
class Taken {
public:
    Taken(const RectF& room, SizeF largest, std::size_t count)
        : m_room(room), m_columns(Parts(room.Width, largest.Width, 1 + count)),
          m_rows(Parts(room.Height, largest.Height, 1 + count / m_columns)),
          m_latest(m_columns * m_rows, kNone) {
        m_boxes.reserve(count);
    }

    bool Meets(const RectF& box) const {
        const std::size_t column = ColumnOf(box);
        const std::size_t row = RowOf(box);
        for (std::size_t y = row - std::min<std::size_t>(row, 1); y <= std::min(row + 1, m_rows - 1); ++y) {
            for (std::size_t x = column - std::min<std::size_t>(column, 1);
                 x <= std::min(column + 1, m_columns - 1); ++x) {
                for (std::size_t i = m_latest[y * m_columns + x]; i != kNone; i = m_boxes[i].Before) {
                    if (Overlap(box, m_boxes[i].Box)) {
                        return true;
                    }
                }
            }
        }
        return false;
    }

    void Add(const RectF& box) {
        std::size_t& latest = m_latest[RowOf(box) * m_columns + ColumnOf(box)];
        m_boxes.push_back({box, latest});
        latest = m_boxes.size() - 1;
    }

private:
    static constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

    struct Entry {
        RectF Box;
        std::size_t Before; ///< in the same cell
    };

    static std::size_t Parts(float length, float part, std::size_t most) {
        const float parts = length / part;
        return parts >= 1.0F ? static_cast<std::size_t>(std::min(parts, static_cast<float>(most))) : 1;
    }

    static std::size_t PartAt(float at, float length, std::size_t parts) {
        const float part = at / length * static_cast<float>(parts);
        return part >= 0.0F ? static_cast<std::size_t>(std::min(part, static_cast<float>(parts - 1))) : 0;
    }

    std::size_t ColumnOf(const RectF& box) const {
        return PartAt(box.Center().X - m_room.X, m_room.Width, m_columns);
    }

    std::size_t RowOf(const RectF& box) const {
        return PartAt(box.Center().Y - m_room.Y, m_room.Height, m_rows);
    }

    RectF m_room;
    std::size_t m_columns;
    std::size_t m_rows;
    std::vector<std::size_t> m_latest; ///< of each cell
    std::vector<Entry> m_boxes;
};

/// The bars by their left edges.
class Bars {
public:
    Bars(const std::vector<ValueToPlace>& values, PointF depth) : m_values(values), m_depth(depth) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (penlode::IsFinite(values[i].Front)) {
                m_order.push_back(i);
            }
        }
        std::stable_sort(m_order.begin(), m_order.end(), [&values](std::size_t a, std::size_t b) {
            return values[a].Front.X < values[b].Front.X;
        });
        for (const ValueToPlace& value : values) {
            m_widest = std::max(m_widest, value.Front.Width + depth.X);
        }
    }

    /// Does a box touch another bar than its own, its back included?
    bool Meet(const RectF& box, std::size_t own) const {
        const auto first =
            std::lower_bound(m_order.begin(), m_order.end(), box.X - m_widest,
                             [this](std::size_t bar, float left) { return m_values[bar].Front.X < left; });
        std::size_t looked = 0;
        for (auto bar = first; bar != m_order.end() && m_values[*bar].Front.X < box.Right(); ++bar) {
            const RectF& front = m_values[*bar].Front;
            const RectF all = penlode::Union(front, penlode::Translated(front, m_depth));
            if (++looked > kManyBars || (*bar != own && Overlap(box, all))) {
                return true;
            }
        }
        return false;
    }

private:
    const std::vector<ValueToPlace>& m_values;
    PointF m_depth;
    std::vector<std::size_t> m_order;
    float m_widest = 0.0F;
};

PointF Outside(const ValueToPlace& value, PointF depth) {
    const RectF& bar = value.Front;
    if (value.IsBeside) {
        return {bar.Right() + depth.X + kGap + value.Label.Width * 0.5F, bar.Center().Y};
    }
    return value.Hangs ? PointF{bar.Center().X, bar.Bottom() + value.Label.Height * 0.5F}
                       : PointF{bar.Center().X + depth.X * 0.5F, bar.Y + depth.Y - value.Label.Height * 0.5F};
}

/// Where a label stands outside: rather than over a higher neighbour or the plot's edge above the front
/// alone, or ending or beginning where the bar does.
std::array<PointF, 3> OtherPlaces(const ValueToPlace& value, PointF first) {
    const RectF& bar = value.Front;
    const float half = value.Label.Width * 0.5F;
    return {PointF{bar.Center().X, first.Y}, PointF{bar.Right() - half, first.Y},
            PointF{bar.X + half, first.Y}};
}

/// At the bar's end, or in the middle of a segment of a stack; nothing if it is too small.
std::optional<PointF> Inside(const ValueToPlace& value) {
    const RectF& bar = value.Front;
    const SizeF& label = value.Label;
    if (value.IsHatched || label.Width + 2.0F * kGap > bar.Width || label.Height > bar.Height) {
        return std::nullopt;
    }
    if (value.IsBeside) {
        return bar.Center();
    }
    return PointF{bar.Center().X,
                  value.Hangs ? bar.Bottom() - label.Height * 0.5F : bar.Y + label.Height * 0.5F};
}

} // namespace

std::vector<PlacedValue> PlaceValues(const std::vector<ValueToPlace>& values, const RectF& room,
                                     PointF depth) {
    std::vector<PlacedValue> placed(values.size());
    std::vector<std::size_t> order;
    SizeF largest;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const ValueToPlace& value = values[i];
        if (value.Label.Width > 0.0F && !std::isnan(value.Value) && penlode::IsFinite(value.Front)) {
            order.push_back(i);
            largest = {std::max(largest.Width, value.Label.Width),
                       std::max(largest.Height, value.Label.Height)};
        }
    }
    std::stable_sort(order.begin(), order.end(), [&values](std::size_t a, std::size_t b) {
        return std::abs(values[a].Value) > std::abs(values[b].Value);
    });
    const Bars bars(values, depth);
    Taken taken(room, largest, order.size());
    for (const std::size_t i : order) {
        const auto take = [&](PointF center, bool isInside) {
            const RectF box = Around(center, values[i].Label);
            const float blank = values[i].Label.Height * kBlank;
            const RectF apart{box.X - blank, box.Y, box.Width + 2.0F * blank, box.Height};
            if (!Holds(room, box) || taken.Meets(apart) || (!isInside && bars.Meet(box, i))) {
                return false;
            }
            taken.Add(box);
            placed[i] = {true, isInside, center};
            return true;
        };
        const std::optional<PointF> inside = Inside(values[i]);
        const auto takeInside = [&] { return inside && take(*inside, true); };
        const auto takeOutside = [&] {
            const PointF first = Outside(values[i], depth);
            const std::array<PointF, 3> others = OtherPlaces(values[i], first);
            return take(first, false) ||
                   (!values[i].IsBeside && std::any_of(others.begin(), others.end(), [&take](PointF center) {
                       return take(center, false);
                   }));
        };
        if (!(values[i].IsBeside && takeInside()) && !takeOutside()) {
            takeInside();
        }
    }
    return placed;
}

} // namespace millichart
