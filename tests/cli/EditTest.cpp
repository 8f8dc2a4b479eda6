// The designer is another program: here one that only tells what it was started with.
#include "CommandTest.h"

namespace {

using Edit = cli_test::CommandTest;

TEST_F(Edit, HandsItsFilesToTheProgramBesideIt) {
    Write("sales of 2026.csv", "a,1\n");
    Write("一月.chart.json", "{}");
    Write("millichart-designer", "#!/bin/sh\nfor file; do echo \"<$file>\"; done\nexit 7\n");
    ASSERT_EQ(Run("chmod +x millichart-designer; cp \"$(command -v millichart)\" alone").Status, 0);
    const Outcome started = Run("./alone edit 'sales of 2026.csv' 一月.chart.json");
    EXPECT_EQ(started.Output, "<sales of 2026.csv>\n<一月.chart.json>\n");
    EXPECT_EQ(started.Status, 7) << "the program took this one's place";

    const Outcome missing = Run("./alone edit 'sales of 2026.csv' nowhere.csv");
    EXPECT_EQ(missing.Status, 1);
    EXPECT_EQ(missing.Errors, "millichart: nowhere.csv: expected the file of a chart document or a table\n");
    EXPECT_EQ(missing.Output, "");
}

TEST_F(Edit, TellsWhatItLacks) {
    Write("a.csv", "a,1\n");
    ASSERT_EQ(Run("cp \"$(command -v millichart)\" alone").Status, 0);
    const Outcome alone = Run("PATH=/nowhere ./alone edit a.csv");
    EXPECT_EQ(alone.Status, 1);
    EXPECT_NE(alone.Errors.find("millichart-designer: cannot be started: No such file or directory"),
              std::string::npos)
        << alone.Errors;
}

} // namespace
