#include <csignal>

/// Preloaded into a program, has it ended when it gives a complete file its name.
extern "C" int rename(const char*, const char*) {
    std::raise(SIGTERM);
    return -1;
}
