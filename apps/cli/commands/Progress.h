#pragma once

#include <cstddef>
#include <string>

namespace cli {

/// Tells a person at a terminal which of several inputs is being worked on.
class Progress {
public:
    explicit Progress(std::size_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Begin(const std::string& name);

private:
    std::size_t m_total;
    std::size_t m_current = 0;
    bool m_isShown;
};

} // namespace cli
