#include "files/System.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <unistd.h>

namespace cli {
namespace {

std::array<char, PATH_MAX> g_unfinished;
std::atomic<bool> g_isUnfinished = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal's handler reads it");

extern "C" void EndCleanly(int signal) {
    if (g_isUnfinished) {
        unlink(g_unfinished.data());
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

std::mutex g_guarding;
std::size_t g_guards = 0;
void (*g_unguarded)(int) = SIG_DFL; ///< what an interrupt does without a guard
std::atomic<bool> g_isInterrupted = false;

extern "C" void NoteInterrupt(int signal) {
    if (g_isInterrupted.exchange(true)) {
        EndCleanly(signal);
    }
}

} // namespace

std::vector<std::string> Arguments(int argc, char** argv) {
    return {argv + std::min(argc, 1), argv + argc};
}

bool ErrorsGoToTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

bool OutputGoesToTerminal() {
    return isatty(STDOUT_FILENO) != 0;
}

/// A signal that is ignored, as by nohup, stays so.
void PrepareSystem() {
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, EndCleanly) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

std::string StartProgram(const std::string& name, const std::vector<std::string>& arguments) {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path beside = self.parent_path() / name;
    std::string program = !error && std::filesystem::exists(beside, error) ? beside.string() : name;
    std::vector<std::string> words = arguments;
    words.insert(words.begin(), program);
    std::vector<char*> pointers;
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    execvp(program.c_str(), pointers.data());
    return std::generic_category().message(errno);
}

UnfinishedFile::UnfinishedFile(const std::string& name) {
    if (name.size() < g_unfinished.size()) {
        name.copy(g_unfinished.data(), name.size());
        g_unfinished[name.size()] = '\0';
        g_isUnfinished = true;
    }
}

UnfinishedFile::~UnfinishedFile() {
    g_isUnfinished = false;
}

InterruptGuard::InterruptGuard() {
    const std::lock_guard lock(g_guarding);
    if (++g_guards == 1) {
        g_unguarded = std::signal(SIGINT, NoteInterrupt);
        if (g_unguarded == SIG_IGN) {
            std::signal(SIGINT, SIG_IGN);
        }
    }
}

InterruptGuard::~InterruptGuard() {
    const std::lock_guard lock(g_guarding);
    if (--g_guards == 0) {
        std::signal(SIGINT, g_unguarded);
        if (g_isInterrupted) {
            std::raise(SIGINT);
        }
    }
}

bool InterruptGuard::IsInterrupted() {
    return g_isInterrupted;
}

} // namespace cli
