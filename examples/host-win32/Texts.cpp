#include "Texts.h"

#include <cmath>
#include <cstdlib>
#include <windows.h>

namespace host {
namespace {

/// With one decimal; empty for none.
std::wstring DistanceText(float millimetres, const wchar_t* forth, const wchar_t* back) {
    const long tenths = std::lround(millimetres * 10.0F);
    const long size = std::labs(tenths);
    return tenths == 0
               ? L""
               : (tenths > 0 ? forth : back) + std::to_wstring(size / 10) + L"." + std::to_wstring(size % 10);
}

} // namespace

std::wstring Wide(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), length);
    return wide;
}

std::string Utf8(std::wstring_view wide) {
    const int units = static_cast<int>(wide.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

std::wstring FileNameOf(const std::wstring& path) {
    return path.substr(path.find_last_of(L"\\/") + 1);
}

std::wstring MovementText(penlode::PointF millimetres) {
    const std::wstring sideways = DistanceText(millimetres.X, L"向右 ", L"向左 ");
    const std::wstring upright = DistanceText(millimetres.Y, L"向下 ", L"向上 ");
    if (sideways.empty() && upright.empty()) {
        return L"未移动";
    }
    return sideways + (sideways.empty() || upright.empty() ? L"" : L"、") + upright + L" 毫米";
}

} // namespace host
