#include "penlode/text/StringUtil.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#ifdef __linux__
#include <iconv.h>
#endif

namespace penlode {
namespace {

constexpr char32_t kLastCodePoint = 0x10FFFF;

/// Written out here, so that the round trips do not lean on the code under test.
void AddWide(std::wstring& text, char32_t codePoint) {
    if (sizeof(wchar_t) == 2 && codePoint >= 0x10000) {
        text.push_back(static_cast<wchar_t>(0xD7C0 + (codePoint >> 10)));
        text.push_back(static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF)));
    } else {
        text.push_back(static_cast<wchar_t>(codePoint));
    }
}

std::wstring EveryScalarValue() {
    std::wstring text;
    for (char32_t codePoint = 0; codePoint <= kLastCodePoint; ++codePoint) {
        if (codePoint < 0xD800 || codePoint > 0xDFFF) {
            AddWide(text, codePoint);
        }
    }
    return text;
}

struct Spelling {
    std::string Narrow;
    std::wstring Wide;
    std::string Utf8;
};

const std::vector<Spelling>& Spellings() {
    using namespace std::string_literals;
    static const std::vector<Spelling> spellings{
        {"", L"", ""},
        {"a\0b"s, L"a\0b"s, "a\0b"s},
        {"\xD7\xD6\xCC\xE5", L"字体", "\xE5\xAD\x97\xE4\xBD\x93"},
        {"\xC9\xEE\xB6\xC8(m)", L"深度(m)", "\xE6\xB7\xB1\xE5\xBA\xA6(m)"},
        {"\xBA\xC1\xC3\xD7 \xA1\xE6", L"毫米 ℃", "\xE6\xAF\xAB\xE7\xB1\xB3 \xE2\x84\x83"},
        {"\x81\x40\xFE\xFE", L"\u4E02\uE4C5", "\xE4\xB8\x82\xEE\x93\x85"},
        {"\xA2\xE3", L"€", "\xE2\x82\xAC"},
        {"\x81\x30\x81\x30", L"\u0080", "\xC2\x80"},
        {"\x81\x30\x85\x35", L"²", "\xC2\xB2"},
        {"\x82\x35\x8F\x33", L"\u9FA6", "\xE9\xBE\xA6"},
        {"\x84\x31\xA4\x39", L"\uFFFF", "\xEF\xBF\xBF"},
        {"\x90\x30\x81\x30", L"\U00010000", "\xF0\x90\x80\x80"},
        {"\x94\x39\xFC\x36", L"\U0001F600", "\xF0\x9F\x98\x80"},
        {"\xE3\x32\x9A\x35", L"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
    };
    return spellings;
}

TEST(StringUtil, KnownTextsInAllThreeEncodings) {
    for (const Spelling& text : Spellings()) {
        EXPECT_EQ(CStringUtil::AnsiToWideString(text.Narrow), text.Wide);
        EXPECT_EQ(CStringUtil::WideToAnsiString(text.Wide), text.Narrow);
        EXPECT_EQ(CStringUtil::AnsiToUtf8(text.Narrow), text.Utf8);
        EXPECT_EQ(CStringUtil::Utf8ToAnsi(text.Utf8), text.Narrow);
        EXPECT_EQ(CStringUtil::Utf8ToWideString(text.Utf8), text.Wide);
        EXPECT_EQ(CStringUtil::WideToUtf8(text.Wide), text.Utf8);
    }
}

TEST(StringUtil, EveryScalarValueSurvivesEveryWay) {
    const std::wstring wide = EveryScalarValue();
    const std::string utf8 = CStringUtil::WideToUtf8(wide);
    const std::string narrow = CStringUtil::WideToAnsiString(wide);
    EXPECT_EQ(utf8.size(), 0x80U + 0x780U * 2 + 0xF000U * 3 + 0x100000U * 4);
    EXPECT_EQ(narrow.size(), 0x80U + 23940U * 2 + (39420U + 0x100000U) * 4);
    EXPECT_TRUE(CStringUtil::AnsiToWideString(narrow) == wide);
    EXPECT_TRUE(CStringUtil::Utf8ToWideString(utf8) == wide);
    EXPECT_TRUE(CStringUtil::Utf8ToAnsi(utf8) == narrow);
    EXPECT_TRUE(CStringUtil::AnsiToUtf8(narrow) == utf8);
}

/// GB 18030-2022 moved 18 characters out of private use and left 6 in it.
TEST(StringUtil, FollowsTheEditionOf2022) {
    EXPECT_EQ(CStringUtil::AnsiToWideString("\xA6\xD9\xA6\xDA\xA6\xDB\xA6\xF3\xFE\x59\xFE\xA0\xA8\xBC"),
              L"\uFE10\uFE12\uFE11\uFE19\u9FB4\u9FBB\u1E3F");
    EXPECT_EQ(
        CStringUtil::AnsiToWideString("\x84\x31\x82\x36\x84\x31\x82\x38\x82\x35\x90\x37\x81\x35\xF4\x37"),
        L"\uE78D\uE78E\uE81E\uE7C7");
    EXPECT_EQ(CStringUtil::AnsiToWideString("\xFE\x51\xFE\x52\xFE\x53\xFE\x6C\xFE\x76\xFE\x91"),
              L"\uE816\uE817\uE818\uE831\uE83B\uE855");
    EXPECT_EQ(CStringUtil::AnsiToWideString("\x95\x32\x90\x31"), L"\U00020087");
}

TEST(StringUtil, LoneByte80IsTheEuroSign) {
    EXPECT_EQ(CStringUtil::AnsiToWideString("5\x80"), L"5€");
    EXPECT_EQ(CStringUtil::AnsiToUtf8("\x80\x80"), "\xE2\x82\xAC\xE2\x82\xAC");
    EXPECT_EQ(CStringUtil::AnsiToWideString("\x81\x80"), L"\u4E90"); // here it is a second byte
}

using BrokenTexts = std::vector<std::pair<std::string, std::wstring>>;

TEST(StringUtil, BrokenNarrowBytesAreReplacedOneByOne) {
    const BrokenTexts cases{
        // A lead byte without a second one; what stands in its place survives.
        {"a\xD7", L"a\uFFFD"},
        {"\xD7\x20x", L"\uFFFD x"},
        {"\xD7\x7F", L"\uFFFD\x7F"},
        {"\xFF\xD7\xFF\xD7\xD6", L"\uFFFD\uFFFD\uFFFD字"},
        // Four-byte forms cut short.
        {"\x81\x30", L"\uFFFD0"},
        {"\x81\x30\x81", L"\uFFFD0\uFFFD"},
        {"\x81\x30\x41\x39", L"\uFFFD0A9"},
        {"\x81\x30\x81\x40", L"\uFFFD0\u4E02"},
        // Forms that stand for nothing: just past U+FFFF, before U+10000, past U+10FFFF, the last of all.
        {"\x84\x31\xA5\x30", L"\uFFFD1\uFFFD0"},
        {"\x8F\x39\xFE\x39", L"\uFFFD9\uFFFD9"},
        {"\xE3\x32\x9A\x36", L"\uFFFD2\uFFFD6"},
        {"\xFE\x39\xFE\x39", L"\uFFFD9\uFFFD9"},
        // The replacement character itself is not broken.
        {"\x84\x31\xA4\x37", L"\uFFFD"},
    };
    for (const auto& [narrow, wide] : cases) {
        EXPECT_EQ(CStringUtil::AnsiToWideString(narrow), wide) << testing::PrintToString(narrow);
        EXPECT_EQ(CStringUtil::AnsiToUtf8(narrow), CStringUtil::WideToUtf8(wide));
    }
}

TEST(StringUtil, BrokenUtf8IsReplacedByMaximalSubparts) {
    const BrokenTexts cases{
        // Continuations of nothing, and leads that no form has.
        {"\x80\xBF", L"\uFFFD\uFFFD"},
        {"\xF5\x80\xFE\xFF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Overlong.
        {"\xC0\xAF\xC1\xBF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xE0\x80\xAF", L"\uFFFD\uFFFD\uFFFD"},
        {"\xE0\x9F\xBF", L"\uFFFD\uFFFD\uFFFD"},
        {"\xF0\x8F\xBF\xBF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Surrogates, and what lies past U+10FFFF.
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},
        {"\xED\xBF\xBF", L"\uFFFD\uFFFD\uFFFD"},
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Cut short by the end, by ASCII, by another character.
        {"\xC2", L"\uFFFD"},
        {"\xE5\xAD", L"\uFFFD"},
        {"\xF0\x9F\x98", L"\uFFFD"},
        {"\xE5\xAD\x41", L"\uFFFDA"},
        {"\xF0\x9F\xE5\xAD\x97", L"\uFFFD字"},
        {"\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63", L"\uFFFD\uFFFD\uFFFDb\uFFFDc"},
        // A byte order mark is a character like any other.
        {"\xEF\xBB\xBF", L"\uFEFF"},
    };
    for (const auto& [utf8, wide] : cases) {
        EXPECT_EQ(CStringUtil::Utf8ToWideString(utf8), wide) << testing::PrintToString(utf8);
        EXPECT_EQ(CStringUtil::Utf8ToAnsi(utf8), CStringUtil::WideToAnsiString(wide));
    }
}

TEST(StringUtil, WideUnitsThatAreNoCharactersAreReplaced) {
    std::vector<std::wstring> cases{{L'a', wchar_t(0xD800), L'x'}, {L'a', wchar_t(0xDFFF), L'x'}};
    if constexpr (sizeof(wchar_t) == 2) {
        cases.push_back({L'a', wchar_t(0xDBFF), L'x'});
    } else {
        cases.push_back({L'a', static_cast<wchar_t>(0x110000), L'x'});
        cases.push_back({L'a', static_cast<wchar_t>(0xFFFFFFFF), L'x'});
    }
    for (const std::wstring& text : cases) {
        EXPECT_EQ(CStringUtil::WideToUtf8(text), "a\xEF\xBF\xBDx");
        EXPECT_EQ(CStringUtil::WideToAnsiString(text), "a\x84\x31\xA4\x37x");
    }
    EXPECT_EQ(CStringUtil::WideToUtf8(std::wstring{wchar_t(0xDC00), wchar_t(0xD800)}),
              "\xEF\xBF\xBD\xEF\xBF\xBD");
}

/// Random bytes that fill their allocation exactly, so that a sanitizer sees any reading past the end.
TEST(StringUtil, AnsiCharLengthWalksAnyTextCharacterByCharacter) {
    std::uint32_t state = 1;
    const auto next = [&state] { return (state = state * 1664525 + 1013904223) >> 24; };
    for (int round = 0; round < 2000; ++round) {
        std::vector<char> bytes(next() % 24 + 1);
        for (char& byte : bytes) {
            byte = static_cast<char>(next() % 3 == 0 ? 0x30 + next() % 10 : next());
        }
        const std::string_view text(bytes.data(), bytes.size());
        std::wstring pieces;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t length = CStringUtil::AnsiCharLength(text, at);
            ASSERT_TRUE((length == 1 || length == 2 || length == 4) && length <= text.size() - at);
            pieces += CStringUtil::AnsiToWideString(std::string(text.substr(at, length)));
            at += length;
        }
        ASSERT_EQ(pieces, CStringUtil::AnsiToWideString(std::string(text)));
        ASSERT_EQ(CStringUtil::Utf8ToWideString(text) + L'.',
                  CStringUtil::Utf8ToWideString(std::string(text) + '.'));
    }
}

TEST(StringUtil, AnsiCharLengthIsNothingBehindTheEnd) {
    EXPECT_EQ(CStringUtil::AnsiCharLength("\xD5\x5C", 2), 0U);
    EXPECT_EQ(CStringUtil::AnsiCharLength("\xD5\x5C", 7), 0U);
}

TEST(StringUtil, MeasuresTheWidestLineAndAllHeights) {
    const Font font{L"Arial", 4.0F};
    EXPECT_EQ(CStringUtil::MeasureString("12.5", &font), (SizeF{8, 5}));
    EXPECT_EQ(CStringUtil::MeasureString("\xC9\xEE\xB6\xC8(m)", &font), (SizeF{14, 5}));
    EXPECT_EQ(CStringUtil::MeasureWideString(L"ab\n深度\r\nc", &font), (SizeF{8, 15}));
    EXPECT_EQ(CStringUtil::MeasureWideString(L"a\n", &font), (SizeF{2, 10}));
    EXPECT_EQ(CStringUtil::MeasureString("", &font), SizeF{});
    EXPECT_EQ(CStringUtil::MeasureString("a", nullptr), SizeF{});
    EXPECT_EQ(CStringUtil::MeasureWideString(L"", nullptr), SizeF{});
}

#ifdef __GLIBC__

/// The C library's reading of one character's bytes; 0 if it refuses them.
class SystemDecoder {
public:
    SystemDecoder() : m_converter(iconv_open("UTF-32LE", "GB18030")) {}

    SystemDecoder(const SystemDecoder&) = delete;
    SystemDecoder& operator=(const SystemDecoder&) = delete;

    ~SystemDecoder() {
        if (Works()) {
            iconv_close(m_converter);
        }
    }

    bool Works() const { return m_converter != reinterpret_cast<iconv_t>(-1); }

    char32_t Decode(std::string bytes) const {
        std::array<unsigned char, 8> out{};
        char* from = bytes.data();
        char* to = reinterpret_cast<char*>(out.data());
        std::size_t fromLeft = bytes.size();
        std::size_t toLeft = out.size();
        iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
        const bool failed =
            iconv(m_converter, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1);
        return failed || toLeft != 4 ? 0 : char32_t(out[0] | out[1] << 8 | out[2] << 16);
    }

private:
    iconv_t m_converter;
};

/// Editions of the C library before that of 2022 read these pairs as U+20087 and so on.
bool MovedIn2022(const std::string& pair) {
    return pair == "\xFE\x51" || pair == "\xFE\x52" || pair == "\xFE\x53" || pair == "\xFE\x6C" ||
           pair == "\xFE\x76" || pair == "\xFE\x91";
}

TEST(StringUtil, PairsAgreeWithTheSystem) {
    const SystemDecoder system;
    if (!system.Works()) {
        GTEST_SKIP() << "no GB18030 converter is installed";
    }
    int compared = 0;
    for (int lead = 0x81; lead <= 0xFE; ++lead) {
        for (int trail = 0x40; trail <= 0xFE; ++trail) {
            const std::string pair{static_cast<char>(lead), static_cast<char>(trail)};
            if (trail == 0x7F || MovedIn2022(pair)) {
                continue;
            }
            std::wstring expected;
            AddWide(expected, system.Decode(pair));
            ASSERT_EQ(CStringUtil::AnsiToWideString(pair), expected) << std::hex << lead << ' ' << trail;
            ASSERT_EQ(CStringUtil::WideToAnsiString(expected), pair);
            ++compared;
        }
    }
    EXPECT_EQ(compared, 23940 - 6);
}

/// The system may know an older edition, in which 18 of these forms mean nothing yet.
TEST(StringUtil, FourByteFormsAgreeWithTheSystem) {
    const SystemDecoder system;
    if (!system.Works()) {
        GTEST_SKIP() << "no GB18030 converter is installed";
    }
    int refused = 0;
    for (int number = 0; number < 39420; ++number) {
        const std::string form{
            static_cast<char>(0x81 + number / 12600), static_cast<char>(0x30 + number / 1260 % 10),
            static_cast<char>(0x81 + number / 10 % 126), static_cast<char>(0x30 + number % 10)};
        const char32_t character = system.Decode(form);
        if (character == 0) {
            ++refused;
            continue;
        }
        std::wstring expected;
        AddWide(expected, character);
        ASSERT_EQ(CStringUtil::AnsiToWideString(form), expected) << number;
    }
    EXPECT_LE(refused, 18);
}

#endif

} // namespace
} // namespace penlode
