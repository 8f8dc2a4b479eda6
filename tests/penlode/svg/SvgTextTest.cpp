#include "penlode/svg/Body.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <span>

using namespace penlode;

namespace {

const SolidBrush kBrush{kBlack};
const Font kArial{L"Arial", 4.0F};

const std::string kArialText = " lengthAdjust=\"spacingAndGlyphs\" font-family=\"'Arial', sans-serif\" ";

/// The document of one text at (10, 20).
std::string Drawn(const wchar_t* text, const Font& font, const SvgOptions& options = {}) {
    CSvgEngine engine({80, 60}, options);
    engine.DrawString(text, -1, &font, PointF{10, 20}, &kBrush);
    return Body(engine);
}

} // namespace

TEST(SvgText, WritesEachLineAlignedInItsBox) {
    CSvgEngine engine({80, 60});
    const StringFormat centered{0, 0, StringAlignment::Center, StringAlignment::Center};
    EXPECT_EQ(engine.DrawString(L"", -1, &kArial, PointF{}, &kBrush), Status::Ok);
    engine.DrawString(L"ab\r\n\ncdef", -1, &kArial, RectF{10, 20, 20, 15}, &centered, &kBrush);
    EXPECT_EQ(Body(engine), "<text x=\"18\" y=\"24\" textLength=\"4\"" + kArialText +
                                "font-size=\"4\" fill=\"#000000\">ab</text>\n"
                                "<text x=\"16\" y=\"34\" textLength=\"8\"" +
                                kArialText + "font-size=\"4\" fill=\"#000000\">cdef</text>\n");
}

TEST(SvgText, EscapesWhatXmlReservesOrForbids) {
    const std::string text = Drawn(L"<a&\"b\">\x01\xFFFF", kArial);
    EXPECT_NE(text.find(">&lt;a&amp;&quot;b&quot;&gt;\xEF\xBF\xBD\xEF\xBF\xBD</text>"), std::string::npos)
        << text;
    const std::string family = Drawn(L"a", Font{L"O'Hara \\ \"x\"", 4.0F});
    EXPECT_NE(family.find("font-family=\"'O\\'Hara \\\\ &quot;x&quot;', sans-serif\""), std::string::npos)
        << family;
}

TEST(SvgText, KeepsBlanksThatAViewerWouldDrop) {
    for (const wchar_t* text : {L" a", L"a ", L"a  b", L"a\tb"}) {
        EXPECT_NE(Drawn(text, kArial).find(" xml:space=\"preserve\""), std::string::npos);
    }
    EXPECT_EQ(Drawn(L"a b", kArial).find("xml:space"), std::string::npos);
}

TEST(SvgText, TellsTheLanguageOfChinese) {
    const std::pair<std::uint32_t, std::uint32_t> blocks[] = {
        {0x2E80, 0x9FFF}, {0xF900, 0xFAFF}, {0xFE30, 0xFE4F}, {0xFF00, 0xFFEF}, {0x20000, 0x3FFFF}};
    const auto isTagged = [](std::uint32_t c) {
        const wchar_t text[] = {L'a', static_cast<wchar_t>(c), L'\0'};
        return Drawn(text, kArial).find(" xml:lang=\"zh-CN\"") != std::string::npos;
    };
    for (const auto& [first, last] : std::span(blocks).first(sizeof(wchar_t) == 2 ? 4 : 5)) {
        EXPECT_TRUE(isTagged(first) && isTagged(last)) << first;
        EXPECT_FALSE(isTagged(first - 1) || isTagged(last + 1)) << first;
    }
}

TEST(SvgText, NamesStyleAndAGenericFamily) {
    const auto holds = [](const Font& font, const char* attribute) {
        return Drawn(L"a", font).find(attribute) != std::string::npos;
    };
    EXPECT_TRUE(holds({L"Arial", 4.0F, FontStyle::Underline | FontStyle::Strikeout},
                      " text-decoration=\"underline line-through\""));
    EXPECT_TRUE(holds({L"Courier New", 4.0F}, "=\"'Courier New', monospace\""));
    EXPECT_TRUE(holds({L"Times New Roman", 4.0F}, "=\"'Times New Roman', serif\""));
    EXPECT_TRUE(holds({L"Noto Sans CJK SC", 4.0F}, "=\"'Noto Sans CJK SC', sans-serif\""));
    EXPECT_TRUE(holds({L"serif", 4.0F}, "=\"serif\""));
    EXPECT_TRUE(holds({L"", 4.0F}, "=\"sans-serif\""));
}

TEST(SvgText, OutlinesAreLabelledWithTheText) {
    SvgOptions options;
    options.TextAsOutlines = true;
    EXPECT_EQ(Drawn(L"& 1\n ", kArial, options),
              "<path role=\"img\" aria-label=\"&amp; 1\" d=\"M10 22 L12 22 L12 24 L10 24 Z "
              "M14 22 L16 22 L16 24 L14 24 Z\" fill-rule=\"nonzero\" fill=\"#000000\"/>\n");
}

TEST(SvgText, EndsLongLines) {
    const std::wstring line(9000, L'~');
    const std::string text = Drawn((line + L"\nb").c_str(), kArial);
    EXPECT_EQ(std::count(text.begin(), text.end(), '~'), 8192);
    EXPECT_NE(text.find(">b</text>"), std::string::npos);
}
