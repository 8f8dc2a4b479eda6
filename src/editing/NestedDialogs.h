#pragma once

#include "editing/DialogView.h"
#include "foundation/TextProperty.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"

/// What the buttons of dialogs and pages open. Each changes its argument on OK and else leaves it as it is;
/// where a record holds nothing, the user starts from the default.
namespace millichart {

void EditPenOn(DialogView& view, penlode::Owned<penlode::Pen>& pen);
void EditTextOn(DialogView& view, TextProperty& property);

/// A logical font in whole pixels is coarser than a size in millimetres: one that comes back as it was shown
/// changes nothing. The picked colour is opaque.
void PickFontOn(DialogView& view, penlode::Owned<penlode::Font>& font, penlode::Color& textColor);

} // namespace millichart
