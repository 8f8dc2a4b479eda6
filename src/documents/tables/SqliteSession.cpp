#include "documents/tables/SqliteSession.h"

#include "documents/tables/SqliteFile.h"

namespace millichart::documents {
namespace {

class SqliteSession final : public SqlSession {
public:
    using SqlSession::SqlSession;
    SqliteSession(const SqliteSession&) = delete;
    SqliteSession& operator=(const SqliteSession&) = delete;

    ~SqliteSession() override { Rest(); }

    SqlDialect Dialect() const override { return SqlDialect::Sqlite; }

    bool IsInProcess() const override { return true; }

    /// SQLite takes an unknown name in double quotes for a text, but not in these.
    std::string Quoted(std::string_view name) const override { return InQuotes(name, "`"); }

private:
    bool Open(const std::string& source) override {
        const std::string fault = m_file.Open(source);
        return fault.empty() || Fail(fault);
    }

    bool Answer(const SqlQuestion& question, const TakeRow& take) override {
        SqliteStatement statement;
        const char* rest = question.Text.c_str();
        if (!m_file.Prepare(rest, statement) || !Bind(statement.get(), question.Values)) {
            return Fail(m_file.Words());
        }
        std::vector<SqlValue> row(static_cast<std::size_t>(sqlite3_column_count(statement.get())));
        int status = sqlite3_step(statement.get());
        for (; status == SQLITE_ROW; status = sqlite3_step(statement.get())) {
            for (std::size_t column = 0; column < row.size(); ++column) {
                TakeCell(statement.get(), static_cast<int>(column), row[column]);
            }
            CountRow();
            if (!take(row)) {
                return true;
            }
        }
        return status == SQLITE_DONE || Fail(m_file.Words());
    }

    void Cancel() override { m_file.Interrupt(); }

    static bool Bind(sqlite3_stmt* statement, const std::vector<SqlValue>& values) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int place = static_cast<int>(i + 1);
            int status = SQLITE_OK;
            if (const auto* whole = std::get_if<std::int64_t>(&values[i])) {
                status = sqlite3_bind_int64(statement, place, *whole);
            } else if (const auto* number = std::get_if<double>(&values[i])) {
                status = sqlite3_bind_double(statement, place, *number);
            } else if (const auto* text = std::get_if<std::string>(&values[i])) {
                status = sqlite3_bind_text64(statement, place, text->data(), text->size(), SQLITE_TRANSIENT,
                                             SQLITE_UTF8);
            }
            if (status != SQLITE_OK) {
                return false;
            }
        }
        return true;
    }

    static void TakeCell(sqlite3_stmt* statement, int column, SqlValue& cell) {
        switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
            cell = static_cast<std::int64_t>(sqlite3_column_int64(statement, column));
            break;
        case SQLITE_FLOAT:
            cell = sqlite3_column_double(statement, column);
            break;
        case SQLITE_NULL:
            cell = std::monostate();
            break;
        case SQLITE_BLOB:
            cell = "blob of " + std::to_string(sqlite3_column_bytes(statement, column)) + " bytes";
            break;
        default:
            TakeText(statement, column, cell);
        }
    }

    /// Into the memory of the text before, as a row may come with the name of the last one.
    static void TakeText(sqlite3_stmt* statement, int column, SqlValue& cell) {
        const unsigned char* const text = sqlite3_column_text(statement, column);
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        if (!std::holds_alternative<std::string>(cell)) {
            cell = std::string();
        }
        std::get<std::string>(cell).assign(text, text + (text == nullptr ? 0 : size));
    }

    SqliteFile m_file;
};

} // namespace

std::unique_ptr<SqlSession> OpenSqliteSession(const TableInput& input) {
    return std::make_unique<SqliteSession>(input);
}

} // namespace millichart::documents
