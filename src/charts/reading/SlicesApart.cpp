#include "charts/reading/SlicesApart.h"

#include "penlode/engine/Finite.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <numbers>
#include <numeric>
#include <set>

namespace millichart {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr double kGap = 0.4;       ///< mm between stacked labels
constexpr double kBesideGap = 1.5; ///< mm between labels beside each other
constexpr double kHalvesGap = 0.3; ///< mm between a half pie's straight side and its labels
constexpr double kMostHeights = 1.5;
constexpr double kMoreLabels = 4.0;
/// How much of the pie's half width an orbit is widened at most for lead lines.
constexpr double kMostWidening = 0.35;
/// Where the orbit is as narrow as this share of its width, widening it moves nothing.
constexpr double kSteep = 0.1;
constexpr double kNegligible = 1e-3;
constexpr double kUnlimited = std::numeric_limits<double>::infinity();

/// A label on its way. Places are relative to the centre, and across without a sign: left and right are
/// alike.
struct Member {
    std::size_t Index = 0;
    double Down = 0.0; ///< degrees below the horizontal, -90 to 90
    double Width = 0.0;
    double Height = 0.0;
    double Share = 0.0;
    PointD Rim;
    double Wanted = 0.0;             ///< the top of its place at the slice
    double HighestTop = -kUnlimited; ///< beyond these a lead line would cross the pie
    double LowestTop = kUnlimited;
    double Top = 0.0;
    double Inner = 0.0; ///< from the centre to the edge that faces it
    PointD Tip;         ///< where a lead line meets the box

    double Bottom() const { return Top + Height; }
};

using Side = std::vector<Member>;

/// Half an ellipse above the wall, half an ellipse below it.
struct Orbit {
    double Across = 0.0;
    double Up = 0.0;
    double Depth = 0.0;

    /// How far above or below the ellipses' centres a box lies.
    double Beyond(double top, double bottom) const { return std::max({0.0, -bottom, top - Depth}); }

    /// The share of `Across` at that height.
    double Narrowing(double beyond) const {
        if (beyond <= 0.0) {
            return 1.0;
        }
        const double share = beyond / Up;
        return share < 1.0 ? std::sqrt(1.0 - share * share) : 0.0;
    }

    double Inner(double top, double bottom) const { return Across * Narrowing(Beyond(top, bottom)); }

    /// The height at which a box that stands on the orbit touches it; the wanted one where it may choose.
    double TipHeight(double wanted, double top, double bottom) const {
        if (bottom <= 0.0) {
            return bottom;
        }
        return top >= Depth ? top : std::clamp(wanted, std::max(top, 0.0), std::min(bottom, Depth));
    }
};

/// Where the ray at `down` degrees meets the orbit.
PointD AtAngle(const Orbit& orbit, double down) {
    const double angle = down * std::numbers::pi / 180.0;
    const double across = std::cos(angle);
    const double below = std::sin(angle);
    const double reach = std::hypot(across * orbit.Up, below * orbit.Across);
    const double length = reach > 0.0 ? orbit.Across * orbit.Up / reach : 0.0;
    return {across * length, below * length + (down < 0.0 ? 0.0 : orbit.Depth)};
}

/// Labels that touch, stacked, `Begin` the highest.
struct Block {
    std::size_t Begin = 0;
    std::size_t End = 0;
    double Height = 0.0;
    double WantedTops = 0.0; ///< the sum of where each of its labels would have the block's top
    double HighestTop = -kUnlimited;
    double LowestTop = kUnlimited;
    double Top = 0.0;
};

/// Puts one side of a pie in order, from the top down: a label after the other is a block of its own, and
/// becomes one with the block above as long as they touch.
class SideSpread {
public:
    /// With `mayStandBeside`, labels may be as high as each other where the orbit holds them apart.
    SideSpread(Side& side, const SliceRim& rim, const Orbit& orbit, bool mayStandBeside)
        : m_side(side), m_rim(rim), m_orbit(orbit), m_mayStandBeside(mayStandBeside) {}

