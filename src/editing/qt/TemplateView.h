#pragma once

#include "editing/Dialog.h"
#include "editing/qt/ModalWindow.h"

#include <unordered_map>

namespace millichart {

/// A dialog, or a page of a sheet, in a panel of a window: real controls.
class TemplateView final : public DialogView {
public:
    /// Fills the panel, whose size it sets.
    TemplateView(Dialog& dialog, QWidget& panel, ModalWindow& window);

    std::string Text(int id) const override;
    void SetText(int id, std::string_view text) override;
    bool IsChecked(int id) const override;
    void SetChecked(int id, bool checked) override;
    void SetItems(int id, std::span<const std::string_view> items) override;
    int Selection(int id) const override;
    void Select(int id, int index) override;
    std::uint32_t ShownColor(int id) const override;
    void ShowColor(int id, std::uint32_t colorRef) override;
    void SetEnabled(int id, bool enabled) override;
    void SetStepRange(int id, int low, int high) override;
    void Focus(int id) override;
    void SelectText(int id) override;
    Answer ShowMessage(std::string_view text, MessageButtons buttons) override;
    std::optional<std::uint32_t> PickColor(std::uint32_t colorRef) override;
    std::optional<FontChoice> PickFont(const FontChoice& shown) override;
    int PixelsPerInch() const override;
    bool Run(Dialog& dialog) override;

private:
    /// Null if there is no such control, or if it is of another kind.
    template <class Widget = QWidget> Widget* At(int id) const;

    void Listen(int id, QWidget* control);
    void Press(int id);
    void Step(int id, int delta);

    Dialog& m_dialog;
    QWidget& m_panel;
    ModalWindow& m_window;
    std::unordered_map<int, QWidget*> m_controls;
};

} // namespace millichart
