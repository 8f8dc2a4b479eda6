#include "documents/tables/Odbc.h"

#include "documents/tables/OdbcLink.h"
#include "documents/tables/QueryReader.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <array>

namespace millichart::documents {
namespace {

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
        if (const std::string fault = m_link.Connect(Source()); !fault.empty()) {
            return Fail(fault);
        }
        if (!Execute() || !Describe()) {
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

    bool Execute() {
        if (!m_statement.Allocate(m_link.Connection().Value)) {
            return Fail(MessageOf(m_link.Connection()));
        }
        Watch([this] { SQLCancel(m_statement.Value); });
        OdbcUnits text = OdbcUnitsOf(Query());
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
            column.Name = Utf8Of(OdbcUnits(name.data())); // it ends with a zero, even if it was cut
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
            return Take<SQL_DATE_STRUCT>(index, SQL_C_TYPE_DATE, cell, OdbcDateText);
        case SQL_TIMESTAMP:
        case SQL_TYPE_TIMESTAMP:
            return Take<SQL_TIMESTAMP_STRUCT>(index, SQL_C_TYPE_TIMESTAMP, cell, OdbcTimeText);
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
        OdbcUnits units;
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

    OdbcLink m_link;
    OdbcHandle m_statement{SQL_HANDLE_STMT};
    std::vector<Column> m_columns;
};

} // namespace

std::unique_ptr<RowReader> OpenOdbc(const TableInput& input) {
    return std::make_unique<OdbcReader>(input);
}

} // namespace millichart::documents
