#pragma once

#include "editing/DialogTemplate.h"

#include <vector>

class QWidget;

namespace millichart {

/// A template's controls in a panel that has the dialog's font: a widget each, in the template's order.
std::vector<QWidget*> MakeControls(const DialogTemplate& shown, QWidget& panel);

} // namespace millichart
