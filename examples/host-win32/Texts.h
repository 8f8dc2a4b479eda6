#pragma once

#include <string>
#include <string_view>

/// The system's texts are UTF-16, the library's file names and sentences UTF-8.
namespace host {

std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

/// "C:\图表\sales.chart.json" -> "sales.chart.json"
std::wstring FileNameOf(const std::wstring& path);

/// A length with its sign and one decimal: "+0.5"
std::wstring SignedMillimetres(float millimetres);

} // namespace host
