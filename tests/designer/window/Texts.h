#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QAction;
class QWidget;

/// What a person reads of windows, and hears of them by a screen reader.
namespace designer::test {

/// Of the widget and all in it: texts, tips, names for screen readers, entries of menus, lists and headings.
QStringList TextsOf(QWidget& widget);

/// The letters by which Alt or a menu chooses, as they stand in the texts, upper case.
QString MnemonicsOf(const QList<QAction*>& actions);
/// Those of labels and buttons that can be seen, and of the menu bar.
QString MnemonicsOf(QWidget& window);

/// Letters that occur more than once.
QString Doubles(const QString& letters);

bool HasChinese(const QString& text);

} // namespace designer::test
