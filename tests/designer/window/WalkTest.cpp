// A person's way through the designer, from nothing to a finished chart, by mouse, keyboard and input method.
#include "designer/window/OpenWindow.h"
#include "documents/Files.h"
#include "window/Pictures.h"

#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

using millichart::ChartDocument;
using millichart::PartKind;

class Walk : public OpenWindow {
protected:
    /// A step's picture, where the pictures of the documentation are wanted.
    void Picture(const char* name) {
        const QString folder = qEnvironmentVariable("MILLICHART_DESIGNER_PICTURES");
        ShowAll();
        if (!folder.isEmpty()) {
            ++m_step;
            const QString file = QStringLiteral("%1/%2-%3.png").arg(folder).arg(m_step, 2, 10, QChar('0'));
            ASSERT_TRUE(Window().grab().save(file.arg(QString::fromUtf8(name))));
        }
    }

private:
    int m_step = 0;
};

TEST_F(Walk, FromNothingToAFinishedChart) {
    Picture("start");
    ChooseKind("histogram");
    Picture("new-bar-chart");

    // Its example's data give way to others, typed and pasted.
    DataView& table = Table();
    ClickItem(table, table.model()->index(0, 1));
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    ClickItem(table, table.model()->index(0, 0));
    Type(QStringLiteral("一季度"));
    Press(Qt::Key_Tab);
    Type(QStringLiteral("1250"));
    Press(Qt::Key_Return);
    Picture("typed");
    EXPECT_EQ(Bars().Values.front().front(), 1250.0) << "the chart follows the keystrokes";
    QGuiApplication::clipboard()->setText(
        QStringLiteral("一季度\t1280\t960\n二季度\t1475.5\t1120\n三季度\t1390\t1205\n"
                       "四季度\t1610\t1330\n"));
    ClickItem(table, table.model()->index(0, 0));
    Press(Qt::Key_V, Qt::ControlModifier);
    Picture("pasted");
    ASSERT_GE(Bars().Values.size(), 4U);
    EXPECT_EQ(Bars().Values[1][0], 1475.5);
    EXPECT_EQ(Bars().Values[3][1], 1330.0);

    InModal(
        [](QWidget& modal) {
            auto& dialog = dynamic_cast<QColorDialog&>(modal);
            auto* const html = dialog.findChild<QLineEdit*>();
            ASSERT_NE(html, nullptr);
            html->setFocus();
            html->selectAll();
            Type(QStringLiteral("#c03a2b"));
            Press(Qt::Key_Return);
        },
        [this] {
            DoubleClick(*Canvas().viewport(), PlaceOf({PartKind::LegendSample, 0}));
        });
    Picture("coloured");
    EXPECT_EQ(Histogram().Prop.Plot.ComponentColor.front().Argb, 0xFFC03A2BU);

    const penlode::RectF legendBefore = BoxOf({PartKind::Legend});
    Drag(*Canvas().viewport(), PlaceOf({PartKind::Legend}), PlaceOf({PartKind::HorAxis}) + QPoint(0, 40));
    Picture("legend-dragged");
    EXPECT_GT(BoxOf({PartKind::Legend}).Y, legendBefore.Y + 10.0F) << "it stands below the plot now";

    Canvas().Select(millichart::ChartPart{PartKind::Caption});
    Canvas().setFocus();
    Press(Qt::Key_F2);
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(QStringLiteral("2026 年各季度产量"));
    Picture("caption-in-place");
    Press(Qt::Key_Return);
    Picture("caption");
    EXPECT_EQ(Facts({PartKind::Caption}).Name, "2026 年各季度产量");

    ASSERT_TRUE(ChooseFromMenus(Window(), {"图表", "类型", "饼图"}));
    Picture("pie");
    ASSERT_TRUE(std::holds_alternative<millichart::PieDocument>(Document().Content));
    EXPECT_EQ(std::get<millichart::PieDocument>(Document().Content).Data.Values,
              (std::vector<double>{1280.0, 1475.5, 1390.0, 1610.0}));
    EXPECT_EQ(Facts({PartKind::Caption}).Name, "2026 年各季度产量");

    // All the way back and forth again.
    const ChartDocument finished = Document();
    int undone = 0;
    while (Session().Current().CanUndo()) {
        Press(Qt::Key_Z, Qt::ControlModifier);
        ASSERT_LT(++undone, 30);
    }
    Picture("all-undone");
    EXPECT_GE(undone, 7);
    EXPECT_TRUE(Document().Content == New("histogram").Content) << "as it began";
    while (Session().Current().CanRedo()) {
        Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        --undone;
    }
    Picture("all-redone");
    EXPECT_EQ(undone, 0);
    EXPECT_TRUE(Document().Content == finished.Content);
    EXPECT_TRUE(Window().isWindowModified());

    const QString file = Folder().filePath(QStringLiteral("产量.chart.json"));
    InModal([&](QWidget& modal) { ChooseFile(modal, file); },
            [this] { QTest::keyClick(&Window(), Qt::Key_S, Qt::ControlModifier); });
    ASSERT_TRUE(QFile::exists(file));
    EXPECT_FALSE(Window().isWindowModified());
    Picture("saved");

    for (const char* const ending : {".png", ".svg", ".pdf"}) {
        Export(QString::fromUtf8(ending),
               Folder().filePath(QStringLiteral("产量") + QString::fromUtf8(ending)));
    }
    const QSizeF page(static_cast<double>(PageSizeOf(Shown().Chart).Width),
                      static_cast<double>(PageSizeOf(Shown().Chart).Height));
    const QSize pixels = QImageReader(Folder().filePath(QStringLiteral("产量.png"))).size();
    EXPECT_NEAR(pixels.width(), page.width() / 25.4 * 300.0, 1.0);
    EXPECT_NEAR(pixels.height(), page.height() / 25.4 * 300.0, 1.0);
    const std::string svg =
        millichart::ReadFile(Folder().filePath(QStringLiteral("产量.svg")).toStdString()).Text;
    EXPECT_NE(svg.find("2026 年各季度产量"), std::string::npos);
    EXPECT_TRUE(millichart::ReadFile(Folder().filePath(QStringLiteral("产量.pdf")).toStdString())
                    .Text.starts_with("%PDF"));

    // Another window, as on another day.
    Reopen(file);
    Picture("reopened");
    EXPECT_TRUE(Document().Content == finished.Content) << "the same document";
    EXPECT_TRUE(Document().Options == finished.Options);
}

} // namespace
} // namespace designer::test
