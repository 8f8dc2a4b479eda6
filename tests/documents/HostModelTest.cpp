// The part of examples/host-win32 that knows no window.
#include "model/ChartModel.h"
#include "model/PrintedPage.h"
#include "model/TableCells.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace host;
using millichart::ChartDocument;
using millichart::ChartPart;
using millichart::PartKind;
using penlode::PointF;
using penlode::RectF;

ChartModel New(const char* kind) {
    return ChartModel(designer::Editor::New(*millichart::FindChartKind(kind)));
}

bool IsNear(PointF a, PointF b) {
    return std::hypot(a.X - b.X, a.Y - b.Y) < 1e-3F;
}

RectF BoxOf(const ChartModel& model, const ChartPart& part) {
    const auto found = std::find_if(model.Parts().begin(), model.Parts().end(),
                                    [&part](const auto& placed) { return placed.Part == part; });
    return found == model.Parts().end() ? RectF() : found->Box;
}

void Drag(ChartModel& model, PointF from, PointF by) {
    ASSERT_TRUE(model.Grab(from, 0.0F));
    model.DragTo(from + by);
    model.Drop();
}

TEST(HostModelTest, WhatCanBeMovedComesWhereItsOutlineWasAndIsNamedForTheMenu) {
    ChartModel model = New("pie");
    const ChartPart label{PartKind::SliceLabel, 0};
    const RectF before = BoxOf(model, label);
    ASSERT_TRUE(model.Grab(before.Center(), 0.0F));
    model.DragTo(before.Center() + PointF{9.0F, -2.0F});
    ASSERT_TRUE(model.Outline());
    const RectF outline = *model.Outline();
    EXPECT_TRUE(IsNear(outline.TopLeft(), model.MovingPlace().TopLeft() + PointF{9.0F, -2.0F}));
    model.Drop();
    const PointF after = before.Center() + PointF{9.0F, -2.0F};
    EXPECT_TRUE(IsNear(BoxOf(model, label).Center(), after));
    EXPECT_EQ(model.Editor().UndoName(), "移动扇区标签");
    ASSERT_TRUE(model.Selected());
    EXPECT_TRUE(IsNear(model.Selected()->Box.Center(), after)) << "the frame goes with it";

    const RectF entry = BoxOf(model, {PartKind::LegendName, 1});
    Drag(model, entry.Center(), {0.0F, 5.0F});
    EXPECT_TRUE(
        IsNear(BoxOf(model, {PartKind::LegendName, 1}).Center(), entry.Center() + PointF{0.0F, 5.0F}));
    EXPECT_EQ(model.Editor().UndoName(), "移动图例");
    model.Reset();
    EXPECT_TRUE(IsNear(BoxOf(model, {PartKind::LegendName, 1}).Center(), entry.Center()));
    EXPECT_EQ(model.Editor().UndoName(), "图例复位");
}

TEST(HostModelTest, ADockedLegendShowsWhereItWouldGoAndArrowsTakeItToTheNextPlace) {
    ChartModel model = New("histogram");
    const ChartPart legend{PartKind::Legend};
    const RectF before = BoxOf(model, legend);
    ASSERT_GT(before.Width, 0.0F);
    const RectF plot = BoxOf(model, {PartKind::Plot});
    ASSERT_TRUE(model.Grab(before.Center(), 0.0F));
    model.DragTo({plot.Center().X, plot.Bottom() + 60.0F});
    const std::optional<RectF> outline = model.Outline();
    ASSERT_TRUE(outline);
    EXPECT_GT(outline->Y, plot.Bottom());
    model.Drop();
    EXPECT_TRUE(IsNear(BoxOf(model, legend).TopLeft(), outline->TopLeft()));
    model.Select(legend);
    EXPECT_TRUE(model.Nudge(0, -1, false));
    EXPECT_FALSE(IsNear(BoxOf(model, legend).TopLeft(), outline->TopLeft()));
    model.Select(ChartPart{PartKind::Plot});
    EXPECT_FALSE(model.Nudge(0, -1, false)) << "the window scrolls";
}

TEST(HostModelTest, APartThatComesBackIsGivenUpOrStandsFastChangesNothing) {
    ChartModel model = New("pie");
    const std::size_t revision = model.Revision();
    const PointF point = BoxOf(model, {PartKind::SliceLabel, 0}).Center();
    Drag(model, point, {0.0F, 0.0F});
    ASSERT_TRUE(model.Grab(point, 0.0F));
    model.DragTo({90.0F, 90.0F});
    EXPECT_TRUE(model.CanUndo()) << "the move";
    model.Undo();
    EXPECT_FALSE(model.Outline());
    model.Drop();
    EXPECT_FALSE(model.Grab({-500.0F, -500.0F}, 1.0F));
    EXPECT_FALSE(model.Selected());

    Drag(model, BoxOf(model, {PartKind::Slice, 0}).Center(), {9.0F, 9.0F});
    EXPECT_TRUE(model.Selected()) << "selected, but fast";
    EXPECT_FALSE(model.CanUndo());
    EXPECT_EQ(model.Revision(), revision);
}

