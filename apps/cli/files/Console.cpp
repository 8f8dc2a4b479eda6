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

void TellProblems(const std::vector<Diagnostic>& diagnostics, const Voice& voice) {
    std::vector<Diagnostic> told;
    for (const Diagnostic& diagnostic : diagnostics) {
        const bool isLoud = diagnostic.Severity == Severity::Error ||
                            (diagnostic.Severity == Severity::Warning && !voice.IsQuiet);
        if (isLoud) {
            told.push_back(diagnostic);
        }
    }
    if (voice.AsJson) {
        ShowPassingLine("");
        std::cerr << ToJsonLines(told);
        return;
    }
    for (const std::string& line : ToLines(told)) {
        Tell(line);
    }
}

void TellFact(const Diagnostic& fact, const Voice& voice) {
    if (voice.AsJson) {
        std::cerr << ToJsonLines({fact});
    } else {
        Tell(fact.File + ": " + fact.Text);
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
