#pragma once

#include "foundation/ChartPart.h"
#include "model/ChartEdits.h"

#include <QString>

namespace designer {

/// "图例", in the language of the program.
QString NameOf(millichart::PartKind kind);

/// For a status bar and tips: "柱 一月 · 出口: 12.5"
QString Described(const millichart::ChartPart& part, const PartFacts& facts);

/// Of a kind of chart, for menus: "饼图"
QString NameOfKind(const char* kind);

} // namespace designer
