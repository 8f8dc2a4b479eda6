#include "editing/NestedDialogs.h"

#include "editing/DlgLinePenProp.h"
#include "editing/TextPropDlg.h"

namespace millichart {

void EditPenOn(DialogView& view, penlode::Owned<penlode::Pen>& pen) {
    penlode::Pen trial = pen ? *pen : penlode::Pen();
    CDlgLinePenProp dialog(ValuesOf(trial));
    if (view.Run(dialog)) {
        Apply(dialog.Edited(), trial);
        pen = trial;
    }
}

void EditTextOn(DialogView& view, TextProperty& property) {
    CTextPropDlg dialog(property);
    if (view.Run(dialog)) {
        property = dialog.Edited();
    }
}

void PickFontOn(DialogView& view, penlode::Owned<penlode::Font>& font, penlode::Color& textColor) {
    const penlode::Font before = font ? *font : penlode::Font{};
    const FontChoice shown{ToLogicalFont(before, view.PixelsPerInch()), ToColorRef(textColor)};
    const std::optional<FontChoice> picked = view.PickFont(shown);
    if (!picked) {
        return;
    }
    font = picked->Font == shown.Font ? before : FromLogicalFont(picked->Font, view.PixelsPerInch());
    textColor = penlode::FromColorRef(picked->TextColor);
}

} // namespace millichart
