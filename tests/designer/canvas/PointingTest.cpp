#include "designer/canvas/Canvas.h"
#include "model/ChartEdits.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

using millichart::ChartPart;
using millichart::PartKind;
using millichart::PlacedPart;
using penlode::PointF;

/// What a canvas said of moves.
struct MoveLog {
    explicit MoveLog(OpenCanvas& canvas) {
        QObject::connect(&canvas.Widget, &ChartCanvas::Moved,
                         [this](ChartPart part, PointF by, bool isNudge) {
                             Part = part;
                             By = by;
                             IsNudge = isNudge;
                             ++Count;
                         });
    }

    ChartPart Part;
    PointF By;
    bool IsNudge = false;
    int Count = 0;
};

TEST(Pointing, HoversAndSelectsWhatIsUnderTheMouse) {
    OpenCanvas canvas(Example("pie-oceans"));
    std::optional<ChartPart> hovered;
    QObject::connect(&canvas.Widget, &ChartCanvas::Hovered, [&](auto part) { hovered = part; });
    QSignalSpy selected(&canvas.Widget, &ChartCanvas::SelectionChanged);
    const PlacedPart label = canvas.Part(PartKind::SliceLabel, 1);
    canvas.MoveTo(canvas.Middle(label));
    EXPECT_EQ(hovered, label.Part);
    EXPECT_EQ(canvas->Selected(), std::nullopt);
    EXPECT_EQ(canvas->viewport()->cursor().shape(), Qt::SizeAllCursor);
    canvas.Picture("hover");

    canvas.Click(canvas.Middle(label));
    EXPECT_EQ(canvas->Selected(), label.Part);
    canvas.Click({2, 2});
    EXPECT_EQ(canvas->Selected(), std::nullopt);
    EXPECT_EQ(selected.size(), 2);
    canvas.MoveTo({2, 2});
    EXPECT_EQ(hovered, std::nullopt);

    QHelpEvent help(QEvent::ToolTip, canvas.Middle(label),
                    canvas->viewport()->mapToGlobal(canvas.Middle(label)));
    QApplication::sendEvent(canvas->viewport(), &help);
    const PartFacts facts = FactsOf(*canvas->Shown()->Document, canvas->Shown()->Chart, label.Part);
    EXPECT_FALSE(facts.Name.empty());
    EXPECT_TRUE(QToolTip::text().startsWith(QString::fromStdString(facts.Name)));
}

TEST(Pointing, DragsByTheSameMillimetresAtEveryZoom) {
    OpenCanvas canvas(Example("pie-oceans"));
    MoveLog moves(canvas);
    for (const double zoom : {0.5, 1.0, 2.5, 8.0}) {
        canvas->SetZoom(zoom);
        canvas->WaitUntilShown();
        const PlacedPart label = canvas.Part(PartKind::SliceLabel, 1);
        canvas->Select(label.Part);
        const QPoint from = canvas.Middle(label);
        const QPoint to = from + QPoint(40, -24);
        const PointF start = canvas->ToPage(from);
        const PointF end = canvas->ToPage(to);
        canvas.Drag(from, to);
        EXPECT_EQ(moves.Part, label.Part);
        EXPECT_NEAR(moves.By.X, end.X - start.X, 1e-3F);
        EXPECT_NEAR(moves.By.Y, end.Y - start.Y, 1e-3F);
        const double dpi = canvas->screen()->physicalDotsPerInch();
        EXPECT_NEAR(moves.By.X, 40.0 * 25.4 / dpi / zoom, 1e-3);
        EXPECT_FALSE(moves.IsNudge);
    }
    EXPECT_EQ(moves.Count, 4);
}

TEST(Pointing, MovesNothingForAClickAnEscapeOrAFixedPart) {
    OpenCanvas canvas(Example("pie-oceans"));
    MoveLog moves(canvas);
    const QPoint label = canvas.Middle(canvas.Part(PartKind::SliceLabel, 1));
    canvas.Drag(label, label + QPoint(2, 1));
    canvas.Drag(label, label + QPoint(60, 40), Qt::LeftButton, false);
    canvas.Picture("drag");
    QTest::keyClick(&canvas.Widget, Qt::Key_Escape);
    QTest::mouseRelease(canvas->viewport(), Qt::LeftButton, {}, label + QPoint(60, 40));
    EXPECT_NE(canvas->Selected(), std::nullopt) << "Escape gave up the drag alone";
    const QPoint slice = canvas.Middle(canvas.Part(PartKind::Slice));
    canvas.Drag(slice, slice + QPoint(50, 50));
    EXPECT_EQ(moves.Count, 0);
}

