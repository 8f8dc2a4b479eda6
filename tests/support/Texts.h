#pragma once

#include "penlode/text/StringUtil.h"

#include <string>
#include <string_view>

/// A readable text as the narrow (GBK) string that the API speaks.
inline std::string Narrow(std::wstring_view text) {
    return penlode::CStringUtil::WideToAnsiString(text);
}
