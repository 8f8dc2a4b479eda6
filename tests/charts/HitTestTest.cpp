#include "penlode/GraphicsPath.h"
#include "penlode/engine/Finite.h"
#include "support/RandomCharts.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr float kNanF = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

template <class Chart> std::vector<PlacedPart> PartsOf(const Chart& chart) {
    std::vector<PlacedPart> parts;
    chart.VisitParts([&parts](const PlacedPart& part) { parts.push_back(part); });
    return parts;
}

template <class Chart> std::optional<ChartPart> Hit(const Chart& chart, PointF at, float reach = 0.0F) {
    const std::optional<PlacedPart> part = chart.HitTest(at, reach);
    return part ? std::optional(part->Part) : std::nullopt;
}

/// The place in the list of what was hit; that of its curve for a point of one.
std::size_t PlaceOf(const std::vector<PlacedPart>& parts, ChartPart hit) {
    if (hit.Kind == PartKind::CurvePoint) {
        hit = {PartKind::Curve, hit.Index, 0, hit.Part};
    }
    const auto isHit = [&hit](const PlacedPart& part) { return part.Part == hit; };
    return static_cast<std::size_t>(std::find_if(parts.begin(), parts.end(), isHit) - parts.begin());
}

/// Flat, 40 mm wide round (50, 60), without texts.
CBasicPie BarePie(const std::vector<double>& values, std::int32_t style, float startAngle = 0) {
    PieProp prop;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 40.0F;
    prop.Basic.PieStyle = style;
    prop.Basic.StartAngle = startAngle;
    prop.Basic.ComponentName = std::vector<std::string>(values.size(), "name");
    prop.Basic.ComponentColor = std::vector<penlode::Color>(values.size(), penlode::kBlack);
    prop.Basic.DrawSepLine = 0;
    prop.Label.ShowNameLabel = prop.Label.ShowValueLabel = prop.Label.ShowPercentLabel = 0;
    prop.Legend.ShowLegend = 0;
    CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue(values);
    pie.SetLocation({50, 60});
    pie.Layout();
    return pie;
}

HalfPieProp Half(std::int32_t which) {
    HalfPieProp prop;
    prop.Basic.WhichPart = which;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 40.0F;
    prop.Basic.ComponentName = {"a", "b"};
    prop.Basic.ComponentColor = {penlode::kBlack, penlode::kWhite};
    prop.Label.ShowNameLabel = 1;
    return prop;
}

HistogramProp Bars(std::int32_t style, std::int32_t juxtaposition) {
    HistogramProp prop;
    prop.VerAxis.ShowVerAxisLabel = 0;
    prop.Plot.PieStyle = style;
    prop.Plot.Juxtaposition = juxtaposition;
    prop.Plot.ComponentName = {"a", "b"};
    prop.Plot.ComponentColor = {penlode::kBlack, penlode::kWhite};
    prop.Plot.ShowComponentName = prop.Plot.ShowComponentValue = 0;
    prop.Legend.ShowLegend = 0;
    return prop;
}

CBasicHistogram LaidOut(const HistogramProp& prop, const std::vector<std::vector<double>>& values) {
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetNaturalValueRange(-10, 20, 10, 5);
    chart.SetComponentValue(values);
    chart.Layout();
    return chart;
}

/// One curve on a plot of 80 x 30 mm, 10 mm a time and 1 mm a unit of its values.
CBasicCurve OneCurve(const std::vector<double>& values, std::int32_t dot, std::int32_t nulls) {
    CurveProp prop;
    prop.VerAxis.ShowVerAxis = prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.PlotWidth = 10.0F * static_cast<float>(values.size() - 1);
    prop.Plot.PlotHeight = 30;
    prop.Plot.CurveName = {"curve"};
    prop.Plot.CurveWidth = {0.2F};
    prop.Plot.CurveDotStyle = {dot};
    prop.Plot.CurveDotWidth = {2.0F};
    prop.Plot.NullValueStyle = {nulls};
    prop.Legend.ShowLegend = 0;
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.SetNaturalValueRange(0, 30, 10, 5);
    std::vector<std::int32_t> times;
    for (std::size_t i = 0; i < values.size(); ++i) {
        times.push_back(static_cast<std::int32_t>(i));
    }
    chart.SetCurveData({values}, {times});
    chart.Layout();
    return chart;
}

