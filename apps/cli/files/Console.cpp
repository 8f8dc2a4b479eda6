#include "files/Console.h"

#include "files/System.h"

#include <iostream>

namespace cli {
namespace {

constexpr const char* kClearLine = "\r\x1B[K";

bool g_lineIsShown = false;

} // namespace

void ShowPassingLine(const std::string& line) {
    if (g_lineIsShown || !line.empty()) {
        std::cerr << kClearLine << Printable(line) << std::flush;
    }
    g_lineIsShown = !line.empty();
}

void Tell(const std::string& message) {
    ShowPassingLine("");
    std::cerr << "millichart: " << Printable(message) << '\n';
}

void TellProblems(const std::vector<Diagnostic>& diagnostics) {
    for (const std::string& line : ToLines(diagnostics, false)) {
        Tell(line);
    }
}

Progress::Progress(std::size_t total) : m_total(total), m_isShown(total > 1 && ErrorsGoToTerminal()) {}

Progress::~Progress() {
    ShowPassingLine("");
}

void Progress::Begin(const std::string& name) {
    ++m_current;
    if (m_isShown) {
        ShowPassingLine(std::to_string(m_current) + "/" + std::to_string(m_total) + " " + name);
    }
}

} // namespace cli
