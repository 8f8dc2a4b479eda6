#include "CommandTest.h"

namespace {

using cli_test::kSmallPie;

std::string Pie(const std::string& data) {
    return "{\n\"kind\": \"pie\",\n\"data\": {" + data + "}}\n";
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

} // namespace

TEST_F(Check, SaysThatItKeepsOnlySoManyMessages) {
    std::string values = "\"x\"";
    std::string rows = "a,x\n";
    for (int i = 0; i < 10004; ++i) {
        values += ",\"x\"";
        rows += "a,x\n";
    }
    Write("b.json", Pie("\"values\": [" + values + "]"));
    Write("c.json", Pie(R"("csv": "d.csv")"));
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
    Write("b.json", Pie("\"values\": [\n" + values + "]"));
    Write("d.csv", rows);
    const std::string said = WithoutNotes(Run("millichart check b.json --data d.csv").Output);
    EXPECT_NE(said.find("\nb.json:53: data/values/49: found"), std::string::npos) << said;
    EXPECT_EQ(said.find("b.json:54:"), std::string::npos);
    EXPECT_NE(said.find("\nb.json: and 10 more\nd.csv:1: "), std::string::npos) << said;
    EXPECT_NE(said.find("\nd.csv:50: column 2: found -1, expected 0 or more\nd.csv: and 9 more\n"),
              std::string::npos);
    const std::string drawn = Run("millichart draw b.json").Errors;
    EXPECT_EQ(drawn.find("\nmillichart: b.json: and 10 more\n"), drawn.rfind("\nmillichart: ")) << drawn;
    const Outcome json = Run("millichart check --json b.json | grep -c '\"error\"'");
    EXPECT_EQ(json.Output, "60\n");
}

TEST_F(Check, NothingInAFileCanSteerATerminal) {
    Write("d.csv", "a,1\nb,\"\x1B[2J\n\xC2\x9B\x07\"\n");
    Write("b\x1B[31m\n.json", R"({"kind": "pie", "data": {"csv": "d.csv"}})");
    const Outcome drawn =
        Run("millichart draw b*.json none\x1B.json; millichart check b*.json | grep -v note: >&2");
    EXPECT_EQ(drawn.Errors,
              "millichart: d.csv:2: column 2: found \"\\x1B[2J\\x0A\\xC2\\x9B\\x07\", expected a "
              "number\n"
              "millichart: none\\x1B.json: cannot be read: No such file or directory\n"
              "d.csv:2: column 2: found \"\\x1B[2J\\x0A\\xC2\\x9B\\x07\", expected a number\n"
              "b\\x1B[31m\\x0A.json: 1 error, 0 warnings, 45 notes\n");
}

TEST_F(Check, MissingKeysAreNotesWithWhatIsTaken) {
    Write("s.json", kSmallPie);
    const Outcome outcome = Run("millichart check s.json");
    EXPECT_EQ(outcome.Status, 0);
    for (const char* line :
         {"s.json: note: title: missing, taken as empty\n",
          "s.json: note: property/PieBasicProp: 6 keys missing, taken as FixedSize 1, BaseValue 100, "
          "BasePieWidth 10, StartAngle 180 ...\n",
          "s.json: note: property/PieLegendProp: missing, its 8 keys taken as ShowLegend 1, LegendPos "
          "RightCenter, ShowEdge 0, ShowBackground 0 ...\n",
          "s.json: note: labelOffsets: missing, an empty list is taken\n"}) {
        EXPECT_NE(outcome.Output.find(line), std::string::npos) << line;
    }
    EXPECT_NE(outcome.Output.find("\ns.json: 0 errors, 0 warnings, 39 notes"), std::string::npos)
        << outcome.Output;
}

TEST_F(Check, JsonForPrograms) {
    Write("b.json", R"({"kind": "pie", "version": 2, "data": {"values": [1]}})");
    Write("empty.json", "");
    const Outcome outcome = Run("millichart check --json b.json empty.json | grep -v note");
    EXPECT_EQ(
        outcome.Output,
        "{\"file\":\"b.json\",\"line\":1,\"severity\":\"error\",\"place\":\"version\",\"found\":\"2\","
        "\"expected\":\"1\",\"message\":\"found 2, expected 1\"}\n"
        "{\"file\":\"empty.json\",\"line\":1,\"severity\":\"error\",\"place\":\"line 1, column 1\","
        "\"found\":\"the end of the document\",\"expected\":\"a value\",\"message\":\"found the end of the "
        "document, expected a value\"}\n");
    EXPECT_EQ(Run("millichart check --json b.json").Status, 1);
    EXPECT_EQ(Run("millichart new pie | millichart check --json -").Output, "");
}

TEST_F(Check, TheExamplesAreInOrder) {
    const Outcome outcome = Run("millichart check " MILLICHART_EXAMPLES "/*.json");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Output.find("error: "), std::string::npos);
    EXPECT_EQ(outcome.Output.find("warning: "), std::string::npos) << outcome.Output;
}
