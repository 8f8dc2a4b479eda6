#include "documents/tables/SqlSession.h"

#include "documents/tables/QuerySource.h"

#include <algorithm>
#include <utility>

#if defined(MILLICHART_SQLITE)
#include "documents/tables/SqliteSession.h"
#endif
#if defined(MILLICHART_ODBC)
#include "documents/tables/OdbcSession.h"
#endif

namespace millichart::documents {

SqlSession::SqlSession(const TableInput& input) : m_name(input.Input.Name), m_source(input.Source) {}

bool SqlSession::Connect() {
    if (m_isOpen || !m_fault.empty()) {
        return m_fault.empty();
    }
    m_isOpen = Open(m_source);
    if (m_isOpen) {
        if (std::unique_ptr<QueryWatch> watch = NewQueryWatch(m_name)) {
            m_watched.emplace(std::move(watch), [this] { Cancel(); });
        }
    }
    return m_isOpen;
}

bool SqlSession::Ask(const SqlQuestion& question, const TakeRow& take) {
    if (!Connect()) {
        return false;
    }
    return (!IsStopped() || Fail("")) && Answer(question, take) && (!IsStopped() || Fail(""));
}

bool SqlSession::Fail(std::string reason) {
    std::replace_if(
        reason.begin(), reason.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    m_fault = IsStopped() ? "stopped" : "cannot be read: " + WithoutPasswords(std::move(reason), m_source);
    return false;
}

void SqlSession::CountRow() {
    if (m_watched) {
        m_watched->CountRow();
    }
}

void SqlSession::Rest() {
    m_watched.reset();
}

std::string InQuotes(std::string_view text, std::string_view quote) {
    std::string quoted(quote);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isQuote = text.substr(i, quote.size()) == quote;
        quoted += isQuote ? std::string(quote) + std::string(quote) : std::string(1, text[i]);
        i += isQuote ? quote.size() - 1 : 0;
    }
    return quoted.append(quote);
}

std::unique_ptr<SqlSession> OpenSession(const TableInput& input, std::string& fault) {
    const bool isOdbc = !OdbcConnection(input.Source).empty();
#if defined(MILLICHART_SQLITE)
    if (!isOdbc) {
        return OpenSqliteSession(input);
    }
#endif
#if defined(MILLICHART_ODBC)
    if (isOdbc) {
        return OpenOdbcSession(input);
    }
#endif
    fault = std::string("cannot be read: this build reads no data bases by ") + (isOdbc ? "ODBC" : "SQLite");
    return nullptr;
}

} // namespace millichart::documents
