#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace millichart {

/// Watches one query while a data base works on it: made when it begins, gone when it has ended and its
/// connection is closed.
class QueryWatch {
public:
    QueryWatch() = default;
    QueryWatch(const QueryWatch&) = delete;
    QueryWatch& operator=(const QueryWatch&) = delete;
    virtual ~QueryWatch() = default;

    /// Is asked many times a second, on a thread of the query's own, whatever the query waits for; so many
    /// rows have come. False stops the query, which is an error of its table then.
    virtual bool MayGoOn(std::size_t rows, double seconds) = 0;
};

/// Gives a query its watch; `source` is what messages call the data base, without any password.
using QueryWatchMaker = std::function<std::unique_ptr<QueryWatch>(const std::string& source)>;

/// For all queries of the program from now on, on whatever thread they begin; not while one runs. Without a
/// maker none is watched, as at first.
void WatchQueries(QueryWatchMaker maker);

} // namespace millichart
