#pragma once

#include <mutex>
#include <set>
#include <string>
#include <string_view>

/// Narrow texts on their way to being measured and drawn. Internal to the library.
namespace millichart {

/// Whether a text is well-formed UTF-8 with a character of three bytes in it, as Chinese ones have. A GBK
/// text of the 3755 characters in common use never is, however long. Of all others, this takes for UTF-8 one
/// text of three characters in 5600 and one of four in 16000 (GB 2312), and one of two in 130 with GBK's
/// rarest characters.
bool LooksLikeUtf8(std::string_view text);

/// What a developer is told of texts that are UTF-8 by mistake: each once, and ten in all.
class Utf8Mistakes {
public:
    /// A sentence in UTF-8, or nothing. On any thread.
    std::string SentenceOn(const std::string& text);

private:
    std::mutex m_mutex;
    std::set<std::string> m_told;
};

/// The text as engines take it. A build for development (without NDEBUG) tells of one that is UTF-8 by
/// mistake, on the standard error stream or to Windows' debugger.
std::wstring WideText(const std::string& narrow);

} // namespace millichart
