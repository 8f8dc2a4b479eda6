// The sheets of charts: their lists, the picture of a legend's places, and their pages, by keyboard.
#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/pie/PieProp.h"
#include "editing/Edit.h"
#include "editing/qt/ListCtrlEx.h"
#include "editing/qt/PositionPicker.h"
#include "editing/qt/User.h"
#include "foundation/ChartPart.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace millichart::test {
namespace {

CListCtrlEx& List() {
    return *User::Front().findChild<CListCtrlEx*>();
}

void GoTo(int row, int column) {
    List().setFocus();
    List().setCurrentIndex(List().model()->index(row, column));
}

HistogramProp TwoComponents() {
    HistogramProp prop;
    prop.Plot.ComponentName = {"a", "b"};
    prop.Plot.ComponentColor = {{0xFF010203U}, {0xFF040506U}};
    return prop;
}

TEST(List, IsEditedByKeyboard) {
    HistogramProp prop = TwoComponents();
    std::vector<HistogramProp> told;
    User user;
    user.In("直方图属性", [] {
        GoTo(0, 0);
        User::Press(Qt::Key_F2);
        User::Type("first");
        User::Press(Qt::Key_Return);
    });
    user.In(
        "直方图属性", [&] { return !told.empty(); },
        [&] {
            EXPECT_EQ(told.back().Plot.ComponentName[0], "first");
            GoTo(1, 0);
            User::Press(Qt::Key_Up, Qt::AltModifier);
            User::Press(Qt::Key_Insert);
            GoTo(2, 0);
            User::Press(Qt::Key_Delete);
            QApplication::clipboard()->setText("x\t255\ny\t#00FF00\n");
            GoTo(1, 0);
            User::Press(Qt::Key_V, Qt::ControlModifier);
            GoTo(0, 1);
            User::Press(Qt::Key_F2);
        });
    user.In("选择颜色", [] { User::Press(Qt::Key_Return); });
    user.In("直方图属性", [] {
        User::Press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), "b\t394500\n");
        User::Find<QPushButton>("确定").click();
    });
    EXPECT_TRUE(EditWithPreview(&prop, [&told](const HistogramProp& now) { told.push_back(now); }));
    EXPECT_EQ(prop.Plot.ComponentName, (std::vector<std::string>{"b", "x", "y"}));
    EXPECT_EQ(prop.Plot.ComponentColor,
              (std::vector<penlode::Color>{{0xFF040506U}, {0xFFFF0000U}, {0xFF00FF00U}}));
}

TEST(List, OpensAPageOfAThousandCurvesAtOnce) {
    CurveProp prop;
    prop.Plot.CurveName.assign(1000, "curve");
    User user;
    user.In("曲线属性", [] {
        EXPECT_EQ(List().model()->rowCount(), 1000);
        GoTo(999, 2);
        EXPECT_GT(List().verticalScrollBar()->value(), 0);
        User::Press(Qt::Key_F2);
        auto* choices = List().findChild<QComboBox*>();
        ASSERT_NE(choices, nullptr);
        choices->setCurrentIndex(3);
        Q_EMIT choices->activated(3);
        User::Find<QPushButton>("确定").click();
    });
    EXPECT_TRUE(EditCurveProp(&prop));
    EXPECT_EQ(prop.Plot.CurveDotStyle[999], CurveDotStyle::SolidCircle);
}

TEST(LegendPage, PlacesTheLegendByArrowsAndClicks) {
    PieProp prop;
    User user;
    user.In("饼图属性", [] {
        User::Front().findChild<QTabWidget*>()->setCurrentIndex(2);
        User::Find<PositionPicker>("位置").setFocus();
        User::Press(Qt::Key_Left);
        User::Press(Qt::Key_Up);
        User::Find<QPushButton>("确定").click();
    });
    EXPECT_TRUE(EditPieProp(&prop));
    EXPECT_EQ(prop.Legend.LegendPos, LegendPosition::LeftTop);
}

