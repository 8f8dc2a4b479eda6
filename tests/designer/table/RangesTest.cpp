// What is done to many cells at once.
#include "designer/table/TableUser.h"

#include <QSignalSpy>
#include <QTest>

namespace designer::test {
namespace {

constexpr const char* kTexts = "名\tA\tB\na\t1\t10\nb\t2\t20\nc\t3\t30";

TEST(Ranges, GoThroughTheClipboard) {
    TableUser user(kTexts);
    user.Select(0, 1, 2, 2);
    TableUser::Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(TableUser::Clipboard().substr(0, 9), "1\t10\n2\t20");
    TableUser::Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(user.Texts(), "名\tA\tB\na\t\t\nb\t\t\nc\t3\t30");
    EXPECT_EQ(user.Changes.back().Name, "剪切");
    user.GoTo(2, 2);
    TableUser::Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(user.Texts(), "名\tA\tB\t\na\t\t\t\nb\t\t\t\nc\t3\t1\t10\n\t\t2\t20");
    EXPECT_EQ(user.Selected(), "2,2 2x2");
    EXPECT_EQ(user.Changes.back().Name, "粘贴");
    TableUser::PutOnClipboard("7");
    user.Select(0, 1, 2, 2);
    TableUser::Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(user.Texts(), "名\tA\tB\t\na\t7\t7\t\nb\t7\t7\t\nc\t3\t1\t10\n\t\t2\t20");
}

TEST(Ranges, OfAllCellsEndWithTheTable) {
    TableUser user(kTexts);
    TableUser::Press(Qt::Key_A, Qt::ControlModifier);
    TableUser::Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QString::fromStdString(TableUser::Clipboard()).trimmed(), "a\t1\t10\nb\t2\t20\nc\t3\t30");
    TableUser::PutOnClipboard("5");
    user.Select(0, 1, 4, 1);
    TableUser::Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(user.Texts(), "名\tA\tB\na\t5\t10\nb\t5\t20\nc\t5\t30");
    TableUser::Press(Qt::Key_A, Qt::ControlModifier);
    TableUser::Press(Qt::Key_Delete);
    EXPECT_EQ(user.Texts(), "名\tA\tB\n\t\t\n\t\t\n\t\t");
}

TEST(Ranges, AreFilledFromAbove) {
    TableUser user(kTexts);
    user.Select(0, 1, 3, 2);
    TableUser::Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(user.Texts(), "名\tA\tB\na\t1\t10\nb\t1\t10\nc\t1\t10");
    user.GoTo(3, 1);
    TableUser::Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(user.Table.Text(3, 1), "1");
}

TEST(Ranges, ClearEachRangeOfASelection) {
    TableUser user(kTexts);
    user.GoTo(0, 1);
    user.View.selectionModel()->select(user.View.model()->index(2, 2), QItemSelectionModel::Select);
    TableUser::Press(Qt::Key_Delete);
    EXPECT_EQ(user.Texts(), "名\tA\tB\na\t\t10\nb\t2\t20\nc\t3\t");
    EXPECT_EQ(user.Changes.size(), 1U);
}

TEST(Ranges, ThatAreNoRectangleLeaveOutWhatIsBetween) {
    TableUser user(kTexts);
    user.GoTo(0, 1);
    user.View.selectionModel()->setCurrentIndex(user.View.model()->index(2, 2), QItemSelectionModel::Select);
    TableUser::Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(TableUser::Clipboard(), "30");
    EXPECT_EQ(user.Texts(), "名\tA\tB\na\t1\t10\nb\t2\t20\nc\t3\t");
}

TEST(Ranges, AreSummedUp) {
    TableUser user("名\tA\na\t1\nb\t无\nc\t3.5");
    QSignalSpy summed(&user.View, &DataView::SelectionSummed);
    TableUser::Press(Qt::Key_A, Qt::ControlModifier);
    ASSERT_TRUE(summed.wait(1000));
    const auto facts = summed.back().front().value<SelectionFacts>();
    EXPECT_EQ(facts.Filled, 6U);
    EXPECT_EQ(facts.Numbers, 2U);
    EXPECT_DOUBLE_EQ(facts.Sum, 4.5);
    EXPECT_DOUBLE_EQ(facts.Mean, 2.25);
}

TEST(Ranges, ReachTheEdgesOfData) {
    TableUser user("名\tA\tB\na\t1\t\nb\t2\t\nc\t\t3\nd\t4\t4");
    user.GoTo(0, 1);
    const auto at = [&](int row, int column) { return user.View.model()->index(row, column); };
    TableUser::Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(user.View.currentIndex(), at(1, 1));
    TableUser::Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(user.View.currentIndex(), at(3, 1));
    TableUser::Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(user.View.currentIndex(), at(3, 1));
    user.GoTo(0, 2);
    TableUser::Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(user.View.currentIndex(), at(2, 2));
    TableUser::Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(user.View.currentIndex(), at(2, 0));
    TableUser::Press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(user.Selected(), "0,0 3x1");
    TableUser::Press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(user.Selected(), "0,0 3x2");
    TableUser::Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(user.View.currentIndex(), at(3, 2));
}

TEST(Ranges, InsertAndRemoveRowsAndColumns) {
    TableUser user(kTexts);
    user.Select(1, 1, 2, 1);
    user.View.InsertRows(false);
    EXPECT_EQ(user.Texts(), "名\tA\tB\na\t1\t10\n\t\t\n\t\t\nb\t2\t20\nc\t3\t30");
    EXPECT_EQ(user.Selected(), "1,0 2x4");
    user.View.RemoveRows();
    EXPECT_EQ(user.Texts(), kTexts);
    user.GoTo(0, 0);
    user.View.InsertColumns(false); // the heads stay in front
    EXPECT_EQ(user.Texts(), "名\t\tA\tB\na\t\t1\t10\nb\t\t2\t20\nc\t\t3\t30");
    user.View.RemoveColumns();
    user.Select(0, 0, 4, 1);
    user.View.RemoveColumns();
    EXPECT_EQ(user.Texts(), kTexts);
    user.GoTo(0, 0);
    user.View.selectionModel()->select(user.View.model()->index(2, 1), QItemSelectionModel::Select);
    user.View.RemoveRows();
    EXPECT_EQ(user.Texts(), "名\tA\tB\nb\t2\t20");
}

TEST(Ranges, MoveWithAltAndStayInTheTable) {
    TableUser user(kTexts);
    user.Select(0, 0, 2, 2);
    TableUser::Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(user.Texts(), "名\tA\tB\nc\t3\t30\na\t1\t10\nb\t2\t20");
    EXPECT_EQ(user.Selected(), "1,0 2x4");
    TableUser::Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(user.Changes.size(), 1U);
    TableUser::Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(user.Texts(), kTexts);
    user.GoTo(0, 1);
    TableUser::Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(user.Texts(), kTexts);
    TableUser::Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(user.Texts(), "名\tB\tA\na\t10\t1\nb\t20\t2\nc\t30\t3");
    EXPECT_EQ(user.Selected(), "0,2 4x1");
    EXPECT_EQ(user.Changes.back().Name, "移动列");
}

TEST(Ranges, AreSorted) {
    TableUser user("名\tA\na\t10\nb\t\nc\t9");
    user.View.Sort(1, true);
    EXPECT_EQ(user.Texts(), "名\tA\nc\t9\na\t10\nb\t");
    user.View.Sort(1, false);
    EXPECT_EQ(user.Texts(), "名\tA\na\t10\nc\t9\nb\t");
    user.View.Sort(2, true); // the empty column at the end
    EXPECT_EQ(user.Changes.size(), 2U);
}

} // namespace
} // namespace designer::test
