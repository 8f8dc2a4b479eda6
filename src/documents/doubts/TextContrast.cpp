#include "documents/doubts/TextContrast.h"

#include "documents/Fields.h"
#include "foundation/Light.h"
#include "penlode/streams/TextForms.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Color;

/// Of the lighter to the darker luminance; below it letters are hardly there.
constexpr double kReadable = 2.0;
/// So many texts of a chart are looked at: where no one of them can be read, that is found long before.
constexpr std::size_t kMaxTexts = 2000;

std::string ColorText(Color color) {
    std::string text;
    penlode::ser_evaluate(color, text, true);
    return text;
}

/// A text's colour and that of its ground where it cannot be read, in most of five points along its middle.
struct Unreadable {
    bool Is = false;
    Color Text;
    Color Ground;
    bool IsBoxed = false;
};

Unreadable Look(const SeenText& text, const Ground& ground) {
    const TextProperty* const look = text.Text.Property;
    Unreadable found{false, text.Text.Color, {}, false};
    found.IsBoxed = look != nullptr && look->DrawBackGround != 0;
    int lost = 0;
    for (const float across : {0.1F, 0.3F, 0.5F, 0.7F, 0.9F}) {
        const Color below = ColorAt(ground, text.At(across, 0.5F));
        const Color under = found.IsBoxed ? Over(look->BkColor, below) : below;
        if (ContrastOf(Over(found.Text, under), under) < kReadable) {
            found.Ground = under;
            ++lost;
        }
    }
    found.Is = lost > 2;
    return found;
}

struct LostTexts {
    std::size_t Count = 0;
    const SeenText* First = nullptr;
    Unreadable Why;
};

std::string LostText(const LostTexts& lost) {
    const bool isLegend = lost.First->Text.Owner.Role == TextRole::LegendName;
    return Counted(lost.Count, NounOf(lost.First->Text.Owner.Role)) + " cannot be read, " +
           ToFirst(lost.Count) + Quoted(lost.First->Text.Text) + ": " + ColorText(lost.Why.Text) + " on " +
           ColorText(lost.Why.Ground) + "; take another " +
           (isLegend           ? "BackgroundColor"
            : lost.Why.IsBoxed ? "BkColor"
                               : "TextColor");
}

} // namespace

void AddContrastDoubts(const std::vector<SeenText>& texts, const Ground& ground, const PartRecords& records,
                       Diagnostics& diagnostics) {
    std::map<std::pair<std::size_t, TextRole>, LostTexts> lost;
    for (std::size_t i = 0; i < std::min(texts.size(), kMaxTexts); ++i) {
        if (const Unreadable found = Look(texts[i], ground); found.Is) {
            LostTexts& kind = lost[{texts[i].Text.Owner.Part, texts[i].Text.Owner.Role}];
            kind = kind.Count == 0 ? LostTexts{1, &texts[i], found}
                                   : LostTexts{kind.Count + 1, kind.First, kind.Why};
        }
    }
    for (const auto& [kind, found] : lost) {
        diagnostics.push_back(penlode::Warning(PlaceOf(records, found.First->Text.Owner), LostText(found)));
    }
}

} // namespace millichart::documents
