#pragma once

#include "documents/ChartDocument.h"

#include <QString>

class QPrinter;
class QWidget;

namespace designer {

/// Draws the chart in the middle of the printer's page, at its true size or as large as can be printed.
/// No finer than `maxDpi`, which no eye tells on paper.
void PrintChart(QPrinter& printer, const millichart::LaidOutChart& chart, double maxDpi = 600.0);

/// Shows the page first; prints from there.
void PreviewPrint(const millichart::LaidOutChart& chart, const QString& title, QWidget* parent);

/// Asks for a printer.
void Print(const millichart::LaidOutChart& chart, const QString& title, QWidget* parent);

} // namespace designer
