#include "CommandTest.h"

namespace {

class CsvFile : public cli_test::CommandTest {
protected:
    CsvFile() {
        Write("c.json", R"({"kind": "pie", "property": {"PieBasicProp": {"FixedSize": 1}, "PieLabelProp":
            {"ShowNameLabel": 1, "ShowValueLabel": 1}}, "data": {"csv": "d.csv"}})");
    }

    /// The labels of a pie on this file, each a name and a value.
    std::string Labels(const std::string& csv) const {
        Write("d.csv", csv);
        const Outcome outcome = Run("millichart inspect c.json | grep labelTexts");
        EXPECT_EQ(outcome.Errors, "") << csv;
        const std::size_t begin = outcome.Output.find('[');
        return outcome.Output.substr(begin, outcome.Output.rfind(']') + 1 - begin);
    }

    std::string Complaint(const std::string& csv) const {
        Write("d.csv", csv);
        const Outcome outcome = Run("millichart draw c.json");
        EXPECT_EQ(outcome.Status, 1) << csv;
        return outcome.Errors;
    }
};

} // namespace

TEST_F(CsvFile, IsReadHoweverItWasWritten) {
    const std::string wanted = R"(["北;4.0","South, \"far\";2.5"])";
    EXPECT_EQ(Labels("北,4\n\"South, \"\"far\"\"\",2.5\n"), wanted);
    EXPECT_EQ(Labels("\xEF\xBB\xBFname;value\r\n北;4\r\n\r\n\"South, \"\"far\"\"\" ; 2.5"), wanted);
    EXPECT_EQ(Labels("name, first\tvalue\n北\t\"4\"\nSouth, \"far\"\t2.5\n"), wanted);
    EXPECT_EQ(Labels("\"two\nlines\",1\n"), R"(["two\nlines;1.0"])");
}

TEST_F(CsvFile, ErrorsNameItsLines) {
    EXPECT_EQ(Complaint("name,value\n\na,1\nb,x\n\"two\nlines\",2\nc\nd,1,5\n"),
              "millichart: d.csv:4: found \"x\", expected a number\n"
              "millichart: d.csv:7: found 1 cell, expected a name and a value\n"
              "millichart: d.csv:8: found 3 cells, expected a name and a value\n");
    EXPECT_EQ(Complaint("a,nan\nb,inf\n"), "millichart: d.csv:2: found \"inf\", expected a number\n");
    EXPECT_EQ(Complaint("a,1\n\"b,2\nc,3\n"),
              "millichart: d.csv:2: found a quote that never closes, expected a closing quote\n");
    EXPECT_EQ(Complaint("name,value\n"),
              "millichart: d.csv: found no rows, expected rows of a name and a value\n");
    EXPECT_EQ(Complaint("\xB1\xB1,1\n"),
              "millichart: d.csv: found another encoding, expected UTF-8; a spreadsheet "
              "program calls it \"CSV UTF-8\"\n");
}

TEST_F(CsvFile, StandsBesideItsDocumentAndGivesWayToData) {
    Write("d.csv", "a,1\n");
    Write("e.csv", "b,2\n");
    EXPECT_NE(Run("cd / && millichart inspect \"$OLDPWD/c.json\"").Output.find("a;1.0"), std::string::npos);
    EXPECT_NE(Run("millichart inspect c.json --data e.csv").Output.find("b;2.0"), std::string::npos);
    EXPECT_NE(Run("echo c,3 | millichart inspect c.json --data -").Output.find("c;3.0"), std::string::npos);
    Run("rm d.csv");
    EXPECT_EQ(Run("millichart draw c.json").Errors,
              "millichart: d.csv: cannot be read: No such file or directory\n");
    EXPECT_EQ(Run("millichart draw c.json --data none.csv").Errors,
              "millichart: none.csv: cannot be read: No such file or directory\n");
}

TEST_F(CsvFile, ItsNamesYieldToTheDocuments) {
    Write("n.json",
          R"({"kind": "pie", "property": {"PieBasicProp": {"ComponentName": ["mine"]}, "PieLabelProp":
        {"ShowNameLabel": 1}}})");
    Write("d.csv", "theirs,1\n");
    EXPECT_NE(Run("millichart inspect n.json --data d.csv").Output.find("\"labelTexts\": [\"mine\"]"),
              std::string::npos);
}
