#include "charts/pie/HalfPiePropSerialize.h"

#include "charts/pie/PiePropSerialize.h"
#include "penlode/streams/BinarySerialize.h"
#include "penlode/streams/JsonSerializeStream.h"
#include "support/ListingStream.h"
#include "support/SomeRecords.h"

#include <cstring>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;
using penlode::Color;

namespace {

HalfPieProp Loaded(const char* json) {
    CJsonSerializeStream stream(json);
    HalfPieProp prop = SomeHalf();
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop, "P");
    return prop;
}

HalfPieProp LoadDefaults() {
    HalfPieProp prop;
    prop.Label.DistBetweenLabelCenterAndPieCenter = 10.0F;
    prop.Label.PieLabelTextProperty.BkColor = penlode::kBlack;
    prop.Label.PieLabelTextProperty.DrawEdge = 1;
    prop.Label.PieLabelTextProperty.DrawBackGround = 1;
    return prop;
}

} // namespace

TEST(HalfPiePropSerialize, KeyedAsADocument) {
    HalfPieProp prop = SomeHalf();
    CJsonSerializeStream stream;
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop, "property");
    const char* const document = R"json({
  "property": {
    "HalfPieBasicProp": {
      "WhichPart": "Lower",
      "FixedSize": "1",
      "FixedWidth": "42.5",
      "BaseValue": "250",
      "BasePieWidth": "0.1",
      "DrawSepLine": "0",
      "PenSepLine": "#FFFFFFFF 0.4 dot",
      "ComponentName": "煤炭||Oil||",
      "ComponentColor": [
        "#FF404040"
      ]
    },
    "PieLabelProp": {
      "ShowNameLabel": "0",
      "ShowValueLabel": "1",
)json";
    EXPECT_EQ(stream.Text().substr(0, std::strlen(document)), document);
    EXPECT_EQ(Loaded(R"({"P": {}})"), LoadDefaults());
}

TEST(HalfPiePropSerialize, TheHalfIsStoredByItsName) {
    EXPECT_EQ(Loaded(R"({"P": {"HalfPieBasicProp": {"WhichPart": "Lower"}}})").Basic.WhichPart, 1);
    EXPECT_EQ(Loaded(R"({"P": {"HalfPieBasicProp": {"WhichPart": "Top"}}})").Basic.WhichPart, 0);
    EXPECT_EQ(Loaded(R"({"P": {"HalfPieBasicProp": {"WhichPart": "lower"}}})").Basic.WhichPart, 0);

    HalfPieProp prop;
    prop.Basic.WhichPart = 2; // draws the lower half
    CJsonSerializeStream stream;
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop, "P");
    EXPECT_EQ(prop.Basic.WhichPart, 2) << "saving changes nothing";
    EXPECT_EQ(Loaded(stream.Text().c_str()).Basic.WhichPart, HalfPiePart::Lower);
}

TEST(HalfPiePropSerialize, TwoHalvesStandUnderNamesOfTheirOwn) {
    HalfPieHalfPieProp prop;
    prop.First = SomeHalf();
    CJsonSerializeStream stream;
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(stream, prop, "P");
    const std::string text = stream.Text();
    EXPECT_EQ(text.find("{\n  \"P\": {\n    \"TopHalf\": {\n      \"HalfPieBasicProp\": {\n"
                        "        \"WhichPart\": \"Lower\""),
              0U);
    EXPECT_NE(text.find("\n    },\n    \"LowerHalf\": {\n      \"HalfPieBasicProp\": {\n"
                        "        \"WhichPart\": \"Top\""),
              std::string::npos);

    CJsonSerializeStream back(text);
    HalfPieHalfPieProp loaded;
    loaded.Second = SomeHalf();
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(back, loaded, "P");
    EXPECT_EQ(loaded, prop);

    CJsonSerializeStream empty("{}");
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(empty, loaded, "P");
    EXPECT_EQ(loaded, (HalfPieHalfPieProp{LoadDefaults(), LoadDefaults()}));
}

TEST(HalfPiePropSerialize, PositionalOrderIsFixed) {
    HalfPieProp prop = SomeHalf();
    ListingStream list;
    CHalfPiePropSerialize::SerializeHalfPieProp(list, prop);
    ListingStream label;
    CPieLabelPropSerialize::SerializePieLabelProp(label, prop.Label);
    EXPECT_EQ(list.Text(), "int 1\n" // the size before the outlines
                           "int 1\n"
                           "float 42.5\n"
                           "float 250\n"
                           "float 0.1\n"
                           "int 0\n"
                           "pen #FFFFFFFF 0.4 dot\n"
                           "list [煤炭][Oil]\n"
                           "int 1\n"
                           "colour #FF404040\n" +
                               label.Text());

    HalfPieHalfPieProp both{SomeHalf(), {}};
    ListingStream halves;
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(halves, both);
    EXPECT_EQ(halves.Text().find(list.Text() + "int 0\nint 0\nfloat 20\n"), 0U);
}

TEST(HalfPiePropSerialize, PositionalRoundTrip) {
    HalfPieHalfPieProp prop{SomeHalf(), {}};
    prop.Second.Basic.WhichPart = 2;
    CBinarySerialize out;
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(out, prop);
    CBinarySerialize in(out.Bytes());
    HalfPieHalfPieProp loaded;
    loaded.Second = SomeHalf();
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(in, loaded);
    EXPECT_EQ(loaded, prop);
    EXPECT_EQ(in.Remaining(), 0U);
}
