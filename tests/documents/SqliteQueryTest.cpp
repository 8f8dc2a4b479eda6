#include "documents/tables/Query.h"
#include "documents/tables/QuerySource.h"
#include "documents/tables/QueryWatch.h"
#include "support/Shell.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace millichart::documents {
namespace {

/// A real file of a data base.
class SqliteQuery : public testing::Test {
protected:
    SqliteQuery() {
        Carry(R"(create table sales (region text, value, day text);
                 insert into sales values ('北', 9007199254740993, '2024-03-15'), ('South', 0.1, null),
                     (null, 1e300, ''), ('bytes', x'00ff', ''), (cast(x'41ff' as text), 2.5, '');
                 create view top as select region, value from sales where value > 1 order by value)");
    }

    ~SqliteQuery() override { WatchQueries({}); }

    void Carry(const char* statements) const {
        sqlite3* database = nullptr;
        sqlite3_open(m_folder.Path("s.db").c_str(), &database);
        EXPECT_EQ(sqlite3_exec(database, statements, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }

    TableInput Asked(const std::string& query, const std::string& file = "s.db") const {
        return QueryInput("sqlite:" + m_folder.Path(file), {.Query = query});
    }

    /// All rows, a line each with | between the cells; or why there are none.
    std::string Answer(const std::string& query, const std::string& file = "s.db") const {
        const std::unique_ptr<RowReader> reader = OpenQuery(Asked(query, file));
        std::string answer;
        for (TableRow row; reader->Next(row);) {
            answer += std::to_string(row.Line);
            for (const std::string& cell : row.Cells) {
                answer += "|" + cell;
            }
            answer += "\n";
        }
        return reader->Fault().empty() ? answer : reader->Fault();
    }

    TemporaryFolder m_folder;
};

const std::string kEndless = "with recursive n(i) as (select 1 union all select i + 1 from n) ";

} // namespace

TEST_F(SqliteQuery, GivesEveryTypeExactly) {
    EXPECT_EQ(Answer("select region, value, day as \"日\" from sales;  -- all"),
              "1|region|value|日\n"
              "2|北|9007199254740993|2024-03-15\n"
              "3|South|0.1|\n"
              "4||1e+300|\n"
              "5|bytes|blob of 2 bytes|\n"
              "6|A\xEF\xBF\xBD|2.5|\n");
    EXPECT_EQ(Answer("select region, sum(value) from top where region > '' and value < 9 group by 1"),
              "1|region|sum(value)\n2|A\xEF\xBF\xBD|2.5\n");
    EXPECT_EQ(Answer("select 1 where 0"), "1|1\n");
}

TEST_F(SqliteQuery, FailsInTheDataBasesWords) {
    m_folder.Write("text.db", "region,value\nNorth,1 and so on, long enough to be no empty file\n");
    EXPECT_EQ(Answer("select * from sale"), "cannot be read: no such table: sale");
    EXPECT_EQ(Answer("selec 1"), "cannot be read: near \"selec\": syntax error");
    EXPECT_EQ(Answer("select a from b", "text.db"), "cannot be read: file is not a database");
    EXPECT_EQ(Answer("select 1", "none.db"), "cannot be read: No such file or directory");
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("none.db")));
    EXPECT_EQ(Answer("select 1", "."), "cannot be read: it is no file");
    EXPECT_EQ(Answer(" "), "no query, expected one such as \"select region, sum(value) from sales group by "
                           "region\"");
    EXPECT_EQ(Answer("select hex(zeroblob(600000)) as x"),
              "cannot be read: the column \"x\" has a text of more than 1 MB");
}

TEST_F(SqliteQuery, ReadsAlone) {
    const std::string before = ReadAll(m_folder.Path("s.db"));
    for (const std::string statement :
         {"delete from sales", "create table t (a)", "drop view top", "begin", "pragma user_version = 3",
          "attach 'other.db' as other", "select load_extension('x')", "vacuum into 'copy.db'",
          "insert into sales values (1, 2, 3) returning 1"}) {
        EXPECT_NE(Answer(statement).find(", expected a statement that reads"), std::string::npos)
            << statement;
    }
    EXPECT_EQ(Answer("select 1; delete from sales"),
              "cannot be read: not authorized, expected a statement that reads");
    EXPECT_EQ(Answer("select 1; select 2"),
              "cannot be read: found several statements, expected one that reads");
    EXPECT_EQ(ReadAll(m_folder.Path("s.db")), before);
}

TEST_F(SqliteQuery, IsStoppedByItsWatchBeforeAndBetweenRows) {
    struct Seen {
        std::string Source;
        std::size_t Rows = 0;
        int Ends = 0;
    } seen;

    struct Watch final : QueryWatch {
        explicit Watch(Seen& all) : All(all) {}

        ~Watch() override { ++All.Ends; }

        bool MayGoOn(std::size_t rows, double seconds) override {
            All.Rows = rows;
            return seconds < 0.1;
        }

        Seen& All;
    };

    WatchQueries([&seen](const std::string& source) {
        seen.Source = source;
        return std::make_unique<Watch>(seen);
    });
    EXPECT_EQ(Answer(kEndless + "select count(*) from n"), "stopped");
    EXPECT_EQ(seen.Source, m_folder.Path("s.db"));
    EXPECT_EQ(seen.Rows, 0U);
    const std::unique_ptr<RowReader> reader = OpenQuery(Asked(kEndless + "select i from n"));
    for (TableRow row; reader->Next(row);) {
        EXPECT_EQ(row.Cells.size(), 1U);
    }
    EXPECT_EQ(reader->Fault(), "stopped");
    EXPECT_GT(seen.Rows, 1U);
    EXPECT_EQ(seen.Ends, 1) << "the second one's lives as long as the reader";
}

} // namespace millichart::documents
