#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// How a program ended and what it wrote. A status of -1: it did not end by itself.
struct Outcome {
    int Status = -1;
    std::string Output;
    std::string Errors; ///< where they were caught
};

/// Runs a command line and reads its standard output; add 2>&1 for the errors as well.
inline Outcome Shell(const std::string& commandLine) {
    Outcome outcome;
    std::FILE* pipe = popen(commandLine.c_str(), "r");
    if (pipe == nullptr) {
        return outcome;
    }
    std::array<char, 4096> piece{};
    for (std::size_t size = 1; size > 0;) {
        size = std::fread(piece.data(), 1, piece.size(), pipe);
        outcome.Output.append(piece.data(), size);
    }
    const int status = pclose(pipe);
    outcome.Status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

/// Is there such a program on the PATH?
inline bool IsInstalled(const std::string& program) {
    return Shell("command -v " + program).Status == 0;
}

inline std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder for a test's files, which goes with it.
class TemporaryFolder {
public:
    TemporaryFolder()
        : m_folder(std::filesystem::temp_directory_path() / ("millichart-test-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(m_folder);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }

    std::string Path(const std::string& name) const { return (m_folder / name).string(); }

    std::string Write(const std::string& name, const std::string& text) const {
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }

private:
    std::filesystem::path m_folder;
};
