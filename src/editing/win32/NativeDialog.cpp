#include "editing/win32/NativeDialog.h"

#include "editing/win32/ControlStyles.h"
#include "editing/win32/Module.h"

namespace millichart {
namespace {

const DLGTEMPLATE* TemplateIn(const std::vector<WORD>& bytes) {
    return reinterpret_cast<const DLGTEMPLATE*>(bytes.data());
}

} // namespace

bool NativeDialog::ShowModal(const std::vector<WORD>& bytes, HWND owner) {
    const ControlStyles styles;
    return DialogBoxIndirectParamW(ThisModule(), TemplateIn(bytes), owner, Procedure,
                                   reinterpret_cast<LPARAM>(this)) == IDOK;
}

void NativeDialog::Create(const std::vector<WORD>& bytes, HWND parent) {
    CreateDialogIndirectParamW(ThisModule(), TemplateIn(bytes), parent, Procedure,
                               reinterpret_cast<LPARAM>(this));
}

void NativeDialog::Close(bool isAccepted) {
    EndDialog(GetAncestor(m_window, GA_ROOT), isAccepted ? IDOK : IDCANCEL);
}

NativeDialog* NativeDialog::Of(HWND window) {
    return reinterpret_cast<DLGPROC>(GetWindowLongPtrW(window, DWLP_DLGPROC)) == Procedure
               ? reinterpret_cast<NativeDialog*>(GetWindowLongPtrW(window, DWLP_USER))
               : nullptr;
}

INT_PTR CALLBACK NativeDialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        reinterpret_cast<NativeDialog*>(lParam)->m_window = window;
        SetWindowLongPtrW(window, DWLP_USER, lParam);
    }
    auto* const dialog = reinterpret_cast<NativeDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (dialog == nullptr) { // not yet
        return FALSE;
    }
    try {
        return dialog->OnMessage(message, wParam, lParam) ? TRUE : FALSE;
    } catch (...) { // not through the system
        dialog->Close(false);
        return TRUE;
    }
}

} // namespace millichart
