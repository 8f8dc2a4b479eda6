#include "AnsweredPie.h"
#include "CommandTest.h"
#include "PlotRows.h"
#include "documents/tables/Query.h"
#include "documents/tables/QuerySource.h"

#include <chrono>
#include <cstdlib>

using cli_test::AnsweredPie;
using cli_test::PlotRows;

namespace {

/// A server of the test's own, on a socket in a folder of its own and on no network, with a table.
class Postgres : public cli_test::CommandTest {
protected:
    void SetUp() override {
        m_programs = FirstLine("ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -n 1");
        if (m_programs.empty()) {
            GTEST_SKIP() << "the package postgresql is missing";
        }
        if (Shell("odbcinst -q -d -n 'PostgreSQL Unicode' >/dev/null 2>&1").Status != 0) {
            GTEST_SKIP() << "the package odbc-postgresql is missing";
        }
        // A socket's path may be no longer than about 100 bytes.
        m_home = FirstLine("d=$(mktemp -d /tmp/millichart-server-XXXXXX); chmod 755 $d; " +
                           std::string(geteuid() == 0 ? "chown postgres $d; " : "") + "echo $d");
        Start();
        // Else the driver manager makes a file in the home of whoever runs the test.
        setenv("ODBCINI",
               Write("odbc.ini", "[sales]\nDriver=PostgreSQL Unicode\nServername=" + m_home +
                                     "\nDatabase=postgres\nUsername=postgres\n")
                   .c_str(),
               1);
        Ask("create table sales (region text, amount numeric(10,2), share float8, units bigint, day date, "
            "at timestamp, code char(6));"
            "insert into sales values ('北', 12.5, 0.1, 9007199254740993, '2024-03-15', "
            "'2024-03-15 14:30', 'ab'), ('South', 3, 1e300, null, null, '2024-03-15', '');"
            "create role guarded login password 's3cr3t';"
            "grant select on sales to guarded");
    }

    void TearDown() override {
        if (!m_home.empty()) {
            Shell(Stop());
        }
    }

    void Start() {
        AsServer("initdb -D " + m_home + "/data -A trust -U postgres --no-sync -E UTF8 --locale=C");
        AsServer("sh -c 'echo \"local all guarded scram-sha-256\nlocal all all trust\" >" + m_home +
                 "/data/pg_hba.conf'");
        AsServer("pg_ctl -D " + m_home + "/data -w -l " + m_home +
                 "/log -o \"-c listen_addresses= -c fsync=off -c unix_socket_directories=" + m_home +
                 "\" start");
        // Also when the test is ended before it can stop the server.
        Shell("(while kill -0 " + std::to_string(getpid()) + "; do sleep 1; done; " + Stop() +
              ") >/dev/null 2>&1 &");
    }

    /// Runs one of the server's programs as a user who may, which root is not.
    void AsServer(const std::string& command) const {
        const std::string user = geteuid() == 0 ? "runuser -u postgres -- env " : "env ";
        const Outcome outcome = Shell("cd /tmp && " + user + "PATH=" + m_programs + ":$PATH " + command +
                                      " >" + "/dev/null 2>&1 </dev/null");
        ASSERT_EQ(outcome.Status, 0) << command;
    }

    std::string Stop() const {
        const std::string user = geteuid() == 0 ? "runuser -u postgres -- " : "";
        return "[ ! -d " + m_home + " ] || { cd /tmp; " + user + m_programs + "/pg_ctl -D " + m_home +
               "/data -m immediate stop >/dev/null 2>&1; rm -rf " + m_home + "; }";
    }

    std::string Ask(const std::string& statements) const {
        Write("statements.sql", statements);
        const Outcome outcome =
            Run(m_programs + "/psql -h " + m_home + " -U postgres -qtA -v ON_ERROR_STOP=1 -f statements.sql");
        EXPECT_EQ(outcome.Errors, "");
        return outcome.Output;
    }

    std::string Source(const std::string& user = "postgres") const {
        return "odbc:Driver=PostgreSQL Unicode;Server=" + m_home + ";Database=postgres;UID=" + user;
    }

    /// All rows, a line each with | between the cells; or why there are none.
    std::string Answer(const std::string& query, const std::string& source) const {
        const auto reader =
            millichart::documents::OpenQuery(millichart::QueryInput(source, {.Query = query}));
        std::string answer;
        for (millichart::documents::TableRow row; reader->Next(row);) {
            for (const std::string& cell : row.Cells) {
                answer += cell + "|";
            }
            answer += "\n";
        }
        return reader->Fault().empty() ? answer : reader->Fault();
    }

    std::string Answer(const std::string& query) const { return Answer(query, Source()); }

    static std::string FirstLine(const std::string& command) {
        const std::string output = Shell(command).Output;
        return output.substr(0, output.find('\n'));
    }

    std::string m_programs;
    std::string m_home;
};

} // namespace

