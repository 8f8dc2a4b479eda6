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
    EXPECT_EQ(Labels("5\" pipe,4\n6\" pipe,1\n"), R"(["5\" pipe;4.0","6\" pipe;1.0"])");
    EXPECT_EQ(Labels("a\tb,1\nc,2\n"), R"(["a\tb;1.0","c;2.0"])") << "the second line decides";
    EXPECT_EQ(Labels("\"two\nlines\",1\n"), R"(["two\nlines;1.0"])");
    EXPECT_EQ(Labels(",,\nname,value,,\n北,4,,\n ,\n\"South, \"\"far\"\"\",2.5,,,\n,,\n"), wanted)
        << "empty cells and rows as spreadsheet programs write them";
}

TEST_F(CsvFile, ErrorsNameItsLines) {
    EXPECT_EQ(Complaint("name,value\n\na,1\nb,x\n\"two\nlines\",2\nc\nd,1,5\n"),
              "millichart: d.csv:4: column 2: found \"x\", expected a number\n"
              "millichart: d.csv:7: found 1 cell, expected a name and a value\n"
              "millichart: d.csv:8: found 3 cells, expected a name and a value\n");
    EXPECT_EQ(Complaint("a,1\nb,inf\nc,-2\nd,\n"),
              "millichart: d.csv:2: column 2: found \"inf\", expected a number\n"
              "millichart: d.csv:3: column 2: found -2, expected 0 or more\n"
              "millichart: d.csv:4: column 2: found nothing, expected a number\n");
    EXPECT_EQ(
        Complaint("A|B,1\nA||B,1\nC|,2\n北||,3\n"),
        "millichart: d.csv:2: column 1: found \"A||B\", expected a text without || and without | at its end\n"
        "millichart: d.csv:3: column 1: found \"C|\", expected a text without || and without | at its end\n"
        "millichart: d.csv:4: column 1: found \"北||\", expected a text without || and without | at its "
        "end\n");
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

TEST_F(CsvFile, AMalformedFirstNumberIsNoHeading) {
    for (const std::string cell : {"12 t", "-inf", "NaN", ""}) {
        const std::string shown = cell.empty() ? "nothing" : '"' + cell + '"';
        EXPECT_EQ(Complaint("a;" + cell + "\nb;2\n"),
                  "millichart: d.csv:1: column 2: found " + shown +
                      ", expected a number, or a heading without digits\n");
    }
    EXPECT_EQ(Complaint("name;value\na;1,5\n"),
              "millichart: d.csv:2: column 2: found \"1,5\", expected a number, with a decimal point\n");
}

TEST_F(CsvFile, ItsNamesYieldToTheDocumentsUnlessItTakesThePlaceOfItsData) {
    const std::string head = R"({"kind": "pie", "property": {"PieBasicProp": {"FixedSize": 1,
        "ComponentName": ["mine"]}, "PieLabelProp": {"ShowNameLabel": 1}}, "data": )";
    Write("values.json", head + "{\"values\": [5]}}");
    Write("csv.json", head + "{\"csv\": \"d.csv\"}}");
    Write("d.csv", "theirs,1\n");
    const std::string mine = "\"labelTexts\": [\"mine\"]";
    for (const std::string name : {"values.json", "csv.json"}) {
        const Outcome replaced = Run("millichart inspect " + name + " --data d.csv");
        EXPECT_NE(replaced.Output.find("\"labelTexts\": [\"theirs\"]"), std::string::npos) << name;
        EXPECT_EQ(replaced.Errors, "");
    }
    const Outcome outcome = Run("millichart inspect csv.json");
    EXPECT_NE(outcome.Output.find(mine), std::string::npos);
    EXPECT_EQ(outcome.Errors,
              "millichart: csv.json:2: warning: property/PieBasicProp/ComponentName: other names "
              "than in the CSV file, and the document's are taken; leave out ComponentName for "
              "those of the file\n");
    for (const char* csv : {"mine,1\n", ",1\n"}) {
        Write("d.csv", csv);
        const Outcome quiet = Run("millichart inspect csv.json");
        EXPECT_NE(quiet.Output.find(mine), std::string::npos) << csv;
        EXPECT_EQ(quiet.Errors, "") << csv;
    }
    EXPECT_NE(Run("millichart inspect values.json --data d.csv").Output.find(mine), std::string::npos)
        << "a file without names replaces none";
}

TEST_F(CsvFile, MoreRowsThanAPieCanShowAreRefused) {
    std::string rows;
    for (int i = 0; i < 5001; ++i) {
        rows += "a,1\n";
    }
    EXPECT_EQ(Complaint(rows), "millichart: d.csv: found 5001 rows, expected at most 5000, a slice each\n");
}
