#include "model/PageView.h"

#include "canvas/Ruler.h"

#include <cmath>
#include <gtest/gtest.h>

namespace designer {
namespace {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

PageView View(double dpi, const RectF& sheet = {-6.0F, -6.0F, 120.0F, 90.0F}) {
    PageView view;
    view.SetDpi(dpi);
    view.SetWindow(800, 600);
    view.ShowSheet(sheet);
    return view;
}

TEST(PageView, HasTrueSizeAndTheSheetInItsMiddle) {
    for (const double dpi : {72.0, 96.0, 120.0, 144.0, 220.5}) {
        const PageView view = View(dpi);
        const PointD from = view.ToWindow(PointF{0.0F, 0.0F});
        const PointD to = view.ToWindow(PointF{25.4F, 50.8F});
        EXPECT_NEAR(to.X - from.X, dpi, 1e-3);
        EXPECT_NEAR(to.Y - from.Y, 2.0 * dpi, 1e-3);
    }
    const PixelRect sheet = View(96.0).ToWindow(View(96.0).Sheet());
    EXPECT_NEAR(sheet.Left + sheet.Right, 800, 1);
    EXPECT_NEAR(sheet.Top + sheet.Bottom, 600, 1);
}

TEST(PageView, KeepsWhatIsUnderTheAnchorWhileZooming) {
    PageView view = View(96.0, {0.0F, 0.0F, 400.0F, 300.0F});
    view.SetZoom(2.0, {400, 300});
    const PixelPoint anchor{530, 211};
    const PointF before = view.ToPage(PointD{530.0, 211.0});
    for (int step = 0; step < 4; ++step) {
        view.SetZoom(NextZoom(view.Zoom(), 1), anchor);
        const PointF now = view.ToPage(PointD{530.0, 211.0});
        const double pixel = 1.0 / view.PixelsPerMillimetre();
        EXPECT_NEAR(now.X, before.X, 3.0 * pixel);
        EXPECT_NEAR(now.Y, before.Y, 3.0 * pixel);
    }
    EXPECT_EQ(view.Zoom(), 8.0);
    view.SetZoom(100.0, anchor);
    EXPECT_EQ(view.Zoom(), kMaxZoom);
    view.SetZoom(0.0, anchor);
    EXPECT_EQ(view.Zoom(), kMinZoom);
    EXPECT_EQ(NextZoom(kMaxZoom, 1), kMaxZoom);
    EXPECT_EQ(NextZoom(kMinZoom, -1), kMinZoom);
    EXPECT_EQ(NextZoom(0.8, 1), 0.9);
    EXPECT_EQ(NextZoom(0.8, -1), 0.75);
}

TEST(PageView, FitsAllOfTheSheetAndKeepsItInPlaceAfterAChange) {
    PageView view = View(96.0, {10.0F, 20.0F, 500.0F, 90.0F});
    view.Fit();
    const PixelRect sheet = view.ToWindow(view.Sheet());
    EXPECT_GE(sheet.Left, 16);
    EXPECT_LE(sheet.Right, 784);
    EXPECT_GT(sheet.Width(), 760);
    EXPECT_LE(view.ScrollRange().Width(), 800) << "needs no bar";

    const PointD before = view.ToWindow(PointF{30.0F, 40.0F});
    view.UpdateSheet({4.0F, 20.0F, 506.0F, 95.0F});
    EXPECT_NEAR(view.ToWindow(PointF{30.0F, 40.0F}).X, before.X, 25.0);
    EXPECT_EQ(view.ToWindow(PointF{30.0F, 40.0F}).Y, before.Y);
}

TEST(PageView, ASmallSheetStaysWhereItIsWhenItChanges) {
    PageView view;
    view.SetDpi(254.0); // 10 pixels a mm
    view.SetWindow(400, 300);
    view.ShowSheet({5.0F, 5.0F, 20.0F, 10.0F});
    EXPECT_EQ(view.ToWindow(view.Sheet()), (PixelRect{100, 100, 300, 200}));
    view.UpdateSheet({4.0F, 5.0F, 21.0F, 10.0F});
    EXPECT_EQ(view.ToWindow(view.Sheet()), (PixelRect{90, 100, 300, 200}));
    view.SetWindow(600, 300);
    EXPECT_EQ(view.ToWindow(view.Sheet()), (PixelRect{195, 100, 405, 200}));
}

TEST(PageView, ScrollingEndsBesideTheSheetAndRevealsWithTheLeastMove) {
    PageView view;
    view.SetDpi(254.0);
    view.SetWindow(400, 300);
    view.ShowSheet({0.0F, 0.0F, 200.0F, 20.0F});
    view.ScrollBy(-5000, 0);
    EXPECT_EQ(view.Scroll().X, view.ScrollRange().Left);
    view.Reveal({50.0F, 5.0F, 10.0F, 2.0F});
    EXPECT_GE(view.VisibleArea().Right, 600);
    EXPECT_LT(view.VisibleArea().Right, 650);
    const PixelPoint before = view.Scroll();
    view.Reveal({55.0F, 5.0F, 1.0F, 2.0F});
    EXPECT_EQ(view.Scroll(), before);
    view.ScrollBy(5000, 0);
    EXPECT_EQ(view.VisibleArea().Right, view.ScrollRange().Right);
}

TEST(PageView, DrawsAheadWithinTheSheetAlone) {
    PageView view = View(96.0, {0.0F, 0.0F, 200.0F, 150.0F});
    EXPECT_EQ(AreaToDraw(view), view.SheetPixels());
    view.SetZoom(8.0, {400, 300});
    const PixelRect area = AreaToDraw(view);
    EXPECT_TRUE(area.Contains(AreaInSight(view)));
    EXPECT_LE(area.Width(), 1200);
    EXPECT_LE(area.Height(), 900);
    view.ScrollBy(150, -100);
    EXPECT_TRUE(area.Contains(AreaInSight(view)));
}

TEST(Ruler, HasNumbersAndTicksThatStandApart) {
    for (double pixels = 0.4; pixels < 70.0; pixels *= 1.3) {
        const RulerSteps steps = StepsAt(pixels);
        EXPECT_GE(steps.Numbered * pixels, 36.0);
        EXPECT_GE(steps.Least * pixels, 3.5);
        EXPECT_EQ(steps.Numbered % steps.Least, 0) << pixels;
    }
    EXPECT_EQ(StepsAt(96.0 / 25.4).Numbered, 10);
    EXPECT_EQ(StepsAt(96.0 / 25.4 * 8.0).Numbered, 2);
}

} // namespace
} // namespace designer
