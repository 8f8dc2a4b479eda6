#pragma once

#include "support/Shell.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace cli_test {

/// The command as a person runs it: shell lines in a folder of their own, which goes with the test.
class CommandTest : public testing::Test {
protected:
    CommandTest() { std::filesystem::create_directories(File("")); }

    /// A file in the folder in which lines are run.
    std::string File(const std::string& name) const { return m_folder.Path("files/" + name); }

    std::string Read(const std::string& name) const { return ReadAll(File(name)); }

    bool Exists(const std::string& name) const { return std::filesystem::exists(File(name)); }

    /// Gives the file's path.
    std::string Write(const std::string& name, const std::string& text) const {
        return m_folder.Write("files/" + name, text);
    }

    /// A shell line in which `millichart` is the command.
    Outcome Run(const std::string& line) const {
        Outcome outcome = Shell("cd '" + File("") + "' && PATH=" MILLICHART_FOLDER ":$PATH && { " + line +
                                "\n} 2>'" + m_folder.Path("err") + "'");
        outcome.Errors = ReadAll(m_folder.Path("err"));
        return outcome;
    }

    /// What `inspect` shows of a document, which becomes h.json, in lines with `key`.
    std::string Shown(const std::string& document, const std::string& key,
                      const std::string& options = "") const {
        Write("h.json", document);
        const Outcome outcome = Run("millichart inspect h.json " + options + " | grep '\"" + key + "\":'");
        EXPECT_EQ(outcome.Errors, "");
        return outcome.Output;
    }

private:
    TemporaryFolder m_folder;
};

/// The kinds of charts in the command's order.
inline const std::vector<std::string> kKindNames{
    "pie", "half-pie", "half-pie-half-pie", "half-pie-histogram", "histogram", "curve"};

/// As messages list them.
inline const std::string kKinds = [] {
    std::string kinds;
    for (const std::string& kind : kKindNames) {
        kinds += (kinds.empty() ? "\"" : ", \"") + kind + "\"";
    }
    return kinds + ", or bar, line and the like";
}();

/// A pie of 20 mm that draws without a word.
inline const char* const kSmallPie =
    R"({"kind": "pie", "property": {"PieBasicProp": {"PieStyle": "3D", "FixedWidth": 20},
        "PieLabelProp": {"ShowPercentLabel": 0}}, "data": {"values": [1, 2.5]}})";

} // namespace cli_test
