#include "Console.h"

#include <iostream>
#include <sstream>

namespace cli {
namespace {

constexpr const char* kClearLine = "\r\x1B[K";

bool g_lineIsShown = false;

} // namespace

void Tell(const std::string& message) {
    ShowPassingLine("");
    std::istringstream lines(message);
    for (std::string line; std::getline(lines, line);) {
        std::cerr << "millichart: " << line << '\n';
    }
}

void TellProblems(const std::vector<Message>& messages) {
    for (const Message& message : messages) {
        if (message.Weight != Severity::Note) {
            Tell(ToLine(message));
        }
    }
}

void ShowPassingLine(const std::string& line) {
    if (g_lineIsShown || !line.empty()) {
        std::cerr << kClearLine << line << std::flush;
    }
    g_lineIsShown = !line.empty();
}

} // namespace cli
