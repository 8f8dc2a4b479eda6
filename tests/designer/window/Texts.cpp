#include "designer/window/Texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMetaProperty>
#include <QTabBar>
#include <algorithm>

namespace designer::test {
namespace {

void AddProperties(const QObject& object, QStringList& texts) {
    const QMetaObject& meta = *object.metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (property.metaType() == QMetaType::fromType<QString>() &&
            qstrcmp(property.name(), "objectName") != 0 && qstrcmp(property.name(), "styleSheet") != 0) {
            texts << property.read(&object).toString();
        }
    }
}

void AddHeadings(const QAbstractItemModel& model, Qt::Orientation orientation, QStringList& texts) {
    const int count = orientation == Qt::Horizontal ? model.columnCount() : model.rowCount();
    for (int section = 0; section < count; ++section) {
        for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole}) {
            texts << model.headerData(section, orientation, role).toString();
        }
    }
}

void AddModel(const QAbstractItemModel& model, QStringList& texts) {
    AddHeadings(model, Qt::Horizontal, texts);
    AddHeadings(model, Qt::Vertical, texts);
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole}) {
                texts << model.index(row, column).data(role).toString();
            }
        }
    }
}

void AddAccessible(QAccessibleInterface* object, QStringList& texts) {
    if (object == nullptr) {
        return;
    }
    texts << object->text(QAccessible::Name) << object->text(QAccessible::Description);
    for (int i = 0; i < object->childCount(); ++i) {
        AddAccessible(object->child(i), texts);
    }
}

void AddMnemonic(const QString& text, QString& letters) {
    const QString key = QKeySequence::mnemonic(text).toString();
    if (!key.isEmpty()) {
        letters += key.back().toUpper();
    }
}

} // namespace

QStringList TextsOf(QWidget& widget) {
    QStringList texts;
    AddProperties(widget, texts);
    for (const QObject* const object : widget.findChildren<QObject*>()) {
        AddProperties(*object, texts);
        if (const auto* const list = qobject_cast<const QComboBox*>(object)) {
            AddModel(*list->model(), texts);
        } else if (const auto* const view = qobject_cast<const QAbstractItemView*>(object);
                   view != nullptr && view->model() != nullptr) {
            AddModel(*view->model(), texts);
        } else if (const auto* const tabs = qobject_cast<const QTabBar*>(object)) {
            for (int i = 0; i < tabs->count(); ++i) {
                texts << tabs->tabText(i) << tabs->tabToolTip(i);
            }
        }
    }
    AddAccessible(QAccessible::queryAccessibleInterface(&widget), texts);
    texts.removeDuplicates();
    texts.removeAll(QString());
    return texts;
}

QString MnemonicsOf(const QList<QAction*>& actions) {
    QString letters;
    for (const QAction* const action : actions) {
        AddMnemonic(action->text(), letters);
    }
    return letters;
}

QString MnemonicsOf(QWidget& window) {
    QString letters;
    if (const auto* const main = qobject_cast<QMainWindow*>(&window)) {
        letters = MnemonicsOf(main->menuBar()->actions());
    }
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        if (widget->isVisibleTo(&window) && label != nullptr && label->buddy() != nullptr) {
            AddMnemonic(label->text(), letters);
        } else if (widget->isVisibleTo(&window) && button != nullptr) {
            AddMnemonic(button->text(), letters);
        }
    }
    return letters;
}

QString Doubles(const QString& letters) {
    QString doubles;
    for (const QChar letter : letters) {
        if (letters.count(letter) > 1 && !doubles.contains(letter)) {
            doubles += letter;
        }
    }
    return doubles;
}

bool HasChinese(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar sign) {
        const char16_t code = sign.unicode();
        return (code >= 0x3000 && code < 0xA000) || (code >= 0xFF00 && code < 0xFFF0);
    });
}

} // namespace designer::test
