#include "editing/qt/Controls.h"

#include "editing/AccessibleName.h"
#include "editing/qt/ColorButton.h"
#include "editing/qt/ColorPane.h"
#include "editing/qt/DialogUnits.h"
#include "editing/qt/LineStyleComboBox.h"
#include "editing/qt/ListCtrlEx.h"
#include "editing/qt/PositionPicker.h"
#include "editing/qt/QtValues.h"
#include "editing/qt/Stepper.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace millichart {
namespace {

/// An edit that looks like what it is on, as its text cannot be changed.
QWidget* MakeReadOnlyEdit(QWidget& panel) {
    auto* edit = new QLineEdit(&panel);
    edit->setReadOnly(true);
    QPalette palette = edit->palette();
    palette.setBrush(QPalette::Base, palette.window());
    edit->setPalette(palette);
    return edit;
}

QWidget* MakeDefaultButton(const QString& text, QWidget& panel) {
    auto* button = new QPushButton(text, &panel);
    button->setDefault(true);
    return button;
}

QWidget* MakeLineStyles(QWidget& panel) {
    auto* list = new CLineStyleComboBox(&panel);
    list->Initialize();
    return list;
}

/// A frame that begins at the middle of its title, as its place reckons.
QWidget* MakeGroupBox(const QString& title, QWidget& panel) {
    auto* box = new QGroupBox(title, &panel);
    box->setStyleSheet(
        QStringLiteral("QGroupBox { border: 1px solid palette(mid); margin-top: %1px; }"
                       "QGroupBox::title { subcontrol-origin: margin; left: 6px; padding: 0 2px; }")
            .arg(panel.fontMetrics().height() / 2));
    return box;
}

/// `before` is the widget of the control before it.
QWidget* MakeControl(const Control& control, QWidget* before, QWidget& panel) {
    const QString text = ToQString(control.Text);
    switch (control.Kind) {
    case ControlKind::Label:
        return new QLabel(text, &panel);
    case ControlKind::GroupBox:
        return MakeGroupBox(text, panel);
    case ControlKind::Edit:
        return new QLineEdit(&panel);
    case ControlKind::ReadOnlyEdit:
        return MakeReadOnlyEdit(panel);
    case ControlKind::CheckBox:
        return new QCheckBox(text, &panel);
    case ControlKind::RadioButton:
        return new QRadioButton(text, &panel);
    case ControlKind::Button:
        return new QPushButton(text, &panel);
    case ControlKind::DefaultButton:
        return MakeDefaultButton(text, panel);
    case ControlKind::DropDownList:
        return new QComboBox(&panel);
    case ControlKind::LineStyles:
        return MakeLineStyles(panel);
    case ControlKind::ColorButton:
        return new marrowkit::CColorButton(&panel);
    case ControlKind::ColorPane:
        return new CColorPane(&panel);
    case ControlKind::EditableList:
        return new CListCtrlEx(&panel);
    case ControlKind::PositionPicker:
        return new PositionPicker(&panel);
    case ControlKind::Stepper:
        return new Stepper(static_cast<QLineEdit*>(before), &panel);
    }
    return new QWidget(&panel);
}

/// A label's line may be higher than its place, whose middle it keeps.
QRect PlaceOf(const Control& control, const QWidget& widget, const DialogUnits& units) {
    const QRect place = units.PlaceOf(control);
    const int more = control.Kind == ControlKind::Label ? widget.sizeHint().height() - place.height() : 0;
    return more > 0 ? place.adjusted(0, -more / 2, 0, more - more / 2) : place;
}

/// A label hands its mnemonic to the control that it names, and a radio button joins the one before it.
void Join(QWidget* control, bool hasText, QWidget* before) {
    if (auto* label = dynamic_cast<QLabel*>(before); label != nullptr && !hasText) {
        label->setBuddy(control);
    }
    if (auto* radio = dynamic_cast<QRadioButton*>(control)) {
        auto* neighbour = dynamic_cast<QRadioButton*>(before);
        (neighbour ? neighbour->group() : new QButtonGroup(radio->parentWidget()))->addButton(radio);
    }
}

} // namespace

std::vector<QWidget*> MakeControls(const DialogTemplate& shown, QWidget& panel) {
    const DialogUnits units(panel.font());
    std::vector<QWidget*> widgets;
    QWidget* before = nullptr;
    for (std::size_t i = 0; i < shown.Controls.size(); ++i) {
        const Control& control = shown.Controls[i];
        QWidget* widget = MakeControl(control, before, panel);
        widget->setGeometry(PlaceOf(control, *widget, units));
        widget->setAccessibleName(ToQString(AccessibleName(shown.Controls, i)));
        widget->show(); // a page may be on the screen already
        Join(widget, !control.Text.empty(), before);
        widgets.push_back(widget);
        before = widget;
    }
    return widgets;
}

} // namespace millichart