/// Whatever is there is the part with that number or one that is drawn later.
template <class Chart>
void ExpectHitFrom(const Chart& chart, const std::vector<PlacedPart>& parts, std::size_t place, PointF at) {
    const std::optional<ChartPart> hit = Hit(chart, at);
    ASSERT_TRUE(hit) << "part " << place << " at " << at.X << ", " << at.Y;
    const std::size_t found = PlaceOf(parts, *hit);
    EXPECT_GE(found, place) << "kind " << static_cast<int>(parts[place].Part.Kind) << " at " << at.X << ", "
                            << at.Y;
    EXPECT_LT(found, parts.size()) << "not listed";
}

/// Is there certainly something in the middle of its box? Far away single precision has no middles.
bool FillsBox(const PlacedPart& part) {
    const PointF at = part.Box.Center();
    const bool isNear = std::fabs(at.X) < 1e4F && std::fabs(at.Y) < 1e4F;
    return isNear && (part.Part.Kind == PartKind::Plot || part.Part.Kind >= PartKind::SliceLabel);
}

template <class Chart> void ExpectPartsHit(const Chart& chart) {
    const std::vector<PlacedPart> parts = PartsOf(chart);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(penlode::IsFinite(parts[i].Box));
        EXPECT_GE(parts[i].Box.Width, 0.0F);
        EXPECT_GE(parts[i].Box.Height, 0.0F);
        EXPECT_EQ(PlaceOf(parts, parts[i].Part), i) << "listed twice";
        if (FillsBox(parts[i])) {
            ExpectHitFrom(chart, parts, i, parts[i].Box.Center());
        }
    }
    const RectF whole = chart.InkExtent();
    for (float across = 0.01F; penlode::IsFinite(whole) && across < 1.0F; across += 0.07F) {
        const PointF at{whole.X + whole.Width * across,
                        whole.Y + whole.Height * std::fmod(across * 5.3F, 1.0F)};
        const std::optional<PlacedPart> hit = chart.HitTest(at, 2.0F);
        if (hit && hit->Part.Kind != PartKind::CurvePoint) {
            EXPECT_EQ(parts.at(PlaceOf(parts, hit->Part)), *hit);
            EXPECT_TRUE(at.X > hit->Box.X - 2.01F && at.X < hit->Box.Right() + 2.01F &&
                        at.Y > hit->Box.Y - 2.01F && at.Y < hit->Box.Bottom() + 2.01F);
        }
    }
    EXPECT_EQ(chart.HitTest({kNanF, 0.0F}, 1.0F), std::nullopt);
    EXPECT_EQ(chart.HitTest({kInfinity, 0.0F}, kInfinity), std::nullopt);
}

template <class Chart> void ExpectSlicesHit(const Chart& chart, const PieShapes& shapes, std::size_t part) {
    const std::vector<PlacedPart> parts = PartsOf(chart);
    for (std::size_t i = 0; i < shapes.Slices.size(); ++i) {
        const PieSlice& slice = shapes.Slices[i];
        const std::size_t place = PlaceOf(parts, {PartKind::Slice, i, 0, part});
        if (place == parts.size() || std::fabs(slice.SweepAngle) < 0.01F) {
            continue;
        }
        const double middle = static_cast<double>(slice.StartAngle) + slice.SweepAngle * 0.5;
        const PointF rim = penlode::PointOnEllipse(shapes.Face, middle);
        const PointF center = shapes.Face.Center();
        ExpectHitFrom(chart, parts, place,
                      {center.X + (rim.X - center.X) * 0.9F, center.Y + (rim.Y - center.Y) * 0.9F});
        for (const PieWall& wall : slice.FrontWalls()) {
            const PointF above = penlode::PointOnEllipse(shapes.Face, (wall.From + wall.To) * 0.5);
            ExpectHitFrom(chart, parts, place, {above.X, above.Y + shapes.Depth * 0.5F});
        }
    }
}

template <class Chart> void ExpectBarsHit(const Chart& chart, const BarShapes& shapes, std::size_t part) {
    const std::vector<PlacedPart> parts = PartsOf(chart);
    for (const BarShape& bar : shapes.Bars) {
        const std::size_t place = PlaceOf(parts, {PartKind::Bar, bar.Group, bar.Component, part});
        if (place < parts.size()) {
            ExpectHitFrom(chart, parts, place, bar.Front.Center());
        }
    }
}

} // namespace

