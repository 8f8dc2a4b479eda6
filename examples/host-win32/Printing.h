#pragma once

#include "documents/ChartDocument.h"

#include <string>
#include <windows.h>

/// One chart on one page, at its true size in the middle of the paper.
namespace host {

enum class Printed { Yes, Cancelled, Failed };

/// Asks with the system's dialog for printer, copies and "print to file".
Printed PrintChart(HWND owner, const millichart::LaidOutChart& chart, const std::wstring& title);

/// The same page, A4, into an enhanced metafile. False when the file cannot be written.
bool PrintChartToFile(const millichart::LaidOutChart& chart, const std::wstring& file);

} // namespace host
