#include "CommandTest.h"

namespace {

using cli_test::kSmallPie;

/// A broken document, and what `check` says of it but for notes and the last line.
struct Broken {
    std::string Document;
    std::string Said;
};

std::string Pie(const std::string& property, const std::string& rest = R"("data": {"values": [1, 2]})") {
    return "{\n\"kind\": \"pie\",\n\"property\": {\n" + property + "\n},\n" + rest + "\n}\n";
}

class Check : public cli_test::CommandTest {
protected:
    static std::string WithoutNotes(const std::string& text) {
        std::istringstream lines(text);
        std::string rest;
        for (std::string line; std::getline(lines, line);) {
            const bool isSummary =
                line.find(" errors, ") != std::string::npos || line.find(" error, ") != std::string::npos;
            rest += line.find(": note: ") == std::string::npos && !isSummary ? line + "\n" : "";
        }
        return rest;
    }
};

const std::string kGroups = R"("data": {"groups": [{"values": [5]}]})";

std::string Histogram(const std::string& rest) {
    return "{\n\"kind\": \"histogram\",\n" + rest + "}";
}

const Broken kBroken[] = {
    {"", "b.json: line 1, column 1: found the end of the document, expected a value\n"},
    {"{\n  \"kind\": \"pie\"\n  \"data\": {}\n}",
     "b.json: line 3, column 3: found \"data\", expected a comma or }\n"},
    {"{\n  'kind': \"pie\"\n}", "b.json: line 2, column 3: found ', expected a key in double quotes\n"},
    {"{\"kind\": \"pie\", \"data\": {\"values\": [1, 2,]}}",
     "b.json: line 1, column 42: found ], expected a value\n"},
    {"{\"kind\": \"p\xFFie\"}", "b.json: line 1, column 12: found byte 0xFF, expected UTF-8\n"},
    {"[]", "b.json: line 1, column 1: found [], expected a group in braces\n"},
    {"{}", "b.json: kind: found no such key, expected " + cli_test::kKinds + "\n"},
    {"{\n\"kind\": \"pye\", \"data\": 1}",
     "b.json:2: kind: found \"pye\", expected " + cli_test::kKinds + "\n"},
    {"{\"version\": 2,\n\"kind\": \"pie\", \"data\": {\"values\": [1]}}",
     "b.json:1: version: found 2, expected 1\n"},
    {Pie("", ""), "b.json: line 7, column 1: found }, expected a key in double quotes\n"},
    {Pie("", R"("data": {"values": []})"),
     "b.json:6: data/values: found nothing to draw, expected a number for each slice\n"},
    {Pie("\"PieBasicProp\": {\n\"FixedSize\": 1, \"FixedWidth\": 0}"),
     "b.json:4: property/PieBasicProp: found nothing to draw, as the pie has no size, expected FixedWidth "
     "above 0 with a FixedSize of 1, or BaseValue and BasePieWidth above 0\n"},
    {Pie("\"PieBasicProp\": {\n\"FixedSize\": 1, \"FixedWidth\": -5}"),
     "b.json:4: property/PieBasicProp: found a pie of -5 mm, expected FixedWidth above 0 with a FixedSize of "
     "1, or BaseValue and BasePieWidth above 0\n"},
    {Pie("\"PieBasicProp\": {\n\"FixedSize\": 0, \"BaseValue\": -1, \"BasePieWidth\": 20}"),
     "b.json:4: property/PieBasicProp: found a pie of -60 mm, expected FixedWidth above 0 with a FixedSize "
     "of "
     "1, or BaseValue and BasePieWidth above 0\n"},
    {Pie("\"PieBasicProp\": {\n\"StartAngle\": \"nan\",\n\"FixedWidth\": \"-inf\",\n\"PenSepLine\": "
         "\"#FF000000 inf\",\n\"FixedSize\": 1}, \"PieLegendProp\": {\"Font\": \"Arial nan\"}",
         "\"location\": \"1e30 0\",\n\"labelOffsets\": [\"0 -2e6\"], \"title\": \"inf\", \"data\": "
         "{\"values\": [1]}"),
     "b.json:5: property/PieBasicProp/StartAngle: found \"nan\", expected a number\n"
     "b.json:6: property/PieBasicProp/FixedWidth: found \"-inf\", expected a number\n"
     "b.json:7: property/PieBasicProp/PenSepLine: found \"#FF000000 inf\", expected a pen such as "
     "\"#FF000000 0.1 dash\"\n"
     "b.json:8: property/PieLegendProp/Font: found \"Arial nan\", expected a font such as \"Arial 4 bold\"\n"
     "b.json:10: location: found \"1e30 0\", expected a point at most 1000000 mm away\n"
     "b.json:11: labelOffsets/0: found \"0 -2e6\", expected a point at most 1000000 mm away\n"},
    {Pie("\"PieBasicProp\": {\"FixedSize\": 1, \"StartAngle\": 1e30}"),
     "b.json:4: property/PieBasicProp/StartAngle: found 1e+30, expected an angle from 0 to below 360\n"},
    {Pie("\"PieBasicProp\": {\"FixedSize\": 1}", R"("data": {"values": [1e308, 1e308]})"),
     "b.json:6: data: found a total that is too large, expected smaller values\n"},
    {Pie("", R"("data": [1, 2])"), "b.json:6: data: found [1,2], expected a group\n"},
    {Pie("", "\"data\": {\"values\": [\n1,\n\"x\",\n{}]}"),
     "b.json:8: data/values/1: found \"x\", expected a number\n"
     "b.json:9: data/values/2: found {}, expected a number\n"},
    {Pie("", "\"data\": {\"values\": [1,\n-2,\nnull,\"inf\"]}"),
     "b.json:7: data/values/1: found -2, expected 0 or more\n"
     "b.json:8: data/values/2: found null, expected a number\n"
     "b.json:8: data/values/3: found \"inf\", expected a number\n"},
    {Pie("", R"("data": {"values": [1e300]})"),
     "b.json: the chart does not fit a page of 5000 x 5000 mm, check its sizes and values\n"},
    {Pie("", R"("data": {"values": [1], "csv": "d.csv"})"),
     "b.json:6: data/csv: found \"d.csv\", expected either values or csv, not both\n"
     "d.csv: cannot be read: No such file or directory\n"},
    {Pie("", R"("data": {"csv": ""})"), "b.json:6: data/csv: found \"\", expected the name of a CSV file\n"},
    {Pie("", R"("data": {"csv": "a\u0000.csv"})"),
     "b.json:6: data/csv: found \"a\\u0000.csv\", expected the name of a CSV file\n"},
    {Pie("", R"("data": {"csv": "/dev/zero"})"),
     "/dev/zero: cannot be read: it is no file but a device or a pipe, which a document may not name\n"},
    {Pie("\"PieBasicProp\": {\n\"PieStyle\": \"4D\",\n\"FixedSize\": \"yes\",\n\"FixedWidth\": \"20 mm\",\n"
         "\"PenSepLine\": [],\n\"ComponentColor\": [\"#123456\",\n\"#12345\"]}"),
     "b.json:5: property/PieBasicProp/PieStyle: found \"4D\", expected one of \"2D\", \"3D\"\n"
     "b.json:6: property/PieBasicProp/FixedSize: found \"yes\", expected a whole number\n"
     "b.json:7: property/PieBasicProp/FixedWidth: found \"20 mm\", expected a number\n"
     "b.json:8: property/PieBasicProp/PenSepLine: found [], expected a text\n"
     "b.json:10: property/PieBasicProp/ComponentColor/1: found \"#12345\", expected a colour such as "
     "#FF336699\n"},
    {Pie("\"PieLabelProp\": {\"PieLabelTextProperty\": {\n\"字体\": \"宋体\",\n\"TextColor\": \"red\"}}"),
     "b.json:5: property/PieLabelProp/PieLabelTextProperty/字体: found \"宋体\", expected a font such as "
     "\"Arial 4 "
     "bold\"\n"
     "b.json:6: property/PieLabelProp/PieLabelTextProperty/TextColor: found \"red\", expected a colour such "
     "as "
     "#FF336699\n"},
    {Pie("\"PieBasicProp\": {\"ComponentName\": [\"A||B\", \"C|\"]}, \"PieLegendProp\": 3"),
     "b.json:4: property/PieBasicProp/ComponentName/0: found \"A||B\", expected a text without || and "
     "without | at its end\n"
     "b.json:4: property/PieBasicProp/ComponentName/1: found \"C|\", expected a text without || and without "
     "| at its end\n"
     "b.json:4: property/PieLegendProp: found 3, expected a group\n"},
    {Pie("\"PieBasicProp\": {\n\"FixedSize\": 1,\n\"FixedSize\": 0}"),
     "b.json:6: property/PieBasicProp/FixedSize: found the key again, expected each key once\n"},
    {Pie("", R"("location": "1", "labelOffsets": "0 0", "legendOffset": "a b", "data": {"values": [1]})"),
     "b.json:6: location: found \"1\", expected a point such as \"12.5 40\"\n"
     "b.json:6: labelOffsets: found \"0 0\", expected a list\n"
     "b.json:6: legendOffset: found \"a b\", expected a point such as \"12.5 40\"\n"},
    {Histogram(R"("data": {})"),
     "b.json: data/groups: found no such key, expected a list of groups, each with a "
     "name and values, or csv with a file\n"},
    {Histogram(R"("data": null)"), "b.json:3: data: found null, expected a group\n"},
    {Histogram(R"("data": {"csv": ""})"),
     "b.json:3: data/csv: found \"\", expected the name of a CSV file\n"},
    {Histogram(R"("data": {"groups": {}})"),
     "b.json:3: data/groups: found {}, expected a list of groups, each with a name and values\n"},
    {Histogram(R"("data": {"groups": []})"),
     "b.json:3: data/groups: found nothing to draw, expected a group with values\n"},
    {Histogram(R"("data": {"groups": [{"values": [1e299, -1e301, 1e308]}]})"),
     "b.json:3: data/groups/0/values/1: this and 1 other value are too large for a value axis, expected at "
     "most 1e+300\n"},
    {Histogram(kGroups + R"(, "property": {"HistogramPlotProp": {"PlotWidth": 0, "PlotHeight": -0.0001}})"),
     "b.json:3: property/HistogramPlotProp/PlotWidth: found 0, expected a number above 0\n"
     "b.json:3: property/HistogramPlotProp/PlotHeight: found -1e-04, expected a number above 0\n"},
    {Histogram(kGroups + R"(, "range": 3)"), "b.json:3: range: found 3, expected a group\n"},
    {Histogram(kGroups + R"(, "range": {})"),
     "b.json:3: range: found no range, expected InitializeValueRange or NaturalValueRange\n"},
    {Histogram(kGroups + R"(, "range": {"NaturalValueRange": [0, "ten", 1, 0]})"),
     "b.json:3: range/NaturalValueRange/1: found \"ten\", expected a number\n"},
    {Histogram("\"data\": {\"groups\": [\n{\"name\": [1], \"values\": [1, \"x\", true, []]},\n{\"values\": "
               "3}, 4]}"),
     "b.json:4: data/groups/0/name: found [1], expected a text\n"
     "b.json:4: data/groups/0/values/1: found \"x\", expected a number\n"
     "b.json:4: data/groups/0/values/3: found [], expected a number\n"
     "b.json:5: data/groups/1/values: found 3, expected a list\n"
     "b.json:5: data/groups/2: found 4, expected a group\n"},
    {Histogram(kGroups + R"(, "range": {"LogarithmValueRange": [1, 10]})"),
     "b.json:3: range/LogarithmValueRange: found a range of the other scale, expected NaturalValueRange, as "
     "LogarithmScale is off\n"},
    {Histogram(kGroups + R"(, "range": {"NaturalValueRange": [0.0001, 1e6, 0, 1]})"),
     "b.json:3: range/NaturalValueRange: found [1e-04, 1000000, 0, 1], expected minimum, larger maximum, "
     "major "
     "step and minor step, both above 0 and for fewer than 100000 ticks\n"},
    {Histogram(kGroups + R"(, "range": {"NaturalValueRange": [0, 10, 5, 1], "InitializeValueRange": 9})"),
     "b.json:3: range/InitializeValueRange: found a second range, expected either it or NaturalValueRange\n"},
    {Histogram(kGroups + R"(, "range": {"InitialiseValueRange": 9})"),
     "b.json:3: range: found no range, expected InitializeValueRange or NaturalValueRange\n"
     "b.json:3: warning: range/InitialiseValueRange: an unknown key, ignored; is \"InitializeValueRange\" "
     "meant?\n"},
    {R"({"kind": "half-pie", "property": {"HalfPieBasicProp": {"WhichPart": "top", "StartAngle": 0}},
"data": {"values": [1]}})",
     "b.json:1: property/HalfPieBasicProp/WhichPart: found \"top\", expected one of \"Top\", \"Lower\"\n"
     "b.json:1: warning: property/HalfPieBasicProp/StartAngle: an unknown key, ignored\n"},
    {"{\"kind\": \"half-pie-half-pie\", \"data\": {\"first\": {\"values\": [1]},\n\"second\": "
     "{\"values\": [2, -1]},\n\"csv\": \"d.csv\"},\n\"labelOffsets\": []}",
     "b.json:2: data/second/values/1: found -1, expected 0 or more\n"
     "b.json:3: data/csv: found \"d.csv\", expected either first or csv, not both\n"
     "b.json:4: labelOffsets: found [], expected a group\n"
     "d.csv: cannot be read: No such file or directory\n"},
    {"{\"kind\": \"half-pie-histogram\", \"data\": {\"groups\": [],\n\"groupsCsv\": \"\"},\n\"range\": "
     "{\"NaturalValueRange\": [0, 1, 1, 1]}}",
     "b.json:2: data/groupsCsv: found \"\", expected either groups or groupsCsv, not both\n"
     "b.json:2: data/groupsCsv: found \"\", expected the name of a CSV file\n"
     "b.json:3: range: found no range, expected InitializeValueRange\n"
     "b.json:3: warning: range/NaturalValueRange: an unknown key, ignored\n"},
};

} // namespace

