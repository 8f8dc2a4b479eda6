#include "CommandTest.h"

#include <algorithm>

using Script = cli_test::CommandTest;
using cli_test::kSmallPie;

namespace {

/// It draws with a warning.
constexpr const char* kDoubtful =
    R"({"kind": "pie", "Colour": 1, "property": {"PieBasicProp": {"FixedSize": 1}},
    "data": {"values": [1, 2.5]}})";

} // namespace

TEST_F(Script, WarningsMayBeErrorsOrSilent) {
    Write("d.json", kDoubtful);
    const Outcome strict = Run("millichart draw d.json --strict");
    EXPECT_EQ(strict.Status, 1);
    EXPECT_EQ(strict.Errors, "millichart: d.json:1: Colour: an unknown key, ignored\n");
    EXPECT_FALSE(Exists("d.png"));
    EXPECT_EQ(Run("millichart check d.json --strict").Status, 1);
    EXPECT_EQ(Run("millichart check d.json").Status, 0);
    const Outcome quiet = Run("millichart draw d.json none.json --quiet; ls d.png");
    EXPECT_EQ(quiet.Errors, "millichart: none.json: cannot be read: No such file or directory\n");
    EXPECT_EQ(quiet.Output, "d.png\n");
    EXPECT_EQ(Run("millichart check d.json --quiet | grep -c :").Output, "1\n") << "the summary";
}

TEST_F(Script, MessagesMayBeJson) {
    Write("d.json", kDoubtful);
    const Outcome outcome = Run("millichart draw d.json none.json -o no/ --json");
    EXPECT_EQ(outcome.Errors,
              "{\"file\":\"d.json\",\"line\":1,\"severity\":\"warning\",\"place\":\"Colour\",\"found\":\"1\","
              "\"expected\":\"\",\"message\":\"an unknown key, ignored\"}\n"
              "{\"file\":\"none.json\",\"line\":null,\"severity\":\"error\",\"place\":\"\",\"found\":\"\","
              "\"expected\":\"\",\"message\":\"cannot be read: No such file or directory\"}\n");
    const Outcome full = Run("millichart draw d.json --json --quiet --format svg -o /dev/full");
    EXPECT_NE(full.Errors.find("\"cannot be written: No space left on device\""), std::string::npos);
}

/// Pictures, messages, their order and the exit status are those of one after the other.
TEST_F(Script, SeveralAtOnceAreAsOneAfterTheOther) {
    std::string inputs;
    for (int i = 0; i < 12; ++i) {
        const std::string name = std::to_string(i) + ".json";
        Write(name, i % 4 == 3 ? "{" : kDoubtful);
        inputs += " " + name;
    }
    inputs += " 0.json " MILLICHART_EXAMPLES "/*.json";
    const Outcome one = Run("millichart draw" + inputs + " -v -o one");
    const Outcome four = Run("millichart draw" + inputs + " -v -o four --jobs 4");
    EXPECT_EQ(one.Status, 1);
    EXPECT_EQ(four.Status, 1);
    const auto named = [](std::string text) {
        for (std::size_t at = text.find("four/"); at != std::string::npos; at = text.find("four/")) {
            text.replace(at, 4, "one");
        }
        return text;
    };
    EXPECT_EQ(named(four.Errors), one.Errors);
    EXPECT_EQ(Run("diff -r one four").Output, "");
}

TEST_F(Script, AnOutputMayBeMadeOfNames) {
    Write("a.chart.json", kSmallPie);
    Write("b.json", kSmallPie);
    EXPECT_EQ(Run("millichart draw a.chart.json b.json -o 'out/{name}-s.svg' && ls out").Output,
              "a-s.svg\nb-s.svg\n");
    const Outcome outcome = Run("millichart draw a.chart.json b.json -o x.png");
    EXPECT_EQ(outcome.Status, 2);
    EXPECT_EQ(outcome.Errors,
              "millichart: -o x.png: is one picture for several inputs, expected a folder, or "
              "{name} in it\n");
}

TEST_F(Script, DotsAreForPngAlone) {
    Write("a.json", kSmallPie);
    EXPECT_EQ(Run("millichart draw a.json --dpi 300 -o a.svg").Errors,
              "millichart: a.json: warning: --dpi is for a PNG; a picture .svg has no dots\n");
}

TEST_F(Script, AFontTakenForAnotherIsTold) {
    Write("a.json", R"({"kind": "pie", "data": {"values": [1, 2]}, "property": {"PieLabelProp": {
        "PieLabelTextProperty": {"字体": "No Such Face 4"}}}})");
    const std::string told = Run("millichart draw a.json -o a.svg").Errors;
    EXPECT_EQ(told.find("millichart: a.json: warning: No Such Face is drawn in "), 0U) << told;
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
}
