#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <functional>
#include <optional>

namespace designer {

/// Shows the property sheet of the document's kind, at the page and control of a part if there is one, and
/// tells what the document would be after every change in it. True after OK: the document has the record.
/// After Cancel it is as it was, and the last one told is it.
bool EditRecord(millichart::ChartDocument& document, const std::optional<millichart::ChartPart>& at,
                const std::function<void(const millichart::ChartDocument&)>& preview);

} // namespace designer