TEST(Pointing, DragsTheLegendByItsEntriesAndKeepsTheSelectionInTheNextChart) {
    OpenCanvas canvas(Example("histogram-china-summer-medals"));
    MoveLog moves(canvas);
    const PlacedPart name = canvas.Part(PartKind::LegendName);
    canvas.Drag(canvas.Middle(name), canvas.Middle(name) + QPoint(-150, 60), Qt::LeftButton, false);
    canvas.Picture("dock");
    QTest::mouseRelease(canvas->viewport(), Qt::LeftButton, {}, canvas.Middle(name) + QPoint(-150, 60));
    EXPECT_EQ(moves.Count, 1);
    EXPECT_EQ(MobilityOf(canvas->Shown()->Chart, moves.Part), Mobility::Docked);
    QTest::keyClick(&canvas.Widget, Qt::Key_Down);
    EXPECT_EQ(moves.Count, 2);
    EXPECT_TRUE(moves.IsNudge);
    EXPECT_NE(DockedPlace(canvas->Shown()->Chart, moves.Part, moves.By),
              DockedPlace(canvas->Shown()->Chart, moves.Part, {}));
    canvas.Show(Example("histogram-china-summer-medals"));
    EXPECT_EQ(canvas->Selected(), name.Part);
    canvas.Show(Example("pie-oceans"));
    EXPECT_NE(canvas->Selected(), name.Part) << "this one has no such part";
}

TEST(Pointing, TellsOfKeysOnTheSelectedPart) {
    OpenCanvas canvas(Example("pie-oceans"));
    MoveLog moves(canvas);
    QSignalSpy opened(&canvas.Widget, &ChartCanvas::Opened);
    QSignalSpy reset(&canvas.Widget, &ChartCanvas::ResetWanted);
    canvas->Select(canvas.Part(PartKind::SliceLabel, 1).Part);
    QTest::keyClick(&canvas.Widget, Qt::Key_Left);
    EXPECT_EQ(moves.By, (PointF{-0.1F, 0.0F}));
    QTest::keyClick(&canvas.Widget, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(moves.By, (PointF{0.0F, 1.0F}));
    EXPECT_TRUE(moves.IsNudge);
    QTest::keyClick(&canvas.Widget, Qt::Key_Return);
    EXPECT_EQ(opened.size(), 1);
    QTest::keyClick(&canvas.Widget, Qt::Key_Delete);
    QTest::keyClick(&canvas.Widget, Qt::Key_Backspace);
    EXPECT_EQ(reset.size(), 2);
    QTest::keyClick(&canvas.Widget, Qt::Key_Escape);
    EXPECT_EQ(canvas->Selected(), std::nullopt);
}

TEST(Pointing, GoesThroughAllPartsByTab) {
    OpenCanvas canvas(Example("histogram-crude-steel"));
    const auto parts = canvas->Parts();
    ASSERT_GT(parts.size(), 10U);
    for (const PlacedPart& part : parts) {
        QTest::keyClick(&canvas.Widget, Qt::Key_Tab);
        EXPECT_EQ(canvas->Selected(), part.Part);
    }
    QTest::keyClick(&canvas.Widget, Qt::Key_Backtab);
    EXPECT_EQ(canvas->Selected(), parts[parts.size() - 2].Part);
    const auto rank = [&](PartKind kind) {
        return std::find_if(parts.begin(), parts.end(),
                            [kind](const PlacedPart& part) { return part.Part.Kind == kind; }) -
               parts.begin();
    };
    EXPECT_LT(rank(PartKind::Caption), rank(PartKind::Bar));
    EXPECT_LT(rank(PartKind::Bar), rank(PartKind::GroupName));
}

TEST(Pointing, OpensByDoubleClickAndAsksForColorsAndMenus) {
    OpenCanvas canvas(Example("histogram-china-summer-medals"));
    QSignalSpy opened(&canvas.Widget, &ChartCanvas::Opened);
    QSignalSpy color(&canvas.Widget, &ChartCanvas::ColorWanted);
    QSignalSpy menu(&canvas.Widget, &ChartCanvas::MenuWanted);
    QTest::mouseDClick(canvas->viewport(), Qt::LeftButton, {}, canvas.Middle(canvas.Part(PartKind::Caption)));
    EXPECT_EQ(opened.size(), 1);
    QTest::mouseDClick(canvas->viewport(), Qt::LeftButton, {},
                       canvas.Middle(canvas.Part(PartKind::LegendSample)));
    EXPECT_EQ(color.size(), 1);
    EXPECT_EQ(opened.size(), 1);

    const PlacedPart name = canvas.Part(PartKind::LegendName);
    const QPoint at = canvas.Middle(name);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, canvas->viewport()->mapToGlobal(at));
    QApplication::sendEvent(canvas->viewport(), &event);
    ASSERT_EQ(menu.size(), 1);
    EXPECT_EQ(canvas->Selected(), name.Part);
    EXPECT_EQ(menu.at(0).at(1).toPoint(), at);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {1, 1}, canvas->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(canvas->viewport(), &key);
    ASSERT_EQ(menu.size(), 2);
    EXPECT_EQ(menu.at(1).at(1).toPoint(), canvas->ToViewport(name.Box).center());
}

} // namespace
} // namespace designer::test
