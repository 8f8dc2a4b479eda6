#pragma once

#include "documents/tables/QueryWatch.h"
#include "documents/tables/RowReader.h"
#include "documents/tables/TableInput.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace millichart::documents {

/// Of the watch maker that holds now; null where nobody watches. `name` is what messages call the data base.
std::unique_ptr<QueryWatch> NewQueryWatch(const std::string& name);

/// Asks a query's watch whether it may go on, and has it cancelled if not, again and again until it rests.
class WatchedQuery {
public:
    /// `cancel` is called on another thread.
    WatchedQuery(std::unique_ptr<QueryWatch> watch, std::function<void()> cancel);
    ~WatchedQuery();
    WatchedQuery(const WatchedQuery&) = delete;
    WatchedQuery& operator=(const WatchedQuery&) = delete;

    void CountRow() { ++m_rows; }

    bool IsStopped() const { return m_isStopped; }

    /// Nothing is cancelled from now on.
    void Rest();

private:
    void Run();

    std::unique_ptr<QueryWatch> m_watch;
    std::function<void()> m_cancel;
    std::mutex m_mutex;
    std::condition_variable m_change;
    bool m_rests = false;
    std::atomic<std::size_t> m_rows = 0;
    std::atomic<bool> m_isStopped = false;
    std::thread m_thread;
};

/// What the readers of all data bases share: the names of the columns come as the first row; what is read has
/// bounds; whoever watches may stop it; and no message has a password.
class QueryReader : public RowReader {
public:
    explicit QueryReader(const TableInput& input);

    bool Next(TableRow& row) final;

    std::string Fault() const final { return m_fault; }

    bool IsExact() const final { return true; }

protected:
    /// Of a cell, in bytes of UTF-8. What is longer may be cut anywhere behind it.
    static constexpr std::size_t kMaxCell = std::size_t{1} << 20U;

    const std::string& Source() const { return m_source; }

    const std::string& Query() const { return m_query; }

    /// Connects, begins the query and gives its columns' names; false after `Fail`.
    virtual bool Open(std::vector<std::string>& names) = 0;

    /// The next row's cells, as many as there are names; false at the end, or after `Fail`.
    virtual bool Fetch(std::vector<std::string>& cells) = 0;

    /// In words of the data base. Gives false.
    bool Fail(std::string reason);

    /// From when a query may take long until `Rest`, which a derived class calls before anything goes that
    /// `cancel` needs.
    void Watch(std::function<void()> cancel);
    void Rest();

private:
    bool IsSound(TableRow& row);

    const std::string m_name;
    const std::string m_source;
    const std::string m_query;
    std::vector<std::string> m_names;
    std::string m_fault;
    std::size_t m_bytes = 0;
    std::size_t m_line = 0;
    bool m_isOver = false;
    std::optional<WatchedQuery> m_watched;
};

} // namespace millichart::documents
