// The table of an open document, with what can be undone.
#include "designer/table/TableUser.h"
#include "model/Editor.h"

#include <QTest>

namespace designer::test {
namespace {

TEST(TableUndo, TakesAWholeCellBackAndForgetsWhatEscapeRestored) {
    NeedApplication();
    Editor editor = Editor::New(*millichart::FindChartKind("bar"));
    const DataTable before = editor.Tables()[0];
    DataView view;
    QObject::connect(&view, &DataView::ChangeWanted,
                     [&](const QString& name, const auto& change, const QString& merge) {
                         editor.ChangeTable(name.toStdString(), 0, change, merge.toStdString());
                         view.Show(editor.Tables()[0]);
                     });
    view.Show(before);
    view.show();
    view.activateWindow();
    view.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));

    const auto next = static_cast<int>(before.RowCount());
    view.setCurrentIndex(view.model()->index(next, 1));
    TableUser::Type("1.5");
    EXPECT_EQ(editor.Tables()[0].Number(before.RowCount(), 1), 1.5);
    TableUser::Press(Qt::Key_Escape);
    EXPECT_TRUE(editor.Tables()[0] == before);
    EXPECT_FALSE(editor.CanUndo());

    TableUser::Type("250");
    TableUser::Press(Qt::Key_Return);
    EXPECT_EQ(editor.Tables()[0].Number(before.RowCount(), 1), 250.0);
    editor.Undo();
    EXPECT_TRUE(editor.Tables()[0] == before);
    EXPECT_FALSE(editor.CanUndo());
}

} // namespace
} // namespace designer::test
