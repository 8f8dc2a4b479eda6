#include "CommandTest.h"

#include <cstdint>

namespace fs = std::filesystem;

namespace {

using cli_test::kSmallPie;

/// A number of a PNG's chunk, big-endian.
std::uint32_t BigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value = value << 8U | static_cast<unsigned char>(bytes.at(at + i));
    }
    return value;
}

class Draw : public cli_test::CommandTest {
protected:
    /// Pixels of a PNG across and down.
    std::pair<std::uint32_t, std::uint32_t> PngSize(const std::string& name) const {
        const std::string png = Read(name);
        return {BigEndian(png, 16), BigEndian(png, 20)};
    }

    /// What the command says of a document, without its own name and the file's.
    std::string Complaint(const std::string& text) const {
        Write("a.json", text);
        const Outcome outcome = Run("millichart draw a.json -o a.png");
        EXPECT_EQ(outcome.Status, 1) << text;
        EXPECT_FALSE(Exists("a.png")) << text;
        std::string said = outcome.Errors;
        const std::string head = "millichart: a.json:";
        for (std::size_t at = said.find(head); at != std::string::npos; at = said.find(head)) {
            said.erase(at, head.size());
        }
        return said;
    }
};

} // namespace

TEST_F(Draw, EveryExampleInItsRealSize) {
    int drawn = 0;
    for (const auto& entry : fs::directory_iterator(MILLICHART_EXAMPLES)) {
        if (entry.path().extension() != ".json") {
            continue;
        }
        const Outcome outcome = Run("millichart draw " + entry.path().string() + " --dpi 60 -o a.png");
        EXPECT_EQ(outcome.Status, 0) << entry.path();
        EXPECT_EQ(outcome.Errors, "");
        ++drawn;
    }
    EXPECT_GE(drawn, 6);

    // A pie of 20 mm and 5 mm round it, at 254 dots per inch: 10 pixels a millimetre.
    Write("s.json", kSmallPie);
    const Outcome outcome = Run("millichart draw s.json --dpi 254 -o s.png");
    EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
    const std::string png = Read("s.png");
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(BigEndian(png, 16), 300U);
    EXPECT_EQ(BigEndian(png, 20), 300U);
    const std::size_t resolution = png.find("pHYs");
    ASSERT_NE(resolution, std::string::npos);
    EXPECT_EQ(BigEndian(png, resolution + 4), 10000U);
}

TEST_F(Draw, TheExamplesOfTheFormatsDescription) {
    constexpr std::string_view kBegin = "```json\n";
    const std::string description = ReadAll(MILLICHART_DOCS "/document-format.md");
    Write("sales.csv", "North,42\nSouth,58\n");
    int drawn = 0;
    for (std::size_t at = description.find(kBegin); at != std::string::npos;
         at = description.find(kBegin, at)) {
        at += kBegin.size();
        const std::string example = description.substr(at, description.find("```", at) - at);
        const bool needsDataBase = example.find("\"sqlite:") != std::string::npos;
        if (example.find("\"kind\"") != std::string::npos && !needsDataBase) {
            Write("d.json", example);
            const Outcome outcome = Run("millichart draw d.json -o d.png");
            EXPECT_EQ(outcome.Status, 0) << example;
            EXPECT_EQ(outcome.Errors, "") << example;
            ++drawn;
        }
    }
    EXPECT_GE(drawn, 3);
}

TEST_F(Draw, TheSameDocumentGivesTheSameBytes) {
    const std::string example = MILLICHART_EXAMPLES "/pie-china-age-2020.chart.json";
    for (const std::string ending : {".png", ".svg", ".pdf"}) {
        Run("millichart draw " + example + " -o 1" + ending + " && millichart draw " + example + " -o 2" +
            ending);
        EXPECT_FALSE(Read("1" + ending).empty());
        EXPECT_EQ(Read("1" + ending), Read("2" + ending));
    }
}

TEST_F(Draw, LabelsMoveWithTheirOffsetsWithOrWithoutNames) {
    const std::string labelled = R"({"kind": "pie", "property": {"PieBasicProp": {"StartAngle": -90},
        "PieLabelProp": {"ShowPercentLabel": 1}}, "data": {"values": [1, 2]}, "labelOffsets": ["0 0", ")";
    Write("a.json", labelled + "0 0\"]}");
    Write("b.json", labelled + "0 30\"]}");
    EXPECT_EQ(Run("millichart draw a.json b.json").Status, 0);
    EXPECT_GT(PngSize("b.png").second, PngSize("a.png").second)
        << "the page grows with the label that moved down";
}

