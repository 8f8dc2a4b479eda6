#include "documents/tables/Sqlite.h"

#include "documents/tables/QueryReader.h"
#include "documents/tables/SqliteFile.h"
#include "penlode/text/Digits.h"

#include <algorithm>

namespace millichart::documents {
namespace {

class SqliteReader final : public QueryReader {
public:
    using QueryReader::QueryReader;
    SqliteReader(const SqliteReader&) = delete;
    SqliteReader& operator=(const SqliteReader&) = delete;

    ~SqliteReader() override { Rest(); }

private:
    bool Open(std::vector<std::string>& names) override {
        if (const std::string fault = m_file.Open(Source()); !fault.empty()) {
            return Fail(fault);
        }
        if (!Prepare()) {
            return false;
        }
        for (int column = 0; column < sqlite3_column_count(m_statement.get()); ++column) {
            const char* const name = sqlite3_column_name(m_statement.get(), column);
            names.emplace_back(name == nullptr ? "" : name);
        }
        Watch([this] { m_file.Interrupt(); });
        return true;
    }

    bool Fetch(std::vector<std::string>& cells) override {
        const int status = sqlite3_step(m_statement.get());
        if (status != SQLITE_ROW) {
            return status != SQLITE_DONE && Fail(m_file.Words());
        }
        for (std::size_t column = 0; column < cells.size(); ++column) {
            TakeCell(static_cast<int>(column), cells[column]);
        }
        return true;
    }

    bool Prepare() {
        const char* rest = Query().c_str();
        if (!m_file.Prepare(rest, m_statement)) {
            return Fail(m_file.Words());
        }
        SqliteStatement second;
        if (m_statement != nullptr && !m_file.Prepare(rest, second)) {
            return Fail(m_file.Words());
        }
        if (m_statement == nullptr || second != nullptr) {
            return Fail("found " +
                        std::string(m_statement == nullptr ? "no statement" : "several statements") +
                        ", expected one that reads");
        }
        return true;
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

    SqliteFile m_file;
    SqliteStatement m_statement;
};

} // namespace

std::unique_ptr<RowReader> OpenSqlite(const TableInput& input) {
    return std::make_unique<SqliteReader>(input);
}

} // namespace millichart::documents
