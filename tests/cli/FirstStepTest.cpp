#include "CommandTest.h"

namespace {

constexpr const char* kSales = "Region,Sales\nNorth,420\nEast,310\nSouth,180\nWest,85\n";
constexpr const char* kDrinks = "Quarter,Tea,Coffee\nQ1,38,52\nQ2,41,47.5\nQ3,35,44\n";

/// From a table to a picture without a document.
class FirstStep : public cli_test::CommandTest {
protected:
    FirstStep() {
        std::filesystem::create_directories(File("in"));
        Write("in/sales.csv", kSales);
        Write("in/drinks.csv", kDrinks);
    }

    /// What is drawn of a table, as `inspect` shows it.
    std::string Inspected(const std::string& arguments) const {
        const Outcome outcome = Run("millichart inspect --kind " + arguments);
        EXPECT_EQ(outcome.Errors, "") << arguments;
        EXPECT_EQ(outcome.Status, 0) << arguments;
        return outcome.Output;
    }
};

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

} // namespace

/// The document that `new` writes draws the very picture, from wherever it stands.
TEST_F(FirstStep, ADocumentToKeepDrawsTheSame) {
    for (const std::string wish :
         {"pie in/sales.csv --3d --legend left", "half-pie in/sales.csv",
          "bar in/sales.csv --title 'Sales, \"in\" 007' --x-title Region --y-title ''",
          "bars in/drinks.csv --stacked --legend top-right --title true", "line in/drinks.csv --log",
          "curve in/drinks.csv --size 80x60 --set property/CurvePlotProp/CurveDotStyle='[\"solid_circle\"]'",
          "half-pie-half-pie in/drinks.csv"}) {
        const std::size_t blank = wish.find(' ');
        const std::string kind = wish.substr(0, blank);
        const std::string rest = wish.substr(
            wish.find(' ', blank + 1) == std::string::npos ? wish.size() : wish.find(' ', blank + 1));
        const std::string table = wish.substr(blank + 1, wish.size() - rest.size() - blank - 1);
        const std::string size = rest.find("--size") == std::string::npos ? "" : " --size 80x60";
        const Outcome outcome = Run("mkdir -p out && millichart draw --kind " + kind + " " + table + rest +
                                    " -o 1.svg && millichart new " + kind + " --data " + table + rest +
                                    " -o out/d.json --force && millichart draw out/d.json" + size +
                                    " -o 2.svg && cmp 1.svg 2.svg && millichart draw out/d.json" + size +
                                    " -o 2.png && millichart draw --kind " + kind + " " + table + rest +
                                    " -o 1.png && cmp 1.png 2.png");
        EXPECT_EQ(outcome.Status, 0) << wish << outcome.Output;
        EXPECT_EQ(outcome.Errors, "") << wish;
    }
    EXPECT_NE(Read("out/d.json").find("\"csv\": \"../in/drinks.csv\""), std::string::npos);
    EXPECT_EQ(
        Run("millichart new pie --data - <in/sales.csv | millichart inspect - | grep -c '\"owner\"'").Status,
        0)
        << "what cannot be read again stands in the document";
}

TEST_F(FirstStep, NothingOfTheExampleIsLeft) {
    for (const std::string kind : {"pie", "half-pie", "histogram", "curve"}) {
        Run("millichart draw --kind " + kind + " in/sales.csv -o d.svg");
        const std::string svg = Read("d.svg");
        EXPECT_EQ(svg.find("<desc>"), std::string::npos) << kind;
        for (const char* foreign :
             {"made up", "quarter", "thousand", "Museum", "Coffee", "month", "region"}) {
            EXPECT_EQ(svg.find(foreign), std::string::npos) << kind << ": " << foreign;
        }
    }
}

/// One series names the axis, several have a legend; values stand at few bars.
TEST_F(FirstStep, SuitsItsData) {
    const std::string one = Inspected("bar in/sales.csv");
    EXPECT_NE(one.find("\"Sales\""), std::string::npos);
    EXPECT_EQ(Count(one, "legendName"), 0U);
    EXPECT_EQ(Count(one, "barLabel"), 4U);
    const std::string two = Inspected("bar in/drinks.csv");
    EXPECT_EQ(Count(two, "legendName"), 2U);
    EXPECT_EQ(Count(two, "verCaption"), 1U) << "the layout's rectangle alone";
    EXPECT_GT(Count(two, "barLabel"), 4U) << "with their own decimals";
    EXPECT_EQ(Count(Inspected("pie in/sales.csv"), "legendName"), 4U);
    EXPECT_EQ(Count(Inspected("bar in/drinks.csv --legend none"), "legendName"), 0U);
    EXPECT_EQ(Count(Inspected("line in/sales.csv --legend right"), "legendName"), 1U);
    Write("share.csv", "Party,Share\nA,45%\nB,55 %\n");
    EXPECT_NE(Inspected("bar share.csv").find("\"45%\""), std::string::npos) << "at the bar";
    EXPECT_NE(Inspected("line share.csv").find("\"50%\""), std::string::npos) << "at the axis";
    Write("bare.csv", "N,1,2\nS,3,4\n");
    EXPECT_EQ(Run("millichart draw --kind bar bare.csv -o b.svg --strict").Status, 0)
        << "no legend of nothing";
    Write("titled.csv", std::string("Sales of 2024\n") + kSales);
    EXPECT_NE(Inspected("bar titled.csv").find("\"Sales of 2024\""), std::string::npos);
    EXPECT_EQ(Count(Inspected("bar titled.csv --title Mine"), "Sales of 2024"), 0U);
}

