// What a person changes on the chart itself and in its sheets, beside the long walk.
#include "designer/window/OpenWindow.h"
#include "documents/Files.h"
#include "window/Printing.h"

#include <QAction>
#include <QApplication>
#include <QPrinter>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

using millichart::PartKind;

class Editing : public OpenWindow {
protected:
    static std::string CaptionOf(const millichart::ChartDocument& document) {
        return std::get<millichart::HistogramDocument>(document.Content).Prop.Caption.Caption;
    }

    QString TextOf(const char* action) {
        return Window().findChild<QAction*>(QString::fromUtf8(action))->toolTip();
    }
};

TEST_F(Editing, ASheetOpensWhereAPersonPointsAndTheChartFollows) {
    ChooseKind("histogram");
    const std::string before = CaptionOf(Document());
    const auto editCaption = [this](int lastKey) {
        InModal(
            [&](QWidget& modal) {
                EXPECT_EQ(modal.windowTitle(), QStringLiteral("直方图属性"));
                Press(Qt::Key_A, Qt::ControlModifier);
                Type(QStringLiteral("Harvest"));
                EXPECT_TRUE(WaitUntil([this] { return CaptionOf(*Shown().Document) == "Harvest"; }))
                    << "the chart follows while the sheet is open";
                Press(lastKey);
            },
            [this] { DoubleClick(*Canvas().viewport(), PlaceOf({PartKind::Caption})); });
    };
    editCaption(Qt::Key_Escape);
    EXPECT_EQ(CaptionOf(*Shown().Document), before);
    EXPECT_FALSE(Session().Current().CanUndo());
    editCaption(Qt::Key_Return);
    EXPECT_EQ(CaptionOf(Document()), "Harvest");
    EXPECT_EQ(TextOf("undo"), QStringLiteral("撤销 修改属性"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(CaptionOf(Document()), before);
    EXPECT_EQ(TextOf("redo"), QStringLiteral("重做 修改属性"));
}

TEST_F(Editing, NudgesAreOneChangeAndDeletePutsBack) {
    ChooseKind("pie");
    const millichart::ChartPart label{PartKind::SliceLabel, 1};
    const penlode::RectF before = BoxOf(label);
    Click(*Canvas().viewport(), PlaceOf(label));
    for (int i = 0; i < 5; ++i) {
        Press(Qt::Key_Right);
    }
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_NEAR(BoxOf(label).X, before.X + 0.5F, 1e-3F);
    EXPECT_NEAR(BoxOf(label).Y, before.Y + 1.0F, 1e-3F);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NEAR(BoxOf(label).X, before.X, 1e-3F);
    EXPECT_FALSE(Session().Current().CanUndo());
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    Press(Qt::Key_Delete);
    EXPECT_NEAR(BoxOf(label).Y, before.Y, 1e-3F);
}

TEST_F(Editing, EveryPaneIsReachedByKey) {
    ChooseKind("histogram");
    Canvas().setFocus();
    std::vector<QWidget*> reached;
    for (int i = 0; i < 3; ++i) {
        Press(Qt::Key_F6);
        reached.push_back(QApplication::focusWidget());
    }
    EXPECT_EQ(reached[0], &Table());
    EXPECT_TRUE(Window().findChild<OptionsPanel*>()->isAncestorOf(reached[1]));
    EXPECT_EQ(reached[2], &Canvas());
}

TEST_F(Editing, APrintedPageHoldsTheChart) {
    ChooseKind("pie");
    const QString file = Folder().filePath(QStringLiteral("page.pdf"));
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        PrintChart(printer, Document().LayOut());
    }
    const std::string bytes = millichart::ReadFile(file.toStdString()).Text;
    EXPECT_TRUE(bytes.starts_with("%PDF"));
    EXPECT_GT(bytes.size(), 10000U) << "with a picture on it";
}

} // namespace
} // namespace designer::test
