#include "CommandTest.h"

using New = cli_test::CommandTest;

TEST_F(New, EveryKindIsCompleteAndDraws) {
    for (const std::string& kind : cli_test::kKindNames) {
        const Outcome outcome = Run("millichart new " + kind +
                                    " -o n.json && millichart check n.json && "
                                    "millichart draw n.json && millichart new " +
                                    kind + " | cmp - n.json");
        EXPECT_EQ(outcome.Status, 0) << kind;
        EXPECT_EQ(outcome.Errors, "") << kind;
        EXPECT_EQ(outcome.Output, "n.json: 0 errors, 0 warnings, 0 notes\n") << "no key is missing";
    }
}

TEST_F(New, OtherKindsAreRefused) {
    const Outcome outcome = Run("millichart new bar -o n.json");
    EXPECT_EQ(outcome.Status, 2);
    EXPECT_EQ(outcome.Errors, "millichart: KIND: found \"bar\", expected " + cli_test::kKinds + "\n");
    EXPECT_FALSE(Exists("n.json"));
}
