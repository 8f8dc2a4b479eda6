#include "files/Console.h"

#include <iostream>

namespace cli {
namespace {

constexpr const char* kClearLine = "\r\x1B[K";

bool g_lineIsShown = false;

} // namespace

void Tell(const std::string& message) {
    ShowPassingLine("");
    std::cerr << "millichart: " << Printable(message) << '\n';
}

void TellProblems(const std::vector<Diagnostic>& diagnostics) {
    for (const std::string& line : ToLines(diagnostics, false)) {
        Tell(line);
    }
}

void ShowPassingLine(const std::string& line) {
    if (g_lineIsShown || !line.empty()) {
        std::cerr << kClearLine << Printable(line) << std::flush;
    }
    g_lineIsShown = !line.empty();
}

} // namespace cli
