#pragma once

#include "editing/Dialog.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace testing_support {

/// A dialog's window without a screen, and the hands of its user: they reach only what is enabled.
class ScriptedView final : public millichart::DialogView {
public:
    explicit ScriptedView(millichart::Dialog& dialog);

    void Type(int id, const std::string& text);
    void Click(int id);
    void Pick(int id, int index);
    void Step(int id, int delta);
    bool PressOk();

    /// Changes whatever can be changed, also in the dialogs that buttons open; each is accepted.
    void ChangeEverything();

    /// The same for one control, even if it is disabled now.
    void ChangeOne(int id);

    bool IsEnabled(int id) const { return !m_disabled.contains(id); }

    /// What the user does in the dialogs that the next clicks open, in turn; without an entry they are
    /// cancelled.
    std::deque<std::uint32_t> ColorsToPick;
    std::deque<std::function<millichart::FontChoice(millichart::FontChoice)>> FontsToPick;
    std::deque<millichart::Answer> Answers; ///< to questions; "OK" without an entry

    /// What was shown to the user.
    std::vector<std::string> Messages;
    int Focused = millichart::kNoId;
    int SelectedText = millichart::kNoId;
    std::pair<int, int> StepRange;

    std::string Text(int id) const override;
    void SetText(int id, std::string_view text) override;
    bool IsChecked(int id) const override;
    void SetChecked(int id, bool checked) override;
    void SetColumns(int id, std::span<const millichart::ListColumn> columns) override;
    void SetRows(int id, std::vector<millichart::ListRow> rows) override;
    std::vector<millichart::ListRow> Rows(int id) const override;
    void SetItems(int id, std::span<const std::string_view> items) override;
    int Selection(int id) const override;
    void Select(int id, int index) override;
    std::uint32_t ShownColor(int id) const override;
    void ShowColor(int id, std::uint32_t colorRef) override;
    void SetEnabled(int id, bool enabled) override;
    void SetStepRange(int id, int low, int high) override;
    void Focus(int id) override;
    void SelectText(int id) override;
    millichart::Answer ShowMessage(std::string_view text, millichart::MessageButtons buttons) override;
    std::optional<std::uint32_t> PickColor(std::uint32_t colorRef) override;
    std::optional<millichart::FontChoice> PickFont(const millichart::FontChoice& shown) override;

    int PixelsPerInch() const override { return 96; }

    bool Run(millichart::Dialog& dialog) override;

private:
    millichart::ControlKind KindOf(int id) const;
    void UseByHand(int id) const;
    void Change(const millichart::Control& control);
    void ChangeRows(int id);
    void CheckRadio(int id);

    millichart::Dialog& m_dialog;
    std::map<int, std::string> m_texts;
    std::set<int> m_checked;
    std::set<int> m_disabled;
    std::map<int, std::vector<std::string>> m_items;
    std::map<int, int> m_selections;
    std::map<int, std::uint32_t> m_colors;
    std::map<int, std::span<const millichart::ListColumn>> m_columns;
    std::map<int, std::vector<millichart::ListRow>> m_rows;
    bool m_changesEverything = false;
    bool m_isRadioPicked = false; ///< in the group that is being changed
};

/// A sheet without a screen, whose user turns to its pages.
class ScriptedSheet {
public:
    /// Opens where the sheet says.
    explicit ScriptedSheet(millichart::Sheet& sheet);

    /// A page's window, made when the user first turns to it.
    ScriptedView& Page(std::size_t index);

    const millichart::SheetStart& Start() const { return m_sheet.Start(); }

    std::size_t PageCount() const { return m_views.size(); }

    bool PressOk();
    void Changed();

private:
    std::vector<millichart::DialogView*> Views() const;

    millichart::Sheet& m_sheet;
    std::vector<std::unique_ptr<ScriptedView>> m_views;
};

/// Uses one dialog that is opened; true if it ends with OK.
using Use = std::function<bool(ScriptedView&)>;
using UseSheet = std::function<bool(ScriptedSheet&)>;

/// What the user does with the dialogs that open from now on, in turn. Whatever is not used is a failure.
class User {
public:
    explicit User(std::vector<Use> uses, std::vector<UseSheet> sheets = {});
    ~User();

    User(const User&) = delete;
    User& operator=(const User&) = delete;
};

/// Presses OK, or Cancel, without touching anything.
bool Accept(ScriptedView& view);
bool Cancel(ScriptedView& view);

} // namespace testing_support
