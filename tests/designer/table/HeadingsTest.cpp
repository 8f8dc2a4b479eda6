// Headings of columns and numbers of rows.
#include "designer/table/TableUser.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace designer::test {
namespace {

constexpr const char* kTexts = "名\tA\tB\tC\na\t1\t2\t3\nb\t4\t5\t6";

QPoint MiddleOf(const QHeaderView& header, int section) {
    const int along = header.sectionViewportPosition(section) + header.sectionSize(section) / 2;
    return header.orientation() == Qt::Horizontal ? QPoint(along, header.height() / 2)
                                                  : QPoint(header.width() / 2, along);
}

void Drag(const QHeaderView& header, int section, QPoint to) {
    QWidget* const viewport = header.viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, MiddleOf(header, section));
    QTest::mouseMove(viewport, (MiddleOf(header, section) + to) / 2);
    QTest::mouseMove(viewport, to);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
}

void Click(const QHeaderView& header, int section) {
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, MiddleOf(header, section));
}

TEST(Headings, AreEditedInPlace) {
    TableUser user(kTexts);
    QHeaderView& header = *user.View.horizontalHeader();
    QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, MiddleOf(header, 1));
    TableUser::Type("xy");
    EXPECT_EQ(user.Table.Heading(1), "xy");
    ASSERT_EQ(user.Changes.size(), 2U);
    EXPECT_EQ(user.Changes[0].Name, "输入标题");
    EXPECT_EQ(user.Changes[0].Merge, user.Changes[1].Merge);
    TableUser::Press(Qt::Key_Tab);
    TableUser::Compose("er", "");
    EXPECT_EQ(user.Table.Heading(2), "B");
    TableUser::Compose("", "二");
    EXPECT_EQ(user.Table.Heading(2), "二");
    TableUser::Press(Qt::Key_Escape);
    EXPECT_EQ(user.Table.Heading(2), "B");
    EXPECT_EQ(header.viewport()->findChild<QLineEdit*>("", Qt::FindDirectChildrenOnly)->isVisible(), false);
    EXPECT_EQ(QApplication::focusWidget(), &user.View);
}

TEST(Headings, AreReachedByF2AndLeftByEnter) {
    TableUser user(kTexts);
    user.GoTo(1, 3);
    TableUser::Press(Qt::Key_F2, Qt::ShiftModifier);
    TableUser::Type("z");
    TableUser::Press(Qt::Key_Return);
    EXPECT_EQ(user.Table.Heading(3), "z");
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(0, 3));
    user.View.selectColumn(4);
    TableUser::Press(Qt::Key_F2);
    TableUser::Type("new");
    EXPECT_EQ(user.Table.Heading(4), "new");
    EXPECT_EQ(user.View.model()->columnCount(), 6);
    TableUser::Press(Qt::Key_Escape);
    EXPECT_EQ(user.Table.ColumnCount(), 4U);
}

TEST(Headings, DragTheirSelectedSections) {
    TableUser user(kTexts);
    QHeaderView& columns = *user.View.horizontalHeader();
    Drag(columns, 1, MiddleOf(columns, 2));
    EXPECT_EQ(user.Selected(), "0,1 3x2"); // nothing was selected: a drag selects
    EXPECT_TRUE(user.Changes.empty());
    Drag(columns, 2, MiddleOf(columns, 3) + QPoint(10, 0));
    EXPECT_EQ(user.Texts(), "名\tC\tA\tB\na\t3\t1\t2\nb\t6\t4\t5");
    EXPECT_EQ(user.Selected(), "0,2 3x2");
    Drag(columns, 2, QPoint(1, 5)); // not before the heads
    EXPECT_EQ(user.Texts(), kTexts);
    Click(columns, 1);
    EXPECT_EQ(user.Selected(), "0,1 3x1");
    QHeaderView& rows = *user.View.verticalHeader();
    Click(rows, 1);
    Drag(rows, 1, QPoint(5, 1));
    EXPECT_EQ(user.Table.Text(0, 0), "b");
    EXPECT_EQ(columns.visualIndex(1), 1);
}

TEST(Headings, HaveMenusThatActOnTheirColumn) {
    TableUser user(kTexts);
    QHeaderView& header = *user.View.horizontalHeader();
    bool isFound = false;
    QTimer::singleShot(0, &user.View, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            if (action->text().startsWith("降序")) {
                isFound = true;
                action->trigger();
            }
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, MiddleOf(header, 2),
                            header.viewport()->mapToGlobal(MiddleOf(header, 2)));
    QApplication::sendEvent(header.viewport(), &event);
    EXPECT_TRUE(isFound);
    EXPECT_EQ(user.Table.Text(0, 0), "b");
    EXPECT_EQ(user.Selected(), "0,2 3x1");
}

} // namespace
} // namespace designer::test
