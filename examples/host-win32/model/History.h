#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace host {

/// The states that a document went through, for undo and redo, and which of them is on the disk. The oldest
/// are forgotten.
template <class State> class History {
public:
    explicit History(State first) { m_states.push_back(std::move(first)); }

    const State& Current() const { return m_states[m_current]; }

    /// What was undone before can no longer be redone.
    void Change(State next) {
        m_states.erase(m_states.begin() + static_cast<std::ptrdiff_t>(m_current) + 1, m_states.end());
        if (m_saved > m_current) {
            m_saved.reset();
        }
        m_states.push_back(std::move(next));
        if (m_states.size() > kMaxStates) {
            m_states.erase(m_states.begin());
            m_saved = m_saved && *m_saved > 0 ? std::optional(*m_saved - 1) : std::nullopt;
        }
        m_current = m_states.size() - 1;
    }

    bool CanUndo() const { return m_current > 0; }

    bool CanRedo() const { return m_current + 1 < m_states.size(); }

    void Undo() { m_current -= CanUndo() ? 1U : 0U; }

    void Redo() { m_current += CanRedo() ? 1U : 0U; }

    bool IsSaved() const { return m_saved == m_current; }

    void MarkSaved() { m_saved = m_current; }

private:
    static constexpr std::size_t kMaxStates = 100;

    std::vector<State> m_states;
    std::size_t m_current = 0;
    std::optional<std::size_t> m_saved = 0;
};

} // namespace host
