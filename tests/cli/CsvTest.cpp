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

TEST_F(CsvFile, NamesThatARecordCannotHoldAreRefused) {
    EXPECT_EQ(
        Complaint("A|B,1\nA||B,1\nC|,2\n"),
        "millichart: d.csv:2: column 1: found \"A||B\", expected a text without || and without | at its end\n"
        "millichart: d.csv:3: column 1: found \"C|\", expected a text without || and without | at its end\n");
}

TEST_F(CsvFile, IsOfAnEncodingThatItsBytesTell) {
    const std::string wanted = R"(["北京;4.0"])";
    EXPECT_EQ(Labels("\xB1\xB1\xBE\xA9,4\n"), wanted);
    EXPECT_EQ(Labels(std::string("\xFF\xFE\x17\x53\xAC\x4E,\0004\0\n\0", 12)), wanted);
    EXPECT_EQ(Labels(std::string("\x53\x17\x4E\xAC\0,\0004\0\n", 10)), wanted) << "without a mark";
    EXPECT_EQ(Labels(std::string("\xFF\xFE\x3D\xD8\x0A\xDE,\0004\0", 10)), R"(["😊;4.0"])");
    EXPECT_EQ(Complaint("Z\xFCrich,1\nK\xF6ln,2\n"),
              "millichart: d.csv: found another encoding, expected UTF-8, UTF-16 or GB18030; a spreadsheet "
              "program calls the first \"CSV UTF-8\"\n");
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
    Write("d.csv", ",1\n");
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
