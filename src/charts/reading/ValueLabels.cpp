#include "charts/reading/ValueLabels.h"

#include "penlode/engine/Finite.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>
#include <unordered_map>

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

/// Boxes in cells as large as the largest of them, so that each lies in four at most.
class Taken {
public:
    explicit Taken(SizeF largest) : m_cell{std::max(largest.Width, 1.0F), std::max(largest.Height, 1.0F)} {}

    bool Meets(const RectF& box) const {
        return IsIn(box, [&](std::uint64_t cell) {
            const auto found = m_boxes.find(cell);
            return found != m_boxes.end() &&
                   std::any_of(found->second.begin(), found->second.end(),
                               [&box](const RectF& other) { return Overlap(box, other); });
        });
    }

    void Add(const RectF& box) {
        IsIn(box, [&](std::uint64_t cell) {
            m_boxes[cell].push_back(box);
            return false;
        });
    }

private:
    /// Calls `look` with each cell of a box until it says true.
    template <class Look> bool IsIn(const RectF& box, const Look& look) const {
        const auto cell = [](float at, float size) {
            return static_cast<std::int64_t>(std::floor(std::clamp(at / size, -1e9F, 1e9F)));
        };
        for (std::int64_t x = cell(box.X, m_cell.Width); x <= cell(box.Right(), m_cell.Width); ++x) {
            for (std::int64_t y = cell(box.Y, m_cell.Height); y <= cell(box.Bottom(), m_cell.Height); ++y) {
                if (look((static_cast<std::uint64_t>(x) << 32U) ^
                         (static_cast<std::uint64_t>(y) & 0xFFFFFFFFU))) {
                    return true;
                }
            }
        }
        return false;
    }

    SizeF m_cell;
    std::unordered_map<std::uint64_t, std::vector<RectF>> m_boxes;
};

/// The bars by their left edges.
class Bars {
public:
    Bars(const std::vector<ValueToPlace>& values, PointF depth) : m_values(values), m_depth(depth) {
        m_order.resize(values.size());
        std::iota(m_order.begin(), m_order.end(), std::size_t{0});
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
std::array<PointF, 4> PlacesOutside(const ValueToPlace& value, PointF depth) {
    const PointF first = Outside(value, depth);
    if (value.IsBeside) {
        return {first, first, first, first};
    }
    const RectF& bar = value.Front;
    const float half = value.Label.Width * 0.5F;
    return {first, PointF{bar.Center().X, first.Y}, PointF{bar.Right() - half, first.Y},
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
    Taken taken(largest);
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
            const std::array<PointF, 4> places = PlacesOutside(values[i], depth);
            return std::any_of(places.begin(), places.end(),
                               [&take](PointF center) { return take(center, false); });
        };
        if (!(values[i].IsBeside && takeInside()) && !takeOutside()) {
            takeInside();
        }
    }
    return placed;
}

} // namespace millichart