TEST(HostModelTest, StepsByArrowsAreOneChange) {
    ChartModel model = New("pie");
    const ChartPart legend{PartKind::Legend};
    const PointF before = BoxOf(model, legend).TopLeft();
    model.Select(legend);
    model.Nudge(1, 0, false);
    model.Nudge(1, 0, false);
    model.Nudge(0, 1, true);
    EXPECT_TRUE(IsNear(BoxOf(model, legend).TopLeft(), before + PointF{0.2F, 1.0F}));
    model.Undo();
    EXPECT_TRUE(IsNear(BoxOf(model, legend).TopLeft(), before));
    EXPECT_FALSE(model.CanUndo());
    model.Redo();
    EXPECT_TRUE(IsNear(BoxOf(model, legend).TopLeft(), before + PointF{0.2F, 1.0F}));
}

TEST(HostModelTest, ATrialShowsAndLeavesTheDocument) {
    ChartModel model = New("histogram");
    const RectF plot = BoxOf(model, {PartKind::Plot});
    ChartDocument trial = model.Editor().Document();
    trial.Location = trial.Location + PointF{7.0F, 0.0F};
    model.Try(trial);
    EXPECT_TRUE(IsNear(BoxOf(model, {PartKind::Plot}).TopLeft(), plot.TopLeft() + PointF{7.0F, 0.0F}));
    model.EndTrial();
    EXPECT_TRUE(IsNear(BoxOf(model, {PartKind::Plot}).TopLeft(), plot.TopLeft()));
    EXPECT_FALSE(model.CanUndo());
}

TEST(HostModelTest, TextsAndColoursOfTheSelectedPartAreChangedAndKeptWhereTheyAre) {
    ChartModel model = New("histogram");
    model.Select(ChartPart{PartKind::Caption});
    ASSERT_TRUE(model.EditableText());
    const std::string before = *model.EditableText();
    EXPECT_NE(before.back(), '\n');
    model.SetText(before);
    EXPECT_FALSE(model.CanUndo()) << "the same text";
    model.SetText("新的标题");
    EXPECT_EQ(model.EditableText(), "新的标题");
    EXPECT_EQ(model.Editor().UndoName(), "修改标题");
    EXPECT_FALSE(model.Color());

    model.Select(ChartPart{PartKind::LegendSample, 0});
    model.SetColor(penlode::Color{0xFF336699U});
    EXPECT_EQ(model.Color(), penlode::Color{0xFF336699U});
    EXPECT_NE(model.DescriptionOf({PartKind::Bar, 0, 0}).find("："), std::string::npos) << "with its value";
    model.Select(std::nullopt);
    model.SetText("x");
    EXPECT_EQ(model.Editor().UndoName(), "修改颜色");
}

TEST(HostModelTest, TabGoesRoundAndTheSelectionLeavesWithItsPart) {
    ChartModel model = New("pie");
    const std::size_t count = model.Parts().size();
    for (std::size_t i = 0; i <= count; ++i) {
        model.SelectNext(1);
        EXPECT_EQ(*model.Selected(), model.Parts()[i % count]);
    }
    model.SelectNext(-1);
    EXPECT_EQ(*model.Selected(), model.Parts().back());
    model.Select(ChartPart{PartKind::SliceLabel, 2});
    model.ChangeTable("x", 0, [](designer::DataTable& table) { table.RemoveRows(1, table.RowCount() - 1); });
    EXPECT_FALSE(model.Selected());
    model.SwitchKind(*millichart::FindChartKind("histogram"));
    EXPECT_EQ(model.Editor().UndoName(), "改为直方图");
    EXPECT_GT(BoxOf(model, {PartKind::Plot}).Width, 0.0F);
}

TEST(HostModelTest, CellsComeBackIntoTheTableWithWhatTheUserMadeOfThem) {
    const designer::DataTable before = New("histogram").Editor().Tables().front();
    designer::DataTable table = before;
    TableCells cells = CellsOf(table);
    ASSERT_EQ(cells.front().size(), table.ColumnCount() + 1);
    TakeCells(table, cells);
    EXPECT_EQ(table, before);

    cells[0][1] = "产量";
    cells[1][1] = "1,250.5";
    cells[2].back() = "7";
    cells.back().assign(cells.back().size(), ""); // emptied
    cells.emplace_back(cells.front().size());     // added, and left empty
    TakeCells(table, cells);
    EXPECT_EQ(table.Heading(1), "产量");
    EXPECT_EQ(table.Text(0, 1), "1250.5");
    EXPECT_EQ(table.ColumnCount(), before.ColumnCount() + 1);
    EXPECT_EQ(table.Text(1, before.ColumnCount()), "7");
    EXPECT_EQ(table.RowCount(), before.RowCount() - 1);
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
