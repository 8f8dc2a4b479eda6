#include "penlode/text/Gb18030.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace penlode {
namespace {

/// Four-byte forms from number `First` on are the characters from `Character` on, until the next run.
struct FourByteRun {
    std::uint16_t First;
    char16_t Character;
};

#include "penlode/text/Gb18030Table.inc"

constexpr char32_t kEuro = 0x20AC;
constexpr std::uint32_t kTrailsPerLead = 190;
constexpr std::uint32_t kPairCount = static_cast<std::uint32_t>(kPairs.size());
constexpr std::uint32_t kFourByteCount = 39420;       // of the Basic Multilingual Plane
constexpr std::uint32_t kFirstSupplementary = 189000; // the number of 90308130, U+10000
constexpr std::uint32_t kSupplementaryCount = 0x100000;

constexpr bool IsLead(std::uint8_t byte) {
    return byte >= 0x81 && byte <= 0xFE;
}

constexpr bool IsTrail(std::uint8_t byte) {
    return byte >= 0x40 && byte <= 0xFE && byte != 0x7F;
}

constexpr bool IsDigit(std::uint8_t byte) {
    return byte >= 0x30 && byte <= 0x39;
}

/// The byte at `position`; past the end a zero, which continues no character.
std::uint8_t ByteAt(std::string_view text, std::size_t position) {
    return position < text.size() ? static_cast<std::uint8_t>(text[position]) : std::uint8_t{0};
}

char32_t PairCharacter(std::uint32_t lead, std::uint32_t trail) {
    return kPairs[(lead - 0x81) * kTrailsPerLead + trail - (trail < 0x7F ? 0x40 : 0x41)];
}

/// The character of the four-byte form with this number, counted from 81308130; 0 where there is none.
char32_t FourByteCharacter(std::uint32_t number) {
    if (number < kFourByteCount) {
        const auto next =
            std::upper_bound(kFourByteRuns.begin(), kFourByteRuns.end(), number,
                             [](std::uint32_t wanted, const FourByteRun& run) { return wanted < run.First; });
        const FourByteRun& run = *std::prev(next);
        return run.Character + (number - run.First);
    }
    const bool supplementary =
        number >= kFirstSupplementary && number - kFirstSupplementary < kSupplementaryCount;
    return supplementary ? 0x10000 + (number - kFirstSupplementary) : 0;
}

/// Where each character of the Basic Multilingual Plane stands: below kPairCount the number of a pair, above
/// it that of a four-byte form. ASCII and surrogates have no meaningful entry.
class Places {
public:
    Places() {
        for (std::uint32_t pair = 0; pair < kPairCount; ++pair) {
            m_places[kPairs[pair]] = static_cast<std::uint16_t>(pair);
        }
        for (std::uint32_t number = 0; number < kFourByteCount; ++number) {
            m_places[FourByteCharacter(number)] = static_cast<std::uint16_t>(kPairCount + number);
        }
    }

    std::uint32_t Of(char32_t character) const { return m_places[character]; }

private:
    std::array<std::uint16_t, 0x10000> m_places{};
};

const Places& ThePlaces() {
    static const Places places;
    return places;
}

void AppendByte(std::string& text, std::uint32_t byte) {
    text.push_back(static_cast<char>(static_cast<std::uint8_t>(byte)));
}

void AppendPair(std::string& text, std::uint32_t pair) {
    const std::uint32_t trail = pair % kTrailsPerLead;
    AppendByte(text, 0x81 + pair / kTrailsPerLead);
    AppendByte(text, trail + (trail < 0x3F ? 0x40 : 0x41));
}

void AppendFourBytes(std::string& text, std::uint32_t number) {
    AppendByte(text, 0x81 + number / 12600);
    AppendByte(text, 0x30 + number / 1260 % 10);
    AppendByte(text, 0x81 + number / 10 % 126);
    AppendByte(text, 0x30 + number % 10);
}

} // namespace

DecodedCharacter DecodeGb18030(std::string_view text, std::size_t position) {
    const std::uint8_t first = ByteAt(text, position);
    if (first <= 0x80) {
        return {first == 0x80 ? kEuro : first, 1};
    }
    const std::uint8_t second = ByteAt(text, position + 1);
    if (!IsLead(first)) {
        return {};
    }
    if (IsTrail(second)) {
        return {PairCharacter(first, second), 2};
    }
    const std::uint8_t third = ByteAt(text, position + 2);
    const std::uint8_t fourth = ByteAt(text, position + 3);
    if (!IsDigit(second) || !IsLead(third) || !IsDigit(fourth)) {
        return {};
    }
    const char32_t character = FourByteCharacter((first - 0x81U) * 12600 + (second - 0x30U) * 1260 +
                                                 (third - 0x81U) * 10 + (fourth - 0x30U));
    return character != 0 ? DecodedCharacter{character, 4} : DecodedCharacter{};
}

void AppendGb18030(std::string& text, char32_t codePoint) {
    if (codePoint < 0x80) {
        AppendByte(text, codePoint);
        return;
    }
    if (codePoint >= 0x10000) {
        AppendFourBytes(text, kFirstSupplementary + (codePoint - 0x10000));
        return;
    }
    const std::uint32_t place = ThePlaces().Of(codePoint);
    if (place < kPairCount) {
        AppendPair(text, place);
    } else {
        AppendFourBytes(text, place - kPairCount);
    }
}

} // namespace penlode
