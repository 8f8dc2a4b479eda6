#include "charts/pie/PiePropSerialize.h"

#include "penlode/streams/BinarySerialize.h"
#include "penlode/streams/JsonSerializeStream.h"
#include "support/ListingStream.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;
using penlode::Color;

namespace {

PieProp Loaded(const char* json) {
    CJsonSerializeStream stream(json);
    PieProp prop = SomePie();
    CPiePropSerialize::SerializePieProp(stream, prop, "P");
    return prop;
}

} // namespace

TEST(PiePropSerialize, KeyedAsADocument) {
    PieProp prop = SomePie();
    CJsonSerializeStream stream;
    CPiePropSerialize::SerializePieProp(stream, prop, "property");
    const char* const document = R"json({
  "property": {
    "PieBasicProp": {
      "PieStyle": "2D",
      "FixedSize": "1",
      "FixedWidth": "42.5",
      "BaseValue": "1e+06",
      "BasePieWidth": "0.1",
      "StartAngle": "-90",
      "DrawSepLine": "0",
      "PenSepLine": "#FFFFFFFF 0.4 dash-dot-dot",
      "ComponentName": "煤炭||Oil | gas||||",
      "ComponentColor": [
        "#FF404040",
        "#80C08040"
      ]
    },
    "PieLabelProp": {
      "ShowNameLabel": "1",
      "ShowValueLabel": "2",
      "ShowPercentLabel": "1",
      "LabelsInSingleRow": "0",
      "LabelSeparator": "：",
      "DistBetweenLabelCenterAndPieCenter": "3.5",
      "PieLabelTextProperty": {
        "字体": "宋体 4",
        "TextColor": "#FF000000",
        "EdgeColor": "#FF000000",
        "BkColor": "#FFFFFFFF",
        "DrawEdge": "0",
        "DrawBackGround": "0",
        "Prefix": "",
        "Postfix": "",
        "Angle": "15"
      },
      "ShowLabelLeadLine": "0",
      "LabelLeadLinePen": "#FF00FF00 0 solid"
    },
    "PieLegendProp": {
      "ShowLegend": "1",
      "LegendPos": "BottomCenter",
      "ShowEdge": "1",
      "ShowBackground": "0",
      "BackgroundColor": "#FFFFFFFF",
      "ItemDist": "0",
      "PenEdge": "#FF000000 0.1 solid",
      "Font": "宋体 4"
    }
  }
}
)json";
    EXPECT_EQ(stream.Text(), document);
}

TEST(PiePropSerialize, AnEmptyDocumentGivesExactlyTheLoadDefaults) {
    PieProp expected;
    expected.Basic.PieStyle = PieStyle::WithDepth;
    expected.Label.DistBetweenLabelCenterAndPieCenter = 10.0F;
    expected.Label.PieLabelTextProperty.BkColor = penlode::kBlack;
    expected.Label.PieLabelTextProperty.DrawEdge = 1;
    expected.Label.PieLabelTextProperty.DrawBackGround = 1;
    EXPECT_EQ(Loaded("{}"), expected);
    EXPECT_EQ(Loaded(R"({"P": "a text where a group belongs"})"), expected);
    EXPECT_EQ(Loaded(R"({"P": {"PieBasicProp": {}, "PieLabelProp": 5}})"), expected);
    EXPECT_EQ(Loaded("{\"P\": "), expected);
}

TEST(PiePropSerialize, StyleNamesAreMatchedExactly) {
    EXPECT_EQ(Loaded(R"({"P": {"PieBasicProp": {"PieStyle": "2D"}}})").Basic.PieStyle, PieStyle::Flat);
    EXPECT_EQ(Loaded(R"({"P": {"PieBasicProp": {"PieStyle": "3D"}}})").Basic.PieStyle, PieStyle::WithDepth);
    EXPECT_EQ(Loaded(R"({"P": {"PieBasicProp": {"PieStyle": "2d"}}})").Basic.PieStyle, PieStyle::WithDepth);
    EXPECT_EQ(Loaded(R"({"P": {"PieBasicProp": {"PieStyle": 0}}})").Basic.PieStyle, PieStyle::WithDepth);
}

TEST(PiePropSerialize, ANameWithoutItsSeparatorIsLost) {
    EXPECT_EQ(Loaded(R"({"P": {"PieBasicProp": {"ComponentName": "A||B"}}})").Basic.ComponentName,
              std::vector<std::string>{"A"});
}

