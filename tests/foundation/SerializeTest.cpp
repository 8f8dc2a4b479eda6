#include "foundation/PropSerialize.h"
#include "foundation/SerializeFrame.h"
#include "penlode/streams/BinarySerialize.h"
#include "penlode/streams/JsonSerializeStream.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;

TEST(Serialize, ACountThatNothingFollowsTakesNoMemory) {
    std::vector<float> widths{1.0F};
    std::vector<std::int32_t> styles{1};
    for (const std::int32_t count : {std::numeric_limits<std::int32_t>::max(), -1}) {
        CBinarySerialize out;
        out.Write(count);
        CBinarySerialize in(out.Bytes());
        PositionalRecord record(in);
        record(widths, styles);
        EXPECT_TRUE(in.Failed() && widths.empty() && styles.empty()) << count;
    }
}

TEST(Serialize, NumbersThatAreNotFiniteKeepTheDefault) {
    CJsonSerializeStream stream(R"({"L": {"ItemDist": "nan", "PenEdge": "#FF000000 inf", "Font": "Arial nan"},
        "R": {"Widths": ["1", "-inf", "2"]}})");
    LegendProp legend = SomeLegend();
    CLegendPropSerialize::SerializeLegendProp(stream, legend, "L");
    EXPECT_EQ(legend, LegendProp{});
    std::vector<float> widths;
    KeyedRecord(stream, "R").Field("Widths", widths, 0.5F);
    EXPECT_EQ(widths, (std::vector{1.0F, 0.5F, 2.0F}));
    std::string refused;
    for (const auto& problem : stream.Problems()) {
        refused += problem.Kind == penlode::DiagnosticKind::Refused ? problem.Place + " " : "";
    }
    EXPECT_EQ(refused, "L/ItemDist L/PenEdge L/Font R/Widths/1 ");
}

TEST(Serialize, WhatMeansNothingIsRefusedWithItsPlace) {
    CJsonSerializeStream stream(R"({"L": {"ShowLegend": "yes", "LegendPos": "rightcenter", "ItemDist": "1,5",
        "BackgroundColor": "blue", "PenEdge": "#000000 thick", "Font": "4", "ShowEdge": true}})");
    LegendProp legend = SomeLegend();
    CLegendPropSerialize::SerializeLegendProp(stream, legend, "L");
    EXPECT_EQ(legend, LegendProp{});
    std::string told;
    for (const auto& problem : stream.Problems()) {
        if (problem.Kind == penlode::DiagnosticKind::Refused) {
            told += problem.Place + " | " + problem.Found + " | " + problem.Expected + "\n";
        }
    }
    EXPECT_EQ(
        told,
        "L/ShowLegend | \"yes\" | a whole number\n"
        "L/LegendPos | \"rightcenter\" | one of \"LeftTop\", \"LeftCenter\", \"LeftBottom\", \"RightTop\", "
        "\"RightCenter\", \"RightBottom\", \"TopLeft\", \"TopCenter\", \"TopRight\", \"BottomLeft\", "
        "\"BottomCenter\", \"BottomRight\"\n"
        "L/BackgroundColor | \"blue\" | a colour such as #FF336699\n"
        "L/ItemDist | \"1,5\" | a number\n"
        "L/PenEdge | \"#000000 thick\" | a pen such as \"#FF000000 0.1 dash\"\n"
        "L/Font | \"4\" | a font such as \"Arial 4 bold\"\n");
}

TEST(Serialize, JoinedTextsSplitByWholeCharacters) {
    using Texts = std::vector<std::string>;
    EXPECT_EQ(SplitJoinedTexts("A||B||"), (Texts{"A", "B"}));
    EXPECT_EQ(SplitJoinedTexts("A||B"), (Texts{"A"}));
    EXPECT_EQ(SplitJoinedTexts("||||"), (Texts{"", ""}));
    EXPECT_EQ(SplitJoinedTexts(""), Texts{});
    EXPECT_EQ(SplitJoinedTexts("A|||B||"), (Texts{"A", "|B"}));
    // A stray lead byte at a name's end must not swallow the separator behind it.
    std::vector<std::string> names{"A\x81", "B"};
    CJsonSerializeStream stream;
    {
        KeyedRecord record(stream, "R");
        record.JoinedTexts("N", names);
    }
    CJsonSerializeStream back(stream.Text());
    KeyedRecord record(back, "R");
    record.JoinedTexts("N", names);
    EXPECT_EQ(names.size(), 2U);
    EXPECT_EQ(names.back(), "B");

    // 坾 is 88 7C in GBK: its second byte is a "|" of its own only to the eye of a bytewise search.
    const std::string trail = "\x88\x7C";
    EXPECT_EQ(SplitJoinedTexts(trail + "||" + trail + "|||"), (Texts{trail, trail}));
}
