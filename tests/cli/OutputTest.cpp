#include "CommandTest.h"

namespace fs = std::filesystem;

using Output = cli_test::CommandTest;
using cli_test::kSmallPie;

TEST_F(Output, IsOldAndWholeAfterAFailure) {
    Write("p.png", "old");
    Write("broken.json", "{");
    Write("good.json", kSmallPie);
    EXPECT_EQ(Run("millichart draw broken.json -o p.png").Status, 1);

    // As on a full disk: no file may grow beyond a few hundred bytes.
    const Outcome full = Run("ulimit -f 1; millichart draw good.json -o p.png --dpi 600");
    EXPECT_EQ(full.Status, 1);
    EXPECT_EQ(full.Errors, "millichart: p.png: cannot be written: File too large\n");
    EXPECT_EQ(Read("p.png"), "old");
    EXPECT_EQ(Run("ls").Output, "broken.json\ngood.json\np.png\n") << "nothing is left behind";
}

TEST_F(Output, LeavesNothingUnfinishedWhenItIsEnded) {
    Write("g.json", kSmallPie);
    const std::string preloaded = "LD_PRELOAD=" MILLICHART_ENDED_BY_RENAME " ";
    if (Run(preloaded + "millichart --version").Status != 0) {
        GTEST_SKIP() << "nothing can be preloaded into this build";
    }
    EXPECT_EQ(Run(preloaded + "millichart draw g.json; echo $?").Output, "143\n") << "ended by the signal";
    EXPECT_EQ(Run("ls -A").Output, "g.json\n");
}

TEST_F(Output, GoesWhereALinkLeads) {
    Write("g.json", kSmallPie);
    fs::create_directories(File("far"));
    Run("ln -s far/new.png link.png; ln -s round.png round.png");
    EXPECT_EQ(Run("millichart draw g.json -o link.png").Errors, "");
    EXPECT_EQ(Run("readlink link.png; ls far").Output, "far/new.png\nnew.png\n");
    EXPECT_EQ(Run("millichart draw g.json -o round.png").Errors,
              "millichart: round.png: cannot be written: too many links lead from one to the next\n");
}

TEST_F(Output, SaysWhyItCannotBeWritten) {
    Write("g.json", kSmallPie);
    Write("file", "");
    const auto complaint = [this](const std::string& output) {
        const Outcome outcome = Run("millichart draw g.json --format svg -o " + output);
        EXPECT_EQ(outcome.Status, 1) << output;
        return outcome.Errors;
    };
    EXPECT_EQ(complaint("no/g.svg"), "millichart: no/g.svg: cannot be written: No such file or directory\n");
    EXPECT_EQ(complaint("file/g.svg"), "millichart: file/g.svg: cannot be written: Not a directory\n");
    EXPECT_EQ(complaint("file/"), "millichart: file/: cannot be made a folder: File exists\n");
    EXPECT_EQ(complaint("/dev/full"), "millichart: /dev/full: cannot be written: No space left on device\n");
    EXPECT_EQ(complaint("- >/dev/full"),
              "millichart: standard output: cannot be written: No space left on device\n");
    std::string longest(251, 'n');
    longest += ".svg";
    EXPECT_EQ(Run("millichart draw g.json -o " + longest).Errors, "");
    EXPECT_TRUE(Exists(longest));
}

TEST_F(Output, StaysInAFolderThatMayNotBeWritten) {
    Write("g.json", kSmallPie);
    fs::create_directories(File("locked"));
    Write("locked/p.png", "old");
    const std::string user =
        "chmod 777 locked/p.png; chmod 555 locked; HOME=$PWD; drop=; "
        "[ $(id -u) -ne 0 ] || drop='setpriv --reuid 65534 --regid 65534 --clear-groups'; $drop ";
    if (Run(user + "millichart --version").Status != 0) {
        GTEST_SKIP() << "root needs setpriv, and another user may not run this build";
    }
    const Outcome outcome = Run(user + "millichart draw g.json -o locked/p.png");
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_NE(outcome.Errors.find("millichart: locked/p.png: cannot be written: Permission denied\n"),
              std::string::npos)
        << outcome.Errors;
    EXPECT_EQ(Read("locked/p.png"), "old");
    EXPECT_EQ(Run("ls -A locked; chmod 755 locked").Output, "p.png\n");
}

TEST_F(Output, NeverTakesThePlaceOfWhatIsRead) {
    Write("g.json", kSmallPie);
    Write("b.json", kSmallPie);
    Write("b.png", kSmallPie);
    Write("d.csv", "a,1\n");
    Write("c.json",
          R"({"kind": "pie", "property": {"PieBasicProp": {"FixedSize": 1}}, "data": {"csv": "d.csv"}})");
    Run("ln -s d.csv link; ln d.csv hard");
    const auto complaint = [this](const std::string& arguments) {
        const Outcome outcome = Run("millichart draw " + arguments);
        EXPECT_EQ(outcome.Status, 1) << arguments;
        return outcome.Errors;
    };
    EXPECT_EQ(complaint("g.json --format svg -o ./g.json"),
              "millichart: g.json: its picture would take the place of g.json\n");
    for (const std::string name : {"d.csv", "link", "hard"}) {
        EXPECT_EQ(complaint("c.json --format svg -o " + name),
                  "millichart: c.json: its picture would take the place of d.csv\n");
        EXPECT_EQ(complaint("g.json --data d.csv --format svg -o " + name),
                  "millichart: g.json: its picture would take the place of d.csv\n");
    }
    EXPECT_EQ(complaint("b.json b.png -o ."),
              "millichart: b.json: its picture would take the place of b.png\n");
    EXPECT_EQ(Read("g.json") + Read("b.png") + Read("d.csv"), std::string(kSmallPie) + kSmallPie + "a,1\n");
}

TEST_F(Output, KeepsTheModeOfTheOldFile) {
    Write("g.json", kSmallPie);
    const Outcome outcome =
        Run("umask 022; echo old >p.png; chmod 640 p.png; millichart draw g.json -o p.png; "
            "millichart draw g.json; stat -c %a p.png g.png");
    EXPECT_EQ(outcome.Output, "640\n644\n");
}

TEST_F(Output, IsNamedAfterItsDocument) {
    fs::create_directories(File("in"));
    for (const char* name : {"in/a.chart.json", "in/b.json", "in/c.txt"}) {
        Write(name, kSmallPie);
    }
    EXPECT_EQ(Run("cd in; millichart draw *").Status, 0);
    EXPECT_EQ(Run("millichart draw in/a.chart.json in/b.json --format svg -o out").Status, 0);
    EXPECT_EQ(Run("millichart draw in/b.json -o out").Status, 0);
    EXPECT_EQ(Run("ls in out").Output, "in:\na.chart.json\na.png\nb.json\nb.png\nc.txt\nc.txt.png\n\n"
                                       "out:\na.svg\nb.png\nb.svg\n");
    const Outcome twice = Run("millichart draw in/b.json in/../in/b.json -o twice");
    EXPECT_EQ(twice.Status, 1);
    EXPECT_EQ(twice.Errors,
              "millichart: in/../in/b.json: twice/b.png is already the picture of another input\n");
    EXPECT_EQ(Run("millichart draw in/b.json ./in/b.json").Status, 1);
}
