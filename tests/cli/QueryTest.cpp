#include "AnsweredPie.h"
#include "CommandTest.h"
#include "PlotRows.h"

#include <sqlite3.h>

using cli_test::AnsweredPie;
using cli_test::PlotRows;

namespace {

/// On an SQLite file without any table, which is an empty one.
class QueryCommand : public cli_test::CommandTest {
protected:
    QueryCommand() { Write("e.db", ""); }

    void Carry(const std::string& file, const std::string& statements) const {
        sqlite3* database = nullptr;
        sqlite3_open(File(file).c_str(), &database);
        EXPECT_EQ(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }
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

TEST_F(QueryCommand, DrawsALineOfATableAsOneOfAllItsRows) {
    PlotRows rows(100000, 3);
    Write("p.csv", rows.Csv());
    Carry("p.db", rows.Sql("double"));
    const std::string table = "--table points --time t --value v";
    for (const std::string look : {" --size 120x60 --format png", " --dpi 300 --log --format png",
                                   " --format svg", " --size A5 --format pdf"}) {
        EXPECT_EQ(Run("millichart draw --kind line p.csv -o a" + look +
                      " && millichart draw --kind line "
                      "sqlite:p.db " +
                      table + " -o b" + look + " && cmp a b")
                      .Output,
                  "")
            << look;
    }
    const Outcome made =
        Run("millichart new line --data sqlite:p.db " + table +
            " --where 't >= -60000' -o d.json && millichart draw d.json -o c.png && "
            "grep -c points d.json; (head -n 1 p.csv; tail -n +2 p.csv | awk -F, '$1 >= -60000') "
            ">q.csv; millichart draw --kind line q.csv -o q.png; cmp c.png q.png");
    EXPECT_EQ(made.Output, "1\n");
    EXPECT_EQ(made.Errors, "");
}

TEST_F(QueryCommand, RefusesATableOfPointsThatCannotBeDrawn) {
    Carry("p.db", "create table points (t, v)");
    const std::string from = "sqlite:p.db --table points --time t";
    EXPECT_NE(Run("millichart draw --kind line " + from).Errors.find("--table: expected --time and --value"),
              std::string::npos);
    EXPECT_NE(
        Run("millichart draw --kind pie --value v " + from).Errors.find("--table: expected --kind line"),
        std::string::npos);
    Write(
        "p.json",
        R"({"kind": "pie", "data": {"source": "sqlite:p.db", "table": "points", "time": "t", "value": "v"}})");
    EXPECT_EQ(
        Run("millichart draw p.json").Errors,
        "millichart: p.db: found a table of points, which a line chart alone draws, expected a query\n");
    EXPECT_EQ(Run("millichart draw --kind line -o w.png --value w " + from).Errors,
              "millichart: p.db: cannot be read: no such column: w\n");
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