TEST_F(Check, BrokenDocuments) {
    for (const Broken& broken : kBroken) {
        Write("b.json", broken.Document);
        const Outcome outcome = Run("millichart check b.json");
        EXPECT_EQ(WithoutNotes(outcome.Output), broken.Said) << broken.Document;
        EXPECT_EQ(outcome.Status, 1) << broken.Document;
        EXPECT_EQ(outcome.Errors, "");
    }
}

TEST_F(Check, DoubtfulThingsAreWarningsAndNoFailure) {
    Write("b.json",
          Pie("\"PieBasicProp\": {\"FixedSize\": 1,\n\"PieStile\": 1,\n\"Fixedwidth\": 2,\n\"LegendPos\": "
              "3,\n\"旧\": 4,\n"
              "\"ComponentName\": [\"A\"],\n\"ComponentColor\": []},\n\"Notes\": {\"by\": \"me\"}"));
    const Outcome outcome = Run("millichart check b.json");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(
        WithoutNotes(outcome.Output),
        "b.json:5: warning: property/PieBasicProp/PieStile: an unknown key, ignored; is \"PieStyle\" meant?\n"
        "b.json:6: warning: property/PieBasicProp/Fixedwidth: an unknown key, ignored; is \"FixedWidth\" "
        "meant?\n"
        "b.json:7: warning: property/PieBasicProp/LegendPos: an unknown key, ignored; is "
        "\"property/PieLegendProp/LegendPos\" meant?\n"
        "b.json:8: warning: property/PieBasicProp/旧: an unknown key, ignored\n"
        "b.json:9: warning: property/PieBasicProp/ComponentName: found 1 name, expected 2, one a value\n"
        "b.json:10: warning: property/PieBasicProp/ComponentColor: found 0 colours, expected 2, one a value\n"
        "b.json:11: warning: property/Notes: an unknown key, ignored\n");
}

