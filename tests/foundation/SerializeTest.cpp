#include "foundation/CaptionPropSerialize.h"
#include "foundation/LegendPropSerialize.h"
#include "foundation/SerializeFrame.h"
#include "foundation/TextPropertySerialize.h"
#include "penlode/streams/BinarySerialize.h"
#include "penlode/streams/JsonSerializeStream.h"
#include "support/ListingStream.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;

TEST(Serialize, KeyedCaptionAsADocument) {
    CaptionProp caption = SomeCaption();
    CJsonSerializeStream stream;
    CCaptionPropSerialize::SerializeCaptionProp(stream, caption);
    const char* const document = R"json({
  "CaptionProp": {
    "ShowCaption": "1",
    "Caption": "2022 年发电量\n(TWh)",
    "CaptionTextProperty": {
      "字体": "Times New Roman 3.25 bold italic",
      "TextColor": "#80102030",
      "EdgeColor": "#FF00FF00",
      "BkColor": "#00FFFFFF",
      "DrawEdge": "7",
      "DrawBackGround": "1",
      "Prefix": "<",
      "Postfix": "》|\\",
      "Angle": "-45"
    }
  }
}
)json";
    EXPECT_EQ(stream.Text(), document);
    EXPECT_EQ(caption, SomeCaption()) << "saving changes nothing";

    CJsonSerializeStream back(stream.Text());
    CaptionProp loaded;
    CCaptionPropSerialize::SerializeCaptionProp(back, loaded);
    EXPECT_EQ(loaded, SomeCaption());
    EXPECT_TRUE(back.Problems().empty());
    EXPECT_TRUE(back.UnknownKeys().empty());
}

TEST(Serialize, KeyedLegendInItsSavedOrder) {
    LegendProp legend = SomeLegend();
    CJsonSerializeStream stream;
    CLegendPropSerialize::SerializeLegendProp(stream, legend, "PieLegendProp");
    const char* const document = R"json({
  "PieLegendProp": {
    "ShowLegend": "1",
    "LegendPos": "TopCenter",
    "ShowEdge": "0",
    "ShowBackground": "1",
    "BackgroundColor": "#FFABCDEF",
    "ItemDist": "2.75",
    "PenEdge": "#FF123456 0.35 dot",
    "Font": "none"
  }
}
)json";
    EXPECT_EQ(stream.Text(), document);
    CJsonSerializeStream back(stream.Text());
    LegendProp loaded;
    CLegendPropSerialize::SerializeLegendProp(back, loaded, "PieLegendProp");
    EXPECT_EQ(loaded, SomeLegend());
}

TEST(Serialize, MissingKeysTakeTheLoadDefaultsWhateverTheRecordHeld) {
    TextProperty expected;
    expected.BkColor = penlode::kBlack;
    expected.DrawEdge = 1;
    expected.DrawBackGround = 1;

    CJsonSerializeStream nothing("{}");
    CaptionProp caption = SomeCaption();
    CCaptionPropSerialize::SerializeCaptionProp(nothing, caption);
    EXPECT_EQ(caption.ShowCaption, 0);
    EXPECT_EQ(caption.Caption, "");
    EXPECT_EQ(caption.CaptionTextProperty, expected);

    LegendProp legend = SomeLegend();
    CLegendPropSerialize::SerializeLegendProp(nothing, legend, "PieLegendProp");
    EXPECT_EQ(legend, LegendProp{}) << "a constructed legend has the load defaults";

    CJsonSerializeStream colourOnly(R"({"T": {"TextColor": "#123456"}})");
    TextProperty text = SomeCaption().CaptionTextProperty;
    CTextPropertySerialize::SerializeTextProperty(colourOnly, text, "T");
    expected.TextColor = penlode::Color{0xFF123456};
    EXPECT_EQ(text, expected);
}

TEST(Serialize, PositionalOrderIsFixed) {
    CaptionProp caption = SomeCaption();
    ListingStream captionList;
    CCaptionPropSerialize::SerializeCaptionProp(captionList, caption);
    EXPECT_EQ(captionList.Text(), "int 1\n"
                                  "text 2022 年发电量\n(TWh)\n"
                                  "font Times New Roman 3.25 bold italic\n"
                                  "colour #80102030\n"
                                  "colour #FF00FF00\n"
                                  "colour #00FFFFFF\n"
                                  "int 7\n"
                                  "int 1\n"
                                  "text <\n"
                                  "text 》|\\\n"
                                  "int -45\n");
    LegendProp legend = SomeLegend();
    legend.Font = penlode::Font{L"黑体", 3.0F};
    ListingStream legendList;
    CLegendPropSerialize::SerializeLegendProp(legendList, legend);
    EXPECT_EQ(legendList.Text(), "int 1\n"
                                 "int 7\n"
                                 "int 0\n"
                                 "int 1\n"
                                 "colour #FFABCDEF\n"
                                 "float 2.75\n"
                                 "pen #FF123456 0.35 dot\n"
                                 "font 黑体 3\n");
}

TEST(Serialize, PositionalRoundTrips) {
    CBinarySerialize out;
    CaptionProp caption = SomeCaption();
    LegendProp legend = SomeLegend();
    CCaptionPropSerialize::SerializeCaptionProp(out, caption);
    CLegendPropSerialize::SerializeLegendProp(out, legend);
    EXPECT_EQ(caption, SomeCaption());

    CBinarySerialize in(out.Bytes());
    CaptionProp loadedCaption;
    LegendProp loadedLegend;
    CCaptionPropSerialize::SerializeCaptionProp(in, loadedCaption);
    CLegendPropSerialize::SerializeLegendProp(in, loadedLegend);
    EXPECT_EQ(loadedCaption, SomeCaption());
    EXPECT_EQ(loadedLegend, SomeLegend());
    EXPECT_EQ(in.Remaining(), 0U);
}

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
    KeyedRecord(stream, "R").FloatList("Widths", widths, 0.5F);
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