TEST(ChartSheet, GoesByTabOverAPageToItsButtons) {
    HistogramProp prop;
    User user;
    user.In("直方图属性", [] {
        auto& tabs = *User::Front().findChild<QTabWidget*>();
        tabs.setCurrentIndex(3); // the caption's
        tabs.tabBar()->setFocus();
        QStringList names;
        for (int i = 0; i < 3; ++i) {
            User::Press(Qt::Key_Tab);
            names += User::FocusName();
        }
        // The caption is not shown: its text and its button are disabled.
        EXPECT_EQ(names, QStringList({"显示标题", "确定", "取消"}));
        tabs.tabBar()->setFocus();
        User::Press(Qt::Key_Tab);
        User::Press(Qt::Key_Space);
        User::Press(Qt::Key_Return);
    });
    EXPECT_TRUE(EditHistogramProp(&prop));
    EXPECT_EQ(prop.Caption.ShowCaption, 1);
}

TEST(ChartSheet, OpensAtAPartOfItsChart) {
    HistogramProp bars;
    bars.Caption.ShowCaption = 1;
    bars.Caption.Caption = "old";
    CurveProp curves;
    curves.Plot.CurveName = std::vector<std::string>(100, "curve");
    User user;
    user.In("直方图属性", [] {
        EXPECT_EQ(User::Front().findChild<QTabWidget*>()->currentIndex(), 3);
        EXPECT_EQ(User::FocusName(), "标题文本");
        User::Type("new"); // over what is selected
        User::Press(Qt::Key_Return);
    });
    EXPECT_TRUE(EditWithPreview(&bars, std::function<void(const HistogramProp&)>(), {PartKind::Caption}));
    EXPECT_EQ(bars.Caption.Caption, "new");

    user.In("曲线属性", [] {
        EXPECT_TRUE(List().hasFocus());
        EXPECT_EQ(List().currentIndex().row(), 70);
        const QRect row = List().visualRect(List().currentIndex());
        EXPECT_TRUE(List().viewport()->rect().contains(row.center())) << "scrolled to";
        EXPECT_TRUE(List().selectionModel()->isRowSelected(70));
        User::Press(Qt::Key_F2);
        User::Type("second");
        User::Press(Qt::Key_Return);
    });
    user.In(
        "曲线属性", [] { return List().Rows()[70][0] == "second"; },
        [] { User::Find<QPushButton>("确定").click(); });
    EXPECT_TRUE(
        EditWithPreview(&curves, std::function<void(const CurveProp&)>(), {PartKind::CurvePoint, 70, 3}));
    EXPECT_EQ(curves.Plot.CurveName[70], "second");
}

TEST(ChartSheet, ComesBackToThePageThatRefuses) {
    CurveProp prop;
    User user;
    user.In("曲线属性", [] {
        auto& tabs = *User::Front().findChild<QTabWidget*>();
        User::Find<QLineEdit>("高度").setText("4");
        tabs.setCurrentIndex(2);
        User::Find<QPushButton>("线型...").click();
    });
    user.In("线条属性", [] {
        User::Find<QLineEdit>("线宽(W)").setText("0.7");
        User::Press(Qt::Key_Return);
    });
    user.In("曲线属性", [] { User::Press(Qt::Key_Return); });
    user.Answer("曲线属性", "绘图区高度应在5～1000毫米之间。", QMessageBox::Ok);
    user.In("曲线属性", [] {
        EXPECT_EQ(User::Front().findChild<QTabWidget*>()->currentIndex(), 0);
        EXPECT_EQ(User::FocusName(), "高度");
        User::Type("44");
        User::Press(Qt::Key_Return);
    });
    EXPECT_TRUE(EditCurveProp(&prop));
    EXPECT_EQ(prop.Plot.PlotHeight, 44.0F);
    EXPECT_EQ(prop.HorAxis.HorAxisPen->GetWidth(), 0.7F);
}

} // namespace
} // namespace millichart::test
