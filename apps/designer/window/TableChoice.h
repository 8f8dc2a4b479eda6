#pragma once

#include "documents/tables/TableInput.h"

#include <QString>
#include <optional>

class QWidget;

namespace designer {

/// Is it a table by its name, and no document?
bool IsTableFile(const QString& file);

/// A table's file as documents read it. Of a data base a person is asked which table; nothing when he gives
/// up.
std::optional<millichart::TableInput> ChooseTable(const QString& file, QWidget& window);

} // namespace designer