    /// False if the labels cannot stand beside the orbit, or some lead line would cross the pie.
    bool Spread() {
        for (std::size_t i = 0; i < m_side.size(); ++i) {
            const Member& member = m_side[i];
            Push({i, i + 1, member.Height, member.Wanted, member.HighestTop, member.LowestTop, 0.0});
            while (m_blocks.size() > 1 && LastTwoTouch()) {
                MergeLastTwo();
            }
        }
        std::for_each(m_blocks.begin(), m_blocks.end(), [this](const Block& block) { Place(block); });
        return m_fits && std::all_of(m_side.begin(), m_side.end(), [](const Member& member) {
                   return member.Top >= member.HighestTop - kNegligible &&
                          member.Top <= member.LowestTop + kNegligible;
               });
    }

private:
    /// As near to where its labels want it as the bounds allow.
    void Push(Block block) {
        const double highest =
            m_rim.HasUpper ? -m_orbit.Up - m_side[block.Begin].Height : m_orbit.Depth + kHalvesGap;
        const double lowest =
            (m_rim.HasLower ? m_orbit.Depth + m_orbit.Up + m_side[block.End - 1].Height : -kHalvesGap) -
            block.Height;
        const double wanted = block.WantedTops / static_cast<double>(block.End - block.Begin);
        const double led = std::max(block.HighestTop, std::min(wanted, block.LowestTop));
        block.Top = std::max(highest, std::min(led, lowest));
        m_blocks.push_back(block);
        m_fits = m_fits && highest <= lowest + kNegligible;
    }

    /// Neighbours that are in order but beside each other, not above, are apart as well; all further ones are
    /// then too, as the orbit recedes.
    bool LastTwoTouch() const {
        const Block& upper = m_blocks[m_blocks.size() - 2];
        const Block& lower = m_blocks.back();
        const Member& a = m_side[upper.End - 1];
        const Member& b = m_side[lower.Begin];
        const double bottomA = upper.Top + upper.Height;
        const double topA = bottomA - a.Height;
        const double bottomB = lower.Top + b.Height;
        if (bottomA + kGap <= lower.Top) {
            return false;
        }
        if (!m_mayStandBeside) {
            return true;
        }
        const double innerA = m_orbit.Inner(topA, bottomA);
        const double innerB = m_orbit.Inner(lower.Top, bottomB);
        const bool areInOrder = topA <= lower.Top && bottomA <= bottomB;
        const bool areBeside =
            innerA + a.Width + kBesideGap <= innerB || innerB + b.Width + kBesideGap <= innerA;
        return !areInOrder || !areBeside;
    }

    void MergeLastTwo() {
        const Block lower = m_blocks.back();
        m_blocks.pop_back();
        Block all = m_blocks.back();
        m_blocks.pop_back();
        const double down = all.Height + kGap;
        all.WantedTops += lower.WantedTops - static_cast<double>(lower.End - lower.Begin) * down;
        all.HighestTop = std::max(all.HighestTop, lower.HighestTop - down);
        all.LowestTop = std::min(all.LowestTop, lower.LowestTop - down);
        all.Height = down + lower.Height;
        all.End = lower.End;
        Push(all);
    }

    void Place(const Block& block) {
        double top = block.Top;
        for (std::size_t i = block.Begin; i < block.End; ++i) {
            m_side[i].Top = top;
            top += m_side[i].Height + kGap;
        }
    }

