#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"
#include "support/Drawings.h"
#include "support/Rects.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

// Text sizes here: 2 mm a character, 5 mm a line. What a pie does with options that make it read well.

namespace {

ChartOptions Apart() {
    ChartOptions options;
    options.SliceLabels = SliceLabelFit::Apart;
    return options;
}

CaptionProp Title(const char* text) {
    CaptionProp title;
    title.ShowCaption = 1;
    title.Caption = text;
    return title;
}

PieLabelProp Labels() {
    PieLabelProp label;
    label.ShowNameLabel = 1;
    label.DistBetweenLabelCenterAndPieCenter = 2;
    return label;
}

CBasicPie Pie(const std::vector<double>& values, const ChartOptions& options) {
    PieProp prop;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 40;
    prop.Basic.ComponentName.assign(values.size(), "name");
    prop.Label = Labels();
    CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetOptions(options);
    pie.SetComponentValue(values);
    pie.SetLocation({50, 50});
    pie.Layout();
    return pie;
}

HalfPieProp Half(std::int32_t part) {
    HalfPieProp prop;
    prop.Basic.WhichPart = part;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 40;
    prop.Basic.ComponentName = {"a", "b"};
    prop.Label = Labels();
    return prop;
}

const std::vector<double> kCrowded{90, 1, 1, 1, 1, 30};

} // namespace

TEST(PieReading, LabelsWithRoomStayToTheLastBit) {
    const std::vector<double> values{30, 70, 25, 60};
    EXPECT_EQ(Pie(values, Apart()).GetLayout().LabelRects, Pie(values, {}).GetLayout().LabelRects);
    EXPECT_TRUE(Pie(values, {}).GetLayout().LeadLines.empty());
}

TEST(PieReading, CrowdedLabelsPartAndTheUsersOffsetsWin) {
    CBasicPie pie = Pie(kCrowded, Apart());
    const std::vector<RectF> apart = pie.GetLayout().LabelRects;
    for (std::size_t i = 1; i < 4; ++i) {
        EXPECT_GT(std::fabs(apart[i + 1].Y - apart[i].Y), 5.0F) << "a line's height";
    }
    EXPECT_EQ(apart[0], Pie(kCrowded, {}).GetLayout().LabelRects[0]) << "this one had room";

    std::vector<RectF> dragged = apart;
    dragged[2] = penlode::Translated(dragged[2], {7, -3});
    pie.SetChildPosition({}, dragged, {});
    pie.Layout();
    for (std::size_t i = 0; i < apart.size(); ++i) {
        ExpectNear(pie.GetLayout().LabelRects[i], dragged[i]);
    }
}

TEST(PieReading, LeadLinesGoFromTheRimToTheLabelsThatMovedUnderThem) {
    CBasicPie pie = Pie(kCrowded, Apart());
    EXPECT_EQ(pie.GetLayout().LeadLines.size(), 3U) << "the others have room, or moved by less than a line";
    for (const LeadLine& line : pie.GetLayout().LeadLines) {
        EXPECT_NEAR(std::hypot(line.From.X - 50, line.From.Y - 50), 20, 1e-3);
        const std::vector<RectF>& labels = pie.GetLayout().LabelRects;
        EXPECT_EQ(std::count_if(labels.begin(), labels.end(),
                                [&line](const RectF& label) {
                                    const PointF away = {
                                        std::max({label.X - line.To.X, line.To.X - label.Right(), 0.0F}),
                                        std::max({label.Y - line.To.Y, line.To.Y - label.Bottom(), 0.0F})};
                                    return std::hypot(away.X, away.Y) < 0.5F;
                                }),
                  1);
    }
    const std::string drawn = Drawn(pie);
    EXPECT_LT(drawn.rfind("DrawLine"), drawn.find("DrawString"));

    PieProp prop = pie.GetPieProp();
    prop.Label.ShowLabelLeadLine = 0;
    pie.SetPieProp(prop);
    pie.Layout();
    EXPECT_TRUE(pie.GetLayout().LeadLines.empty());
}