TEST(HitTest, FindsEveryPartOfRandomCharts) {
    for (const Variety variety : {Variety::Full, Variety::Moderate}) {
        for (std::uint32_t seed = 0; seed < 150; ++seed) {
            SCOPED_TRACE(seed);
            CBasicPie pie = RandomPie(seed, variety);
            CBasicHalfPie half = RandomHalfPie(seed, variety);
            CBasicHalfPieHalfPie halves = RandomHalfPieHalfPie(seed, variety);
            CBasicHalfPieHistogram mixed = RandomHalfPieHistogram(seed, variety);
            CBasicHistogram bars = RandomHistogram(seed, variety);
            CBasicCurve curves = RandomCurve(seed, variety);
            const auto layOut = [seed](auto&... charts) {
                if (seed % 2 == 1) {
                    (charts.SetOptions(ChartOptions::Readable()), ...);
                }
                (charts.Layout(), ...);
                (ExpectPartsHit(charts), ...);
            };
            layOut(pie, half, halves, mixed, bars, curves);
            ExpectSlicesHit(pie, pie.GetShapes(), 0);
            ExpectSlicesHit(half, half.GetShapes(), 0);
            ExpectSlicesHit(halves, halves.GetShapes().Second, 1);
            ExpectBarsHit(bars, bars.GetShapes(), 0);
            ExpectBarsHit(mixed, mixed.GetShapes().Histogram, 1);
            if (HasFailure()) {
                return;
            }
        }
    }
}

TEST(HitTest, SlicesOfAFlatPieLieBetweenTheirAngles) {
    const CBasicPie pie = BarePie({1, 1, 2}, PieStyle::Flat, 30);
    const auto at = [&pie](double degrees, double radius) {
        const double angle = degrees * 3.14159265 / 180.0;
        return Hit(pie, {static_cast<float>(50 + radius * std::cos(angle)),
                         static_cast<float>(60 + radius * std::sin(angle))});
    };
    for (const double radius : {1.0, 19.9}) {
        EXPECT_EQ(at(31, radius), (ChartPart{PartKind::Slice, 0}));
        EXPECT_EQ(at(119, radius), (ChartPart{PartKind::Slice, 0}));
        EXPECT_EQ(at(121, radius), (ChartPart{PartKind::Slice, 1}));
        EXPECT_EQ(at(211, radius), (ChartPart{PartKind::Slice, 2}));
        EXPECT_EQ(at(29, radius), (ChartPart{PartKind::Slice, 2})) << "across the positive axis";
    }
    EXPECT_EQ(at(90, 20.1), std::nullopt);
    EXPECT_EQ(Hit(pie, {50, 80.9F}, 1.0F), (ChartPart{PartKind::Slice, 0})) << "within reach of the rim";
    EXPECT_EQ(Hit(pie, {50, 81.1F}, 1.0F), std::nullopt);
    ASSERT_EQ(PartsOf(pie).size(), 3U);
    EXPECT_NEAR(PartsOf(pie)[0].Box.Bottom(), 80.0F, 1e-3F) << "the rim's lowest point is its";
}

/// The face is 27 mm high and begins at the top of 40; its walls are 9 mm high.
TEST(HitTest, SlicesOfADeepPieHaveTrueAnglesAndFrontWalls) {
    const CBasicPie pie = BarePie({1, 7}, PieStyle::WithDepth);
    const PieShapes shapes = pie.GetShapes();
    const PointF center = shapes.Face.Center();
    ASSERT_FLOAT_EQ(shapes.Face.Height, 27.0F);
    ASSERT_FLOAT_EQ(shapes.Depth, 9.0F);
    EXPECT_EQ(Hit(pie, {center.X + 9.0F, center.Y + 8.9F}), (ChartPart{PartKind::Slice, 0}));
    EXPECT_EQ(Hit(pie, {center.X + 8.9F, center.Y + 9.0F}), (ChartPart{PartKind::Slice, 1}));
    const PointF seam = penlode::PointOnEllipse(shapes.Face, 45.0);
    EXPECT_EQ(Hit(pie, {seam.X + 0.1F, seam.Y + 8.0F}), (ChartPart{PartKind::Slice, 0}));
    EXPECT_EQ(Hit(pie, {seam.X - 0.1F, seam.Y + 8.0F}), (ChartPart{PartKind::Slice, 1}));
    EXPECT_EQ(Hit(pie, {center.X, shapes.Face.Bottom() + 8.9F}), (ChartPart{PartKind::Slice, 1}));
    EXPECT_EQ(Hit(pie, {center.X, shapes.Face.Bottom() + 9.1F}), std::nullopt);
    EXPECT_EQ(Hit(pie, {center.X, shapes.Face.Y - 0.1F}), std::nullopt) << "no wall at the back";
    EXPECT_NEAR(PartsOf(pie)[1].Box.Bottom(), shapes.Face.Bottom() + 9.0F, 1e-3F);
}

