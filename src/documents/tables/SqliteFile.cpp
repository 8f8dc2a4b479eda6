#include "documents/tables/SqliteFile.h"

#include "documents/Files.h"
#include "documents/tables/QuerySource.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace millichart::documents {
namespace {

namespace fs = std::filesystem;

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

} // namespace

/// The name in full is no address and no data base in memory, as some short ones are.
std::string SqliteFile::Open(const std::string& source) {
    const fs::path file = PathFromUtf8(FileOfQuerySource(source));
    if (const std::string fault = FaultOfFile(file); !fault.empty()) {
        return fault;
    }
    constexpr int kPatience = 5000; // ms, while another program writes
    sqlite3* database = nullptr;
    std::error_code error;
    const int status = sqlite3_open_v2(Utf8FromPath(fs::absolute(file, error)).c_str(), &database,
                                       SQLITE_OPEN_READONLY, nullptr);
    m_database.reset(database);
    if (status != SQLITE_OK) {
        return Words();
    }
    sqlite3_busy_timeout(database, kPatience);
    // Who made the file may be nobody to trust.
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_set_authorizer(database, AllowReading, &m_isRefused);
    return {};
}

bool SqliteFile::Prepare(const char*& text, SqliteStatement& statement) {
    sqlite3_stmt* prepared = nullptr;
    const int status = sqlite3_prepare_v2(m_database.get(), text, -1, &prepared, &text);
    statement.reset(prepared);
    return status == SQLITE_OK;
}

std::string SqliteFile::Words() const {
    const std::string words = sqlite3_errmsg(m_database.get());
    return m_isRefused ? words + ", expected a statement that reads" : words;
}

} // namespace millichart::documents
