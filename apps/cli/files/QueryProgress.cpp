#include "files/QueryProgress.h"

#include "documents/tables/QueryWatch.h"
#include "files/Console.h"
#include "files/System.h"

#include <utility>

namespace cli {
namespace {

class ShownQuery final : public millichart::QueryWatch {
public:
    explicit ShownQuery(std::string source) : m_source(std::move(source)) {}

    ShownQuery(const ShownQuery&) = delete;
    ShownQuery& operator=(const ShownQuery&) = delete;

    ~ShownQuery() override {
        if (InterruptGuard::IsInterrupted()) {
            Tell(m_source + ": stopped");
        } else if (m_shownSeconds > 0) {
            ShowPassingLine("");
        }
    }

    bool MayGoOn(std::size_t rows, double seconds) override {
        const auto whole = static_cast<long>(seconds);
        if (whole > m_shownSeconds && m_isTerminal) {
            m_shownSeconds = whole;
            ShowPassingLine(m_source + ": " + std::to_string(rows) + (rows == 1 ? " row, " : " rows, ") +
                            std::to_string(whole) + " s");
        }
        return !InterruptGuard::IsInterrupted();
    }

private:
    InterruptGuard m_guard; ///< ends the program last of all
    std::string m_source;
    bool m_isTerminal = ErrorsGoToTerminal();
    long m_shownSeconds = 0;
};

} // namespace

void WatchQueries() {
    millichart::WatchQueries([](const std::string& source) { return std::make_unique<ShownQuery>(source); });
}

} // namespace cli
