#include "documents/doubts/TextOverlaps.h"

#include "documents/Fields.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::RectF;

/// So many pairs of texts are looked at: what is crowded beyond that has long been found to be.
constexpr std::size_t kMaxPairs = 300000;

/// What may lie outside without being lost.
constexpr float kHalfALetter = 1.0F;

using Kind = std::pair<std::size_t, TextRole>; ///< part and role

Kind KindOf(const SeenText& text) {
    return {text.Text.Owner.Part, text.Text.Owner.Role};
}

bool IsLegendName(const SeenText& text) {
    return text.Text.Owner.Role == TextRole::LegendName;
}

/// Texts of two kinds that lie over each other, by their numbers.
struct Overlaps {
    std::set<std::size_t> Texts;
    std::pair<std::size_t, std::size_t> First;

    void Add(std::size_t a, std::size_t b) {
        const std::pair<std::size_t, std::size_t> pair = std::minmax(a, b);
        First = Texts.empty() ? pair : std::min(First, pair);
        Texts.insert({a, b});
    }
};

/// Begin and end of a box, and the gap after it, in the direction in which boxes are gone through.
struct Reach {
    float From = 0.0F;
    float To = 0.0F;
    std::size_t Text = 0;
};

/// In the direction in which the texts spread more, by where they begin.
std::vector<Reach> ReachesOf(const std::vector<SeenText>& texts) {
    RectF all = texts.empty() ? RectF{} : texts.front().Box;
    for (const SeenText& text : texts) {
        all = penlode::Union(all, text.Box);
    }
    std::vector<Reach> reaches;
    reaches.reserve(texts.size());
    for (const SeenText& text : texts) {
        const RectF& box = text.Box;
        const float gap = GapOf(text);
        reaches.push_back(all.Width > all.Height ? Reach{box.X, box.Right() + gap, reaches.size()}
                                                 : Reach{box.Y, box.Bottom() + gap, reaches.size()});
    }
    std::sort(reaches.begin(), reaches.end(), [](const Reach& a, const Reach& b) { return a.From < b.From; });
    return reaches;
}

struct AllOverlaps {
    std::map<std::pair<Kind, Kind>, Overlaps> ByKinds;
    bool HaveMore = false; ///< than were looked for
};

AllOverlaps FindOverlaps(const std::vector<SeenText>& texts) {
    AllOverlaps found;
    const std::vector<Reach> reaches = ReachesOf(texts);
    std::size_t pairs = 0;
    for (std::size_t i = 0; i < reaches.size(); ++i) {
        for (std::size_t j = i + 1; j < reaches.size() && reaches[j].From < reaches[i].To; ++j) {
            if (++pairs > kMaxPairs) {
                found.HaveMore = true;
                return found;
            }
            const auto [a, b] = std::minmax(reaches[i].Text, reaches[j].Text);
            if (IsLegendName(texts[a]) == IsLegendName(texts[b]) && AreOverlapping(texts[a], texts[b])) {
                found.ByKinds[std::minmax(KindOf(texts[a]), KindOf(texts[b]))].Add(a, b);
            }
        }
    }
    return found;
}

const char* AdviceFor(TextRole role) {
    switch (role) {
    case TextRole::SliceLabel:
        return "set options/SliceLabels to \"Apart\", join small slices, move labels with labelOffsets, or "
               "take a smaller font";
    case TextRole::VerAxisLabel:
        return "set options/Labels to \"Fitted\", or take larger steps in range, a smaller font or a larger "
               "PlotHeight";
    case TextRole::HorAxisLabel:
        return "set options/Labels to \"Fitted\", or take a larger LabelStep, a smaller font, a larger "
               "PlotWidth or an Angle";
    case TextRole::GroupName:
        return "set options/Labels to \"Fitted\", or take fewer or shorter names, a smaller font, a larger "
               "PlotWidth or an Angle";
    case TextRole::BarLabel:
        return "set options/Labels to \"Fitted\" or ShowComponentValue to 0, or take a smaller font or a "
               "larger PlotWidth";
    case TextRole::LegendName:
        return "take a larger ItemDist";
    default:
        return "take a shorter text, a smaller font or a larger plot";
    }
}

