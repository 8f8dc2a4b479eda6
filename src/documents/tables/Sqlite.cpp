#include "documents/tables/Sqlite.h"

#include "documents/Files.h"
#include "documents/tables/QueryReader.h"
#include "documents/tables/QuerySource.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sqlite3.h>

namespace millichart::documents {
namespace {

namespace fs = std::filesystem;

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};

struct EndStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using Statement = std::unique_ptr<sqlite3_stmt, EndStatement>;

/// Lets a statement read and nothing else: what attaches files, sets anything or loads code is refused.
int AllowReading(void* isRefused, int action, const char* /*first*/, const char* function,
                 const char* /*database*/, const char* /*trigger*/) {
    const bool isReading = action == SQLITE_SELECT || action == SQLITE_READ || action == SQLITE_RECURSIVE;
    const bool isHarmless = action == SQLITE_FUNCTION && sqlite3_stricmp(function, "load_extension") != 0;
    if (isReading || isHarmless) {
        return SQLITE_OK;
    }
    *static_cast<bool*>(isRefused) = true;
    return SQLITE_DENY;
}

/// SQLite tells of all alike that it cannot open them, and a pipe would keep it waiting.
std::string FaultOfFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return "it is no file";
    }
    return std::ifstream(file, std::ios::binary) ? "" : std::strerror(errno);
}

class SqliteReader final : public QueryReader {
public:
    using QueryReader::QueryReader;
    SqliteReader(const SqliteReader&) = delete;
    SqliteReader& operator=(const SqliteReader&) = delete;

    ~SqliteReader() override { Rest(); }

private:
    bool Open(std::vector<std::string>& names) override {
        if (!OpenFile() || !Prepare()) {
            return false;
        }
        for (int column = 0; column < sqlite3_column_count(m_statement.get()); ++column) {
            const char* const name = sqlite3_column_name(m_statement.get(), column);
            names.emplace_back(name == nullptr ? "" : name);
        }
        Watch([this] { sqlite3_interrupt(m_database.get()); });
        return true;
    }

    bool Fetch(std::vector<std::string>& cells) override {
        const int status = sqlite3_step(m_statement.get());
        if (status != SQLITE_ROW) {
            return status != SQLITE_DONE && FailBySqlite();
        }
        for (std::size_t column = 0; column < cells.size(); ++column) {
            TakeCell(static_cast<int>(column), cells[column]);
        }
        return true;
    }

    /// The name in full is no address and no data base in memory, as some short ones are.
    bool OpenFile() {
        const fs::path file = PathFromUtf8(FileOfQuerySource(Source()));
        if (const std::string fault = FaultOfFile(file); !fault.empty()) {
            return Fail(fault);
        }
        constexpr int kPatience = 5000; // ms, while another program writes
        sqlite3* database = nullptr;
        std::error_code error;
        const int status = sqlite3_open_v2(Utf8FromPath(fs::absolute(file, error)).c_str(), &database,
                                           SQLITE_OPEN_READONLY, nullptr);
        m_database.reset(database);
        if (status != SQLITE_OK) {
            return FailBySqlite();
        }
        sqlite3_busy_timeout(database, kPatience);
        // Who made the file may be nobody to trust.
        sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        sqlite3_set_authorizer(database, AllowReading, &m_isRefused);
        return true;
    }

    bool Prepare() {
        const char* rest = Query().c_str();
        if (!PrepareOne(rest, m_statement)) {
            return false;
        }
        Statement second;
        if (m_statement == nullptr || (PrepareOne(rest, second) && second != nullptr)) {
            return Fail("found " +
                        std::string(m_statement == nullptr ? "no statement" : "several statements") +
                        ", expected one that reads");
        }
        return Fault().empty();
    }

    bool PrepareOne(const char*& text, Statement& statement) {
        sqlite3_stmt* prepared = nullptr;
        const int status = sqlite3_prepare_v2(m_database.get(), text, -1, &prepared, &text);
        statement.reset(prepared);
        return status == SQLITE_OK || FailBySqlite();
    }

    bool FailBySqlite() {
        const std::string words = sqlite3_errmsg(m_database.get());
        return Fail(m_isRefused ? words + ", expected a statement that reads" : words);
    }

    void TakeCell(int column, std::string& cell) {
        sqlite3_stmt* const statement = m_statement.get();
        switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
            cell = penlode::Digits(sqlite3_column_int64(statement, column));
            break;
        case SQLITE_FLOAT:
            cell = penlode::Digits(sqlite3_column_double(statement, column));
            break;
        case SQLITE_BLOB:
            cell = "blob of " + std::to_string(sqlite3_column_bytes(statement, column)) + " bytes";
            break;
        default:
            TakeText(column, cell);
        }
    }

    void TakeText(int column, std::string& cell) {
        cell.clear();
        const unsigned char* const text = sqlite3_column_text(m_statement.get(), column);
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column));
        if (text != nullptr) {
            cell.assign(text, text + std::min(size, kMaxCell + 1));
        }
    }

    std::unique_ptr<sqlite3, CloseDatabase> m_database;
    Statement m_statement;
    bool m_isRefused = false;
};

} // namespace

std::unique_ptr<RowReader> OpenSqlite(const TableInput& input) {
    return std::make_unique<SqliteReader>(input);
}

} // namespace millichart::documents
