#include "documents/tables/Query.h"

#include "documents/tables/NoRows.h"
#include "documents/tables/QuerySource.h"

#if defined(MILLICHART_SQLITE)
#include "documents/tables/Sqlite.h"
#endif
#if defined(MILLICHART_ODBC)
#include "documents/tables/Odbc.h"
#endif

namespace millichart::documents {
namespace {

constexpr const char* kNoQuery =
    "no query, expected one such as \"select region, sum(value) from sales group by region\"";
constexpr const char* kNoLine = "found a table of points, which a line chart alone draws, expected a query";

} // namespace

std::unique_ptr<RowReader> OpenQuery(const TableInput& input) {
    if (!input.Options.Points.Name.empty()) {
        return std::make_unique<NoRows>(kNoLine);
    }
    if (input.Options.Query.find_first_not_of(" \t\r\n") == std::string::npos) {
        return std::make_unique<NoRows>(kNoQuery);
    }
    const bool isOdbc = !OdbcConnection(input.Source).empty();
#if defined(MILLICHART_SQLITE)
    if (!isOdbc) {
        return OpenSqlite(input);
    }
#endif
#if defined(MILLICHART_ODBC)
    if (isOdbc) {
        return OpenOdbc(input);
    }
#endif
    return std::make_unique<NoRows>(std::string("cannot be read: this build reads no data bases by ") +
                                    (isOdbc ? "ODBC" : "SQLite"));
}

} // namespace millichart::documents