    Side& m_side;
    const SliceRim& m_rim;
    const Orbit& m_orbit;
    bool m_mayStandBeside;
    bool m_fits = true;
    std::vector<Block> m_blocks;
};

double StackHeight(const Side& side) {
    return std::accumulate(side.begin(), side.end(), -kGap,
                           [](double sum, const Member& member) { return sum + member.Height + kGap; });
}

/// Equal shares are left out evenly: multiples of the golden section never crowd.
double Turn(const Member& member) {
    const double multiple = static_cast<double>(member.Index) * std::numbers::phi;
    return multiple - std::floor(multiple);
}

void LeaveOutSmallest(Side& side, double mostHeight) {
    double height = StackHeight(side);
    std::vector<const Member*> smallestFirst;
    std::transform(side.begin(), side.end(), std::back_inserter(smallestFirst),
                   [](const Member& member) { return &member; });
    std::sort(smallestFirst.begin(), smallestFirst.end(), [](const Member* a, const Member* b) {
        return a->Share != b->Share ? a->Share < b->Share : Turn(*a) < Turn(*b);
    });
    std::set<std::size_t> without;
    for (std::size_t i = 0; i + 1 < smallestFirst.size() && height > mostHeight; ++i) {
        without.insert(smallestFirst[i]->Index);
        height -= smallestFirst[i]->Height + kGap;
    }
    side.erase(std::remove_if(side.begin(), side.end(),
                              [&](const Member& member) { return without.count(member.Index) != 0; }),
               side.end());
}

double MostHeight(const Side& side, const SliceRim& rim, const Orbit& orbit) {
    const double pie = rim.HasUpper && rim.HasLower ? 2.0 * orbit.Up + orbit.Depth : orbit.Up;
    const auto tallest = std::max_element(
        side.begin(), side.end(), [](const Member& a, const Member& b) { return a.Height < b.Height; });
    return kMostHeights * pie + kMoreLabels * (tallest->Height + kGap);
}

/// How far up and down an orbit must reach for a stack of that height to stand beside it.
double NeededUp(double stack, const Side& side, const SliceRim& rim, const Orbit& orbit) {
    const double first = side.front().Height;
    const double last = side.back().Height;
    if (rim.HasUpper && rim.HasLower) {
        return (stack - first - last - orbit.Depth) * 0.5;
    }
    return stack - (rim.HasUpper ? first : last) + kHalvesGap;
}

/// How far across the tangent at the member's slice is at a height: what is farther out can be seen from
/// there past the pie. Heights are scaled so that the ellipse is a circle.
double TangentAcross(const Member& member, const SliceRim& rim, double height) {
    if (member.Rim.X < rim.Across * kSteep) {
        return 0.0;
    }
    const double middle = member.Down < 0.0 ? 0.0 : rim.Depth;
    const double scale = static_cast<double>(rim.Across) / rim.Up;
    const double rimDown = (member.Rim.Y - middle) * scale;
    const double down = (height - middle) * scale;
    return (static_cast<double>(rim.Across) * rim.Across - rimDown * down) / member.Rim.X;
}

/// How far across the orbit must reach for a line from the member's slice to stay outside the pie.
double AcrossForLead(const Member& member, const SliceRim& rim, const Orbit& orbit) {
    const double narrowing = orbit.Narrowing(orbit.Beyond(member.Top, member.Bottom()));
    const double tip = orbit.TipHeight(member.Rim.Y, member.Top, member.Bottom());
    return narrowing < kSteep ? 0.0 : TangentAcross(member, rim, tip) / narrowing;
}

/// The tops beyond which not even a line to the widest orbit would pass outside the pie. On an ellipse as on
/// the circle that it was squeezed from.
void LimitLeads(Side& side, const SliceRim& rim, const Orbit& orbit) {
    const double widest = std::max(orbit.Across, rim.Across * (1.0 + kMostWidening));
    const double reach = widest > 0.0 ? std::acos(rim.Across / widest) : 0.0;
    for (Member& member : side) {
        const double middle = member.Down < 0.0 ? 0.0 : rim.Depth;
        const double angle = std::atan2((member.Rim.Y - middle) * rim.Across, member.Rim.X * rim.Up);
        if (angle < -reach) {
            member.LowestTop = orbit.Up * std::sin(angle + reach) - member.Height;
        } else if (angle > reach) {
            member.HighestTop = orbit.Depth + orbit.Up * std::sin(angle - reach);
        }
    }
}

/// Beside the orbit if possible; else as far above and below it as the highest stack reaches.
void Stack(Side& side, const SliceRim& rim, Orbit orbit, double mostHeight) {
    if (!SideSpread(side, rim, orbit, true).Spread()) {
        orbit.Up = std::max(orbit.Up, NeededUp(mostHeight, side, rim, orbit));
        SideSpread(side, rim, orbit, false).Spread();
    }
}

/// How far across a lead line may end without touching the next label outwards on its way to a height.
double PastOuter(const Member& member, const Member& outer, double height) {
    const double way = height - member.Rim.Y;
    const double inWay = (way > 0.0 ? outer.Top : outer.Bottom()) - member.Rim.Y;
    if (member.Rim.X <= outer.Inner || inWay * way <= 0.0) {
        return outer.Inner;
    }
    return member.Rim.X + (outer.Inner - member.Rim.X) * way / inWay;
}

/// Where a lead line meets a box above or below its slice: as far inwards as it can without crossing the pie.
double LeadAcross(const Member& member, const Member* outer, const SliceRim& rim, double height) {
    const double seen = std::min(TangentAcross(member, rim, height), member.Inner + member.Width);
    const double most = outer ? PastOuter(member, *outer, height) : seen;
    return std::max(member.Inner, std::min(seen, most));
}

void FindTips(Side::iterator begin, Side::iterator end, const SliceRim& rim, const Orbit& orbit) {
    for (auto member = begin; member != end; ++member) {
        const double height = orbit.TipHeight(member->Rim.Y, member->Top, member->Bottom());
        member->Tip = {member->Inner, height};
        if (member->Top >= std::max(orbit.Depth, member->Rim.Y)) {
            member->Tip.X = LeadAcross(*member, member == begin ? nullptr : &*std::prev(member), rim, height);
        } else if (member->Bottom() <= std::min(0.0, member->Rim.Y)) {
            const auto next = std::next(member);
            member->Tip.X = LeadAcross(*member, next == end ? nullptr : &*next, rim, height);
        }
    }
}

/// Stretches the orbit as far as these members need it, widens it for their lead lines, and leans them on it.
void LeanOnOrbit(Side::iterator begin, Side::iterator end, const SliceRim& rim, Orbit orbit, bool hasLeads) {
    std::for_each(begin, end, [&](const Member& member) {
        orbit.Up = std::max(orbit.Up, orbit.Beyond(member.Top, member.Bottom()));
    });
    const double widest = std::max(orbit.Across, rim.Across * (1.0 + kMostWidening));
    std::for_each(begin, hasLeads ? end : begin, [&](const Member& member) {
        orbit.Across = std::max(orbit.Across, std::min(widest, AcrossForLead(member, rim, orbit)));
    });
    std::for_each(begin, end,
                  [&](Member& member) { member.Inner = orbit.Inner(member.Top, member.Bottom()); });
    FindTips(begin, end, rim, orbit);
}

/// Leaves every member of a side with its place. Each quarter has an orbit of its own, so that a crowd moves
/// nothing in the other, unless labels have come over the line between them.
void SpreadSide(Side& side, const SliceRim& rim, const Orbit& orbit, bool hasLeads) {
    if (side.empty()) {
        return;
    }
    const double mostHeight = MostHeight(side, rim, orbit);
    LeaveOutSmallest(side, mostHeight);
    if (hasLeads) {
        LimitLeads(side, rim, orbit);
    }
    Stack(side, rim, orbit, std::max(mostHeight, StackHeight(side)));
    const auto lower =
        std::find_if(side.begin(), side.end(), [](const Member& member) { return member.Down >= 0.0; });
    const bool areQuartersApart = (lower == side.begin() || std::prev(lower)->Bottom() <= 0.0) &&
                                  (lower == side.end() || lower->Top >= 0.0);
    const auto middle = areQuartersApart ? lower : side.end();
    LeanOnOrbit(side.begin(), middle, rim, orbit, hasLeads);
    LeanOnOrbit(middle, side.end(), rim, orbit, hasLeads);
}

/// Only the highest of both sides, and the lowest, can come as near to the middle.
void PartOverMiddle(Member& left, Member& right) {
    const bool shareHeight = left.Top < right.Bottom() + kGap && right.Top < left.Bottom() + kGap;
    if (shareHeight && left.Inner + right.Inner < kBesideGap) {
        for (Member* member : {&left, &right}) {
            member->Inner = std::max(member->Inner, kBesideGap * 0.5);
            member->Tip.X = std::max(member->Tip.X, member->Inner);
        }
    }
}

/// In degrees from -90 to 270, so that right slices come first.
double FromTop(float degrees) {
    const double turned = std::fmod(static_cast<double>(degrees) + 90.0, 360.0);
    return (turned <= 0.0 ? turned + 360.0 : turned) - 90.0;
}

/// At its slice, where it would stand alone.
Member MemberAt(std::size_t index, const SliceLabel& label, double down, const SliceRim& rim,
                const Orbit& orbit) {
    const PointD corner = AtAngle(orbit, down);
    Member member;
    member.Index = index;
    member.Down = down;
    member.Width = label.Size.Width;
    member.Height = label.Size.Height;
    member.Share = label.Share;
    member.Rim = AtAngle({rim.Across, rim.Up, rim.Depth}, down);
    member.Wanted = down < 0.0 ? corner.Y - member.Height : corner.Y;
    return member;
}

class Spreader {
public:
    Spreader(const SliceRim& rim, float distance) : m_rim(rim) {
        m_rim.Across = std::max(0.0F, rim.Across);
        m_rim.Up = std::max(0.0F, rim.Up);
        const double out = std::max(0.0F, distance); // never on the pie
        m_orbit = {std::max(0.0, m_rim.Across + out), std::max(0.0, m_rim.Up + out), m_rim.Depth};
    }

