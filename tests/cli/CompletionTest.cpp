#include "CommandTest.h"

#include <set>

namespace {

class Completion : public cli_test::CommandTest {
protected:
    /// What bash offers for the last word, in alphabetical order.
    std::string Offered(const std::string& words) const {
        const Outcome outcome = Run(
            "bash -c 'source " MILLICHART_PACKAGING "/completions/millichart.bash; COMP_WORDS=(millichart " +
            words +
            "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _millichart; printf \"%s\\n\" \"${COMPREPLY[@]}\"' "
            "2>/dev/null | sort | tr '\\n' ' '");
        return outcome.Output;
    }
};

/// The long options in a text, each once.
std::set<std::string> LongOptions(const std::string& text) {
    std::set<std::string> options;
    for (std::size_t at = text.find("--"); at != std::string::npos; at = text.find("--", at)) {
        const std::size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz3-", at);
        options.insert(text.substr(at, end - at));
        at = end;
    }
    return options;
}

} // namespace

TEST_F(Completion, BashOffersWhatFits) {
    Write("a.chart.json", "");
    Write("b c.json", "");
    EXPECT_EQ(Offered("\"\""), "--help --version check draw edit inspect new ");
    EXPECT_EQ(Offered("dr"), "draw ");
    EXPECT_EQ(Offered("new p"), "pie ");
    EXPECT_EQ(Offered("new h"), "half-pie half-pie-half-pie half-pie-histogram histogram ");
    EXPECT_EQ(Offered("draw a.json --format s"), "svg ");
    EXPECT_EQ(Offered("draw --ou"), "--outlines --output ");
    EXPECT_EQ(Offered("draw --kind ha"), "half-pie half-pie-half-pie half-pie-histogram ");
    EXPECT_EQ(Offered("draw a"), "a.chart.json ");
    EXPECT_EQ(Offered("check b"), "b c.json ");
}

TEST_F(Completion, BashKnowsEveryOption) {
    for (const std::string command : {"draw", "new", "check", "inspect", "edit"}) {
        const std::string help = Run("millichart " + command + " --help | grep -E '^ +-'").Output;
        EXPECT_EQ(LongOptions(Offered(command + " --")), LongOptions(help)) << command;
    }
}

TEST_F(Completion, EveryShellCanReadItsFile) {
    EXPECT_EQ(Run("bash -n " MILLICHART_PACKAGING "/completions/millichart.bash").Status, 0);
    for (const std::string shell : {"zsh -n " MILLICHART_PACKAGING "/completions/_millichart",
                                    "fish -n " MILLICHART_PACKAGING "/completions/millichart.fish"}) {
        const bool isThere = Run("command -v " + shell.substr(0, shell.find(' '))).Status == 0;
        if (isThere) {
            EXPECT_EQ(Run(shell).Status, 0) << shell;
        }
    }
}
