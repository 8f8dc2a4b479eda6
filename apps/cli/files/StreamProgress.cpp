#include "files/StreamProgress.h"

#include "documents/large/StreamWatch.h"
#include "files/Console.h"
#include "files/System.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <utility>

namespace cli {
namespace {

using Clock = std::chrono::steady_clock;

/// "12.5 million"
std::string Millions(double count) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f million", count / 1e6);
    return text;
}

class ShownStream final : public millichart::StreamWatch {
public:
    explicit ShownStream(std::string name) : m_name(std::move(name)) {}

    ShownStream(const ShownStream&) = delete;
    ShownStream& operator=(const ShownStream&) = delete;

    ~ShownStream() override {
        if (m_isShown) {
            ShowPassingLine("");
        }
    }

    void Tell(std::size_t rows, std::optional<double> part) override {
        constexpr std::chrono::milliseconds kEach(500);
        const Clock::time_point now = Clock::now();
        if (!m_isTerminal || now - m_shown < kEach) {
            return;
        }
        m_shown = now;
        m_isShown = true;
        const double seconds = std::chrono::duration<double>(now - m_begun).count();
        std::string line = m_name + ": " + Millions(static_cast<double>(rows)) + " rows, " +
                           Millions(static_cast<double>(rows) / seconds) + " a second";
        if (part && *part > 0.0) {
            line += ", " + std::to_string(std::lround(seconds / *part - seconds)) + " s left";
        }
        ShowPassingLine(line);
    }

private:
    std::string m_name;
    bool m_isTerminal = ErrorsGoToTerminal();
    bool m_isShown = false;
    Clock::time_point m_begun = Clock::now();
    Clock::time_point m_shown = m_begun;
};

} // namespace

void WatchStreams() {
    millichart::WatchStreams([](const std::string& name) { return std::make_unique<ShownStream>(name); });
}

} // namespace cli
