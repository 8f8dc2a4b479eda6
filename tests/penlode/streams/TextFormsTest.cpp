#include "penlode/streams/TextForms.h"

#include "penlode/text/StringUtil.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace penlode {
namespace {

template <class Value> std::string TextOf(Value value) {
    std::string text = "stale";
    EXPECT_TRUE(ser_evaluate(value, text, true));
    return text;
}

template <class Value> bool Parses(std::string text, const Value& expected) {
    Value value{};
    return ser_evaluate(value, text, false) && value == expected;
}

/// Refused, and the value left alone.
template <class Value> bool Refused(std::string text, Value sentinel) {
    Value value = sentinel;
    return !ser_evaluate(value, text, false) && value == sentinel;
}

TEST(TextForms, Integers) {
    EXPECT_EQ(TextOf(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_TRUE(Parses<std::int32_t>(" \t-2147483648\r\n", std::numeric_limits<std::int32_t>::min()));
    EXPECT_TRUE(Parses<std::int32_t>("2147483647", 2147483647));
    for (const char* text : {"", " ", "1.0", "+1", "0x10", "2147483648", "1 2", "1e3", "--1", "一"}) {
        EXPECT_TRUE(Refused<std::int32_t>(text, 7)) << text;
    }
}

TEST(TextForms, FloatsAreTheShortestTextThatReadsBackTheSame) {
    EXPECT_EQ(TextOf(0.1F), "0.1");
    EXPECT_EQ(TextOf(20.0F), "20");
    EXPECT_EQ(TextOf(-0.0F), "-0");
    EXPECT_TRUE(Parses(" 1e3 ", 1000.0F));
    for (const std::uint32_t bits : {0x00000001U, 0x7F7FFFFFU, 0x3EAAAAABU, 0xFF800000U, 0x80000000U}) {
        const auto value = std::bit_cast<float>(bits);
        std::string text = TextOf(value);
        float back = 1.0F;
        EXPECT_TRUE(ser_evaluate(back, text, false)) << text;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(back), bits) << text;
    }
    std::string nan = TextOf(std::numeric_limits<float>::quiet_NaN());
    float value = 0.0F;
    EXPECT_TRUE(ser_evaluate(value, nan, false));
    EXPECT_TRUE(std::isnan(value));
    for (const char* text : {"", "+1", "1,5", "1.5mm", "1e39", "-1e39", "0x1p3", "."}) {
        EXPECT_TRUE(Refused(text, 7.0F)) << text;
    }
}

TEST(TextForms, ColoursHaveTwoSpellings) {
    EXPECT_EQ(TextOf(Color{0x00ABCDEFU}), "#00ABCDEF");
    EXPECT_TRUE(Parses(" #00abCDef ", Color{0x00ABCDEFU}));
    EXPECT_TRUE(Parses("#336699", Color{0xFF336699U}));
    for (const char* text : {"", "#", "336699", "FF336699", "#33669", "#3366999", "#GG336699", "#-3669900",
                             "#33 699", "#FF3366990", "red"}) {
        EXPECT_TRUE(Refused(text, kWhite)) << text;
    }
}

TEST(TextForms, PensNameTheirDash) {
    EXPECT_EQ(TextOf(Owned<Pen>(Pen(kBlack, 0.1F))), "#FF000000 0.1 solid");
    EXPECT_EQ(TextOf(Owned<Pen>(Pen(Color{0x80336699U}, 2.5F, DashStyle::DashDotDot))),
              "#80336699 2.5 dash-dot-dot");
    EXPECT_EQ(TextOf(Owned<Pen>()), "none");
    EXPECT_TRUE(Parses("  #336699   0.1\t", Owned<Pen>(Pen(Color{0xFF336699U}, 0.1F))));
    for (int dash = 0; dash <= 5; ++dash) {
        const Owned<Pen> pen(Pen(kWhite, 0.0F, static_cast<DashStyle>(dash)));
        EXPECT_TRUE(Parses(TextOf(pen), pen)) << TextOf(pen);
    }
    const Owned<Pen> sentinel(Pen(kWhite, 9.0F));
    for (const char* text : {"", "#FF000000", "0.1", "#FF000000 thick", "#FF000000 0.1 wavy",
                             "#FF000000 0.1 dash dot", "#FF000000 0.1 DASH", "none 1"}) {
        EXPECT_TRUE(Refused(text, sentinel)) << text;
    }
    Owned<Pen> cleared = sentinel;
    std::string none = " none ";
    EXPECT_TRUE(ser_evaluate(cleared, none, false));
    EXPECT_FALSE(cleared);
}

TEST(TextForms, FontFamiliesMayHoldBlanksDigitsAndStyleWords) {
    const std::int32_t all =
        FontStyle::Bold | FontStyle::Italic | FontStyle::Underline | FontStyle::Strikeout;
    const Font fonts[] = {{L"宋体", 4.0F, FontStyle::Regular},
                          {L"Times New Roman", 4.5F, FontStyle::Bold},
                          {L"Aharoni bold", 3.0F, FontStyle::Regular},
                          {L"Museo 500", 3.0F, FontStyle::Italic},
                          {L"none", 0.1F, all},
                          {L"两  个", -1.0F, FontStyle::Underline}};
    for (const Font& font : fonts) {
        const std::string text = TextOf(Owned<Font>(font));
        EXPECT_TRUE(Parses(text, Owned<Font>(font))) << CStringUtil::AnsiToUtf8(text);
    }
    EXPECT_EQ(CStringUtil::AnsiToUtf8(TextOf(Owned<Font>(Font{L"宋体", 4.0F, all}))),
              "宋体 4 bold italic underline strikeout");
    EXPECT_TRUE(Parses(" Arial 4 italic bold ", Owned<Font>(Font{L"Arial", 4.0F, 3})));
}

TEST(TextForms, FontsThatTextCannotExpress) {
    EXPECT_EQ(TextOf(Owned<Font>(Font{L"", 4.0F, 0})), "sans-serif 4");
    EXPECT_EQ(TextOf(Owned<Font>(Font{L" \t", 4.0F, 0})), "sans-serif 4");
    EXPECT_EQ(TextOf(Owned<Font>(Font{L"Arial", 4.0F, 0x100 | FontStyle::Bold})), "Arial 4 bold");
    EXPECT_EQ(TextOf(Owned<Font>()), "none");
    EXPECT_TRUE(Parses("none", Owned<Font>()));
    const Owned<Font> sentinel(Font{L"kept", 1.0F, 0});
    for (const char* text : {"", "Arial", "4", " 4 bold", "Arial bold", "Arial 4 heavy", "Arial 4mm"}) {
        EXPECT_TRUE(Refused(text, sentinel)) << text;
    }
}

TEST(TextForms, VectorsAreFloatsBetweenBlanks) {
    std::stringstream stream;
    for (float value : {0.1F, -2.0F, 1e20F}) {
        EXPECT_TRUE(ser_evaluate_vector(value, stream, true));
    }
    EXPECT_EQ(stream.str(), "0.1 -2 1e+20 ");
    stream << "x 3";
    float value = 0.0F;
    for (const float expected : {0.1F, -2.0F, 1e20F}) {
        EXPECT_TRUE(ser_evaluate_vector(value, stream, false));
        EXPECT_EQ(value, expected);
    }
    EXPECT_FALSE(ser_evaluate_vector(value, stream, false));
    EXPECT_EQ(value, 1e20F);
    EXPECT_TRUE(ser_evaluate_vector(value, stream, false));
    EXPECT_FALSE(ser_evaluate_vector(value, stream, false));
    EXPECT_EQ(value, 3.0F);
}

} // namespace
} // namespace penlode
