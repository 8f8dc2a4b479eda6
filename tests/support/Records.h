#pragma once

#include <algorithm>
#include <string>

/// The lines that belong to texts' looks but for their angles, and the braces, left out.
inline std::string WithoutLooks(const std::string& json) {
    std::string kept;
    for (std::size_t at = 0; at < json.size();) {
        const std::size_t end = json.find('\n', at) + 1;
        const std::string line = json.substr(at, end - at);
        at = end;
        const std::size_t text = line.find_first_not_of(' ');
        const bool isBrace = line[text] == '}' || line[text] == '{' || line[text] == ']';
        const bool isLook =
            line.find("字体") != std::string::npos || line.find("Prefix") != std::string::npos ||
            line.find("Postfix") != std::string::npos || line.find("DrawEdge") != std::string::npos ||
            line.find("DrawBackGround") != std::string::npos ||
            line.find("\"TextColor") != std::string::npos || line.find("\"EdgeColor") != std::string::npos ||
            line.find("\"BkColor") != std::string::npos;
        kept += isBrace || isLook ? "" : line.substr(text);
    }
    return kept;
}

/// What a ListingStream gets of a text's look that is as constructed but for its angle, in one line.
inline std::string PositionalLook(const std::string& angle) {
    return "font 宋体 4;colour #FF000000;colour #FF000000;colour #FFFFFFFF;int 0;int 0;text ;text ;int " +
           angle + ";";
}

inline std::string InOneLine(std::string list) {
    std::replace(list.begin(), list.end(), '\n', ';');
    return list;
}
