#pragma once

#include <QAbstractItemView>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>

/// A person in front of the designer's windows, who has a mouse, a keyboard and an input method.
namespace designer::test {

/// Lets what was done take effect.
void Settle();

/// Until `isDone`, but not for ever; then false.
bool WaitUntil(const std::function<bool()>& isDone);

void Click(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers = {});
void DoubleClick(QWidget& widget, QPoint at);
/// In steps, as a hand does.
void Drag(QWidget& widget, QPoint from, QPoint to);
void Hover(QWidget& widget, QPoint at);

/// To what has the focus.
void Press(int key, Qt::KeyboardModifiers modifiers = {});
/// By keys where the text has them, else by the input method, as Chinese is typed.
void Type(const QString& text);

/// Opens the menus of these names and presses the last one's entry: {"文件", "另存为"}; names without their
/// mnemonics and dots. False if one is not there or cannot be pressed.
bool ChooseFromMenus(QWidget& window, const QStringList& names);

/// The item's rectangle is clicked as a person does.
void ClickItem(QAbstractItemView& view, const QModelIndex& index);

/// Acts in the modal windows that `open` opens one after the other, in each as soon as it is there.
using Act = std::function<void(QWidget& modal)>;
void InModals(const std::vector<Act>& acts, const std::function<void()>& open);

inline void InModal(const Act& act, const std::function<void()>& open) {
    InModals({act}, open);
}

/// In a file dialog: the file's name and Enter.
void ChooseFile(QWidget& dialog, const QString& file);
/// A message's button by its text without a mnemonic.
bool PressButton(QWidget& dialog, const QString& text);

} // namespace designer::test
