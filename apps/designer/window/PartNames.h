#pragma once

#include "foundation/ChartPart.h"
#include "model/ChartEdits.h"

#include <QString>

namespace designer {

/// "图例", "legend": in the language of the program, as it stands within a sentence.
QString NameOf(millichart::PartKind kind);

/// For a status bar and tips: "柱 一月 · 出口: 12.5"
QString Described(const millichart::ChartPart& part, const PartFacts& facts);

/// Of a kind of chart, within a sentence: "饼图", "pie chart"
QString NameOfKind(const char* kind);

/// As a sentence or a menu's text begins.
QString Capitalised(QString text);

} // namespace designer
