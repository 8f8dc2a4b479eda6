#include "penlode/Owned.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

using namespace millichart;

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

/// A record equals its copy when `member` finds a NaN in it, and no record with a number there.
template <class Prop, class... Member> void ExpectNansToCompare(const Prop& prop, Member... member) {
    const auto check = [&prop](auto find) {
        Prop nan = prop;
        find(nan) = kNan;
        const Prop copy = nan;
        EXPECT_EQ(nan, copy);
        EXPECT_NE(nan, prop);
        EXPECT_NE(prop, nan);
    };
    (check(member), ...);
}

} // namespace

TEST(RecordEquality, ANanInAnyFieldEqualsItsCopyAndNothingElse) {
    ExpectNansToCompare(
        SomePie(), [](PieProp& p) -> float& { return p.Basic.FixedWidth; },
        [](PieProp& p) -> float& { return p.Basic.BaseValue; },
        [](PieProp& p) -> float& { return p.Basic.BasePieWidth; },
        [](PieProp& p) -> float& { return p.Basic.StartAngle; },
        [](PieProp& p) -> float& { return p.Label.DistBetweenLabelCenterAndPieCenter; },
        [](PieProp& p) -> float& { return p.Label.PieLabelTextProperty.Font->Size; },
        [](PieProp& p) -> float& { return p.Legend.ItemDist; });
    ExpectNansToCompare(SomeHalf(), [](HalfPieProp& p) -> float& { return p.Basic.FixedWidth; });
    ExpectNansToCompare(
        SomeHistogram(), [](HistogramProp& p) -> float& { return p.Plot.PlotWidth; },
        [](HistogramProp& p) -> float& { return p.Plot.PlotHeight; },
        [](HistogramProp& p) -> float& { return p.Plot.GroupDistane; });
    ExpectNansToCompare(
        SomeCurves(), [](CurveProp& p) -> float& { return p.Plot.PlotWidth; },
        [](CurveProp& p) -> float& { return p.Plot.CurveWidth.front(); },
        [](CurveProp& p) -> float& { return p.Plot.CurveDotWidth.back(); });

    penlode::Pen nan(penlode::kBlack, kNan);
    EXPECT_EQ(nan, penlode::Pen(nan));
    EXPECT_NE(nan, penlode::Pen());
}

TEST(RecordEquality, EveryOtherFieldStillCounts) {
    LegendProp legend;
    legend.Font = nullptr;
    EXPECT_NE(legend, LegendProp{});
    CurvePlotProp longer = SomeCurves().Plot;
    longer.CurveWidth.push_back(1.0F);
    EXPECT_NE(longer, SomeCurves().Plot);
    HistogramPlotProp last = SomeHistogram().Plot;
    ++last.LogarithmScale;
    EXPECT_NE(last, SomeHistogram().Plot);
}

TEST(RecordEquality, AConstRecordsPenCannotBeChanged) {
    using Handle = penlode::Owned<penlode::Pen>;
    using Pen = const penlode::Pen;
    static_assert(std::is_same_v<decltype(*std::declval<const Handle&>()), Pen&>);
    static_assert(std::is_same_v<decltype(std::declval<const Handle&>().operator->()), Pen*>);
    static_assert(std::is_same_v<decltype(std::declval<const Handle&>().Get()), Pen*>);
}
