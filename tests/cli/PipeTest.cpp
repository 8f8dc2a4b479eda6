#include "CommandTest.h"

using Pipe = cli_test::CommandTest;
using cli_test::kSmallPie;

TEST_F(Pipe, EveryFormatGoesThroughIt) {
    const Outcome outcome = Run("millichart new pie | tee d.json | millichart draw - --format png >p.png &&"
                                "millichart draw - --format svg -o - <d.json >p.svg &&"
                                "millichart draw d.json --format pdf -o - >p.pdf");
    EXPECT_EQ(outcome.Errors, "");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(
        Run("millichart draw d.json -o f.png && millichart draw d.json -o f.svg && millichart draw d.json -o "
            "f.pdf && cmp f.png p.png && cmp f.svg p.svg && cmp f.pdf p.pdf")
            .Status,
        0);
    EXPECT_EQ(Run("ls").Output, "d.json\nf.pdf\nf.png\nf.svg\np.pdf\np.png\np.svg\n");
}

TEST_F(Pipe, CheckAndInspectReadItToo) {
    Write("s.json", kSmallPie);
    EXPECT_EQ(Run("millichart inspect - <s.json").Output.find("{\n  \"file\": \"standard input\""), 0U);
    const Outcome outcome = Run("echo '{\"kind\": 3}' | millichart check -");
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(outcome.Output.find("standard input:1: kind: found 3, expected " + cli_test::kKinds + "\n"), 0U)
        << outcome.Output;
}

TEST_F(Pipe, ATerminalGetsNoBytesOfAPicture) {
    if (Run("script -qec true /dev/null").Status != 0) {
        GTEST_SKIP() << "script(1) is missing or cannot make a terminal here";
    }
    Write("1.json", kSmallPie);
    for (const std::string arguments : {"1.json --format png -o -", "- --format pdf <1.json"}) {
        const Outcome outcome = Run("script -qec 'millichart draw " + arguments + "' /dev/null");
        EXPECT_EQ(outcome.Output,
                  "millichart: standard output: is a terminal; expected -o FILE, or a pipe\r\n");
    }
    EXPECT_NE(Run("script -qec 'millichart draw 1.json --format svg -o -' /dev/null").Output.find("<svg"),
              std::string::npos);
}

TEST_F(Pipe, ProgressIsShownOnATerminalAlone) {
    if (Run("script -qec true /dev/null").Status != 0) {
        GTEST_SKIP() << "script(1) is missing or cannot make a terminal here";
    }
    Write("1.json", kSmallPie);
    Write("2.json", kSmallPie);
    const std::string seen = Run("script -qec 'millichart draw 1.json 2.json' /dev/null").Output;
    EXPECT_EQ(seen, "\r\x1B[K1/2 1.json\r\x1B[K2/2 2.json\r\x1B[K");
    EXPECT_EQ(Run("script -qec 'millichart draw 1.json' /dev/null").Output, "");
}
