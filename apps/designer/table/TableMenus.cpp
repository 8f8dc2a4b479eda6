#include "table/TableMenus.h"

#include <QKeySequence>
#include <utility>

namespace designer {
namespace {

/// The keys are shown alone: the view itself answers them.
template <class Act> QAction& Add(QMenu& menu, const QString& text, QKeySequence keys, Act act) {
    QAction& action = *menu.addAction(text);
    action.setShortcut(keys);
    action.setShortcutContext(Qt::WidgetShortcut);
    action.setShortcutVisibleInContextMenu(true);
    QObject::connect(&action, &QAction::triggered, &menu, std::move(act));
    return action;
}

void AddClipboardActions(QMenu& menu, DataView& view) {
    Add(menu, DataView::tr("剪切(&T)"), QKeySequence::Cut, [&view] { view.Cut(); });
    Add(menu, DataView::tr("复制(&C)"), QKeySequence::Copy, [&view] { view.Copy(); });
    Add(menu, DataView::tr("粘贴(&P)"), QKeySequence::Paste, [&view] {
        view.Paste();
    }).setEnabled(DataView::CanPaste());
    Add(menu, DataView::tr("清除(&E)"), QKeySequence::Delete, [&view] { view.Clear(); });
}

} // namespace

void AddRowActions(QMenu& menu, DataView& view) {
    Add(menu, DataView::tr("在上方插入行(&A)"), {}, [&view] { view.InsertRows(false); });
    Add(menu, DataView::tr("在下方插入行(&B)"), {}, [&view] { view.InsertRows(true); });
    Add(menu, DataView::tr("删除行(&D)"), {}, [&view] { view.RemoveRows(); });
    Add(menu, DataView::tr("上移(&U)"), Qt::ALT | Qt::Key_Up, [&view] { view.MoveRows(-1); });
    Add(menu, DataView::tr("下移(&W)"), Qt::ALT | Qt::Key_Down, [&view] { view.MoveRows(1); });
}

void AddColumnActions(QMenu& menu, DataView& view, int column) {
    Add(menu, DataView::tr("修改标题(&H)"), Qt::SHIFT | Qt::Key_F2,
        [&view, column] { view.EditHeading(column); });
    menu.addSeparator();
    Add(menu, DataView::tr("升序排列(&S)"), {}, [&view, column] { view.Sort(column, true); });
    Add(menu, DataView::tr("降序排列(&O)"), {}, [&view, column] { view.Sort(column, false); });
    menu.addSeparator();
    const bool isHeads = column == 0;
    Add(menu, DataView::tr("在左侧插入列(&L)"), {}, [&view] {
        view.InsertColumns(false);
    }).setEnabled(!isHeads);
    Add(menu, DataView::tr("在右侧插入列(&R)"), {}, [&view] { view.InsertColumns(true); });
    Add(menu, DataView::tr("删除列(&N)"), {}, [&view] { view.RemoveColumns(); }).setEnabled(!isHeads);
    Add(menu, DataView::tr("左移(&F)"), Qt::ALT | Qt::Key_Left, [&view] {
        view.MoveColumns(-1);
    }).setEnabled(!isHeads);
    Add(menu, DataView::tr("右移(&G)"), Qt::ALT | Qt::Key_Right, [&view] {
        view.MoveColumns(1);
    }).setEnabled(!isHeads);
}

void AddCellActions(QMenu& menu, DataView& view) {
    AddClipboardActions(menu, view);
    Add(menu, DataView::tr("向下填充(&I)"), Qt::CTRL | Qt::Key_D, [&view] { view.FillDown(); });
    menu.addSeparator();
    QMenu& rows = *menu.addMenu(DataView::tr("行(&R)"));
    AddRowActions(rows, view);
    QMenu& columns = *menu.addMenu(DataView::tr("列(&L)"));
    AddColumnActions(columns, view, view.currentIndex().column());
}

} // namespace designer
