#include "foundation/NarrowText.h"

#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cstdio>

#ifdef _WIN32
// Declared here, as nothing but the engines knows the platform's headers.
extern "C" __declspec(dllimport) void __stdcall OutputDebugStringW(const wchar_t* text);
#endif

namespace millichart {

using penlode::CStringUtil;

namespace {

constexpr std::size_t kMostTold = 10;

#ifdef NDEBUG
constexpr bool kTellsMistakes = false;
#else
constexpr bool kTellsMistakes = true;
#endif

bool BeginsThreeBytes(char byte) {
    return (static_cast<unsigned char>(byte) & 0xF0U) == 0xE0U;
}

void Tell(const std::string& sentence) {
#ifdef _WIN32
    OutputDebugStringW((CStringUtil::Utf8ToWideString(sentence) + L"\n").c_str());
#else
    std::fputs((sentence + "\n").c_str(), stderr);
#endif
}

[[maybe_unused]] void TellIfMistaken(const std::string& text) {
    static Utf8Mistakes mistakes;
    if (const std::string sentence = mistakes.SentenceOn(text); !sentence.empty()) {
        Tell(sentence);
    }
}

} // namespace

/// What is malformed comes back from a conversion as something else.
bool LooksLikeUtf8(std::string_view text) {
    return std::any_of(text.begin(), text.end(), BeginsThreeBytes) &&
           CStringUtil::WideToUtf8(CStringUtil::Utf8ToWideString(text)) == text;
}

std::string Utf8Mistakes::SentenceOn(const std::string& text) {
    if (!LooksLikeUtf8(text)) {
        return {};
    }
    const std::lock_guard lock(m_mutex);
    if (m_told.size() == kMostTold || !m_told.insert(text).second) {
        return {};
    }
    return "millichart: \"" + text + "\" looks like UTF-8; narrow texts are GBK, see CStringUtil::Utf8ToAnsi";
}

std::wstring WideText(const std::string& narrow) {
    if constexpr (kTellsMistakes) {
        TellIfMistaken(narrow);
    }
    return CStringUtil::AnsiToWideString(narrow);
}

} // namespace millichart
