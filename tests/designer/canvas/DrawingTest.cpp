#include "canvas/CanvasColors.h"
#include "designer/canvas/Canvas.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

using penlode::PointF;

/// Pixels of the picture that are neither white nor the desk's, in a box of the viewport.
int InkIn(const QImage& seen, const ChartCanvas& canvas, const penlode::RectF& onPage) {
    const double ratio = seen.devicePixelRatio();
    const QRect box = canvas.ToViewport(onPage).translated(canvas.viewport()->pos());
    const QColor desk = ColorsOf(canvas.palette()).Desk;
    int ink = 0;
    for (int y = static_cast<int>(box.top() * ratio); y < static_cast<int>(box.bottom() * ratio); ++y) {
        for (int x = static_cast<int>(box.left() * ratio); x < static_cast<int>(box.right() * ratio); ++x) {
            const bool isIn = seen.rect().contains(x, y);
            ink += isIn && seen.pixelColor(x, y) != desk && seen.pixelColor(x, y).lightness() < 250 ? 1 : 0;
        }
    }
    return ink;
}

TEST(Drawing, ShowsThePageWhereItSaysAtEveryZoom) {
    OpenCanvas canvas(Example("pie-oceans"));
    const auto box = canvas->Shown()->Chart.Extent();
    const double dpi = canvas->screen()->physicalDotsPerInch();
    for (const double zoom : {0.5, 1.0, 2.0, 8.0}) {
        canvas->SetZoom(zoom);
        canvas->WaitUntilShown();
        const QPoint from = canvas->ToViewport(PointF{0.0F, 0.0F});
        const QPoint to = canvas->ToViewport(PointF{254.0F, 0.0F});
        EXPECT_NEAR(to.x() - from.x(), dpi * zoom * 10.0, 1.0);
        const PointF back = canvas->ToPage(to);
        EXPECT_NEAR(back.X, 254.0F, 0.3F / static_cast<float>(zoom));
        const QImage seen = canvas.Seen();
        EXPECT_GT(InkIn(seen, canvas.Widget, box), 2000) << zoom;
        EXPECT_EQ(InkIn(seen, canvas.Widget, {box.X - 5.0F, box.Y - 5.0F, 3.0F, 3.0F}), 0) << "the margin";
    }
}

