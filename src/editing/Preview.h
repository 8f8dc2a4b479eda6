#pragma once

#include "editing/Dialog.h"

#include <functional>
#include <list>
#include <type_traits>
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

    void SetColumns(int, std::span<const ListColumn>) override {}

    void SetRows(int, std::vector<ListRow>) override {}

    std::vector<ListRow> Rows(int id) const override { return m_view.Rows(id); }

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

/// Tells a host of what a window would give back, whenever that has changed.
template <class Edited> class Teller {
public:
    Teller(std::function<void(const Edited&)> tell, Edited before)
        : m_tell(std::move(tell)), m_told(std::move(before)) {}

    void Tell(const Edited& now) {
        if (!(now == m_told)) {
            m_told = now;
            m_tell(m_told);
        }
    }

private:
    std::function<void(const Edited&)> m_tell;
    Edited m_told;
};

template <class Window>
using EditedBy = std::remove_cvref_t<decltype(std::declval<const Window&>().Edited())>;

/// A dialog that tells what it would give back after each change that its OK would accept.
template <class Window> class PreviewedDialog final : public Window {
public:
    PreviewedDialog(Window window, std::function<void(const EditedBy<Window>&)> tell)
        : Window(std::move(window)), m_teller(std::move(tell), Window::Edited()) {}

    void OnChanged(DialogView& view) override {
        ReadOnlyView readOnly(view);
        Window trial = *this;
        if (trial.OnOK(readOnly)) {
            m_teller.Tell(trial.Edited());
        }
    }

private:
    Teller<EditedBy<Window>> m_teller;
};

/// The same for a sheet.
template <class Window> class PreviewedSheet final : public Window {
public:
    PreviewedSheet(Window window, std::function<void(const EditedBy<Window>&)> tell)
        : Window(std::move(window)), m_teller(std::move(tell), Window::Edited()) {}

    void OnChanged(std::span<DialogView* const> views) override {
        std::list<ReadOnlyView> shown;
        std::vector<DialogView*> readOnly;
        for (DialogView* view : views) {
            readOnly.push_back(view == nullptr ? nullptr : &shown.emplace_back(*view));
        }
        Window trial = *this;
        if (trial.OnOK(readOnly)) {
            m_teller.Tell(trial.Edited());
        }
    }

private:
    Teller<EditedBy<Window>> m_teller;
};

template <class Window>
using Previewed =
    std::conditional_t<std::is_base_of_v<Sheet, Window>, PreviewedSheet<Window>, PreviewedDialog<Window>>;

} // namespace millichart
