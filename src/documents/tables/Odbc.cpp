#include "documents/tables/Odbc.h"

#include "documents/tables/QueryReader.h"
#include "documents/tables/QuerySource.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;
using Units = std::basic_string<SQLWCHAR>;

/// The interface's wide characters are UTF-16 nearly everywhere, and in some builds as wide as the
/// platform's.
Units UnitsOf(std::string_view text) {
    Units units;
    for (const wchar_t c : CStringUtil::Utf8ToWideString(text)) {
        const auto point = static_cast<std::uint32_t>(c);
        if (sizeof(SQLWCHAR) == 2 && point > 0xFFFFU) {
            units += static_cast<SQLWCHAR>(0xD7C0U + (point >> 10U));
            units += static_cast<SQLWCHAR>(0xDC00U + (point & 0x3FFU));
        } else {
            units += static_cast<SQLWCHAR>(point);
        }
    }
    return units;
}

std::string Utf8Of(const Units& units) {
    const auto isHalf = [&units](std::size_t at, std::uint32_t first) {
        return at < units.size() && (static_cast<std::uint32_t>(units[at]) & 0xFFFFFC00U) == first;
    };
    std::wstring wide;
    for (std::size_t i = 0; i < units.size(); ++i) {
        auto point = static_cast<std::uint32_t>(units[i]);
        if (sizeof(wchar_t) > 2 && isHalf(i, 0xD800U) && isHalf(i + 1, 0xDC00U)) {
            point = 0x10000U + ((point & 0x3FFU) << 10U) + (static_cast<std::uint32_t>(units[++i]) & 0x3FFU);
        }
        wide += static_cast<wchar_t>(point);
    }
    return CStringUtil::WideToUtf8(wide);
}

/// The driver manager takes texts as if it would change them.
SQLWCHAR* Lent(Units& units) {
    return units.data();
}

struct Handle {
    explicit Handle(SQLSMALLINT type) : Type(type) {}

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    ~Handle() {
        if (Value != SQL_NULL_HANDLE) {
            SQLFreeHandle(Type, Value);
        }
    }

    bool Allocate(SQLHANDLE parent) { return SQL_SUCCEEDED(SQLAllocHandle(Type, parent, &Value)); }

    SQLSMALLINT Type;
    SQLHANDLE Value = SQL_NULL_HANDLE;
};

struct Connection : Handle {
    Connection() : Handle(SQL_HANDLE_DBC) {}

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    ~Connection() {
        if (Value != SQL_NULL_HANDLE) {
            Undo();
            SQLDisconnect(Value);
        }
    }

    void Undo() { SQLEndTran(Type, Value, SQL_ROLLBACK); }

    void Set(SQLINTEGER attribute, SQLULEN value) {
        SQLSetConnectAttrW(Value, attribute, reinterpret_cast<SQLPOINTER>(value), SQL_IS_UINTEGER);
    }
};

/// The data base's words, without the names of all that they came through: "[unixODBC][Driver]ERROR: ..."
std::string MessageOf(const Handle& handle) {
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, 2048> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(SQLGetDiagRecW(handle.Type, handle.Value, 1, state.data(), &native, text.data(),
                                      static_cast<SQLSMALLINT>(text.size()), &length))) {
        return "the driver does not tell why";
    }
    const auto units = std::clamp(static_cast<std::size_t>(length), std::size_t{0}, text.size() - 1);
    std::string message = Utf8Of(Units(text.data(), units));
    while (message.starts_with('[') && message.find(']') != std::string::npos) {
        message.erase(0, message.find(']') + 1);
    }
    message.erase(message.find_last_not_of(" \r\n\t;") + 1);
    return message;
}

