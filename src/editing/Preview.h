#pragma once

#include "editing/Dialog.h"

#include <functional>
#include <utility>
#include <vector>

namespace millichart {

/// A window that can be read and not changed: for asking a dialog what its OK would give.
class ReadOnlyView final : public DialogView {
public:
    explicit ReadOnlyView(DialogView& view) : m_view(view) {}

    std::string Text(int id) const override { return m_view.Text(id); }

    void SetText(int, std::string_view) override {}

    bool IsChecked(int id) const override { return m_view.IsChecked(id); }

    void SetChecked(int, bool) override {}

    void SetItems(int, std::span<const std::string_view>) override {}

    int Selection(int id) const override { return m_view.Selection(id); }

    void Select(int, int) override {}

    std::uint32_t ShownColor(int id) const override { return m_view.ShownColor(id); }

    void ShowColor(int, std::uint32_t) override {}

    void SetEnabled(int, bool) override {}

    void SetStepRange(int, int, int) override {}

    void Focus(int) override {}

    void SelectText(int) override {}

    Answer ShowMessage(std::string_view, MessageButtons) override { return Answer::Ok; }

    std::optional<std::uint32_t> PickColor(std::uint32_t) override { return std::nullopt; }

    std::optional<FontChoice> PickFont(const FontChoice&) override { return std::nullopt; }

    int PixelsPerInch() const override { return m_view.PixelsPerInch(); }

    bool Run(Dialog&) override { return false; }

private:
    DialogView& m_view;
};

/// A dialog that tells what it would give back after each change that its OK would accept.
template <class Base> class Previewed final : public Base {
public:
    using Result = std::remove_cvref_t<decltype(std::declval<const Base&>().Edited())>;

    Previewed(Base dialog, std::function<void(const Result&)> tell)
        : Base(std::move(dialog)), m_tell(std::move(tell)), m_told(Base::Edited()) {}

    void OnChanged(DialogView& view) override {
        ReadOnlyView readOnly(view);
        Base trial = *this;
        if (trial.OnOK(readOnly) && !(trial.Edited() == m_told)) {
            m_told = trial.Edited();
            m_tell(m_told);
        }
    }

private:
    std::function<void(const Result&)> m_tell;
    Result m_told;
};

} // namespace millichart
