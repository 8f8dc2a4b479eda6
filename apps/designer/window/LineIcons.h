#pragma once

#include <QIcon>

namespace designer {

enum class LineIcon { New, Open, Save, Export, Undo, Redo, Properties };

/// A drawing of a few lines in the colour of the palette's texts, sharp at any size.
QIcon IconOf(LineIcon what);

} // namespace designer
