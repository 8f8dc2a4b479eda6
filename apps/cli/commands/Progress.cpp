#include "commands/Progress.h"

#include "files/Console.h"
#include "files/System.h"

namespace cli {

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
