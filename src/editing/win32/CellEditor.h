#pragma once

#include "editing/DialogView.h"
#include "editing/win32/ReflectedControl.h"

#include <functional>
#include <string>

namespace millichart {

/// An edit, or an open list of choices, over a cell of a list. Enter, Tab and the loss of the focus take what
/// it holds, Escape does not; then it is hidden.
class CellEditor final : public ReflectedControl {
public:
    using Take = std::function<void(const std::string& text)>;

    CellEditor(HWND list, const RECT& cell, const ListColumn& column, const std::string& text, Take take);
    ~CellEditor() override;

    void Finish(bool takes);

private:
    std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnKey(WPARAM key);

    Take m_take;
    bool m_isOpen = true;
    bool m_isPicked = false; ///< a choice, by the mouse
    MessageFilter m_own;
};

} // namespace millichart
