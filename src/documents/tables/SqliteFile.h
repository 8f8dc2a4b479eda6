#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>

namespace millichart::documents {

struct CloseSqlite {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};

struct EndSqliteStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using SqliteStatement = std::unique_ptr<sqlite3_stmt, EndSqliteStatement>;

/// An SQLite data base that is only read, whatever a statement asks for.
class SqliteFile {
public:
    SqliteFile() = default;
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    /// Why the file of a source cannot be opened; empty if it is open now.
    std::string Open(const std::string& source);

    /// The text's first statement, and `text` is what stands behind it. Empty for a text without one. False
    /// if it cannot be understood or does not read; `Words` tell why.
    bool Prepare(const char*& text, SqliteStatement& statement);

    /// What SQLite says of the last fault.
    std::string Words() const;

    /// May be called on any thread.
    void Interrupt() const { sqlite3_interrupt(m_database.get()); }

private:
    std::unique_ptr<sqlite3, CloseSqlite> m_database;
    bool m_isRefused = false;
};

} // namespace millichart::documents
