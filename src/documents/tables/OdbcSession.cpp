#include "documents/tables/OdbcSession.h"

#include "documents/tables/OdbcLink.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <mutex>

namespace millichart::documents {
namespace {

/// A question's values as the driver takes them when the statement is carried out: where they lie, until
/// then.
class BoundValues {
public:
    explicit BoundValues(const std::vector<SqlValue>& values)
        : m_values(values), m_texts(values.size()), m_lengths(values.size()) {}

    bool Bind(SQLHANDLE statement) {
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            if (!BindOne(statement, i)) {
                return false;
            }
        }
        return true;
    }

private:
    bool BindOne(SQLHANDLE statement, std::size_t i) {
        if (const auto* whole = std::get_if<std::int64_t>(&m_values[i])) {
            return Put(statement, i, SQL_C_SBIGINT, SQL_BIGINT, 0, const_cast<std::int64_t*>(whole), 0);
        }
        if (const auto* number = std::get_if<double>(&m_values[i])) {
            return Put(statement, i, SQL_C_DOUBLE, SQL_DOUBLE, 0, const_cast<double*>(number), 0);
        }
        const auto* text = std::get_if<std::string>(&m_values[i]);
        m_texts[i] = OdbcUnitsOf(text == nullptr ? std::string() : *text);
        const auto bytes = static_cast<SQLLEN>(m_texts[i].size() * sizeof(SQLWCHAR));
        return Put(statement, i, SQL_C_WCHAR, SQL_WVARCHAR, std::max<std::size_t>(m_texts[i].size(), 1),
                   Lent(m_texts[i]), text == nullptr ? SQL_NULL_DATA : bytes);
    }

    bool Put(SQLHANDLE statement, std::size_t i, SQLSMALLINT given, SQLSMALLINT taken, std::size_t size,
             void* value, SQLLEN length) {
        m_lengths[i] = length;
        return SQL_SUCCEEDED(SQLBindParameter(statement, static_cast<SQLUSMALLINT>(i + 1), SQL_PARAM_INPUT,
                                              given, taken, size, 0, value, 0, &m_lengths[i]));
    }

    const std::vector<SqlValue>& m_values;
    std::vector<OdbcUnits> m_texts;
    std::vector<SQLLEN> m_lengths;
};

class OdbcSession final : public SqlSession {
public:
    using SqlSession::SqlSession;
    OdbcSession(const OdbcSession&) = delete;
    OdbcSession& operator=(const OdbcSession&) = delete;

    ~OdbcSession() override { Rest(); }

    SqlDialect Dialect() const override {
        std::string name = m_link.Told(SQL_DBMS_NAME);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return name == "postgresql"         ? SqlDialect::Postgres
               : name.starts_with("sqlite") ? SqlDialect::Sqlite
                                            : SqlDialect::Standard;
    }

    bool HasFastLists() const override {
        constexpr int kFirst = 14;
        return Dialect() == SqlDialect::Postgres && std::atoi(m_link.Told(SQL_DBMS_VER).c_str()) >= kFirst;
    }

    /// A data base that quotes no names tells a blank. SQLite takes an unknown name in double quotes for a
    /// text.
    std::string Quoted(std::string_view name) const override {
        if (Dialect() == SqlDialect::Sqlite) {
            return InQuotes(name, "`");
        }
        const std::string quote = m_link.Told(SQL_IDENTIFIER_QUOTE_CHAR);
        return InQuotes(name, quote.empty() || quote == " " ? "\"" : quote);
    }

private:
    bool Open(const std::string& source) override {
        const std::string fault = m_link.Connect(source);
        return fault.empty() || Fail(fault);
    }

    bool Answer(const SqlQuestion& question, const TakeRow& take) override {
        OdbcHandle statement(SQL_HANDLE_STMT);
        if (!statement.Allocate(m_link.Connection().Value)) {
            return Fail(MessageOf(m_link.Connection()));
        }
        Lend(statement.Value);
        const bool isAnswered = AnswerBy(statement, question, take);
        Lend(SQL_NULL_HANDLE);
        return isAnswered;
    }