TEST(HitTest, AHairOfASliceIsHitBesideIt) {
    CBasicHalfPie half;
    HalfPieProp prop = Half(HalfPiePart::Lower);
    prop.Label.ShowNameLabel = 0;
    half.SetHalfPieProp(prop);
    half.SetComponentValue({1, 1e6});
    half.SetLocation({50, 60});
    half.Layout();
    const float x = 50 + half.GetLayout().Pie.Width * 0.4F;
    EXPECT_EQ(Hit(half, {x, 59.5F}, 1.0F), (ChartPart{PartKind::Slice, 0}));
    EXPECT_EQ(Hit(half, {x, 60.5F}, 1.0F), (ChartPart{PartKind::Slice, 1})) << "a wide one is hit itself";
    EXPECT_EQ(Hit(half, {x, 59.5F}), std::nullopt);
}

TEST(HitTest, BarsOfEitherSignAndOfNoHeight) {
    const CBasicHistogram chart = LaidOut(Bars(BarStyle::Flat, 1), {{20, -5}, {kNan, 0}});
    const std::vector<BarShape> bars = chart.GetShapes().Bars;
    ASSERT_EQ(bars.size(), 3U);
    const RectF tall = bars[0].Front;
    const RectF negative = bars[1].Front;
    const float middle = tall.X + tall.Width * 0.5F;
    EXPECT_EQ(Hit(chart, {middle, tall.Y + 0.1F}), (ChartPart{PartKind::Bar, 0, 0}));
    EXPECT_EQ(Hit(chart, negative.Center()), (ChartPart{PartKind::Bar, 0, 1}));
    EXPECT_EQ(Hit(chart, {tall.X - 0.5F, tall.Center().Y}), (ChartPart{PartKind::Plot}));
    EXPECT_EQ(Hit(chart, {tall.X - 0.5F, tall.Center().Y}, 1.0F), (ChartPart{PartKind::Bar, 0, 0}))
        << "the plot is the ground";
    const std::vector<PlacedPart> parts = PartsOf(chart);
    for (const PlacedPart& part : parts) {
        EXPECT_FALSE(part.Part == (ChartPart{PartKind::Bar, 1, 0})) << "no number, no bar";
    }

    HistogramProp onZero = Bars(BarStyle::Flat, 1);
    CBasicHistogram zero = LaidOut(onZero, {{20, 0}});
    ChartOptions options;
    options.BarBase = BarBase::Zero;
    zero.SetOptions(options);
    zero.Layout();
    const RectF flat = zero.GetShapes().Bars[1].Front;
    ASSERT_EQ(flat.Height, 0.0F);
    EXPECT_EQ(Hit(zero, {flat.Center().X, flat.Y + 0.4F}, 1.0F), (ChartPart{PartKind::Bar, 0, 1}))
        << "and not the axis on which it lies";
    EXPECT_EQ(Hit(zero, {tall.X - 2.0F, flat.Y + 0.4F}, 1.0F), (ChartPart{PartKind::HorAxis}));
}

