#include "System.h"

#include <csignal>
#include <unistd.h>

namespace cli {

bool ErrorsGoToTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

void PrepareSystem() {
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace cli