    std::vector<PlacedSliceLabel> Spread(const std::vector<SliceLabel>& labels, bool hasLeads) {
        m_placed.assign(labels.size(), {false, {m_rim.Center.X, m_rim.Center.Y, 0.0F, 0.0F}, {}, {}});
        for (std::size_t i = 0; i < labels.size(); ++i) {
            Sort(i, labels[i]);
        }
        std::reverse(m_left.begin(), m_left.end());
        for (Side* side : {&m_left, &m_right}) {
            std::stable_sort(side->begin(), side->end(),
                             [](const Member& a, const Member& b) { return a.Down < b.Down; });
            SpreadSide(*side, m_rim, m_orbit, hasLeads);
        }
        if (!m_left.empty() && !m_right.empty()) {
            PartOverMiddle(m_left.front(), m_right.front());
            PartOverMiddle(m_left.back(), m_right.back());
        }
        Show(m_left, -1.0);
        Show(m_right, 1.0);
        return std::move(m_placed);
    }

private:
    /// Onto its side; one that cannot be shown onto none.
    void Sort(std::size_t index, const SliceLabel& label) {
        if (!std::isfinite(label.Middle)) {
            return;
        }
        const double angle = FromTop(label.Middle);
        const bool isRight = angle <= 90.0;
        const Member member = MemberAt(index, label, isRight ? angle : 180.0 - angle, m_rim, m_orbit);
        const PointF rim = OnPage(isRight ? 1.0 : -1.0, member.Rim.X, member.Rim.Y);
        m_placed[index] = {false, {rim.X, rim.Y, 0.0F, 0.0F}, rim, rim};
        const bool hasPlace =
            penlode::AreFinite(rim.X, rim.Y, member.Wanted, member.Width, member.Height, member.Share);
        if (hasPlace && member.Width > 0.0 && member.Height > 0.0) {
            (isRight ? m_right : m_left).push_back(member);
        }
    }

