#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace designer {

/// The states that a document went through, each with the name of the change that led to it, and which of
/// them is on the disk. The oldest are forgotten, and sooner where states are large: what each takes beside
/// the one before it is told in bytes. One change can be undone, however large.
template <class State> class History {
public:
    explicit History(State first) { m_steps.push_back({{}, std::move(first), 0}); }

    const State& Current() const { return m_steps[m_current].After; }

    /// What was undone before can no longer be redone.
    void Change(std::string name, State next, std::size_t bytes = 0) {
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_current) + 1, m_steps.end());
        if (m_saved > m_current) {
            m_saved.reset();
        }
        m_steps.push_back({std::move(name), std::move(next), bytes});
        m_current = m_steps.size() - 1;
        ForgetOldest();
    }

    /// The last change goes on. Only after a change that was not undone since.
    void Continue(State next, std::size_t bytes = 0) {
        m_steps[m_current].After = std::move(next);
        m_steps[m_current].Bytes = bytes;
        if (m_saved == m_current) {
            m_saved.reset();
        }
    }

    bool CanUndo() const { return m_current > 0; }

    bool CanRedo() const { return m_current + 1 < m_steps.size(); }

    std::string UndoName() const { return CanUndo() ? m_steps[m_current].Name : std::string(); }

    std::string RedoName() const { return CanRedo() ? m_steps[m_current + 1].Name : std::string(); }

    void Undo() { m_current -= CanUndo() ? 1U : 0U; }

    void Redo() { m_current += CanRedo() ? 1U : 0U; }

    bool IsSaved() const { return m_saved == m_current; }

    void MarkSaved() { m_saved = m_current; }

    void MarkUnsaved() { m_saved.reset(); }

private:
    static constexpr std::size_t kMaxSteps = 200;
    static constexpr std::size_t kMaxBytes = std::size_t{512} << 20U;

    struct Step {
        std::string Name;
        State After;
        std::size_t Bytes = 0;
    };

    std::size_t Bytes() const {
        std::size_t bytes = 0;
        for (const Step& step : m_steps) {
            bytes += step.Bytes;
        }
        return bytes;
    }

    void ForgetOldest() {
        while (m_steps.size() > kMaxSteps || (m_steps.size() > 2 && Bytes() > kMaxBytes)) {
            m_steps.erase(m_steps.begin());
            m_saved = m_saved && *m_saved > 0 ? std::optional(*m_saved - 1) : std::nullopt;
            --m_current;
        }
    }

    std::vector<Step> m_steps;
    std::size_t m_current = 0;
    std::optional<std::size_t> m_saved = 0;
};

} // namespace designer
