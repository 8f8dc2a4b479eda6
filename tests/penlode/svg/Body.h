#pragma once

#include "penlode/svg/SvgEngine.h"

#include <string>

/// The document's lines between the root's tags, without their indentation.
inline std::string Body(const penlode::CSvgEngine& engine) {
    const std::string text = engine.Text();
    std::string body;
    for (std::size_t at = text.find('\n') + 1; at < text.size(); at = text.find('\n', at) + 1) {
        at = text.find_first_not_of(' ', at);
        const std::string line = text.substr(at, text.find('\n', at) + 1 - at);
        body += line == "</svg>\n" ? "" : line;
    }
    return body;
}