TEST_F(Postgres, AnswersInItsOwnWordsAndIsNotChanged) {
    EXPECT_EQ(Answer("select * from sales order by region desc"),
              "region|amount|share|units|day|at|code|\n"
              "北|12.50|0.1|9007199254740993|2024-03-15|2024-03-15T14:30:00|ab|\n"
              "South|3.00|1e+300|||2024-03-15T00:00:00||\n");
    EXPECT_EQ(Answer("select repeat('ü', 9000) as \"长\" where true").size(), 18007U) << "in several pieces";
    EXPECT_EQ(Answer("select repeat('a', 1100000) as long"),
              "cannot be read: the column \"long\" has a text of more than 1 MB");
    EXPECT_EQ(Answer("select 1 as one", "odbc:sales"), "one|\n1|\n");
    EXPECT_EQ(Answer("select * from sale").find("cannot be read: ERROR: relation \"sale\" does not exist"),
              0U);
    EXPECT_NE(Answer("with gone as (delete from sales returning 1) select * from gone")
                  .find("in a read-only transaction"),
              std::string::npos);
    EXPECT_NE(Answer("select 1; commit; delete from sales").find("a semicolon"), std::string::npos);
    EXPECT_NE(Answer("delete from sales").find("begins with SELECT"), std::string::npos);
    EXPECT_EQ(Ask("select count(*) from sales"), "2\n");

    Write("b.json", AnsweredPie(Source(), "select region, sum(amount) from sales group by 1 order by 2"));
    const Outcome outcome =
        Run("millichart inspect b.json | grep labelTexts; millichart draw b.json && ls *.png");
    EXPECT_EQ(outcome.Output, "    \"labelTexts\": [\"South;3.0\",\"北;12.5\"],\nb.png\n");
    EXPECT_EQ(outcome.Errors, "");
}

TEST_F(Postgres, DrawsALineOfATableAsOneOfAllItsRows) {
    PlotRows rows(100000, 4);
    Write("p.csv", rows.Csv());
    Ask(rows.Sql("float8") + "create schema \"lab; 1\"; create table \"lab; 1\".\"select\" as select t as "
                             "\"order\", v, case when t % 2 = 0 then 'even' else 'odd' end as site from "
                             "points; insert into \"lab; "
                             "1\".\"select\" select generate_series(1, 3000), null, 'none'");
    const std::string command = "millichart draw --kind line --size 130x70 ";
    const std::string source = "\"" + Source() + "\"";
    EXPECT_EQ(Run(command + "p.csv -o a.png && " + command + source +
                  " --table points --time t --value v -o b.png && cmp a.png b.png")
                  .Output,
              "");
    EXPECT_EQ(Run(command + source +
                  " --table 'lab; 1.select' --time order --value v --where 'v >= -1e9' -o c.png; "
                  "cmp a.png c.png")
                  .Output,
              "");
    const Outcome even = Run("awk -F, 'NR == 1 || $1 % 2 == 0' p.csv | sed 's/,v/,even/' | " + command +
                             "- -o e.png; " + command + source +
                             " --table 'lab; 1.select' --time order --value v "
                             "--by site --where \"site = 'even'\" -o f.png; cmp e.png f.png");
    EXPECT_EQ(even.Output + even.Errors, "");
    Ask("create table days (t date, v float8); insert into days values ('2024-03-15', 1)");
    const Outcome days = Run(command + source + " --table days --time t --value v -o d.png");
    EXPECT_NE(days.Errors.find("found 2024-03-15, expected whole numbers"), std::string::npos) << days.Errors;
}

TEST_F(Postgres, APasswordComesFromItsFileAndIsNeverTold) {
    const std::string query = "select count(*) from sales";
    EXPECT_EQ(Answer(query, Source("guarded") + ";PWD=s3cr3t"), "count|\n2|\n");
    EXPECT_NE(Answer(query, Source("guarded")).find("no password supplied"), std::string::npos);
    const std::string refused = Answer(query, Source("guarded") + ";PWD=guarded");
    EXPECT_NE(refused.find("password authentication failed for user \"***\""), std::string::npos) << refused;

    Write("pass", "*:*:*:guarded:s3cr3t\n");
    Write("g.json", AnsweredPie(Source("guarded"), "select region, amount from sales"));
    EXPECT_EQ(Run("chmod 600 pass; PGPASSFILE=$PWD/pass millichart draw g.json && ls *.png").Output,
              "g.png\n");
}

TEST_F(Postgres, AnInterruptCancelsTheQueryOnTheServer) {
    Write("s.json", AnsweredPie(Source(), "select 'a', 1 from pg_sleep(60)"));
    const auto begin = std::chrono::steady_clock::now();
    const Outcome outcome =
        Run("timeout --foreground --preserve-status -s INT 1 millichart draw s.json; echo $?; ls *.png");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
    EXPECT_EQ(outcome.Output, "130\n");
    EXPECT_NE(outcome.Errors.find("UID=postgres: stopped\n"), std::string::npos) << outcome.Errors;
    EXPECT_EQ(Ask("select count(*) from pg_stat_activity where query ~ 'sleep' and pid <> pg_backend_pid()"),
              "0\n");
}
