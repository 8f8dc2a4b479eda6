#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace cli_test {

struct Outcome {
    int Status;
    std::string Output;
    std::string Errors;
};

inline std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The command as a person runs it: shell lines in a folder of their own, which goes with the test.
class CommandTest : public testing::Test {
protected:
    CommandTest()
        : m_folder(std::filesystem::temp_directory_path() / ("millichart-cli-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(Path("files"));
    }

    ~CommandTest() override { std::filesystem::remove_all(m_folder); }

    std::string Path(const std::string& name) const { return (m_folder / name).string(); }

    /// A file in the folder in which lines are run.
    std::string File(const std::string& name) const { return Path("files/" + name); }

    std::string Read(const std::string& name) const { return ReadAll(File(name)); }

    bool Exists(const std::string& name) const { return std::filesystem::exists(File(name)); }

    void Write(const std::string& name, const std::string& text) const {
        std::ofstream(File(name), std::ios::binary) << text;
    }

    /// A shell line in which `millichart` is the command.
    Outcome Run(const std::string& line) const {
        const std::string shell = "cd '" + Path("files") + "' && PATH=" MILLICHART_FOLDER ":$PATH && { " +
                                  line + "\n} >'" + Path("out") + "' 2>'" + Path("err") + "'";
        const int status = std::system(shell.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(Path("out")), ReadAll(Path("err"))};
    }

private:
    std::filesystem::path m_folder;
};

/// A pie of 20 mm that draws without a word.
inline const char* const kSmallPie =
    R"({"kind": "pie", "property": {"PieBasicProp": {"FixedSize": 1}}, "data": {"values": [1, 2.5]}})";

} // namespace cli_test