TEST(PiePropSerialize, ColoursKeepTheirPlaces) {
    const PieProp prop =
        Loaded(R"({"P": {"PieBasicProp": {"ComponentColor": ["#112233", "pink", 7, "#80445566"]}}})");
    EXPECT_EQ(prop.Basic.ComponentColor,
              (std::vector<Color>{{0xFF112233}, penlode::kBlack, penlode::kBlack, {0x80445566}}));
}

TEST(PiePropSerialize, PositionalOrderIsFixed) {
    PieProp prop = SomePie();
    ListingStream list;
    CPiePropSerialize::SerializePieProp(list, prop);
    EXPECT_EQ(list.Text(),
              "int 0\n" // PieBasicProp
              "int 1\n"
              "float 42.5\n"
              "float 1e+06\n"
              "float 0.1\n"
              "float -90\n"
              "int 0\n"
              "pen #FFFFFFFF 0.4 dash-dot-dot\n"
              "list [煤炭][Oil | gas][]\n"
              "int 2\n"
              "colour #FF404040\n"
              "colour #80C08040\n"
              "int 1\n" // PieLabelProp: the lead-line flag before the distance, the text's look last
              "int 2\n"
              "int 1\n"
              "int 0\n"
              "text ：\n"
              "int 0\n"
              "float 3.5\n"
              "pen #FF00FF00 0 solid\n"
              "font 宋体 4\n"
              "colour #FF000000\n"
              "colour #FF000000\n"
              "colour #FFFFFFFF\n"
              "int 0\n"
              "int 0\n"
              "text \n"
              "text \n"
              "int 15\n"
              "int 1\n" // the legend
              "int 10\n"
              "int 1\n"
              "int 0\n"
              "colour #FFFFFFFF\n"
              "float 0\n"
              "pen #FF000000 0.1 solid\n"
              "font 宋体 4\n");
}

TEST(PiePropSerialize, CountsThatCannotBeAreRefused) {
    PieProp prop = SomePie();
    CBinarySerialize out;
    CPiePropSerialize::SerializePieProp(out, prop);
    // A count of two thousand million colours with nothing behind it.
    const std::string whole = out.Bytes();
    const std::string count("\x02\x00\x00\x00\x40\x40\x40\xFF", 8);
    const std::size_t at = whole.find(count);
    ASSERT_NE(at, std::string::npos);
    const std::string bytes =
        whole.substr(0, at) + std::string("\xFF\xFF\xFF\x7F", 4) + whole.substr(at + 4, 8);
    CBinarySerialize in(bytes);
    PieProp loaded;
    CPiePropSerialize::SerializePieProp(in, loaded);
    EXPECT_TRUE(in.Failed());
    EXPECT_EQ(loaded.Basic.ComponentColor.size(), 2U);

    const std::string negative =
        whole.substr(0, at) + std::string("\xFF\xFF\xFF\xFF", 4) + whole.substr(at + 4);
    CBinarySerialize back(negative);
    CPiePropSerialize::SerializePieProp(back, loaded);
    ASSERT_TRUE(back.Problem());
    EXPECT_EQ(back.Problem()->Found, "a count of -1");
}

/// As an editor does it: what a newer version or another program wrote stands where it stood.
TEST(PiePropSerialize, ForeignKeysSurviveALoadAndSave) {
    CJsonSerializeStream stream(R"({"kind": "pie", "theirs": {"deep": [1, null]}, "P": {"PieBasicProp":
        {"Glow": 0.5, "FixedWidth": 30}, "Note": "ours"}, "data": {"values": [1]}})");
    PieProp prop;
    CPiePropSerialize::SerializePieProp(stream, prop, "P");
    prop.Basic.FixedWidth = 31.0F;
    stream.BeginSaving();
    CPiePropSerialize::SerializePieProp(stream, prop, "P");

    CJsonSerializeStream again(stream.Text());
    PieProp loaded;
    CPiePropSerialize::SerializePieProp(again, loaded, "P");
    EXPECT_EQ(loaded, prop);
    std::string foreign;
    for (const penlode::Diagnostic& unknown : again.UnknownKeys()) {
        foreign += unknown.Place + " " + unknown.Found + "\n";
    }
    EXPECT_EQ(foreign, "kind \"pie\"\ntheirs {\"deep\":[1,null]}\nP/PieBasicProp/Glow 0.5\nP/Note \"ours\"\n"
                       "data {\"values\":[1]}\n");
}
