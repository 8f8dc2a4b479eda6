#include "AnsweredPie.h"
#include "CommandTest.h"

using cli_test::AnsweredPie;

namespace {

/// On an SQLite file without any table, which is an empty one.
class QueryCommand : public cli_test::CommandTest {
protected:
    QueryCommand() { Write("e.db", ""); }
};

const std::string kSales =
    "with sales(region, value) as (values ('北', 4.5), ('South', 3)) select * from sales";
const std::string kEndless =
    "with recursive n(i) as (select 1 union all select i + 1 from n) select count(*) from n";

} // namespace

TEST_F(QueryCommand, DrawsTheAnswerOfAFileBesideTheDocument) {
    Write("p.json", AnsweredPie("sqlite:e.db", kSales));
    const Outcome outcome = Run("cd / && millichart inspect \"$OLDPWD/p.json\" | grep labelTexts");
    EXPECT_EQ(outcome.Errors, "");
    EXPECT_EQ(outcome.Output, "    \"labelTexts\": [\"北;4.5\",\"South;3.0\"],\n");
    EXPECT_EQ(Run("millichart draw p.json").Status, 0);
    EXPECT_NE(Run("millichart draw p.json --format png -o e.db").Status, 0);
    EXPECT_EQ(Read("e.db"), "") << "the data are not drawn over";
    EXPECT_EQ(Run("echo a,1 | millichart draw p.json --data -").Status, 0);
}

TEST_F(QueryCommand, TellsWhatIsWrongWithSourceAndAnswer) {
    const std::vector<std::array<std::string, 3>> cases{
        {"select * from none", "sqlite:e.db", "e.db: cannot be read: no such table: none"},
        {"select 'a' as a, -1 as b", "sqlite:e.db", "e.db:2: column 2: found -1, expected 0 or more"},
        {"select 1", "sqlite:none.db", "none.db: cannot be read: No such file or directory"},
        {" ", "sqlite:e.db",
         "e.db: no query, expected one such as \"select region, sum(value) from sales group by region\""},
        {"select 1", "odbc:a;PWD=s3cret",
         "d.json:2: data/source: found \"odbc:a;PWD=***\", expected no password in a document; the driver "
         "finds it in odbc.ini or in a file of its own, such as PGPASSFILE"},
    };
    for (const auto& [query, source, told] : cases) {
        Write("d.json", AnsweredPie(source, query));
        const Outcome outcome = Run("millichart draw d.json");
        EXPECT_EQ(outcome.Errors, "millichart: " + told + "\n");
        EXPECT_EQ(outcome.Status, 1);
        EXPECT_EQ(Run("millichart check d.json; millichart check --json d.json").Output.find("s3cret"),
                  std::string::npos);
    }
}

TEST_F(QueryCommand, AnInterruptStopsAQueryAndThenTheProgram) {
    Write("e.json", AnsweredPie("sqlite:e.db", kEndless));
    // In the foreground, as timeout tells a group twice otherwise.
    const Outcome outcome =
        Run("timeout --foreground --preserve-status -s INT 1 millichart draw e.json; echo $?; ls");
    EXPECT_EQ(outcome.Errors, "millichart: e.db: stopped\n");
    EXPECT_EQ(outcome.Output, "130\ne.db\ne.json\n");
    EXPECT_EQ(
        Run("millichart draw e.json & sleep 0.5; kill -INT $!; sleep 0.2; kill $! && echo it lives").Output,
        "it lives\n")
        << "a shell has commands in the background ignore an interrupt";
}

TEST_F(QueryCommand, ProgressIsShownOnATerminalAlone) {
    if (Run("script -qec true /dev/null").Status != 0) {
        GTEST_SKIP() << "script(1) is missing or cannot make a terminal here";
    }
    Write("e.json", AnsweredPie("sqlite:e.db", kEndless));
    const std::string seen =
        Run("script -qec 'timeout --foreground -s INT 1.5 millichart draw e.json' /dev/null").Output;
    EXPECT_EQ(seen, "\r\x1B[Ke.db: 0 rows, 1 s\r\x1B[Kmillichart: e.db: stopped\r\n");
}
