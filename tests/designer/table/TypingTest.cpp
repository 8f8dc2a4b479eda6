// Cells as they are typed in.
#include "designer/table/TableUser.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace designer::test {
namespace {

constexpr const char* kTexts = "月份\t产量\n一月\t1\n二月\t2";

QLineEdit* Editor(const TableUser& user) {
    return user.View.viewport()->findChild<QLineEdit*>();
}

TEST(Typing, ReplacesACellAtEachKeyAsOneChange) {
    TableUser user(kTexts);
    user.GoTo(0, 1);
    TableUser::Type("4");
    EXPECT_EQ(user.Texts(), "月份\t产量\n一月\t4\n二月\t2");
    TableUser::Type("5.");
    ASSERT_NE(Editor(user), nullptr);
    EXPECT_EQ(Editor(user)->text(), "45."); // the table has 45
    TableUser::Type("5");
    TableUser::Press(Qt::Key_Return);
    EXPECT_EQ(user.Texts(), "月份\t产量\n一月\t45.5\n二月\t2");
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(1, 1));
    ASSERT_EQ(user.Changes.size(), 4U);
    EXPECT_EQ(user.Changes[0].Name, "输入数据");
    EXPECT_FALSE(user.Changes[0].Merge.empty());
    EXPECT_EQ(user.Changes[0].Merge, user.Changes[3].Merge);
    TableUser::Type("7");
    EXPECT_NE(user.Changes[4].Merge, user.Changes[0].Merge);
}

TEST(Typing, GoesOnInACellThatWasOpened) {
    TableUser user(kTexts);
    user.GoTo(0, 0);
    TableUser::Press(Qt::Key_F2);
    TableUser::Type("A");
    TableUser::Press(Qt::Key_Left);
    TableUser::Type("B");
    EXPECT_EQ(user.Table.Text(0, 0), "一月BA");
    TableUser::Press(Qt::Key_Tab);
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(0, 1));
    const QRect cell = user.View.visualRect(user.View.model()->index(1, 1));
    QTest::mouseClick(user.View.viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(user.View.viewport(), Qt::LeftButton, {}, cell.center());
    TableUser::Type("3");
    EXPECT_EQ(user.Table.Text(1, 1), "23");
}

TEST(Typing, IsTakenBackByEscapeWithWhatGrew) {
    TableUser user(kTexts);
    user.GoTo(2, 2);
    TableUser::Type("12");
    EXPECT_EQ(user.Texts(), "月份\t产量\t\n一月\t1\t\n二月\t2\t\n\t\t12");
    EXPECT_EQ(user.View.model()->rowCount(), 4);
    TableUser::Press(Qt::Key_Escape);
    EXPECT_EQ(user.Texts(), kTexts);
    EXPECT_EQ(user.View.model()->columnCount(), 3);
    ASSERT_EQ(user.Changes.size(), 3U);
    EXPECT_EQ(user.Changes[2].Merge, user.Changes[0].Merge);
    user.GoTo(0, 0);
    TableUser::Press(Qt::Key_F2);
    TableUser::Press(Qt::Key_Escape);
    EXPECT_EQ(user.Changes.size(), 3U);
}

TEST(Typing, FillsRowsByTabAndEnter) {
    TableUser user("\t");
    for (const char* text : {"a", "1", "b", "2"}) {
        TableUser::Type(text);
        TableUser::Press(text[0] > '9' ? Qt::Key_Tab : Qt::Key_Return);
    }
    EXPECT_EQ(user.Texts(), "\t\na\t1\nb\t2");
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(2, 0));
    TableUser::Press(Qt::Key_Backtab);
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(1, 2));
    TableUser::Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(0, 0)); // where going by Tab began
}

TEST(Typing, LeavesByArrowsAndKeepsWhatWasTyped) {
    TableUser user(kTexts);
    user.GoTo(0, 0);
    TableUser::Type("x");
    TableUser::Press(Qt::Key_Right);
    TableUser::Type("9");
    TableUser::Press(Qt::Key_Down);
    EXPECT_EQ(user.Texts(), "月份\t产量\nx\t9\n二月\t2");
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(1, 1));
}

TEST(Typing, DoesNotTellWhatAnInputMethodComposes) {
    TableUser user(kTexts);
    user.GoTo(0, 0);
    TableUser::Compose("san yue", "");
    TableUser::Compose("san yue fen", "");
    EXPECT_TRUE(user.Changes.empty());
    ASSERT_NE(Editor(user), nullptr);
    TableUser::Compose("", "三月");
    EXPECT_EQ(user.Table.Text(0, 0), "三月");
    TableUser::Compose("f", "");
    TableUser::Compose("", "份");
    EXPECT_EQ(user.Table.Text(0, 0), "三月份");
    EXPECT_EQ(user.Changes.size(), 2U);
}

TEST(Typing, TakesASignThatTheInputMethodGivesAtOnce) {
    TableUser user(kTexts);
    user.GoTo(1, 1);
    TableUser::Compose("", "缺");
    TableUser::Compose("", "。");
    EXPECT_EQ(user.Table.Text(1, 1), "缺。");
    TableUser::Press(Qt::Key_Return);
    EXPECT_EQ(user.Table.Text(1, 1), "缺。");
}

TEST(Typing, FollowsWhatOthersMakeOfTheCell) {
    TableUser user(kTexts);
    user.GoTo(0, 1);
    TableUser::Type("45");
    user.Table.SetText(1, 1, "8");
    user.View.Show(user.Table);
    EXPECT_EQ(Editor(user)->text(), "45");
    user.Table.SetText(0, 1, "1");
    user.View.Show(user.Table);
    EXPECT_EQ(Editor(user)->text(), "1");
}

TEST(Typing, MarksWhatIsNoNumberAndColumnsThatAreNotShown) {
    TableUser user("月份\t产量\t出口\n一月\t缺\t2");
    user.Table.SetUsedColumns(1);
    user.View.Show(user.Table);
    const auto data = [&](int column, int role) { return user.View.model()->index(0, column).data(role); };
    EXPECT_EQ(data(1, Qt::ToolTipRole).toString(), "不是数");
    EXPECT_EQ(data(1, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft, Qt::AlignLeft);
    EXPECT_EQ(data(2, Qt::TextAlignmentRole).toInt() & Qt::AlignRight, Qt::AlignRight);
    EXPECT_TRUE(data(2, Qt::ToolTipRole).toString().contains("不显示"));
    const auto ground = [&](int row, int column) {
        const QPoint at = user.View.visualRect(user.View.model()->index(row, column)).bottomRight();
        return user.View.viewport()->grab().toImage().pixelColor(at - QPoint(4, 4));
    };
    user.GoTo(0, 0);
    EXPECT_GT(ground(0, 1).red(), ground(0, 1).blue() + 10);
    EXPECT_NE(ground(0, 2), ground(1, 1));
}

} // namespace
} // namespace designer::test