std::string Names(const std::vector<SeenText>& texts, const Overlaps& overlaps) {
    return Quoted(texts[overlaps.First.first].Text.Text) + " and " +
           Quoted(texts[overlaps.First.second].Text.Text);
}

std::string OverlapText(const std::vector<SeenText>& texts, const Overlaps& overlaps, bool haveMore) {
    const TextRole first = texts[overlaps.First.first].Text.Owner.Role;
    const TextRole second = texts[overlaps.First.second].Text.Owner.Role;
    if (first == second) {
        return (haveMore ? "at least " : "") + Counted(overlaps.Texts.size(), NounOf(first)) +
               " overlap, the first are " + Names(texts, overlaps) + "; " + AdviceFor(first);
    }
    return std::string("a ") + NounOf(first) + " and a " + NounOf(second) +
           " overlap: " + Names(texts, overlaps) + (overlaps.Texts.size() > 2 ? " and others" : "") + "; " +
           AdviceFor(second);
}

/// Texts that something is true of: one warning for each kind.
class Affected {
public:
    void Add(const SeenText& text) {
        auto& [count, first] = m_found.try_emplace(KindOf(text), 0, &text).first->second;
        ++count;
    }

    template <class Tell> void ForEach(const Tell& tell) const {
        for (const auto& [kind, found] : m_found) {
            tell(found.first, *found.second);
        }
    }

private:
    std::map<Kind, std::pair<std::size_t, const SeenText*>> m_found;
};

bool Holds(const RectF& page, const RectF& box) {
    return box.X >= page.X - kHalfALetter && box.Y >= page.Y - kHalfALetter &&
           box.Right() <= page.Right() + kHalfALetter && box.Bottom() <= page.Bottom() + kHalfALetter;
}

} // namespace

void AddOverlapDoubts(const std::vector<SeenText>& texts, const PartRecords& records,
                      Diagnostics& diagnostics) {
    const AllOverlaps found = FindOverlaps(texts);
    for (const auto& [kinds, overlaps] : found.ByKinds) {
        const SeenText& second = texts[overlaps.First.second];
        diagnostics.push_back(penlode::Warning(PlaceOf(records, second.Text.Owner),
                                               OverlapText(texts, overlaps, found.HaveMore)));
    }
}

void AddLegendDoubts(const std::vector<SeenText>& texts, const std::vector<LegendBox>& legends,
                     const PartRecords& records, Diagnostics& diagnostics) {
    for (const LegendBox& legend : legends) {
        Affected covered;
        for (const SeenText& text : texts) {
            if (!IsLegendName(text) && IsOver(legend.Box, text)) {
                covered.Add(text);
            }
        }
        covered.ForEach([&](std::size_t count, const SeenText& first) {
            diagnostics.push_back(
                penlode::Warning(PlaceOf(records, {TextRole::LegendName, 0, 0, legend.Part}) + "/LegendPos",
                                 "the legend lies over " + Counted(count, NounOf(first.Text.Owner.Role)) +
                                     ", " + ToFirst(count) + Quoted(first.Text.Text) +
                                     "; take another side for it, or a smaller font"));
        });
    }
}

void AddOutsideDoubts(const std::vector<SeenText>& texts, const RectF& page, const PartRecords& records,
                      Diagnostics& diagnostics) {
    Affected outside;
    for (const SeenText& text : texts) {
        if (!Holds(page, text.Box)) {
            outside.Add(text);
        }
    }
    outside.ForEach([&](std::size_t count, const SeenText& first) {
        diagnostics.push_back(
            penlode::Warning(PlaceOf(records, first.Text.Owner),
                             CountedAre(count, NounOf(first.Text.Owner.Role)) + " outside the page, " +
                                 ToFirst(count) + Quoted(first.Text.Text) + "; " +
                                 (first.Text.Owner.Role == TextRole::BarLabel
                                      ? "\"range\": \"fit\" makes an axis that holds its bar"
                                      : AdviceFor(first.Text.Owner.Role))));
    });
}

} // namespace millichart::documents
