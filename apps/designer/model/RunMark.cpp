#include "model/RunMark.h"

#include "documents/Files.h"

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace designer {

namespace fs = std::filesystem;

#ifdef _WIN32

struct RunMark::Handle {
    HANDLE File = INVALID_HANDLE_VALUE;

    ~Handle() {
        if (File != INVALID_HANDLE_VALUE) {
            CloseHandle(File);
        }
    }
};

namespace {

/// Nobody else can open a file that is not shared.
HANDLE OpenUnshared(const std::string& file, DWORD how) {
    return CreateFileW(millichart::PathFromUtf8(file).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, how,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

} // namespace

RunMark::RunMark(const std::string& file) : m_handle(std::make_unique<Handle>()) {
    m_handle->File = OpenUnshared(file, OPEN_ALWAYS);
}

bool RunMark::IsHeld() const {
    return m_handle->File != INVALID_HANDLE_VALUE;
}

bool IsMarkHeld(const std::string& file) {
    const HANDLE found = OpenUnshared(file, OPEN_EXISTING);
    if (found != INVALID_HANDLE_VALUE) {
        CloseHandle(found);
        return false;
    }
    return GetLastError() == ERROR_SHARING_VIOLATION;
}

#else

struct RunMark::Handle {
    int File = -1;
    bool IsLocked = false;

    ~Handle() {
        if (File >= 0) {
            close(File);
        }
    }
};

RunMark::RunMark(const std::string& file) : m_handle(std::make_unique<Handle>()) {
    m_handle->File = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    m_handle->IsLocked = m_handle->File >= 0 && flock(m_handle->File, LOCK_EX | LOCK_NB) == 0;
}

bool RunMark::IsHeld() const {
    return m_handle->IsLocked;
}

bool IsMarkHeld(const std::string& file) {
    const int found = open(file.c_str(), O_RDWR | O_CLOEXEC);
    if (found < 0) {
        return false;
    }
    const bool isHeld = flock(found, LOCK_EX | LOCK_NB) != 0;
    close(found);
    return isHeld;
}

#endif

RunMark::~RunMark() = default;

std::string MakePrivateFolder(const std::string& folder) {
    const fs::path path = millichart::PathFromUtf8(folder);
    std::error_code error;
    fs::create_directories(path, error);
    if (!error && !fs::is_directory(path, error)) {
        error = std::make_error_code(std::errc::not_a_directory);
    }
    if (!error) {
        fs::permissions(path, fs::perms::owner_all, error);
    }
    return error ? "cannot be made: " + error.default_error_condition().message() : "";
}

} // namespace designer