    PointF OnPage(double sign, double across, double down) const {
        return {static_cast<float>(m_rim.Center.X + sign * across),
                static_cast<float>(m_rim.Center.Y + down)};
    }

    void Show(const Side& side, double sign) {
        for (const Member& member : side) {
            const double nearLeft = sign < 0.0 ? member.Inner + member.Width : member.Inner;
            const PointF corner = OnPage(sign, nearLeft, member.Top);
            PlacedSliceLabel& placed = m_placed[member.Index];
            placed.Box = {corner.X, corner.Y, static_cast<float>(member.Width),
                          static_cast<float>(member.Height)};
            placed.Tip = OnPage(sign, member.Tip.X, member.Tip.Y);
            placed.IsShown = true;
        }
    }

    SliceRim m_rim;
    Orbit m_orbit;
    Side m_left;
    Side m_right;
    std::vector<PlacedSliceLabel> m_placed;
};

} // namespace

std::vector<PlacedSliceLabel> SlicesApart(const SliceRim& rim, float distance, bool hasLeads,
                                          const std::vector<SliceLabel>& labels) {
    return Spreader(rim, distance).Spread(labels, hasLeads);
}

bool IsOutside(const SliceRim& rim, PointF point) {
    const Orbit outline{rim.Across, rim.Up, rim.Depth};
    const double down = static_cast<double>(point.Y) - rim.Center.Y;
    return outline.Beyond(down, down) >= rim.Up ||
           std::fabs(static_cast<double>(point.X) - rim.Center.X) > outline.Inner(down, down);
}

} // namespace millichart
