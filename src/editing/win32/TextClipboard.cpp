#include "editing/win32/TextClipboard.h"

#include "penlode/text/StringUtil.h"

#include <cstring>
#include <string_view>

namespace millichart {
namespace {

using penlode::CStringUtil;

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND window) : m_isOpen(OpenClipboard(window) != FALSE) {}

    ~OpenedClipboard() {
        if (m_isOpen) {
            CloseClipboard();
        }
    }

    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return m_isOpen; }

private:
    bool m_isOpen;
};

/// A block as the clipboard takes it; null if there is no memory.
HGLOBAL BlockOf(const std::wstring& text) {
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    if (block != nullptr) {
        std::memcpy(GlobalLock(block), text.c_str(), size);
        GlobalUnlock(block);
    }
    return block;
}

std::wstring WithSystemLineEnds(std::string_view text) {
    std::string lines;
    for (const char c : text) {
        lines += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return CStringUtil::Utf8ToWideString(lines);
}

} // namespace

std::string ClipboardText(HWND window) {
    const OpenedClipboard clipboard(window);
    const HANDLE block = clipboard ? GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* const text = block != nullptr ? static_cast<const wchar_t*>(GlobalLock(block)) : nullptr;
    if (text == nullptr) {
        return {};
    }
    // Another program's block may lack its end.
    const std::wstring_view all(text, GlobalSize(block) / sizeof(wchar_t));
    std::string utf8 = CStringUtil::WideToUtf8(all.substr(0, all.find(L'\0')));
    GlobalUnlock(block);
    return utf8;
}

void SetClipboardText(HWND window, const std::string& text) {
    const std::wstring lines = WithSystemLineEnds(text);
    const OpenedClipboard clipboard(window);
    if (!clipboard) {
        return;
    }
    EmptyClipboard();
    const HGLOBAL block = BlockOf(lines);
    if (block != nullptr && SetClipboardData(CF_UNICODETEXT, block) == nullptr) { // else it is the system's
        GlobalFree(block);
    }
}

} // namespace millichart
