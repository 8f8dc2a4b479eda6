#include "designer/table/TableUser.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <memory>

namespace designer::test {
namespace {

/// Whoever has the keyboard; without a window manager a window has to be brought to the front.
QWidget* Focus() {
    return QApplication::focusWidget();
}

} // namespace

void NeedApplication() {
    static int count = 1;
    static char name[] = "designer-table-tests";
    static char* arguments[] = {name, nullptr};
    if (qApp == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QApplication(count, arguments); // stays: destroying it among the static objects crashes
    }
}

static RowHeads WithApplication(RowHeads heads) {
    NeedApplication();
    return heads;
}

TableUser::TableUser(const char* texts, RowHeads heads) : Table(WithApplication(heads)) {
    const QStringList lines = QString::fromUtf8(texts).split(QLatin1Char('\n'));
    const QStringList headings = lines.front().split(QLatin1Char('\t'));
    for (qsizetype column = 0; column < headings.size(); ++column) {
        Table.SetHeading(static_cast<std::size_t>(column), headings[column].toStdString());
    }
    Table.Paste({}, lines.mid(1).join(QLatin1Char('\n')).toStdString());
    QObject::connect(&View, &DataView::ChangeWanted,
                     [this](const QString& changeName, const auto& change, const QString& merge) {
                         change(Table);
                         Changes.push_back({changeName.toStdString(), merge.toStdString()});
                         View.Show(Table);
                     });
    View.Show(Table);
    View.resize(480, 320);
    View.show();
    View.activateWindow();
    View.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&View));
}

void TableUser::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    ASSERT_NE(Focus(), nullptr);
    QTest::keyClick(Focus(), key, modifiers);
}

void TableUser::Type(const char* latin) {
    for (const char* letter = latin; *letter != '\0'; ++letter) {
        ASSERT_NE(Focus(), nullptr);
        QTest::keyClick(Focus(), *letter);
    }
}

void TableUser::Compose(const char* preedit, const char* commit) {
    QInputMethodEvent event(QString::fromUtf8(preedit), {});
    event.setCommitString(QString::fromUtf8(commit));
    QApplication::sendEvent(Focus(), &event);
}

void TableUser::GoTo(int row, int column) {
    Select(row, column, 1, 1);
}

void TableUser::Select(int row, int column, int rows, int columns) {
    const auto at = [this](int r, int c) { return View.model()->index(r, c); };
    View.selectionModel()->setCurrentIndex(at(row, column), QItemSelectionModel::ClearAndSelect);
    View.selectionModel()->select(QItemSelection(at(row, column), at(row + rows - 1, column + columns - 1)),
                                  QItemSelectionModel::ClearAndSelect);
}

std::string TableUser::Texts() const {
    std::string texts;
    for (std::size_t column = 0; column < Table.ColumnCount(); ++column) {
        texts += (column > 0 ? "\t" : "") + Table.Heading(column);
    }
    for (std::size_t row = 0; row < Table.RowCount(); ++row) {
        texts += '\n';
        for (std::size_t column = 0; column < Table.ColumnCount(); ++column) {
            texts += (column > 0 ? "\t" : "") + Table.Text(row, column);
        }
    }
    return texts;
}

std::string TableUser::Selected() const {
    const QItemSelection selection = View.selectionModel()->selection();
    if (selection.size() != 1) {
        return std::to_string(selection.size()) + " ranges";
    }
    const QItemSelectionRange& range = selection.front();
    return std::to_string(range.top()) + "," + std::to_string(range.left()) + " " +
           std::to_string(range.height()) + "x" + std::to_string(range.width());
}

void TableUser::PutOnClipboard(const char* text) {
    QApplication::clipboard()->setText(QString::fromUtf8(text));
}

std::string TableUser::Clipboard() {
    return QApplication::clipboard()->text().toStdString();
}

} // namespace designer::test
