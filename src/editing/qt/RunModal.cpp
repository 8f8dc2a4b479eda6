#include "editing/Dialog.h"
#include "editing/qt/DialogWindow.h"
#include "editing/qt/EditingCall.h"
#include "editing/qt/SheetWindow.h"

namespace millichart {
namespace {

template <class Window, class Content> bool Show(Content& content) {
    try {
        const EditingCall call;
        return call.CanShow() && Window(content, call.Owner()).Run();
    } catch (...) {
        return false;
    }
}

} // namespace

bool RunModal(Dialog& dialog) {
    return Show<DialogWindow>(dialog);
}

bool RunModal(Sheet& sheet) {
    return Show<SheetWindow>(sheet);
}

} // namespace millichart
