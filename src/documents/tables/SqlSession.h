#pragma once

#include "documents/tables/QueryReader.h"
#include "documents/tables/TableInput.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace millichart::documents {

/// A cell of an answer, or what a statement's question mark stands for. Dates are texts as 2024-03-15 or
/// 2024-03-15T14:30:00; what fits none of the others is a text, too.
using SqlValue = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A statement and what stands for its question marks, in their order.
struct SqlQuestion {
    std::string Text;
    std::vector<SqlValue> Values = {};
};

/// What a data base knows beyond what all know.
enum class SqlDialect { Standard, Postgres, Sqlite };

/// Asks questions of one data base, one after the other. It is connected when the first is asked, and only
/// read. Whoever watches queries sees the session as one, and may stop it.
class SqlSession {
public:
    /// False ends the answer.
    using TakeRow = std::function<bool(std::span<const SqlValue>)>;

    explicit SqlSession(const TableInput& input);
    SqlSession(const SqlSession&) = delete;
    SqlSession& operator=(const SqlSession&) = delete;
    virtual ~SqlSession() = default;

    /// False when the data base cannot be reached or does not answer; `Fault` tells why.
    bool Ask(const SqlQuestion& question, const TakeRow& take);

    /// False when it cannot be reached.
    bool Connect();

    /// "cannot be read: ...", or "stopped"; never with a password.
    const std::string& Fault() const { return m_fault; }

    bool IsStopped() const { return m_watched && m_watched->IsStopped(); }

    /// As in `Fault`. Gives false.
    bool Fail(std::string reason);

    /// Of a session that is connected.
    virtual SqlDialect Dialect() const = 0;

    /// Does the data base work in this program, so that a row costs little?
    virtual bool IsInProcess() const { return false; }

    /// Is it PostgreSQL of a version, 14 or later, that looks a number up in a list at once?
    virtual bool HasFastLists() const { return false; }

    /// A name as the data base quotes it, so that nothing in it is taken for more than a name.
    virtual std::string Quoted(std::string_view name) const = 0;

protected:
    virtual bool Open(const std::string& source) = 0;
    virtual bool Answer(const SqlQuestion& question, const TakeRow& take) = 0;
    /// Ends the answer that is under way; is called on another thread.
    virtual void Cancel() = 0;

    void CountRow();

    /// Is called before anything goes that `Cancel` needs.
    void Rest();

private:
    const std::string m_name;
    const std::string m_source;
    std::string m_fault;
    bool m_isOpen = false;
    std::optional<WatchedQuery> m_watched;
};

/// The text between two quotes, with each of them within it doubled.
std::string InQuotes(std::string_view text, std::string_view quote);

/// For the source of an input that `QueryInput` made. Null, and told why, if this build has none for it.
std::unique_ptr<SqlSession> OpenSession(const TableInput& input, std::string& fault);

} // namespace millichart::documents