TEST_F(Draw, SaysWhereADocumentCannotBeRead) {
    EXPECT_NE(Complaint("{\"kind\": \"pie\",\n  \"data\": tru}").find("line 2, column 1"), std::string::npos);
    const Outcome missing = Run("millichart draw none.json -o a.png");
    EXPECT_EQ(missing.Status, 1);
    EXPECT_EQ(missing.Errors, "millichart: none.json: cannot be read: No such file or directory\n");
    Run("truncate -s 2G huge.json; mkfifo pipe");
    EXPECT_EQ(Run("millichart draw huge.json -o a.png").Errors,
              "millichart: huge.json: cannot be read: it is larger than 1 GB\n");
    EXPECT_NE(Complaint(R"({"kind": "pie", "data": {"csv": "pipe"}})").find("it is no file but"),
              std::string::npos);
    const Outcome folder = Run("millichart draw . -o a.png");
    EXPECT_EQ(folder.Status, 1);
    EXPECT_EQ(folder.Errors, "millichart: .: cannot be read: it is a folder\n");
}

TEST_F(Draw, UnsoundNumbersAreRefusedNotDrawn) {
    EXPECT_EQ(
        Complaint(R"({"kind": "pie", "data": {"values": [-1, 1, -2.5]}})"),
        "1: data/values/0: found -1, expected 0 or more\n1: data/values/2: found -2.5, expected 0 or more\n");
    std::string many = "{\"kind\": \"pie\", \"data\": {\"values\": [1";
    for (int i = 0; i < 5000; ++i) {
        many += ",1";
    }
    EXPECT_EQ(Complaint(many + "]}}"),
              "1: data/values: found 5001 values, expected at most 5000, a slice each\n");
}

TEST_F(Draw, WarningsAreToldInTheDocumentsOrder) {
    Write("u.json", "{\"kind\": \"pie\", \"data\": {\"values\": [1]}, \"Red\": 1,\n\"property\": "
                    "{\"PieBasicProp\": {\"FixedSize\": 1, \"FixedWidth\": 4.9}},\n\"Colour\": 1}");
    const Outcome outcome = Run("millichart draw u.json");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Errors, "millichart: u.json:1: warning: Red: an unknown key, ignored\n"
                              "millichart: u.json:2: warning: property/PieBasicProp/FixedWidth: the pie is "
                              "only 4.9 mm across\n"
                              "millichart: u.json:3: warning: Colour: an unknown key, ignored\n");
    EXPECT_EQ(Run("millichart check u.json").Status, 0);
}

TEST_F(Draw, WhereMemoryRunsOutTheOtherInputsAreDrawn) {
    const std::string little = "ulimit -v 400000; ";
    if (Run(little + "millichart --version").Status != 0) {
        GTEST_SKIP() << "this build cannot run in 400 MB";
    }
    std::string values = "{\"kind\": \"pie\", \"data\": {\"values\": [1";
    for (int i = 0; i < 15000000; ++i) {
        values += ",1";
    }
    Write("big.json", values + "]}}");
    Write("deep.json", std::string(20000000, '['));
    Write("good.json", kSmallPie);
    const Outcome outcome = Run(little + "millichart draw big.json deep.json good.json");
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(outcome.Errors,
              "millichart: big.json: there is too little memory\n"
              "millichart: deep.json: line 1, column 65: found [, expected at most 64 levels of "
              "nesting\n");
    EXPECT_TRUE(Exists("good.png"));
}

TEST_F(Draw, AnInputThatFailsDoesNotStopTheOthers) {
    Write("1.json", kSmallPie);
    Write("2.json", "{");
    Write("3.json", kSmallPie);
    const Outcome outcome = Run("millichart draw 1.json 2.json none.json 3.json");
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(outcome.Errors,
              "millichart: 2.json: line 1, column 2: found the end of the document, expected a key "
              "in double quotes\nmillichart: none.json: cannot be read: No such file or directory\n")
        << "and no progress where there is no terminal";
    EXPECT_TRUE(Exists("1.png") && Exists("3.png"));
}