TEST(PieReading, LabelsOfAPieWithDepthFollowItsEllipseAndItsWall) {
    CBasicPie pie = Pie({1, 1}, Apart());
    PieProp prop = pie.GetPieProp();
    prop.Basic.PieStyle = PieStyle::WithDepth;
    pie.SetPieProp(prop);
    pie.Layout();
    const PieShapes shapes = pie.GetShapes();
    EXPECT_NEAR(pie.GetLayout().LabelRects[0].Bottom(), shapes.Face.Y - 2, 1e-3);
    EXPECT_NEAR(pie.GetLayout().LabelRects[1].Y, shapes.Face.Bottom() + shapes.Depth + 2, 1e-3);
}

TEST(PieReading, TooManyLabelsAreDrawnAsTheyAreListed) {
    const CBasicPie pie = Pie(std::vector<double>(300, 1.0), Apart());
    const PieLayout& layout = pie.GetLayout();
    ASSERT_EQ(layout.LabelTexts.size(), 300U);
    std::size_t shown = 0;
    for (const ChartText& text : TextsOf(pie)) {
        const std::size_t slice = text.Owner.Index;
        EXPECT_EQ(text.Text.empty(), layout.LabelTexts[slice].empty());
        EXPECT_EQ(text.Text.empty(), layout.LabelRects[slice].Width == 0.0F);
        shown += text.Text.empty() ? 0U : 1U;
    }
    EXPECT_LE(layout.LeadLines.size(), shown);
    EXPECT_GT(layout.LeadLines.size(), 20U);
    EXPECT_LT(shown, 60U);
}

TEST(PieReading, ATitleStandsOverEverything) {
    ChartOptions options = Apart();
    options.Title = Title("title");
    const RectF bare = Pie(kCrowded, Apart()).GetPositionAll();
    CBasicPie pie = Pie(kCrowded, options);
    ExpectNear(*pie.GetLayout().Title, {45, bare.Y - 5, 10, 5});
    EXPECT_EQ(TextsOf(pie).back().Owner, (TextOwner{TextRole::Caption}));
    ExpectNear(pie.GetPositionAll(), {bare.X, bare.Y - 5, bare.Width, bare.Height + 5});

    options.Air = ChartAir::ThirdOfLine;
    ExpectNear(*Pie(kCrowded, options).GetLayout().Title, {45, bare.Y - 5 - 5 / 3.0F, 10, 5});
    EXPECT_FALSE(Pie({}, options).GetLayout().Title);
    options.Title.ShowCaption = 0;
    EXPECT_FALSE(Pie(kCrowded, options).GetLayout().Title);
}

TEST(PieReading, RowsOfALegendMayBeAsWideAsTheTitle) {
    const auto isOneRow = [](const char* title) {
        PieProp prop;
        prop.Basic.FixedSize = 1;
        prop.Basic.FixedWidth = 40;
        prop.Basic.ComponentName.assign(6, "name");
        prop.Legend.ShowLegend = 1;
        prop.Legend.LegendPos = LegendPosition::BottomCenter;
        ChartOptions options;
        options.Legend = LegendSeat::OnPlot;
        options.Title = Title(title);
        CBasicPie pie;
        pie.SetPieProp(prop);
        pie.SetOptions(options);
        pie.SetComponentValue({1, 2, 3, 4, 5, 6});
        pie.Layout();
        const std::vector<RectF>& items = pie.GetLayout().LegendItemRects;
        return items.size() == 6 && items.front().Y == items.back().Y;
    };
    EXPECT_FALSE(isOneRow("short"));
    EXPECT_TRUE(isOneRow("a title that is as long as six of the legend's entries are"));
}

