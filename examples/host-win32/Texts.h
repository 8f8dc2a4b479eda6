#pragma once

#include "penlode/Geometry.h"

#include <string>
#include <string_view>

/// The system's texts are UTF-16, the library's file names and sentences UTF-8.
namespace host {

std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

/// "C:\图表\sales.chart.json" -> "sales.chart.json"
std::wstring FileNameOf(const std::wstring& path);

/// How far something was moved, in words: "向右 3.0、向上 0.5 毫米"
std::wstring MovementText(penlode::PointF millimetres);

} // namespace host
