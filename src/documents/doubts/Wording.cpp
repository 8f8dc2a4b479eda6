#include "documents/doubts/Wording.h"

#include "documents/Fields.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>

namespace millichart::documents {

using penlode::CStringUtil;

std::string Quoted(const std::wstring& text) {
    const std::size_t first = text.find_first_not_of(L" \n\r\t");
    std::wstring line =
        first == std::wstring::npos ? L"" : text.substr(first, text.find_last_not_of(L" \n\r\t") + 1 - first);
    std::replace(line.begin(), line.end(), L'\n', L' ');
    return '"' + penlode::Shortened(CStringUtil::WideToUtf8(line)) + '"';
}

std::string Quoted(const std::string& narrow) {
    return Quoted(CStringUtil::AnsiToWideString(narrow));
}

std::string CountedAre(std::size_t count, const std::string& noun) {
    return Counted(count, noun) + (count == 1 ? " is" : " are");
}

std::string ToFirst(std::size_t count) {
    return count == 1 ? "" : "the first is ";
}

std::string NameAt(const std::vector<std::string>& names, std::size_t index) {
    return index < names.size() ? names[index] : std::string();
}

} // namespace millichart::documents
