// The part of examples/host-win32 that knows no window.
#include "model/ChartModel.h"
#include "model/PageView.h"
#include "model/PrintedPage.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace host;
using millichart::ChartDocument;
using penlode::PointF;
using penlode::RectF;

ChartDocument New(const char* kind) {
    return ChartDocument::FromText(std::string(millichart::FindChartKind(kind)->Template));
}

std::size_t CountOf(const ChartModel& model, MovablePart::Kind kind) {
    return static_cast<std::size_t>(std::count_if(model.Parts().begin(), model.Parts().end(),
                                                  [kind](const auto& part) { return part.What == kind; }));
}

bool IsNear(PointF a, PointF b) {
    return std::hypot(a.X - b.X, a.Y - b.Y) < 1e-3F;
}

void Drag(ChartModel& model, PointF from, PointF by) {
    ASSERT_TRUE(model.Grab(from));
    model.DragTo(from + by);
    model.Drop();
}

TEST(HostModelTest, AllOfAPieFamilyMovesAndNothingOfBarsAndLines) {
    using enum MovablePart::Kind;
    EXPECT_EQ(CountOf(ChartModel(New("pie")), Legend), 1U);
    for (const char* kind : {"pie", "half-pie", "half-pie-half-pie", "half-pie-histogram"}) {
        EXPECT_GT(CountOf(ChartModel(New(kind)), Label), 2U) << kind;
    }
    for (const char* kind : {"histogram", "curve"}) {
        EXPECT_TRUE(ChartModel(New(kind)).Parts().empty()) << kind;
    }
}

TEST(HostModelTest, EachPartComesWhereItIsDraggedAndTheOtherLabelsStay) {
    constexpr PointF kBy{3.0F, -2.0F};
    for (const char* kind : {"pie", "half-pie", "half-pie-half-pie", "half-pie-histogram"}) {
        const std::vector<MovablePart> before = ChartModel(New(kind)).Parts();
        for (std::size_t moved = 0; moved < before.size(); ++moved) {
            ChartModel model(New(kind));
            Drag(model, before[moved].Place.Center(), kBy);
            for (std::size_t i = 0; i < before.size(); ++i) {
                const bool isMoved = i == moved;
                // A legend stands beside the labels and follows them.
                if (isMoved || before[i].What == MovablePart::Kind::Label) {
                    const PointF expected = before[i].Place.TopLeft() + (isMoved ? kBy : PointF{});
                    EXPECT_TRUE(IsNear(model.Parts()[i].Place.TopLeft(), expected)) << kind << moved << i;
                }
            }
        }
    }
}

TEST(HostModelTest, AMovedLegendLeavesTheLabelsOutOfTheDocument) {
    ChartModel model(New("pie"));
    model.SelectNext(-1);
    model.Nudge({0.5F, 0.0F});
    model.Drop();
    const auto& pie = std::get<millichart::PieDocument>(model.Document().Content);
    EXPECT_EQ(pie.LegendOffset, (PointF{0.5F, 0.0F}));
    EXPECT_EQ(pie.LabelOffsets, std::get<millichart::PieDocument>(New("pie").Content).LabelOffsets);
}

TEST(HostModelTest, APartThatComesBackOrIsGivenUpChangesNothing) {
    ChartModel model(New("pie"));
    const std::size_t revision = model.Revision();
    const PointF point = model.Parts().front().Place.Center();
    Drag(model, point, {0.0F, 0.0F});
    ASSERT_TRUE(model.Grab(point));
    model.DragTo({90.0F, 90.0F});
    ASSERT_TRUE(model.Outline());
    EXPECT_TRUE(IsNear(model.Outline()->Center(), {90.0F, 90.0F}));
    model.Cancel();
    EXPECT_FALSE(model.Outline());
    model.Drop();
    EXPECT_FALSE(model.Grab({-500.0F, -500.0F}));
    EXPECT_EQ(model.Selected(), nullptr);
    EXPECT_FALSE(model.CanUndo());
    EXPECT_EQ(model.Revision(), revision);
}

TEST(HostModelTest, ChangesAreUndoneAndRedoneAndItIsKnownWhichStateIsSaved) {
    ChartModel model(New("pie"));
    const std::vector<MovablePart> parts = model.Parts();
    Drag(model, parts[0].Place.Center(), {9.0F, 0.0F});
    const std::vector<MovablePart> once = model.Parts();
    Drag(model, parts[1].Place.Center(), {0.0F, 9.0F});
    const std::string saved = testing::TempDir() + "/host.chart.json";
    EXPECT_FALSE(model.IsSaved());
    EXPECT_EQ(model.Save(saved), "");
    EXPECT_TRUE(model.IsSaved());

    model.Undo();
    EXPECT_EQ(model.Parts(), once);
    EXPECT_FALSE(model.IsSaved());
    model.Redo();
    EXPECT_TRUE(model.IsSaved());
    EXPECT_EQ(model.Parts(), ChartModel(ChartDocument::Load(saved)).Parts());
    model.Undo();
    model.Undo();
    EXPECT_EQ(model.Parts(), parts);
    EXPECT_FALSE(model.CanUndo());

    Drag(model, parts[2].Place.Center(), {1.0F, 1.0F});
    EXPECT_FALSE(model.CanRedo());
    model.Undo();
    EXPECT_FALSE(model.IsSaved()) << "what was saved can no longer be reached";
}