TEST_F(Check, UnknownKeysAreGuessed) {
    Write("b.json", Histogram("\"rnage\": {},\n\"data\": {\"grups\": 1, \"csvv\": 2,\n\"groups\": "
                              "[{\"values\": [5], \"nmae\": 1},\n{\"value\": 3}]},\n\"range\": "
                              "{\"NaturalValueRange\": [0, 9, 1, 1], \"InitializeValuRange\": 1}"));
    Write("p.json", R"({"kind": "pie", "data": {"values": [200], "cvs": "d.csv"}})");
    EXPECT_EQ(Run("millichart check b.json p.json | sed -n 's/: warning: \\(.*\\): an unknown key, ignored/ "
                  "\\1/p'")
                  .Output,
              "b.json:3 rnage; is \"range\" meant?\nb.json:4 data/grups; is \"groups\" meant?\n"
              "b.json:4 data/csvv; is \"csv\" meant?\nb.json:5 data/groups/0/nmae; is \"name\" meant?\n"
              "b.json:6 data/groups/1/value; is \"values\" meant?\n"
              "b.json:7 range/InitializeValuRange; is \"InitializeValueRange\" meant?\n"
              "p.json:1 data/cvs; is \"csv\" meant?\n");
}

TEST_F(Check, SaysThatItKeepsOnlySoManyMessages) {
    std::string values = "\"x\"";
    std::string rows = "a,x\n";
    for (int i = 0; i < 10004; ++i) {
        values += ",\"x\"";
        rows += "a,x\n";
    }
    Write("b.json", Pie("", "\"data\": {\"values\": [" + values + "]}"));
    Write("c.json", Pie("", R"("data": {"csv": "d.csv"})"));
    Write("d.csv", rows);
    const std::string said = Run("millichart check b.json c.json | grep 'at least'").Output;
    EXPECT_NE(said.find("b.json: and at least "), std::string::npos) << said;
    EXPECT_NE(said.find("b.json: at least "), std::string::npos) << said;
    EXPECT_NE(said.find("d.csv: and at least 9950 more\nc.json: at least 10000 errors, 0 warnings, "),
              std::string::npos)
        << said;
    EXPECT_EQ(Run("millichart check --json c.json | grep -c 'and 4 more, which are not told'").Output, "1\n");
    EXPECT_EQ(Run("millichart check --json b.json | grep -c 'too many problems'").Output, "1\n");
}