    bool AnswerBy(const OdbcHandle& statement, const SqlQuestion& question, const TakeRow& take) {
        BoundValues values(question.Values);
        if (!values.Bind(statement.Value)) {
            return Fail(MessageOf(statement));
        }
        OdbcUnits text = OdbcUnitsOf(question.Text);
        const SQLRETURN begun =
            SQLExecDirectW(statement.Value, Lent(text), static_cast<SQLINTEGER>(text.size()));
        if (begun == SQL_NO_DATA) {
            return true;
        }
        if (!SQL_SUCCEEDED(begun) || !Describe(statement)) {
            return Fail(MessageOf(statement));
        }
        std::vector<SqlValue> row(m_types.size());
        SQLRETURN status = SQLFetch(statement.Value);
        for (; SQL_SUCCEEDED(status); status = SQLFetch(statement.Value)) {
            for (std::size_t column = 0; column < row.size(); ++column) {
                if (!TakeCell(statement.Value, column, row[column])) {
                    return Fail(MessageOf(statement));
                }
            }
            CountRow();
            if (!take(row)) {
                return true;
            }
        }
        return status == SQL_NO_DATA || Fail(MessageOf(statement));
    }

    bool Describe(const OdbcHandle& statement) {
        SQLSMALLINT count = 0;
        SQLNumResultCols(statement.Value, &count);
        m_types.assign(static_cast<std::size_t>(std::max<SQLSMALLINT>(count, 0)), 0);
        for (std::size_t i = 0; i < m_types.size(); ++i) {
            SQLLEN type = 0;
            if (!SQL_SUCCEEDED(SQLColAttributeW(statement.Value, static_cast<SQLUSMALLINT>(i + 1),
                                                SQL_DESC_CONCISE_TYPE, nullptr, 0, nullptr, &type))) {
                return false;
            }
            m_types[i] = static_cast<SQLSMALLINT>(type);
        }
        return true;
    }

    bool TakeCell(SQLHANDLE statement, std::size_t column, SqlValue& cell) {
        switch (m_types[column]) {
        case SQL_TINYINT:
        case SQL_SMALLINT:
        case SQL_INTEGER:
        case SQL_BIGINT:
            return Take<std::int64_t>(statement, column, SQL_C_SBIGINT, cell,
                                      [](std::int64_t whole) { return whole; });
        case SQL_REAL:
        case SQL_FLOAT:
        case SQL_DOUBLE:
        case SQL_DECIMAL:
        case SQL_NUMERIC:
            return Take<double>(statement, column, SQL_C_DOUBLE, cell, [](double number) { return number; });
        case SQL_DATE:
        case SQL_TYPE_DATE:
            return Take<SQL_DATE_STRUCT>(statement, column, SQL_C_TYPE_DATE, cell, OdbcDateText);
        case SQL_TIMESTAMP:
        case SQL_TYPE_TIMESTAMP:
            return Take<SQL_TIMESTAMP_STRUCT>(statement, column, SQL_C_TYPE_TIMESTAMP, cell, OdbcTimeText);
        default:
            return TakeText(statement, column, cell);
        }
    }

    template <class Value, class Form>
    static bool Take(SQLHANDLE statement, std::size_t column, SQLSMALLINT type, SqlValue& cell,
                     const Form& form) {
        Value value{};
        SQLLEN length = 0;
        const bool isRead = SQL_SUCCEEDED(SQLGetData(statement, static_cast<SQLUSMALLINT>(column + 1), type,
                                                     &value, sizeof value, &length));
        if (!isRead || length == SQL_NULL_DATA) {
            cell = std::monostate();
        } else {
            cell = form(value);
        }
        return isRead;
    }

    /// What a longer one begins with: names of curves are no longer.
    static bool TakeText(SQLHANDLE statement, std::size_t column, SqlValue& cell) {
        std::array<SQLWCHAR, 4096> text{};
        SQLLEN length = 0;
        const bool isRead = SQL_SUCCEEDED(SQLGetData(statement, static_cast<SQLUSMALLINT>(column + 1),
                                                     SQL_C_WCHAR, text.data(), sizeof text, &length));
        if (!isRead || length == SQL_NULL_DATA) {
            cell = std::monostate();
        } else {
            cell = Utf8Of(OdbcUnits(text.data()));
        }
        return isRead;
    }

    void Cancel() override {
        const std::lock_guard lock(m_mutex);
        if (m_running != SQL_NULL_HANDLE) {
            SQLCancel(m_running);
        }
    }

    void Lend(SQLHANDLE statement) {
        const std::lock_guard lock(m_mutex);
        m_running = statement;
    }

    OdbcLink m_link;
    std::vector<SQLSMALLINT> m_types;
    std::mutex m_mutex;
    SQLHANDLE m_running = SQL_NULL_HANDLE; ///< what `Cancel` ends
};

} // namespace

std::unique_ptr<SqlSession> OpenOdbcSession(const TableInput& input) {
    return std::make_unique<OdbcSession>(input);
}

} // namespace millichart::documents