TEST(Drawing, OfSeveralDocumentsTheLatestWins) {
    OpenCanvas canvas(Example("pie-oceans"));
    QSignalSpy shown(&canvas.Widget, &ChartCanvas::ChartShown);
    const int before = canvas->LaidOutCount();
    const auto first = LongCurve(200'000);
    const auto last = Example("histogram-crude-steel");
    canvas->Show(first, 100);
    for (std::uint64_t revision = 101; revision < 110; ++revision) {
        canvas->Show(Example("pie-continents"), revision);
    }
    canvas->Show(last, 110);
    canvas->WaitUntilShown();
    EXPECT_EQ(canvas->Shown()->Document, last);
    EXPECT_EQ(shown.last().at(0).toULongLong(), 110U);
    EXPECT_LE(canvas->LaidOutCount() - before, 4) << "those between were laid out for nobody";

    canvas->Show(nullptr, 111);
    canvas->WaitUntilShown();
    EXPECT_EQ(shown.last().at(0).toULongLong(), 111U);
    EXPECT_TRUE(canvas->Parts().empty());
}

TEST(Drawing, LaysOutOnceHoweverMuchIsScrolledAndDrawsOnlyWhatIsNew) {
    OpenCanvas canvas(Example("histogram-crude-steel"));
    canvas->SetZoom(8.0);
    canvas->horizontalScrollBar()->setValue(canvas->horizontalScrollBar()->minimum());
    canvas->WaitUntilShown();
    const int laidOut = canvas->LaidOutCount();
    const int drawn = canvas->DrawnCount();
    QScrollBar* bar = canvas->horizontalScrollBar();
    ASSERT_GT(bar->maximum(), bar->minimum() + 300);
    bar->setValue(bar->value() + 10);
    canvas->WaitUntilShown();
    EXPECT_EQ(canvas->DrawnCount(), drawn) << "was drawn ahead";
    bar->setValue(bar->maximum());
    canvas->WaitUntilShown();
    EXPECT_EQ(canvas->DrawnCount(), drawn + 1);
    EXPECT_EQ(canvas->LaidOutCount(), laidOut);
}

TEST(Drawing, LeavesTheInterfaceFreeForAMillionPoints) {
    OpenCanvas canvas(Example("pie-oceans"));
    QSignalSpy shown(&canvas.Widget, &ChartCanvas::ChartShown);
    const auto document = LongCurve(1'000'000);
    QElapsedTimer clock;
    clock.start();
    canvas->Show(document, 50);
    qint64 longest = clock.elapsed();
    while (shown.isEmpty() && clock.elapsed() < 60'000) {
        QElapsedTimer turn;
        turn.start();
        canvas.MoveTo(QPoint(300, 300));
        canvas.Seen();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        longest = std::max(longest, turn.elapsed());
    }
    ASSERT_EQ(shown.size(), 1);
    EXPECT_LT(longest, 400) << "of " << clock.elapsed() << " ms";
    QElapsedTimer turn;
    turn.start();
    canvas.MoveTo(canvas->ToViewport(document->Location) + QPoint(150, 150));
    EXPECT_LT(turn.elapsed(), 400) << "pointing at a long curve";
    RecordProperty("MillisecondsUntilShown", static_cast<int>(clock.elapsed()));
}

TEST(Drawing, ZoomsByTheWheelAboutTheMouseAndFitsUntilThen) {
    OpenCanvas canvas(Example("pie-continents"));
    QSignalSpy zoomed(&canvas.Widget, &ChartCanvas::ZoomChanged);
    canvas->FitPage();
    canvas->WaitUntilShown();
    const double fitted = canvas->Zoom();
    canvas->resize(500, 360);
    EXPECT_LT(canvas->Zoom(), fitted);
    EXPECT_EQ(canvas->horizontalScrollBar()->maximum(), canvas->horizontalScrollBar()->minimum());

    canvas->SetZoom(2.0);
    const QPoint at(200, 100);
    const PointF before = canvas->ToPage(at);
    const QPointF global = canvas->viewport()->mapToGlobal(QPointF(at));
    QWheelEvent turn(QPointF(at), global, {}, QPoint(0, 240), Qt::NoButton, Qt::ControlModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(canvas->viewport(), &turn);
    EXPECT_EQ(canvas->Zoom(), 3.0);
    EXPECT_NEAR(canvas->ToPage(at).X, before.X, 0.3F);
    EXPECT_NEAR(canvas->ToPage(at).Y, before.Y, 0.3F);
    EXPECT_GE(zoomed.size(), 3);
    canvas->resize(600, 400);
    EXPECT_EQ(canvas->Zoom(), 3.0) << "fits no more";
}

TEST(Drawing, PansByTheMiddleButtonAndBySpace) {
    OpenCanvas canvas(Example("pie-continents"));
    canvas->SetZoom(6.0);
    const PointF page{20.0F, 20.0F};
    const QPoint before = canvas->ToViewport(page);
    canvas.Drag({300, 300}, {250, 280}, Qt::MiddleButton);
    EXPECT_LE((canvas->ToViewport(page) - before + QPoint(50, 20)).manhattanLength(), 2);

    QSignalSpy color(&canvas.Widget, &ChartCanvas::ColorWanted);
    canvas->Select(canvas.Part(millichart::PartKind::Slice).Part);
    const QPoint again = canvas->ToViewport(page);
    QTest::keyPress(&canvas.Widget, Qt::Key_Space);
    canvas.Drag({300, 300}, {310, 330});
    QTest::keyRelease(&canvas.Widget, Qt::Key_Space);
    EXPECT_LE((canvas->ToViewport(page) - again - QPoint(10, 30)).manhattanLength(), 2);
    EXPECT_TRUE(color.isEmpty()) << "Space moved the page";
    QTest::keyClick(&canvas.Widget, Qt::Key_Space);
    EXPECT_EQ(color.size(), 1);
}

} // namespace
} // namespace designer::test