TEST(PieReading, EachOfTwoHalvesHasItsTitleOutside) {
    ChartOptions options = Apart();
    options.Title = Title("one");
    options.SecondTitle = Title("two");
    CBasicHalfPieHalfPie chart;
    chart.SetOptions(options);
    chart.SetHalfPieHalfPieProp({Half(HalfPiePart::Upper), Half(HalfPiePart::Lower)});
    chart.SetComponentValue({1, 100}, {100, 1});
    chart.SetLocation({50, 50});
    chart.Layout();
    EXPECT_EQ(chart.GetFirstHalf().GetLayout().Title->Y, chart.GetPositionAll().Y);
    EXPECT_FLOAT_EQ(chart.GetSecondHalf().GetLayout().Title->Bottom() + 0.25F,
                    chart.GetPositionAll().Bottom())
        << "letters are a little low in their box";
    const auto texts = TextsOf(chart);
    EXPECT_EQ(texts.back().Owner, (TextOwner{TextRole::Caption, 0, 0, 1}));
    for (const RectF& label : chart.GetFirstHalf().GetLayout().LabelRects) {
        EXPECT_LT(label.Bottom(), 50.0F);
    }
    for (const RectF& label : chart.GetSecondHalf().GetLayout().LabelRects) {
        EXPECT_GT(label.Y, 50.0F);
    }
}

TEST(PieReading, OfTwoHalvesInOnePlaceOnlyTheUppermostSpeaks) {
    ChartOptions options = Apart();
    options.Title = Title("one");
    options.SecondTitle = Title("two");
    CBasicHalfPieHalfPie chart;
    chart.SetOptions(options);
    chart.SetHalfPieHalfPieProp({Half(HalfPiePart::Upper), Half(HalfPiePart::Upper)});
    chart.SetComponentValue({1, 2}, {2, 1});
    chart.Layout();
    EXPECT_EQ(TextsOf(chart).size(), 3U);
    chart.SetComponentValue({1, 2}, {});
    chart.Layout();
    EXPECT_EQ(TextsOf(chart).size(), 3U) << "nothing covers the first";
}

TEST(PieReading, BarsStandOnTopOfAnUpperHalf) {
    HalfPieHistogramProp prop;
    prop.HalfPie = Half(HalfPiePart::Upper);
    prop.Histogram.Plot.ComponentName = {"bars"};
    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    chart.SetComponentValue({1, 2}, {{3}, {4}}, 4);
    chart.SetLocation({50, 50});
    chart.Layout();
    EXPECT_EQ(chart.GetHistogram().GetPositionAll().Bottom(), 50.0F);
    chart.SetOptions(Apart());
    chart.Layout();
    EXPECT_NEAR(chart.GetHistogram().GetPositionAll().Bottom(), chart.GetHalfPie().GetPositionAll().Y, 1e-4);
}

TEST(PieReading, IsSoundWhateverTheValuesAndAngles) {
    for (const double odd :
         {0.0, -5.0, -3.0, 1e308, static_cast<double>(NAN), static_cast<double>(INFINITY)}) {
        CBasicPie pie = Pie({odd, 2.0, 1.0, odd}, Apart());
        EXPECT_EQ(pie.GetLayout().LabelRects.size(), 4U);
        PieProp prop = pie.GetPieProp();
        prop.Basic.FixedSize = 0;
        prop.Basic.StartAngle = -900;
        pie.SetPieProp(prop);
        pie.Layout();
        EXPECT_EQ(pie.GetLayout().LabelTexts.size(), 4U);
    }
    CBasicPie turned = Pie({1, 1, 2}, Apart());
    PieProp prop = turned.GetPieProp();
    prop.Basic.StartAngle = -180;
    turned.SetPieProp(prop);
    turned.Layout();
    const CBasicPie plain = Pie({1, 1, 2}, Apart());
    for (std::size_t i = 0; i < 3; ++i) {
        ExpectNear(turned.GetLayout().LabelRects[i], plain.GetLayout().LabelRects[i]);
    }
}