TEST_F(Check, FewMessagesAreShownAndAllOfThemInJson) {
    std::string values = "-1";
    std::string rows;
    for (int i = 1; i < 60; ++i) {
        values += ",\n-1";
        rows += "a,-1\n";
    }
    Write("b.json", Pie("", "\"data\": {\"values\": [\n" + values + "]}"));
    Write("d.csv", rows);
    const std::string said = WithoutNotes(Run("millichart check b.json --data d.csv").Output);
    EXPECT_NE(said.find("\nb.json:56: data/values/49: found"), std::string::npos) << said;
    EXPECT_EQ(said.find("b.json:57:"), std::string::npos);
    EXPECT_NE(said.find("\nb.json: and 10 more\nd.csv:1: "), std::string::npos) << said;
    EXPECT_NE(said.find("\nd.csv:50: column 2: found -1, expected 0 or more\nd.csv: and 9 more\n"),
              std::string::npos);
    const std::string drawn = Run("millichart draw b.json").Errors;
    EXPECT_EQ(drawn.find("\nmillichart: b.json: and 10 more\n"), drawn.rfind("\nmillichart: ")) << drawn;
    const Outcome json = Run("millichart check --json b.json | grep -c '\"error\"'");
    EXPECT_EQ(json.Output, "60\n");
}