std::string Padded(std::int64_t number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

template <class Date> std::string DateText(const Date& date) {
    return Padded(date.year, 4) + "-" + Padded(date.month, 2) + "-" + Padded(date.day, 2);
}

std::string TimeText(const SQL_TIMESTAMP_STRUCT& time) {
    std::string text = DateText(time) + "T" + Padded(time.hour, 2) + ":" + Padded(time.minute, 2) + ":" +
                       Padded(time.second, 2);
    if (time.fraction != 0) {
        text += "." + Padded(time.fraction, 9); // billionths
        text.erase(text.find_last_not_of('0') + 1);
    }
    return text;
}

/// One statement that answers, so that a document cannot end the transaction and then write. Where a text
/// ends differs from one data base to the next, so a semicolon within one is refused too.
std::string FaultOfQuery(const std::string& query) {
    constexpr std::array<std::string_view, 5> kBegins{"select", "with", "values", "table", "("};
    constexpr const char* kBlanks = " \t\r\n";
    std::string text = query.substr(query.find_first_not_of(kBlanks));
    text.erase(text.find_last_not_of(" \t\r\n;") + 1);
    if (text.find(';') != std::string::npos || text.find('\0') != std::string::npos) {
        return "a semicolon within the query, expected one statement, and chr(59) or the like in its texts";
    }
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    const bool isReading = std::any_of(kBegins.begin(), kBegins.end(), [&text](std::string_view word) {
        const std::size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz_0123456789");
        return text.starts_with(word) && (word == "(" || end == word.size() || end == std::string::npos);
    });
    return isReading ? "" : "expected a query that begins with SELECT, WITH, VALUES or TABLE";
}

struct Column {
    std::string Name;
    SQLSMALLINT Type = 0;
};

class OdbcReader final : public QueryReader {
public:
    using QueryReader::QueryReader;
    OdbcReader(const OdbcReader&) = delete;
    OdbcReader& operator=(const OdbcReader&) = delete;

    ~OdbcReader() override { Rest(); }

private:
    bool Open(std::vector<std::string>& names) override {
        if (const std::string fault = FaultOfQuery(Query()); !fault.empty()) {
            return Fail(fault);
        }
        if (!Connect() || !Execute() || !Describe()) {
            return false;
        }
        for (const Column& column : m_columns) {
            names.push_back(column.Name);
        }
        return true;
    }

    bool Fetch(std::vector<std::string>& cells) override {
        const SQLRETURN status = SQLFetch(m_statement.Value);
        if (!SQL_SUCCEEDED(status)) {
            return status != SQL_NO_DATA && Fail(MessageOf(m_statement));
        }
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (!TakeCell(i, cells[i])) {
                return Fail(MessageOf(m_statement));
            }
        }
        return true;
    }

    bool Connect() {
        if (!m_environment.Allocate(SQL_NULL_HANDLE)) {
            return Fail("the driver manager does not begin");
        }
        SQLSetEnvAttr(m_environment.Value, SQL_ATTR_ODBC_VERSION,
                      reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(SQL_OV_ODBC3)), 0);
        if (!m_connection.Allocate(m_environment.Value)) {
            return Fail(MessageOf(m_environment));
        }
        constexpr SQLULEN kPatience = 30; // seconds
        m_connection.Set(SQL_ATTR_LOGIN_TIMEOUT, kPatience);
        m_connection.Set(SQL_ATTR_ACCESS_MODE, SQL_MODE_READ_ONLY);
        Units text = UnitsOf(OdbcConnection(Source()));
        // A missing password is not asked for in a window.
        if (!SQL_SUCCEEDED(SQLDriverConnectW(m_connection.Value, nullptr, Lent(text),
                                             static_cast<SQLSMALLINT>(text.size()), nullptr, 0, nullptr,
                                             SQL_DRIVER_NOPROMPT))) {
            return Fail(MessageOf(m_connection));
        }
        m_connection.Set(SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
        RefuseWriting();
        return true;
    }

    /// As standard SQL has it. A data base that does not know it takes back what it began.
    void RefuseWriting() {
        Handle statement(SQL_HANDLE_STMT);
        Units text = UnitsOf("SET TRANSACTION READ ONLY");
        if (statement.Allocate(m_connection.Value) &&
            !SQL_SUCCEEDED(SQLExecDirectW(statement.Value, Lent(text), SQL_NTS))) {
            m_connection.Undo();
        }
    }

    bool Execute() {
        if (!m_statement.Allocate(m_connection.Value)) {
            return Fail(MessageOf(m_connection));
        }
        Watch([this] { SQLCancel(m_statement.Value); });
        Units text = UnitsOf(Query());
        const SQLRETURN status =
            SQLExecDirectW(m_statement.Value, Lent(text), static_cast<SQLINTEGER>(text.size()));
        return SQL_SUCCEEDED(status) || status == SQL_NO_DATA || Fail(MessageOf(m_statement));
    }

    bool Describe() {
        SQLSMALLINT count = 0;
        SQLNumResultCols(m_statement.Value, &count);
        for (SQLSMALLINT i = 1; i <= count; ++i) {
            std::array<SQLWCHAR, 512> name{};
            SQLSMALLINT length = 0;
            SQLULEN size = 0;
            SQLSMALLINT digits = 0;
            SQLSMALLINT mayBeNull = 0;
            Column& column = m_columns.emplace_back();
            if (!SQL_SUCCEEDED(SQLDescribeColW(m_statement.Value, static_cast<SQLUSMALLINT>(i), name.data(),
                                               static_cast<SQLSMALLINT>(name.size()), &length, &column.Type,
                                               &size, &digits, &mayBeNull))) {
                return Fail(MessageOf(m_statement));
            }
            column.Name = Utf8Of(Units(name.data())); // it ends with a zero, even if it was cut
        }
        return count > 0 || Fail("the query answers nothing");
    }

    bool TakeCell(std::size_t index, std::string& cell) {
        cell.clear();
        switch (m_columns[index].Type) {
        case SQL_REAL:
            return Take<float>(index, SQL_C_FLOAT, cell, [](float value) { return penlode::Digits(value); });
        case SQL_FLOAT:
        case SQL_DOUBLE:
            return Take<double>(index, SQL_C_DOUBLE, cell,
                                [](double value) { return penlode::Digits(value); });
        case SQL_DATE:
        case SQL_TYPE_DATE:
            return Take<SQL_DATE_STRUCT>(index, SQL_C_TYPE_DATE, cell, DateText<SQL_DATE_STRUCT>);
        case SQL_TIMESTAMP:
        case SQL_TYPE_TIMESTAMP:
            return Take<SQL_TIMESTAMP_STRUCT>(index, SQL_C_TYPE_TIMESTAMP, cell, TimeText);
        default:
            return TakeText(index, cell);
        }
    }

    template <class Value, class Form>
    bool Take(std::size_t index, SQLSMALLINT type, std::string& cell, const Form& form) {
        Value value{};
        SQLLEN length = 0;
        const bool isRead = SQL_SUCCEEDED(SQLGetData(m_statement.Value, static_cast<SQLUSMALLINT>(index + 1),
                                                     type, &value, sizeof value, &length));
        if (isRead && length != SQL_NULL_DATA) {
            cell = form(value);
        }
        return isRead;
    }

    /// A long one comes in pieces, each with a zero behind it.
    bool TakeText(std::size_t index, std::string& cell) {
        std::array<SQLWCHAR, 4096> piece;
        Units units;
        for (SQLRETURN status = SQL_SUCCESS_WITH_INFO;
             status == SQL_SUCCESS_WITH_INFO && units.size() <= kMaxCell;) {
            SQLLEN length = 0;
            status = SQLGetData(m_statement.Value, static_cast<SQLUSMALLINT>(index + 1), SQL_C_WCHAR,
                                piece.data(), sizeof piece, &length);
            if (status == SQL_NO_DATA || length == SQL_NULL_DATA) {
                break;
            }
            if (!SQL_SUCCEEDED(status)) {
                return false;
            }
            const auto left = static_cast<std::size_t>(length) / sizeof(SQLWCHAR); // huge if not known
            units.append(piece.data(), std::min(left, piece.size() - 1));
        }
        cell = Utf8Of(units);
        const SQLSMALLINT type = m_columns[index].Type;
        if (type == SQL_CHAR || type == SQL_WCHAR) {
            cell.erase(cell.find_last_not_of(' ') + 1); // filled up to a fixed length
        }
        return true;
    }

    Handle m_environment{SQL_HANDLE_ENV};
    Connection m_connection;
    Handle m_statement{SQL_HANDLE_STMT};
    std::vector<Column> m_columns;
};

} // namespace

std::unique_ptr<RowReader> OpenOdbc(const TableInput& input) {
    return std::make_unique<OdbcReader>(input);
}

} // namespace millichart::documents
