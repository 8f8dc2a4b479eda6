#include "CommandTest.h"

#include <regex>

namespace {

constexpr int kNoValidator = 77;

/// What is changed in a complete document.
struct Change {
    const char* Pattern;
    const char* Replacement;
    const char* Kind = "pie";
};

class Schema : public cli_test::CommandTest {
protected:
    Outcome Validate(const std::string& files) const {
        return Run("python3 " MILLICHART_TESTS "/validate.py " MILLICHART_DOCS "/chart.schema.json " + files);
    }

    bool HasValidator() const { return Validate("").Status != kNoValidator; }

    /// A complete document with one value replaced.
    std::string Changed(const std::string& kind, const std::string& pattern,
                        const std::string& replacement) const {
        const std::string whole = Run("millichart new " + kind).Output;
        std::string changed = std::regex_replace(whole, std::regex(pattern), replacement,
                                                 std::regex_constants::format_first_only);
        EXPECT_NE(changed, whole) << pattern;
        return changed;
    }
};

} // namespace

#define NEED_VALIDATOR()                                                                                     \
    if (!HasValidator())                                                                                     \
    GTEST_SKIP() << "python3-jsonschema is not installed"

TEST_F(Schema, EveryExampleAndEveryNewDocumentKeepsToIt) {
    NEED_VALIDATOR();
    const Outcome outcome = Validate(MILLICHART_EXAMPLES "/*.json");
    EXPECT_EQ(outcome.Output + outcome.Errors, "");
    EXPECT_EQ(outcome.Status, 0);
    for (const std::string& kind : cli_test::kKindNames) {
        Run("millichart new " + kind + " -o " + kind + ".json");
        EXPECT_EQ(Validate(kind + ".json").Output, "") << kind;
    }
    Write("short.json",
          R"({"kind": "pie", "title": 2024, "source": true, "property": {"PieBasicProp": {"FixedSize": true,
        "ComponentName": ["a|b", 2], "FixedWidth": true, "BaseValue": " 1e2 ", "ComponentColor": ["#336699"]},
        "PieLabelProp": {"PieLabelTextProperty": {"Angle": "-0000000000090"}}},
        "data": {"values": [0, "2.5", true]}})");
    EXPECT_EQ(Run("millichart check short.json").Status, 0);
    Write("csv.json", R"({"kind": "pie", "data": {"csv": "d.csv"}})");
    Write("bars.json",
          R"({"kind": "histogram", "data": {"groups": [{"name": 2024, "values": [1, null, "", "2"]}]},
        "range": {"InitializeValueRange": 3}})");
    EXPECT_EQ(Run("millichart check bars.json").Status, 0);
    Write("halves.json", R"({"kind": "half-pie-half-pie", "property": {"LowerHalf": {"HalfPieBasicProp":
        {"WhichPart": "Lower"}}}, "data": {"first": {"csv": "d.csv"}, "second": {"values": [1]}}})");
    Write("lines.json", R"({"kind": "curve", "data": {"curves": [{"values": [1, null], "times": [1, "2"]}],
        "labels": [1, "b"]}, "property": {"CurvePlotProp": {"CurveDotStyle": ["solid_circle"]}}})");
    EXPECT_EQ(Run("millichart check lines.json").Status, 0);
    EXPECT_EQ(Validate("lines.json").Output, "");
    Write("both.json", R"({"kind": "half-pie-histogram", "data": {"values": [1], "groupsCsv": "d.csv"}})");
    Write("table.json", R"({"kind": "curve", "data": {"source": "d.ods", "sheet": "S", "columns": [1, "b"],
        "heading": false, "transpose": 1, "order": "name", "top": "3", "decimal": ","}})");
    Write("points.json",
          R"({"kind": "curve", "data": {"source": "sqlite:d.db", "table": "points", "time": "t",
        "value": "v", "by": "site", "where": ["t > 3"]}})");
    EXPECT_EQ(Validate("short.json csv.json bars.json halves.json both.json table.json points.json").Output,
              "");
}

/// What the schema refuses, `check` refuses or warns of too.
TEST_F(Schema, RefusesWhatCheckRefuses) {
    NEED_VALIDATOR();
    int count = 0;
    for (const auto& [pattern, replacement, kind] : std::initializer_list<Change>{
             {"\"pie\"", "\"pye\""},
             {"\"2D\"", "\"4D\""},
             {": 60,", ": \"60 km\","},
             {"#FF3B6FB6", "bluish"},
             {"#FFFFFFFF 0.3 solid", "#FFFFFFFF wavy"},
             {"Arial 3.4", "Arial"},
             {"\"0 0\"", "\"1\""},
             {"RightCenter", "Right"},
             {"42.5", "\"x\""},
             {"42.5", "-42.5"},
             {"42.5", "\"-42.5\""},
             {"42.5", "null"},
             {"#FFFFFFFF 0.3 solid", "#FFFFFFFF . solid"},
             {"Arial 3.4", "Arial +"},
             {"\"0 0\"", "\"1.2.3 0\""},
             {"\"Angle\": 0", "\"Angle\": 2147483648"},
             {"\"North\"", "\"North|\""},
             {"\"values\"", "\"worth\": 1, \"values\""},
             {"\"source\"", "\"sauce\": \"\", \"source\""},
             {"\"PieStyle\"", "\"PieStile\""},
             {"\"version\": \"1\"", "\"version\": 2"},
             {"\"WhichPart\": \"Top\"", "\"WhichPart\": \"Upper\"", "half-pie"},
             {"\"labelOffsets\"", "\"legendOffset\": \"0 0\", \"labelOffsets\"", "half-pie"},
             {"\"second\"", "\"csv\": \"d.csv\", \"second\"", "half-pie-half-pie"},
             {"\"LowerHalf\"", "\"BottomHalf\"", "half-pie-half-pie"},
             {"\"location\"", "\"range\": {\"LogarithmValueRange\": [1, 10]}, \"location\"",
              "half-pie-histogram"},
             {"\"groups\"", "\"groupsTop\": 0, \"groups\"", "half-pie-histogram"},
             {"\"values\"", "\"order\": \"up\", \"values\""},
             {"\"groups\"", "\"groupsCsv\": \"d.csv\", \"groups\"", "half-pie-histogram"}}) {
        const std::string name = std::to_string(++count) + ".json";
        Write(name, Changed(kind, pattern, replacement));
        const std::string said = Run("millichart check " + name + " | grep -v note: | head -1").Output;
        EXPECT_EQ(said.find(name + ":"), 0U) << replacement;
        EXPECT_EQ(said.find(" errors, "), std::string::npos) << replacement << ": " << said;
    }
    const std::string refused = Validate("*.json").Output;
    for (int i = 1; i <= count; ++i) {
        EXPECT_NE(("\n" + refused).find("\n" + std::to_string(i) + ".json: "), std::string::npos) << i << "\n"
                                                                                                  << refused;
    }
}