TEST_F(Check, NothingInAFileCanSteerATerminal) {
    Write("d.csv", "a,\"\x1B[2J\n\xC2\x9B\x07\"\n");
    Write("b\x1B[31m\n.json", R"({"kind": "pie", "data": {"csv": "d.csv"}})");
    const Outcome drawn =
        Run("millichart draw b*.json none\x1B.json; millichart check b*.json | grep -v note: >&2");
    EXPECT_EQ(drawn.Errors,
              "millichart: d.csv:1: column 2: found \"\\x1B[2J\\x0A\\xC2\\x9B\\x07\", expected a "
              "number, or a heading without digits\n"
              "millichart: none\\x1B.json: cannot be read: No such file or directory\n"
              "d.csv:1: column 2: found \"\\x1B[2J\\x0A\\xC2\\x9B\\x07\", expected a number, or a "
              "heading without digits\n"
              "b\\x1B[31m\\x0A.json: 1 error, 0 warnings, 47 notes\n");
}

TEST_F(Check, MissingKeysAreNotesWithWhatIsTaken) {
    Write("s.json", kSmallPie);
    const Outcome outcome = Run("millichart check s.json");
    EXPECT_EQ(outcome.Status, 0);
    for (const char* line :
         {"s.json: note: title: missing, taken as empty\n",
          "s.json: note: property/PieBasicProp/FixedWidth: missing, \"20\" is taken\n",
          "s.json: note: property/PieLegendProp: missing, every key in it takes its default\n",
          "s.json: note: property/PieLegendProp/LegendPos: missing, \"RightCenter\" is taken\n",
          "s.json: note: labelOffsets: missing, an empty list is taken\n"}) {
        EXPECT_NE(outcome.Output.find(line), std::string::npos) << line;
    }
    EXPECT_NE(outcome.Output.find("\ns.json: 0 errors, 0 warnings, 4"), std::string::npos) << outcome.Output;
}