TEST_F(FirstStep, KindsHaveTheNamesThatPeopleUse) {
    for (const std::string name :
         {"bar", "Bars", "COLUMN", "column-chart", "histograms", "柱状图", "直方图"}) {
        EXPECT_NE(Inspected(name + " in/sales.csv").find("\"histogram\""), std::string::npos) << name;
    }
    for (const std::string name : {"line", "'Line chart'", "curves", "曲线", "折线图", "linechart"}) {
        EXPECT_NE(Inspected(name + " in/sales.csv").find("\"curve\""), std::string::npos) << name;
    }
    Write("d.json", R"({"kind": "半饼图", "data": {"values": [1, 2]}})");
    EXPECT_NE(Run("millichart inspect d.json").Output.find("\"half-pie\""), std::string::npos);
    Write("e.json", R"({"kind": "pei", "data": {"values": [1, 2]}})");
    EXPECT_NE(Run("millichart draw e.json").Errors.find("; is \"pie\" meant?"), std::string::npos);
}

/// With the page as large as the figure.
TEST_F(FirstStep, AFigureHasItsSize) {
    for (const auto& [size, head] : {std::pair("80x60", "width=\"80mm\" height=\"60mm\""),
                                     {"80mmx6cm", "width=\"80mm\" height=\"60mm\""},
                                     {"A6-landscape", "width=\"148mm\" height=\"105mm\""},
                                     {"4x3in", "width=\"101.6mm\" height=\"76.2mm\""}}) {
        for (const std::string kind : {"bar", "pie"}) {
            EXPECT_EQ(Run("millichart draw --kind " + kind + " in/sales.csv -o d.svg --size " + size).Errors,
                      "");
            EXPECT_NE(Read("d.svg").find(head), std::string::npos) << size << Read("d.svg").substr(0, 300);
        }
    }
    const Outcome small = Run("millichart draw --kind bar in/sales.csv -o s.svg --size 8x6");
    EXPECT_EQ(small.Status, 1);
    EXPECT_EQ(small.Errors.find("millichart: in/sales.csv: does not fit a figure of 8 x 6 mm; "), 0U)
        << small.Errors;
    EXPECT_EQ(Run("millichart draw --kind bar in/sales.csv --page 80x60 --fit -o f.svg && millichart draw "
                  "--kind bar "
                  "in/sales.csv --size 80x60 -o d.svg && cmp d.svg f.svg")
                  .Status,
              0);
}

/// Places that a document does not have are errors, and what is wrong is told of the option.
TEST_F(FirstStep, SettingsReachEveryKey) {
    Write("d.json", cli_test::kSmallPie);
    EXPECT_NE(
        Run("millichart inspect d.json --set data/values/1=7 --set property/PieLabelProp/ShowValueLabel=true")
            .Output.find("\"7.0\""),
        std::string::npos);
    EXPECT_EQ(Run("millichart new pie | millichart inspect - --set "
                  "'property/PieLabelProp/PieLabelTextProperty/Font=Arial 12pt'")
                  .Status,
              0)
        << "which holds it under its other name";
    const auto complaint = [this](const std::string& setting) {
        const Outcome outcome = Run("millichart draw d.json --set '" + setting + "'");
        EXPECT_EQ(outcome.Status, 1) << setting;
        return outcome.Errors;
    };
    EXPECT_EQ(complaint("property/PieBasicProp/FixedWidht=3"),
              "millichart: --set: property/PieBasicProp/FixedWidht: no such key; is \"FixedWidth\" meant?\n");
    EXPECT_EQ(complaint("property/PieBasicProp/FixedWidth=x"),
              "millichart: --set: property/PieBasicProp/FixedWidth: found \"x\", expected a number\n");
    EXPECT_EQ(complaint("kind/name=3"), "millichart: --set: kind/name: no such place in the document\n");
    EXPECT_EQ(complaint("data/values/5=3"),
              "millichart: --set: data/values/5: no such place in the document\n");
    Write("lines.json", "{\"kind\": \"pie\",\n\"data\": {\"values\": [1]},\n\"Colour\": 1}");
    EXPECT_EQ(Run("millichart draw lines.json --set property/PieBasicProp/FixedSize=1").Errors,
              "millichart: lines.json:3: warning: Colour: an unknown key, ignored\n")
        << "lines stay those of the file";
}

TEST_F(FirstStep, ATableNeedsAKind) {
    EXPECT_EQ(
        Run("millichart draw in/sales.csv").Errors,
        "millichart: in/sales.csv: is a table and no chart document; with --kind pie, bar or line it is "
        "drawn\n");
    EXPECT_EQ(Run("millichart draw --kind pie --data in/sales.csv && ls in").Output,
              "drinks.csv\nsales.csv\nsales.png\n");
    const Outcome bad = Run("printf 'a,4\\nb,x1\\n' | millichart draw --kind pie - -o d.png");
    EXPECT_EQ(bad.Errors.find("millichart: standard input:2: column 2: found \"x1\""), 0U) << bad.Errors;
    const Outcome two = Run("millichart draw --kind half-pie-histogram in/sales.csv");
    EXPECT_EQ(two.Status, 2);
}
