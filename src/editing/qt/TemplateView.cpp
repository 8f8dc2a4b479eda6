#include "editing/qt/TemplateView.h"

#include "editing/qt/ColorButton.h"
#include "editing/qt/ColorPane.h"
#include "editing/qt/Controls.h"
#include "editing/qt/DialogUnits.h"
#include "editing/qt/DialogWindow.h"
#include "editing/qt/ListCtrlEx.h"
#include "editing/qt/PositionPicker.h"
#include "editing/qt/QtValues.h"
#include "editing/qt/StandardDialogs.h"
#include "editing/qt/Stepper.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>

namespace millichart {

using marrowkit::CColorButton;

TemplateView::TemplateView(Dialog& dialog, QWidget& panel, ModalWindow& window)
    : m_dialog(dialog), m_panel(panel), m_window(window) {
    const DialogTemplate& shown = dialog.Template();
    m_panel.setMinimumSize(DialogUnits(panel.font()).SizeOf(shown));
    const std::vector<QWidget*> widgets = MakeControls(shown, panel);
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        if (const int id = shown.Controls[i].Id; id != kNoId) {
            m_controls.emplace(id, widgets[i]);
            Listen(id, widgets[i]);
        }
    }
    dialog.OnInitDialog(*this);
}

void TemplateView::Listen(int id, QWidget* control) {
    if (auto* edit = dynamic_cast<QLineEdit*>(control)) {
        QObject::connect(edit, &QLineEdit::textEdited, &m_panel, [this] { m_window.MarkChanged(); });
    } else if (auto* list = dynamic_cast<QComboBox*>(control)) {
        QObject::connect(list, &QComboBox::activated, &m_panel, [this, id] { Press(id); });
    } else if (auto* colored = dynamic_cast<CColorButton*>(control)) {
        colored->OnPicked = [this] { m_window.MarkChanged(); };
    } else if (auto* button = dynamic_cast<QAbstractButton*>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, &m_panel, [this, id] { Press(id); });
    } else if (auto* rows = dynamic_cast<CListCtrlEx*>(control)) {
        rows->OnChanged = [this] { m_window.MarkChanged(); };
        rows->EditInDialog = [this](auto open, std::string& cell) { return EditCell(open, cell); };
    } else if (auto* places = dynamic_cast<PositionPicker*>(control)) {
        places->OnPicked = [this, id] { Press(id); };
    } else if (auto* stepper = dynamic_cast<Stepper*>(control)) {
        stepper->OnStep = [this, id](int delta) { Step(id, delta); };
    }
}

void TemplateView::Press(int id) {
    if (id == kOkButton) {
        m_window.accept();
    } else if (id == kCancelButton) {
        m_window.reject();
    } else {
        m_window.Guard([this, id] { m_dialog.OnClicked(*this, id); });
        m_window.MarkChanged();
    }
}

bool TemplateView::EditCell(bool (*edit)(DialogView&, std::string&), std::string& cell) {
    bool isChanged = false;
    m_window.Guard([&] { isChanged = edit(*this, cell); });
    return isChanged;
}

void TemplateView::Step(int id, int delta) {
    m_window.Guard([this, id, delta] { m_dialog.OnStep(*this, id, delta); });
    m_window.MarkChanged();
}

template <class Widget> Widget* TemplateView::At(int id) const {
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : dynamic_cast<Widget*>(found->second);
}

std::string TemplateView::Text(int id) const {
    if (const auto* list = At<QComboBox>(id)) {
        return list->currentText().toStdString();
    }
    const auto* edit = At<QLineEdit>(id);
    return edit ? edit->text().toStdString() : std::string();
}

void TemplateView::SetText(int id, std::string_view text) {
    if (auto* edit = At<QLineEdit>(id)) {
        edit->setText(ToQString(text));
    }
}

bool TemplateView::IsChecked(int id) const {
    const auto* button = At<QAbstractButton>(id);
    return button && button->isChecked();
}

void TemplateView::SetChecked(int id, bool checked) {
    if (auto* button = At<QAbstractButton>(id)) {
        button->setChecked(checked);
    }
}

void TemplateView::SetItems(int id, std::span<const std::string_view> items) {
    if (auto* list = At<QComboBox>(id)) {
        list->clear();
        for (const std::string_view item : items) {
            list->addItem(ToQString(item));
        }
        list->setCurrentIndex(-1);
    }
}

void TemplateView::SetColumns(int id, std::span<const ListColumn> columns) {
    if (auto* list = At<CListCtrlEx>(id)) {
        list->SetColumns(columns);
    }
}

void TemplateView::SetRows(int id, std::vector<ListRow> rows) {
    if (auto* list = At<CListCtrlEx>(id)) {
        list->SetRows(std::move(rows));
    }
}

std::vector<ListRow> TemplateView::Rows(int id) const {
    const auto* list = At<CListCtrlEx>(id);
    return list ? list->Rows() : std::vector<ListRow>();
}

int TemplateView::Selection(int id) const {
    if (const auto* picker = At<PositionPicker>(id)) {
        return picker->Selection();
    }
    if (const auto* rows = At<CListCtrlEx>(id)) {
        return rows->currentIndex().row();
    }
    const auto* list = At<QComboBox>(id);
    return list ? list->currentIndex() : -1;
}

void TemplateView::Select(int id, int index) {
    if (auto* list = At<QComboBox>(id)) {
        list->setCurrentIndex(index);
    } else if (auto* picker = At<PositionPicker>(id)) {
        picker->Select(index);
    } else if (auto* rows = At<CListCtrlEx>(id)) {
        rows->SelectRow(index);
    }
}

std::uint32_t TemplateView::ShownColor(int id) const {
    if (const auto* pane = At<CColorPane>(id)) {
        return pane->Color();
    }
    const auto* button = At<CColorButton>(id);
    return button ? button->Color() : 0;
}

void TemplateView::ShowColor(int id, std::uint32_t colorRef) {
    if (auto* pane = At<CColorPane>(id)) {
        pane->SetColor(colorRef);
    } else if (auto* button = At<CColorButton>(id)) {
        button->SetColor(colorRef);
    }
}

void TemplateView::SetEnabled(int id, bool enabled) {
    if (auto* control = At(id)) {
        control->setEnabled(enabled);
    }
}

/// A stepper here has no position of its own, which nobody could ask for: each click steps by one.
void TemplateView::SetStepRange(int, int, int) {}

void TemplateView::Focus(int id) {
    m_window.BringToFront(m_panel);
    if (auto* control = At(id)) {
        control->setFocus(Qt::OtherFocusReason);
    }
}

void TemplateView::SelectText(int id) {
    if (auto* edit = At<QLineEdit>(id)) {
        edit->selectAll();
    }
}

Answer TemplateView::ShowMessage(std::string_view text, MessageButtons buttons) {
    return millichart::ShowMessage(&m_window, text, buttons);
}

std::optional<std::uint32_t> TemplateView::PickColor(std::uint32_t colorRef) {
    return millichart::PickColor(&m_window, colorRef);
}

std::optional<FontChoice> TemplateView::PickFont(const FontChoice& shown) {
    return millichart::PickFont(&m_window, shown, PixelsPerInch());
}

int TemplateView::PixelsPerInch() const {
    return qRound(m_window.screen()->logicalDotsPerInchY());
}

bool TemplateView::Run(Dialog& dialog) {
    return DialogWindow(dialog, &m_window).Run();
}

} // namespace millichart