TEST(HitTest, StacksAndBarsWithDepth) {
    const CBasicHistogram chart = LaidOut(Bars(BarStyle::WithDepth, 0), {{8, 6}});
    const BarShapes shapes = chart.GetShapes();
    ASSERT_EQ(shapes.Bars.size(), 2U);
    const PlacedPart upper = *chart.HitTest(shapes.Bars[1].Front.Center(), 0.0F);
    EXPECT_EQ(upper.Part, (ChartPart{PartKind::Bar, 0, 1}));
    const RectF front = shapes.Bars[1].Front;
    ASSERT_TRUE(shapes.Depth.X > 1.0F && shapes.Depth.Y < -0.5F);
    EXPECT_FLOAT_EQ(upper.Box.Right(), front.Right() + shapes.Depth.X);
    EXPECT_FLOAT_EQ(upper.Box.Y, front.Y + shapes.Depth.Y);
    const PointF deep{shapes.Depth.X * 0.9F, shapes.Depth.Y * 0.9F};
    EXPECT_EQ(Hit(chart, front.TopLeft() + deep + PointF{0.5F, 0}), upper.Part) << "top";
    EXPECT_EQ(Hit(chart, PointF{front.Right(), front.Center().Y} + deep), upper.Part) << "right side";
    EXPECT_NE(Hit(chart, front.TopLeft() + deep - PointF{0.5F, 0}), upper.Part) << "left of the top";
    EXPECT_EQ(Hit(chart, shapes.Bars[0].Front.Center()), (ChartPart{PartKind::Bar, 0, 0}));
    const RectF plot = chart.GetLayout().Plot;
    EXPECT_EQ(Hit(chart, PointF{plot.Right(), plot.Y} + deep - PointF{0.5F, 0}), (ChartPart{PartKind::Plot}))
        << "the back wall";
}

TEST(HitTest, CurvesAreHitAtTheirNearestPoint) {
    const CBasicCurve chart =
        OneCurve({10, 20, kCurveNull, 10, kNan, 10, 10}, CurveDotStyle::None, CurveNullValueStyle::Break);
    EXPECT_EQ(Hit(chart, {4, 16}), (ChartPart{PartKind::CurvePoint, 0, 0})) << "on the line";
    EXPECT_EQ(Hit(chart, {6, 14.5F}, 1.0F), (ChartPart{PartKind::CurvePoint, 0, 1})) << "beside it";
    EXPECT_EQ(Hit(chart, {6, 16.5F}, 1.0F), (ChartPart{PartKind::Plot})) << "too far away";
    EXPECT_EQ(Hit(chart, {15, 15}, 1.0F), (ChartPart{PartKind::Plot})) << "a null is a gap";
    EXPECT_EQ(Hit(chart, {30, 20}, 1.0F), (ChartPart{PartKind::Plot})) << "one point is no line";
    EXPECT_EQ(Hit(chart, {45, 20}, 1.0F), (ChartPart{PartKind::Plot})) << "what has no place is a gap";
    EXPECT_EQ(Hit(chart, {54, 20.5F}, 1.0F), (ChartPart{PartKind::CurvePoint, 0, 5}));
    const std::vector<PlacedPart> parts = PartsOf(chart);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[1].Part, (ChartPart{PartKind::Curve}));
    EXPECT_EQ(parts[1].Box, (RectF{0, 10, 60, 10}));

    const CBasicCurve dotted =
        OneCurve({10, kCurveNull, 10, 20}, CurveDotStyle::HollowCircle, CurveNullValueStyle::AsZero);
    EXPECT_EQ(Hit(dotted, {0.9F, 20.5F}), (ChartPart{PartKind::CurvePoint, 0, 0})) << "on the marker";
    EXPECT_EQ(dotted.HitTest({11, 29.5F}, 1.0F)->Part.Component, 2U)
        << "the line runs through the null, which is no point";
    EXPECT_EQ(dotted.HitTest({20, 20}, 1.0F)->Box, (RectF{19, 19, 2, 2}));
    const CBasicCurve nothing =
        OneCurve({kNan, kNan}, CurveDotStyle::SolidCircle, CurveNullValueStyle::Break);
    EXPECT_EQ(PartsOf(nothing).size(), 1U);
}

/// Text sizes here: 2 mm a character, 5 mm a line.
TEST(HitTest, ALegendIsItsSamplesItsNamesAndTheBoxRoundThem) {
    CurveProp prop;
    prop.Plot.CurveName = {"one", "two"};
    prop.Legend.ShowLegend = 1;
    prop.Legend.ItemDist = 3.0F;
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.InitializeValueRange(10);
    chart.SetCurveData({{1, 2}, {3, 4}}, {{0, 1}, {0, 1}});
    chart.Layout();
    const RectF item = chart.GetLayout().LegendItemRects[1];
    EXPECT_EQ(Hit(chart, {item.X + 9.9F, item.Y + 1}, 1.0F), (ChartPart{PartKind::LegendSample, 1}));
    EXPECT_EQ(Hit(chart, {item.X + 10.1F, item.Y + 1}, 1.0F), (ChartPart{PartKind::LegendName, 1}));
    EXPECT_EQ(Hit(chart, {item.X + 5, item.Y - 1.5F}), (ChartPart{PartKind::Legend})) << "between two items";
    std::vector<PartKind> last;
    for (const PlacedPart& part : PartsOf(chart)) {
        last.push_back(part.Part.Kind);
    }
    ASSERT_GE(last.size(), 5U);
    last.erase(last.begin(), last.end() - 5);
    EXPECT_EQ(last, (std::vector{PartKind::Legend, PartKind::LegendSample, PartKind::LegendName,
                                 PartKind::LegendSample, PartKind::LegendName}));
}

