#pragma once

#include "documents/ChartDocument.h"

#include <windows.h>

namespace host {

/// Puts the chart on the clipboard, as an enhanced metafile for office programs and as a PNG for the others,
/// both of its true size. False when another program holds the clipboard.
bool CopyChart(HWND owner, const millichart::LaidOutChart& chart);

} // namespace host