TEST_F(Draw, ThePageHasTheChartInItsMiddle) {
    Write("s.json", kSmallPie);
    EXPECT_EQ(Run("millichart draw s.json --dpi 254 --page 80x60").Status, 0);
    EXPECT_EQ(PngSize("s.png"), std::pair(800U, 600U));
    Run("millichart draw s.json --page 80x60 --background '#80112233' -o s.svg");
    const std::string svg = Read("s.svg");
    EXPECT_NE(svg.find("M40 26.75 L30 26.75 A10 6.75"), std::string::npos) << svg;
    EXPECT_NE(svg.find("#112233"), std::string::npos) << svg;
    const Outcome small = Run("millichart draw s.json --page 10x60.5");
    EXPECT_EQ(
        small.Errors,
        "millichart: s.json: warning: the chart of 20 x 20 mm is cut off by the page of 10 x 60.5 mm\n");
    EXPECT_EQ(small.Status, 0);
}

TEST_F(Draw, TheBackgroundMayBeAbsentOrNamed) {
    constexpr std::size_t kColorType = 25;
    Write("s.json", kSmallPie);
    Run("millichart draw s.json -o white.png; millichart draw s.json -o bare.png --background none");
    EXPECT_EQ(Read("white.png").at(kColorType), 2) << "RGB";
    EXPECT_EQ(Read("bare.png").at(kColorType), 6) << "RGBA";
    EXPECT_EQ(Run("millichart draw s.json -o named.png --background steelblue && "
                  "millichart draw s.json -o told.png --background '#4682B4' && cmp named.png told.png")
                  .Status,
              0);
}

TEST_F(Draw, WrongUsageIsStatusTwo) {
    Write("a.json", kSmallPie);
    for (const char* arguments : {"",
                                  "draw",
                                  "paint x",
                                  "draw a.json --dpi 0",
                                  "draw a.json -o a.gif",
                                  "draw a.json --page 1x",
                                  "draw a.json --page 1x6000",
                                  "draw a.json --page nanx1",
                                  "draw a.json --background reddish",
                                  "draw a.json --format gif",
                                  "draw a.json -o a.png --format svg",
                                  "draw a.json --format a.png",
                                  "draw a.json --format .png",
                                  "draw a.json -o -",
                                  "draw - a.json",
                                  "draw -",
                                  "draw - - --format png -o x",
                                  "draw a.json a.json -o -",
                                  "draw a.json a.json --data x.csv",
                                  "new",
                                  "new bra",
                                  "new pie --log",
                                  "draw a.json --columns 1,2",
                                  "draw --kind pie",
                                  "draw --kind pie a.csv --3d --stacked",
                                  "draw a.json --set x",
                                  "draw a.json --size 80",
                                  "draw a.json --fit",
                                  "draw a.json --jobs 0",
                                  "draw a.json -o {x}.png",
                                  "draw a.json a.json -o a.png",
                                  "help drow",
                                  "check",
                                  "inspect a.json a.json"}) {
        const Outcome outcome = Run(std::string("millichart ") + arguments + " </dev/null");
        EXPECT_EQ(outcome.Status, 2) << arguments;
        EXPECT_EQ(outcome.Errors.find("millichart: "), 0U) << arguments << "\n" << outcome.Errors;
        EXPECT_EQ(outcome.Output, "") << arguments;
    }
    EXPECT_EQ(Run("ls").Output, "a.json\n");
    EXPECT_NE(Run("millichart help drow").Errors.find("Subcommands:"), std::string::npos);
    EXPECT_NE(Run("millichart help draw").Output.find("--output"), std::string::npos);
    EXPECT_EQ(Run("millichart --help >/dev/full").Status, 1);
    EXPECT_EQ(Run("millichart draw a.json -o '{nam}.png'").Errors,
              "millichart: -o {nam}.png: found {nam}, expected {name}, the input's name\n");
    EXPECT_EQ(Run("millichart draw --kind pie a.json --log").Errors,
              "millichart: --log: not for the kind pie, expected histogram or curve\n");
    EXPECT_EQ(Run("millichart draw --help").Status, 0);
    EXPECT_EQ(Run("millichart draw - <a.json").Errors,
              "millichart: standard input: expected --format png, svg or pdf, or -o FILE, with it\n");
    EXPECT_EQ(
        Run("millichart draw a.json --dpi 5").Errors,
        "millichart: --dpi: found \"5\", expected a number from 10 to 2400; millichart --help tells more\n");
    EXPECT_EQ(Run("millichart drw a.json").Errors, "millichart: found \"drw\", expected draw, new, check, "
                                                   "inspect or edit; millichart --help tells more\n");
}