TEST(HitTest, TextsAreTurnedRectanglesOverWhatTheyCover) {
    CurveProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = "0123456789";
    prop.Caption.CaptionTextProperty.Angle = 45;
    prop.Plot.CurveName = {"one"};
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.InitializeValueRange(10);
    chart.SetCurveData({{1, 2}}, {{0, 1}});
    chart.Layout();
    const std::vector<PlacedPart> parts = PartsOf(chart);
    const std::size_t caption = PlaceOf(parts, {PartKind::Caption});
    ASSERT_LT(caption, parts.size());
    const RectF box = parts[caption].Box;
    const PointF middle = box.Center();
    EXPECT_EQ(Hit(chart, middle), (ChartPart{PartKind::Caption}));
    EXPECT_EQ(Hit(chart, {middle.X + 6, middle.Y - 6}), (ChartPart{PartKind::Caption})) << "along the text";
    EXPECT_EQ(Hit(chart, {middle.X + 6, middle.Y + 6}), std::nullopt) << "in its box, but beside it";
    EXPECT_EQ(Hit(chart, {middle.X + 2.2F, middle.Y + 2.2F}, 1.0F), (ChartPart{PartKind::Caption}))
        << "0.6 mm beside it";
}

TEST(HitTest, PartsOfCompositeChartsSayWhichOneTheyAreOf) {
    CBasicHalfPieHalfPie halves;
    halves.SetHalfPieHalfPieProp({Half(HalfPiePart::Upper), Half(HalfPiePart::Lower)});
    halves.SetComponentValue({1, 1}, {1, 1});
    ChartOptions options;
    options.Title.ShowCaption = options.SecondTitle.ShowCaption = 1;
    options.Title.Caption = "first";
    options.SecondTitle.Caption = "second";
    halves.SetOptions(options);
    halves.SetLocation({50, 60});
    halves.Layout();
    EXPECT_EQ(Hit(halves, {51, 58}), (ChartPart{PartKind::Slice, 1, 0, 0}));
    EXPECT_EQ(Hit(halves, {51, 62}), (ChartPart{PartKind::Slice, 0, 0, 1}));
    EXPECT_EQ(Hit(halves, {51, 59.5F}, 2.0F), (ChartPart{PartKind::Slice, 1, 0, 0}))
        << "what is there goes before what is near in the other half";
    const RectF second = *halves.GetSecondHalf().GetLayout().Title;
    EXPECT_EQ(Hit(halves, second.Center()), (ChartPart{PartKind::Caption, 0, 0, 1}));

    CBasicHalfPieHistogram mixed;
    mixed.SetHalfPieHistogramProp({Bars(BarStyle::Flat, 1), Half(HalfPiePart::Lower)});
    mixed.SetComponentValue({1, 1}, {{10, 20}}, 20);
    mixed.SetLocation({50, 60});
    mixed.Layout();
    EXPECT_EQ(Hit(mixed, {51, 62}), (ChartPart{PartKind::Slice, 0, 0, 0}));
    EXPECT_EQ(Hit(mixed, mixed.GetHistogram().GetShapes().Bars[1].Front.Center()),
              (ChartPart{PartKind::Bar, 0, 1, 1}));
}

TEST(HitTest, NothingIsHitWhereNothingIsDrawn) {
    EXPECT_TRUE(PartsOf(CBasicPie()).empty());
    EXPECT_TRUE(PartsOf(CBasicCurve()).empty());
    EXPECT_TRUE(PartsOf(CBasicHistogram()).empty());
    EXPECT_EQ(Hit(CBasicPie(), {0, 0}, 1.0F), std::nullopt);
    EXPECT_TRUE(PartsOf(BarePie({1, 2}, 7)).empty()) << "a style that draws nothing";
    const CBasicPie pie = BarePie({1, 0, 2}, PieStyle::Flat);
    EXPECT_EQ(PartsOf(pie).size(), 2U) << "a slice of nothing";
}
