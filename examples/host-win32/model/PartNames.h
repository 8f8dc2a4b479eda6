#pragma once

#include "foundation/ChartPart.h"
#include "model/ChartEdits.h"

#include <string>

/// What things are called where a user reads of them, in UTF-8.
namespace host {

/// "图例"
std::string NameOf(millichart::PartKind kind);

/// For the status bar: "柱　一月 · 出口：12.5"
std::string Described(const millichart::ChartPart& part, const designer::PartFacts& facts);

/// Of a kind of chart, by its name in documents: "饼图"
std::string NameOfKind(const char* kind);

} // namespace host