TEST(HostModelTest, UndoGivesUpAMoveBeforeItUndoesAChange) {
    ChartModel model(New("pie"));
    Drag(model, model.Parts()[0].Place.Center(), {9.0F, 0.0F});
    const std::vector<MovablePart> once = model.Parts();
    model.Nudge({1.0F, 0.0F});
    model.Undo();
    EXPECT_FALSE(model.IsMoving());
    EXPECT_EQ(model.Parts(), once);
    ASSERT_TRUE(model.CanUndo());
    model.Undo();
    EXPECT_FALSE(model.CanUndo());
    model.Nudge({1.0F, 0.0F});
    EXPECT_TRUE(model.CanUndo()) << "the move";
    model.Undo();
    EXPECT_EQ(model.Parts(), ChartModel(New("pie")).Parts());
}

TEST(HostModelTest, TheOldestStatesAreForgotten) {
    History<int> history(0);
    for (int state = 1; state <= 150; ++state) {
        history.Change(state);
    }
    while (history.CanUndo()) {
        history.Undo();
    }
    EXPECT_EQ(history.Current(), 51);
    EXPECT_FALSE(history.IsSaved());
}

TEST(HostModelTest, TabGoesRoundAndDropsWhatIsOnItsWay) {
    ChartModel model(New("pie"));
    const std::size_t count = model.Parts().size();
    for (std::size_t i = 0; i <= count; ++i) {
        model.SelectNext(1);
        EXPECT_EQ(*model.Selected(), model.Parts()[i % count]);
    }
    model.Nudge({1.0F, 0.0F});
    model.SelectNext(-1);
    EXPECT_EQ(*model.Selected(), model.Parts().back());
    EXPECT_TRUE(model.CanUndo());
}

PageView Shown(const RectF& sheet) {
    PageView view;
    view.SetDpi(254.0); // 10 pixels a mm
    view.SetWindow(400, 300);
    view.ShowSheet(sheet);
    return view;
}

TEST(HostModelTest, ASmallSheetStandsInTheMiddleAndStaysWhenItChanges) {
    PageView view = Shown({5.0F, 5.0F, 20.0F, 10.0F});
    EXPECT_EQ(view.ToWindow(view.Sheet()), (PixelRect{100, 100, 300, 200}));
    view.UpdateSheet({4.0F, 5.0F, 21.0F, 10.0F});
    EXPECT_EQ(view.ToWindow(view.Sheet()), (PixelRect{90, 100, 300, 200}));
    view.SetWindow(600, 300);
    EXPECT_EQ(view.ToWindow(view.Sheet()), (PixelRect{195, 100, 405, 200}));
}

TEST(HostModelTest, WhatIsUnderTheMouseStaysThereInAZoom) {
    PageView view = Shown({0.0F, 0.0F, 200.0F, 100.0F});
    view.ScrollBy(800, 300);
    const PixelPoint mouse{120, 210};
    const PointF kept = view.ToPage(mouse);
    for (const int direction : {1, 1, 1, -1, 1}) {
        view.SetZoom(NextZoom(view.Zoom(), direction), mouse);
        EXPECT_LT(std::hypot(view.ToPage(mouse).X - kept.X, view.ToPage(mouse).Y - kept.Y), 0.2);
    }
    view.SetZoom(99.0, mouse);
    EXPECT_EQ(view.Zoom(), kMaxZoom);
    EXPECT_EQ(NextZoom(kMaxZoom, 1), kMaxZoom);
    EXPECT_EQ(NextZoom(kMinZoom, -1), kMinZoom);
    EXPECT_EQ(NextZoom(0.8, 1), 0.9);
    EXPECT_EQ(NextZoom(0.8, -1), 0.75);
}

TEST(HostModelTest, ScrollingEndsBesideTheSheetAndRevealsWithTheLeastMove) {
    PageView view = Shown({0.0F, 0.0F, 200.0F, 20.0F});
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

TEST(HostModelTest, DrawnAheadIsAtMostFourWindowsOfTheSheet) {
    PageView view = Shown({0.0F, 0.0F, 200.0F, 20.0F});
    EXPECT_EQ(AreaToDraw(view).Height(), 200);
    for (const int dx : {0, 300, 300, 5000}) {
        view.ScrollBy(dx, 0);
        EXPECT_LE(AreaToDraw(view).Width(), 800);
        EXPECT_TRUE(view.SheetPixels().Contains(AreaToDraw(view)));
        EXPECT_LE(AreaToDraw(view).Left, std::max(0, view.VisibleArea().Left));
    }
}

TEST(HostModelTest, APrintedChartKeepsItsSizeUnlessThePaperIsTooSmall) {
    const PagePlace place = PlaceOnPage({-10.0F, -5.0F, 100.0F, 50.0F}, kA4);
    EXPECT_EQ(place.Scale, 1.0F);
    EXPECT_TRUE(IsNear(place.Offset, {65.0F, 128.5F}));

    const PagePlace wide = PlaceOnPage({0.0F, 0.0F, 380.0F, 50.0F}, kA4);
    EXPECT_EQ(wide.Scale, 0.5F);
    EXPECT_TRUE(IsNear(wide.Offset, {10.0F, 136.0F}));

    // A printer counts from the corner of what it reaches, which need not lie in the paper's middle.
    const PagePlace lopsided = PlaceOnPage({0.0F, 0.0F, 180.0F, 50.0F},
                                           {{-5.0F, -5.0F, 210.0F, 297.0F}, {0.0F, 0.0F, 185.0F, 287.0F}});
    EXPECT_TRUE(IsNear(lopsided.Offset, {5.0F, 118.5F}));
}

} // namespace
