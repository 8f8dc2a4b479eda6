#pragma once

#include "table/DataView.h"

#include <QMenu>

/// What the menus of a DataView offer for its selection.
namespace designer {

void AddCellActions(QMenu& menu, DataView& view);
void AddRowActions(QMenu& menu, DataView& view);
/// `column` is the one whose heading was pointed at.
void AddColumnActions(QMenu& menu, DataView& view, int column);

} // namespace designer