TEST_F(Check, JsonForPrograms) {
    Write("b.json", R"({"kind": "pie", "version": 2, "data": {"values": [1]}})");
    Write("empty.json", "");
    const Outcome outcome = Run("millichart check --json b.json empty.json | grep -v note");
    EXPECT_EQ(
        outcome.Output,
        "[\n"
        "  "
        "{\"file\":\"b.json\",\"line\":1,\"severity\":\"error\",\"place\":\"version\",\"found\":\"2\","
        "\"expected\":\"1\",\"message\":\"found 2, expected 1\"},\n"
        "  {\"file\":\"empty.json\",\"line\":1,\"severity\":\"error\",\"place\":\"line 1, column 1\","
        "\"found\":\"the end of the document\",\"expected\":\"a value\",\"message\":\"found the end of the "
        "document, expected a value\"}\n]\n");
    EXPECT_EQ(Run("millichart check --json b.json").Status, 1);
    EXPECT_EQ(Run("millichart new pie | millichart check --json -").Output, "[]\n");
}

TEST_F(Check, TheExamplesAreInOrder) {
    const Outcome outcome = Run("millichart check " MILLICHART_EXAMPLES "/*.json");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Output.find("error: "), std::string::npos);
    EXPECT_EQ(outcome.Output.find("warning: "), std::string::npos) << outcome.Output;
}
