#include "CommandTest.h"

using New = cli_test::CommandTest;

TEST_F(New, EveryKindIsCompleteAndDraws) {
    const std::string complete = "n.json: 0 errors, 0 warnings, 0 notes\n";
    for (const std::string& kind : cli_test::kKindNames) {
        const Outcome outcome = Run("millichart new " + kind +
                                    " --force -o n.json && millichart check n.json && "
                                    "millichart draw n.json && millichart new " +
                                    kind + " | cmp - n.json");
        EXPECT_EQ(outcome.Status, 0) << kind;
        EXPECT_EQ(outcome.Errors, "") << kind;
        EXPECT_EQ(outcome.Output, complete) << "no key is missing";
    }
}

TEST_F(New, LeavesAFileAloneThatIsThere) {
    Write("n.json", "mine");
    const Outcome outcome = Run("millichart new pie -o n.json");
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(outcome.Errors, "millichart: n.json: is there already; with --force it is written over\n");
    EXPECT_EQ(Read("n.json"), "mine");
    EXPECT_EQ(Run("millichart new pie -o /dev/stdout | head -1").Output, "{\n");
}

TEST_F(New, OtherKindsAreRefusedWithAGuess) {
    const Outcome outcome = Run("millichart new bra -o n.json");
    EXPECT_EQ(outcome.Status, 2);
    EXPECT_EQ(outcome.Errors, "millichart: KIND: found \"bra\", expected " + cli_test::kKinds +
                                  "; is \"bar\" meant?; millichart --help tells more\n");
    EXPECT_FALSE(Exists("n.json"));
}
