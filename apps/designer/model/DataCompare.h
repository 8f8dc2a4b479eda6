#pragma once

#include "documents/ChartDocument.h"
#include "model/DataTable.h"

#include <cstddef>

namespace designer {

/// Do two documents hold the same, whatever they were loaded from?
bool AreSame(const millichart::ChartDocument& a, const millichart::ChartDocument& b);

/// Do they show the same data under the same names, so that their tables are the same?
bool HaveSameData(const millichart::ChartDocument& a, const millichart::ChartDocument& b);

/// About so many bytes their data take.
std::size_t BytesOf(const millichart::ChartContent& content);
std::size_t BytesOf(const DataTable& table);

} // namespace designer
