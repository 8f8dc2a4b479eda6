#pragma once

#include <cstdint>
#include <string>
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

using OdbcUnits = std::basic_string<SQLWCHAR>;

/// The interface's wide characters are UTF-16 nearly everywhere, and in some builds as wide as the
/// platform's.
OdbcUnits OdbcUnitsOf(std::string_view text);
std::string Utf8Of(const OdbcUnits& units);

/// The driver manager takes texts as if it would change them.
inline SQLWCHAR* Lent(OdbcUnits& units) {
    return units.data();
}

struct OdbcHandle {
    explicit OdbcHandle(SQLSMALLINT type) : Type(type) {}

    OdbcHandle(const OdbcHandle&) = delete;
    OdbcHandle& operator=(const OdbcHandle&) = delete;

    ~OdbcHandle() {
        if (Value != SQL_NULL_HANDLE) {
            SQLFreeHandle(Type, Value);
        }
    }

    bool Allocate(SQLHANDLE parent) { return SQL_SUCCEEDED(SQLAllocHandle(Type, parent, &Value)); }

    SQLSMALLINT Type;
    SQLHANDLE Value = SQL_NULL_HANDLE;
};

/// The data base's words, without the names of all that they came through: "[unixODBC][Driver]ERROR: ..."
std::string MessageOf(const OdbcHandle& handle);

/// A connection for reading, within a transaction that is for reading where the data base has such and is
/// rolled back at the end.
class OdbcLink {
public:
    OdbcLink() = default;
    OdbcLink(const OdbcLink&) = delete;
    OdbcLink& operator=(const OdbcLink&) = delete;
    ~OdbcLink();

    /// Why there is no connection to a source; empty if there is one now.
    std::string Connect(const std::string& source);

    const OdbcHandle& Connection() const { return m_connection; }

    /// Begins again after a statement that failed, which some data bases make the transaction's last.
    void Renew();

    /// A text that the driver tells of itself or of its data base; empty if it does not.
    std::string Told(SQLUSMALLINT what) const;

private:
    void Set(SQLINTEGER attribute, SQLULEN value);
    void RefuseWriting();

    OdbcHandle m_environment{SQL_HANDLE_ENV};
    OdbcHandle m_connection{SQL_HANDLE_DBC};
    bool m_isConnected = false;
};

/// As "2024-03-15".
std::string OdbcDateText(const SQL_DATE_STRUCT& date);

/// As "2024-03-15T14:30:00.25".
std::string OdbcTimeText(const SQL_TIMESTAMP_STRUCT& time);

} // namespace millichart::documents
