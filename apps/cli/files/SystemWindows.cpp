#include "documents/Files.h"
#include "files/System.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <mutex>
#include <sstream>
#include <string_view>
#include <system_error>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace cli {
namespace {

std::timed_mutex g_writing;

struct Console {
    explicit Console(DWORD stream) : Handle(GetStdHandle(stream)) {
        IsThere = GetConsoleMode(Handle, &Mode) != 0;
    }

    HANDLE Handle;
    DWORD Mode = 0;
    bool IsThere;
};

/// A console takes UTF-16, whatever code page it is set to; texts are flushed by whole characters.
class ConsoleText final : public std::stringbuf {
public:
    explicit ConsoleText(HANDLE console) : std::stringbuf(std::ios_base::out), m_console(console) {}

private:
    int sync() override {
        const std::wstring text = penlode::CStringUtil::Utf8ToWideString(str());
        str({});
        std::wstring_view rest = text;
        while (!rest.empty()) {
            DWORD written = 0;
            const BOOL good =
                WriteConsoleW(m_console, rest.data(), static_cast<DWORD>(rest.size()), &written, nullptr);
            if (good == 0 || written == 0) {
                return -1;
            }
            rest.remove_prefix(written);
        }
        return 0;
    }

    HANDLE m_console;
};

/// On a console the stream writes wide texts and may steer it; elsewhere it writes bytes as they are.
void PrepareOutput(std::ostream& stream, std::FILE* file, DWORD number) {
    _setmode(_fileno(file), _O_BINARY);
    if (const Console console(number); console.IsThere) {
        SetConsoleMode(console.Handle,
                       console.Mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        // For ever, as streams are flushed when the program ends.
        stream.rdbuf(new ConsoleText(console.Handle));
    }
}

/// Runs on a thread of its own. A file that is open cannot be removed: its end is waited for, and no other is
/// begun, as the lock is kept.
BOOL WINAPI EndCleanly(DWORD /*event*/) {
    constexpr std::chrono::seconds kPatience{4}; // the system's is 5
    static_cast<void>(g_writing.try_lock_for(kPatience));
    return FALSE;
}

std::mutex g_guarding;
std::size_t g_guards = 0;
std::atomic<bool> g_isInterrupted = false;

/// False leaves the event to the next handler, which ends the program.
BOOL WINAPI NoteInterrupt(DWORD event) {
    return event == CTRL_C_EVENT && !g_isInterrupted.exchange(true) ? TRUE : FALSE;
}

constexpr std::size_t kLongestPath = 32768;

/// As the system's own rules take it apart again: backslashes count only before a quote.
std::wstring InQuotes(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : word) {
        if (character == L'"') {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        quoted += character;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

/// The files that a word with * or ? stands for, which shells leave to the program; the word itself if there
/// are none, or if it has neither.
std::vector<std::string> FilesOf(const std::wstring& word) {
    std::vector<std::string> files;
    WIN32_FIND_DATAW found{};
    const HANDLE search = word.find_first_of(L"*?") == std::wstring::npos
                              ? INVALID_HANDLE_VALUE
                              : FindFirstFileW(word.c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        const std::filesystem::path folder = std::filesystem::path(word).parent_path();
        do {
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
                files.push_back(millichart::Utf8FromPath(folder / found.cFileName));
            }
        } while (FindNextFileW(search, &found) != 0);
        FindClose(search);
    }
    std::sort(files.begin(), files.end());
    return files.empty() ? std::vector{penlode::CStringUtil::WideToUtf8(word)} : files;
}

} // namespace

/// Those of `main` have lost what the code page does not have.
std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        const std::vector<std::string> files = FilesOf(words[i]);
        arguments.insert(arguments.end(), files.begin(), files.end());
    }
    LocalFree(words);
    return arguments;
}

bool ErrorsGoToTerminal() {
    return (Console(STD_ERROR_HANDLE).Mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

bool OutputGoesToTerminal() {
    return Console(STD_OUTPUT_HANDLE).IsThere;
}

void PrepareSystem() {
    _setmode(_fileno(stdin), _O_BINARY);
    PrepareOutput(std::cout, stdout, STD_OUTPUT_HANDLE);
    PrepareOutput(std::cerr, stderr, STD_ERROR_HANDLE);
    SetConsoleCtrlHandler(EndCleanly, TRUE);
}

std::string StartProgram(const std::string& name, const std::vector<std::string>& arguments) {
    std::wstring self(kLongestPath, L'\0');
    self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
    const std::filesystem::path beside =
        std::filesystem::path(self).parent_path() / millichart::PathFromUtf8(name + ".exe");
    std::error_code error;
    const bool isBeside = std::filesystem::exists(beside, error);
    std::wstring line = InQuotes(isBeside ? beside.wstring() : millichart::PathFromUtf8(name).wstring());
    for (const std::string& argument : arguments) {
        line += L' ' + InQuotes(penlode::CStringUtil::Utf8ToWideString(argument));
    }
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &started) == 0) {
        return std::system_category().message(static_cast<int>(GetLastError()));
    }
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return {};
}

UnfinishedFile::UnfinishedFile(const std::string& /*name*/) {
    g_writing.lock();
}

UnfinishedFile::~UnfinishedFile() {
    g_writing.unlock();
}

InterruptGuard::InterruptGuard() {
    const std::lock_guard lock(g_guarding);
    if (++g_guards == 1) {
        SetConsoleCtrlHandler(NoteInterrupt, TRUE);
    }
}

InterruptGuard::~InterruptGuard() {
    const std::lock_guard lock(g_guarding);
    if (--g_guards == 0) {
        SetConsoleCtrlHandler(NoteInterrupt, FALSE);
        if (g_isInterrupted) {
            constexpr UINT kEndedByInterrupt = 0xC000013A; // as the system's own handler
            EndCleanly(CTRL_C_EVENT);
            ExitProcess(kEndedByInterrupt);
        }
    }
}

bool InterruptGuard::IsInterrupted() {
    return g_isInterrupted;
}

} // namespace cli
