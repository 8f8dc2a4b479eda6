#include "millichart.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;
using penlode::Color;

namespace {

// Records with a value in each field, as the group "P" of a document changes them.

PieBasicProp Pie(const std::string& basic) {
    CJsonSerializeStream stream(R"({"P": {"PieBasicProp": )" + basic + "}}");
    PieProp prop = SomePie();
    CPiePropSerialize::SerializePieProp(stream, prop, "P");
    return prop.Basic;
}

std::int32_t WhichHalf(const std::string& part) {
    CJsonSerializeStream stream(R"({"P": {"HalfPieBasicProp": {"WhichPart": ")" + part + "\"}}}");
    HalfPieProp prop = SomeHalf();
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop, "P");
    return prop.Basic.WhichPart;
}

HistogramProp Bars(const std::string& json) {
    CJsonSerializeStream stream(json);
    HistogramProp prop = SomeHistogram();
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop, "P");
    return prop;
}

} // namespace

TEST(RecordTexts, NamesOfChoicesAreMatchedExactly) {
    EXPECT_EQ(Pie(R"({"PieStyle": "2D"})").PieStyle, PieStyle::Flat);
    for (const char* other : {"\"3D\"", "\"2d\"", "0"}) {
        EXPECT_EQ(Pie("{\"PieStyle\": " + std::string(other) + "}").PieStyle, PieStyle::WithDepth);
    }
    EXPECT_EQ(WhichHalf("Lower"), HalfPiePart::Lower);
    EXPECT_EQ(WhichHalf("Top"), HalfPiePart::Upper);
    EXPECT_EQ(WhichHalf("lower"), HalfPiePart::Upper);
    EXPECT_EQ(Bars(R"({"P": {"HistogramPlotProp": {"PieStyle": "3D"}}})").Plot.PieStyle, BarStyle::WithDepth);
    EXPECT_EQ(Bars(R"({"P": {"HistogramPlotProp": {"PieStyle": "4D"}, "HistogramVerAxisProp":
        {"MajorScaleStyle": "Outer", "VerAxisPen": "thick"}}})"),
              Bars("{}"));
}

/// Any number but 0 does the same; a positional stream has the number.
TEST(RecordTexts, AFlagWithNamesIsSavedByTheNameOfWhatItDoes) {
    HalfPieHistogramProp prop;
    prop.HalfPie.Basic.WhichPart = 2;
    prop.Histogram.Plot.PieStyle = -1;
    CurveProp curves;
    curves.Plot.NullValueStyle = {0, 7, 1};
    CJsonSerializeStream stream;
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(stream, prop, "P");
    CCurvePropSerialize::SerializeCurveProp(stream, curves, "C");
    EXPECT_EQ(prop.HalfPie.Basic.WhichPart, 2) << "saving changes nothing";
    EXPECT_EQ(curves.Plot.NullValueStyle[1], 7);

    CJsonSerializeStream in(stream.Text());
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(in, prop, "P");
    CCurvePropSerialize::SerializeCurveProp(in, curves, "C");
    EXPECT_EQ(prop.HalfPie.Basic.WhichPart, HalfPiePart::Lower);
    EXPECT_EQ(prop.Histogram.Plot.PieStyle, BarStyle::WithDepth);
    EXPECT_EQ(curves.Plot.NullValueStyle, (std::vector<std::int32_t>{0, 1, 1}));

    prop.Histogram.Plot.PieStyle = -1;
    CBinarySerialize out;
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(out, prop);
    CBinarySerialize back(out.Bytes());
    HalfPieHistogramProp loaded;
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(back, loaded);
    EXPECT_EQ(loaded.Histogram.Plot.PieStyle, -1);
}

TEST(RecordTexts, ColoursKeepTheirPlaces) {
    EXPECT_EQ(Pie(R"({"ComponentColor": ["#112233", "pink", 7, "#80445566"]})").ComponentColor,
              (std::vector<Color>{{0xFF112233}, penlode::kBlack, penlode::kBlack, {0x80445566}}));
}

TEST(RecordTexts, ItemsOfCurvesThatMeanNothingKeepTheirPlaces) {
    CJsonSerializeStream stream(R"({"C": {"CurvePlotProp": {
        "CurveWidth": ["0.5", "thick", "2"], "CurveDashStyle": ["1", "dash"], "CurveDotWidth": ["wide"],
        "CurveDotStyle": ["none", "solid_square", "hollow_square", "solid_circle", "hollow_circle",
            "solid_diamond", "hollow_diamond", "solid_triangle", "hollow_triangle", "solid_inverted_triangle",
            "hollow_inverted_triangle", "3"], "NullValueStyle": ["zero", "as_zero"]}}})");
    CurveProp prop = SomeCurves();
    CCurvePropSerialize::SerializeCurveProp(stream, prop, "C");
    EXPECT_EQ(prop.Plot.CurveWidth, (std::vector<float>{0.5F, 0.1F, 2.0F}));
    EXPECT_EQ(prop.Plot.CurveDotWidth, std::vector<float>{1.0F});
    EXPECT_EQ(prop.Plot.CurveDashStyle, (std::vector<std::int32_t>{1, 0}));
    EXPECT_EQ(prop.Plot.CurveDotStyle, (std::vector<std::int32_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0}));
    EXPECT_EQ(prop.Plot.NullValueStyle, (std::vector<std::int32_t>{0, 1}));
    std::string told;
    for (const auto& problem : stream.Problems()) {
        if (problem.Kind == penlode::DiagnosticKind::Refused) {
            told += problem.Place + " " + problem.Found + " " + problem.Expected.substr(0, 14) + "\n";
        }
    }
    EXPECT_EQ(told, "C/CurvePlotProp/CurveWidth/1 \"thick\" a number\n"
                    "C/CurvePlotProp/CurveDashStyle/1 \"dash\" a whole number\n"
                    "C/CurvePlotProp/CurveDotStyle/11 \"3\" one of \"none\",\n"
                    "C/CurvePlotProp/CurveDotWidth/0 \"wide\" a number\n"
                    "C/CurvePlotProp/NullValueStyle/0 \"zero\" one of \"break\"\n");
}

TEST(RecordTexts, CountsThatCannotBeAreRefused) {
    PieProp prop = SomePie();
    CBinarySerialize out;
    CPiePropSerialize::SerializePieProp(out, prop);
    const std::string whole = out.Bytes();
    const std::size_t at = whole.find(std::string("\x02\x00\x00\x00\x40\x40\x40\xFF", 8));
    ASSERT_NE(at, std::string::npos);
    const auto counted = [&](const char* count) {
        return CBinarySerialize(whole.substr(0, at) + std::string(count, 4) + whole.substr(at + 4, 8));
    };
    // Two thousand million colours, two of which follow.
    CBinarySerialize in = counted("\xFF\xFF\xFF\x7F");
    CPiePropSerialize::SerializePieProp(in, prop);
    EXPECT_TRUE(in.Failed());
    EXPECT_EQ(prop.Basic.ComponentColor.size(), 2U);
    CBinarySerialize negative = counted("\xFF\xFF\xFF\xFF");
    CPiePropSerialize::SerializePieProp(negative, prop);
    ASSERT_TRUE(negative.Problem());
    EXPECT_EQ(negative.Problem()->Found, "a count of -1");
}

/// As an editor does it: what a newer version or another program wrote stands where it stood.
TEST(RecordTexts, ForeignKeysSurviveALoadAndSave) {
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
