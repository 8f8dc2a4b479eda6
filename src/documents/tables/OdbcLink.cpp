#include "documents/tables/OdbcLink.h"

#include "documents/tables/QuerySource.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;

std::string Padded(std::int64_t number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

template <class Date> std::string DateText(const Date& date) {
    return Padded(date.year, 4) + "-" + Padded(date.month, 2) + "-" + Padded(date.day, 2);
}

} // namespace

OdbcUnits OdbcUnitsOf(std::string_view text) {
    OdbcUnits units;
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

std::string Utf8Of(const OdbcUnits& units) {
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

std::string MessageOf(const OdbcHandle& handle) {
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, 2048> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(SQLGetDiagRecW(handle.Type, handle.Value, 1, state.data(), &native, text.data(),
                                      static_cast<SQLSMALLINT>(text.size()), &length))) {
        return "the driver does not tell why";
    }
    const auto units = std::clamp(static_cast<std::size_t>(length), std::size_t{0}, text.size() - 1);
    std::string message = Utf8Of(OdbcUnits(text.data(), units));
    while (message.starts_with('[') && message.find(']') != std::string::npos) {
        message.erase(0, message.find(']') + 1);
    }
    message.erase(message.find_last_not_of(" \r\n\t;") + 1);
    return message;
}

OdbcLink::~OdbcLink() {
    if (m_isConnected) {
        SQLEndTran(SQL_HANDLE_DBC, m_connection.Value, SQL_ROLLBACK);
        SQLDisconnect(m_connection.Value);
    }
}

std::string OdbcLink::Connect(const std::string& source) {
    if (!m_environment.Allocate(SQL_NULL_HANDLE)) {
        return "the driver manager does not begin";
    }
    SQLSetEnvAttr(m_environment.Value, SQL_ATTR_ODBC_VERSION,
                  reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(SQL_OV_ODBC3)), 0);
    if (!m_connection.Allocate(m_environment.Value)) {
        return MessageOf(m_environment);
    }
    constexpr SQLULEN kPatience = 30; // seconds
    Set(SQL_ATTR_LOGIN_TIMEOUT, kPatience);
    Set(SQL_ATTR_ACCESS_MODE, SQL_MODE_READ_ONLY);
    OdbcUnits text = OdbcUnitsOf(OdbcConnection(source));
    // A missing password is not asked for in a window.
    if (!SQL_SUCCEEDED(SQLDriverConnectW(m_connection.Value, nullptr, Lent(text),
                                         static_cast<SQLSMALLINT>(text.size()), nullptr, 0, nullptr,
                                         SQL_DRIVER_NOPROMPT))) {
        return MessageOf(m_connection);
    }
    m_isConnected = true;
    Set(SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
    RefuseWriting();
    return {};
}

void OdbcLink::Renew() {
    SQLEndTran(SQL_HANDLE_DBC, m_connection.Value, SQL_ROLLBACK);
    RefuseWriting();
}

std::string OdbcLink::Told(SQLUSMALLINT what) const {
    std::array<SQLWCHAR, 128> text{};
    SQLSMALLINT length = 0; // in bytes
    const bool isTold = SQL_SUCCEEDED(
        SQLGetInfoW(m_connection.Value, what, text.data(), static_cast<SQLSMALLINT>(sizeof text), &length));
    text.back() = 0;
    return isTold ? Utf8Of(OdbcUnits(text.data())) : std::string();
}

void OdbcLink::Set(SQLINTEGER attribute, SQLULEN value) {
    SQLSetConnectAttrW(m_connection.Value, attribute, reinterpret_cast<SQLPOINTER>(value), SQL_IS_UINTEGER);
}

/// As standard SQL has it. A data base that does not know it takes back what it began.
void OdbcLink::RefuseWriting() {
    OdbcHandle statement(SQL_HANDLE_STMT);
    OdbcUnits text = OdbcUnitsOf("SET TRANSACTION READ ONLY");
    if (statement.Allocate(m_connection.Value) &&
        !SQL_SUCCEEDED(SQLExecDirectW(statement.Value, Lent(text), SQL_NTS))) {
        SQLEndTran(SQL_HANDLE_DBC, m_connection.Value, SQL_ROLLBACK);
    }
}

std::string OdbcDateText(const SQL_DATE_STRUCT& date) {
    return DateText(date);
}

std::string OdbcTimeText(const SQL_TIMESTAMP_STRUCT& time) {
    std::string text = DateText(time) + "T" + Padded(time.hour, 2) + ":" + Padded(time.minute, 2) + ":" +
                       Padded(time.second, 2);
    if (time.fraction != 0) {
        text += "." + Padded(time.fraction, 9); // billionths
        text.erase(text.find_last_not_of('0') + 1);
    }
    return text;
}

} // namespace millichart::documents
