#pragma once

#include "editing/qt/TemplateView.h"

namespace millichart {

class DialogWindow final : public ModalWindow {
public:
    DialogWindow(Dialog& dialog, QWidget* owner)
        : ModalWindow(owner, dialog.Template().Title), m_dialog(dialog), m_view(dialog, *this, *this) {
        setFixedSize(minimumSize());
    }

private:
    bool OnOK() override { return m_dialog.OnOK(m_view); }

    void OnChanged() override { m_dialog.OnChanged(m_view); }

    Dialog& m_dialog;
    TemplateView m_view;
};

} // namespace millichart
