#include "penlode/Color.h"
#include "penlode/Geometry.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"
#include "penlode/Units.h"

#include <gtest/gtest.h>

using namespace penlode;

TEST(Color, ControlsGiveBackOpaqueColours) {
    EXPECT_EQ(ToColorRef(Color{0x80123456}), 0x563412U);
    EXPECT_EQ(FromColorRef(ToColorRef(Color{0x80123456})).Argb, 0xFF123456U);
    EXPECT_EQ(FromColorRef(0xAA563412U).Argb, 0xFF123456U);
}

TEST(Color, ShadeStopsAtZeroAndIsOpaque) {
    EXPECT_EQ(Shaded(Color::FromArgb(128, 50, 61, 200), 60), Color::FromArgb(255, 0, 1, 140));
    EXPECT_EQ(Shaded(Color{0x80506070}, 60).Argb, 0xFF142434U);
    EXPECT_EQ(Shaded(Color{0x80506070}, 100).Argb, 0xFF00000CU);
}

TEST(Units, FontsFromPlatformDialogs) {
    EXPECT_NEAR(MillimetresFromLogicalHeight(-16, 96), 4.2301F, 5e-5F);
    EXPECT_EQ(MillimetresFromLogicalHeight(16, 96), MillimetresFromLogicalHeight(-16, 96));
    EXPECT_EQ(MillimetresFromPoints(2.8368F), 1.0F);
}

TEST(Units, PixelsOfALineSample) {
    EXPECT_NEAR(PixelsFromMillimetres(0.5F, 96.0F), 1.88976F, 1e-5F);
}

TEST(Geometry, AnEmptyRectanglePullsAUnionToItsCorner) {
    EXPECT_EQ(Union({10, 10, 5, 5}, {0, 20, 0, 0}), (RectF{0, 10, 15, 10}));
}

TEST(Owned, CopiesAreClonesAndNullStaysNull) {
    Owned<Pen> first = Pen(kBlack, 1.0F);
    Owned<Pen> second = first;
    second->SetWidth(2.0F);
    EXPECT_EQ(first->GetWidth(), 1.0F);
    EXPECT_NE(first, second);

    second = Owned<Pen>();
    EXPECT_FALSE(second);
    first = second;
    EXPECT_EQ(first, second);
}

TEST(Owned, AStreamGetsTheObjectWhenSavingAndNullWhenLoading) {
    Owned<Pen> pen = Pen(kBlack, 1.0F);
    const Pen* held = pen.Get();
    LendToStream(pen, true, [held](Pen** lent) { EXPECT_EQ(*lent, held); });
    EXPECT_EQ(pen.Get(), held);

    LendToStream(pen, false, [](Pen** lent) {
        EXPECT_EQ(*lent, nullptr);
        *lent = new Pen(kWhite, 3.0F);
    });
    EXPECT_EQ(pen->GetWidth(), 3.0F);

    LendToStream(pen, false, [](Pen**) {});
    EXPECT_FALSE(pen) << "a stream that supplies nothing leaves nothing";
}

TEST(Pen, RefusesUnknownDashStyles) {
    Pen pen(kBlack, 0.1F, DashStyle::Dot);
    EXPECT_EQ(pen.SetDashStyle(static_cast<DashStyle>(6)), Status::InvalidParameter);
    EXPECT_EQ(pen.GetLastStatus(), Status::InvalidParameter);
    EXPECT_EQ(pen.GetDashStyle(), DashStyle::Dot);
    EXPECT_EQ(pen.SetDashStyle(DashStyle::DashDotDot), Status::Ok);
    EXPECT_EQ(Pen(kBlack, 0.1F, static_cast<DashStyle>(-1)).GetDashStyle(), DashStyle::Solid);
}
