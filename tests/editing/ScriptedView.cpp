#include "editing/ScriptedView.h"

#include "editing/NumberInput.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace millichart;

namespace testing_support {
namespace {

std::deque<Use> g_uses;
std::deque<UseSheet> g_sheetUses;

template <class Value> std::optional<Value> Next(std::deque<Value>& values) {
    if (values.empty()) {
        return std::nullopt;
    }
    Value value = std::move(values.front());
    values.pop_front();
    return value;
}

} // namespace

ScriptedView::ScriptedView(Dialog& dialog) : m_dialog(dialog) {
    for (const Control& control : dialog.Template().Controls) {
        m_texts[control.Id] = control.Text;
        if (control.Kind == ControlKind::LineStyles) {
            m_items[control.Id] = {"0", "1", "2", "3", "4"};
        } else if (control.Kind == ControlKind::PositionPicker) {
            m_items[control.Id].resize(12);
        }
    }
    dialog.OnInitDialog(*this);
}

ControlKind ScriptedView::KindOf(int id) const {
    const auto controls = m_dialog.Template().Controls;
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [id](const Control& control) { return control.Id == id; });
    EXPECT_NE(found, controls.end()) << "no control " << id;
    return found->Kind;
}

void ScriptedView::UseByHand(int id) const {
    EXPECT_TRUE(IsEnabled(id)) << "control " << id << " is disabled";
}

void ScriptedView::Type(int id, const std::string& text) {
    UseByHand(id);
    EXPECT_EQ(KindOf(id), ControlKind::Edit);
    m_texts[id] = text;
    m_dialog.OnChanged(*this);
}

void ScriptedView::Click(int id) {
    UseByHand(id);
    if (KindOf(id) == ControlKind::CheckBox) {
        SetChecked(id, !IsChecked(id));
    } else if (KindOf(id) == ControlKind::RadioButton) {
        CheckRadio(id);
    } else if (KindOf(id) == ControlKind::ColorButton) {
        ShowColor(id, PickColor(ShownColor(id)).value_or(ShownColor(id)));
    }
    m_dialog.OnClicked(*this, id);
    m_dialog.OnChanged(*this);
}

/// Its neighbours in the template are its group.
void ScriptedView::CheckRadio(int id) {
    std::vector<int> group;
    for (const Control& control : m_dialog.Template().Controls) {
        if (control.Kind == ControlKind::RadioButton) {
            group.push_back(control.Id);
            continue;
        }
        if (std::find(group.begin(), group.end(), id) != group.end()) {
            break;
        }
        group.clear();
    }
    for (const int other : group) {
        SetChecked(other, other == id);
    }
}

void ScriptedView::Pick(int id, int index) {
    UseByHand(id);
    Select(id, index);
    m_dialog.OnClicked(*this, id);
    m_dialog.OnChanged(*this);
}

void ScriptedView::Step(int id, int delta) {
    UseByHand(id);
    m_dialog.OnStep(*this, id, delta);
    m_dialog.OnChanged(*this);
}

bool ScriptedView::PressOk() {
    return m_dialog.OnOK(*this);
}

void ScriptedView::ChangeEverything() {
    m_changesEverything = true;
    std::vector<int> checked;
    const auto controls = m_dialog.Template().Controls;
    for (const Control& control : controls) {
        if (control.Kind == ControlKind::CheckBox && IsChecked(control.Id)) {
            checked.push_back(control.Id);
        } else if (control.Kind == ControlKind::CheckBox) {
            Click(control.Id);
        }
    }
    for (const Control& control : controls) {
        if (control.Id != kOkButton && control.Id != kCancelButton) {
            Change(control);
        }
    }
    for (const int id : checked) {
        Click(id);
    }
}

void ScriptedView::ChangeOne(int id) {
    m_changesEverything = true;
    m_disabled.erase(id);
    for (const Control& control : m_dialog.Template().Controls) {
        if (control.Id == id && control.Kind == ControlKind::CheckBox) {
            Click(id);
        } else if (control.Id == id) {
            Change(control);
        }
    }
}

void ScriptedView::Change(const Control& control) {
    const int id = control.Id;
    switch (control.Kind) {
    case ControlKind::Edit:
        Type(id, ReadNumber(Text(id)) != 0.0 ? std::to_string(std::lround(ReadNumber(Text(id))) + 1) : "7新");
        break;
    case ControlKind::RadioButton:
        if (!m_isRadioPicked && !IsChecked(id)) {
            Click(id);
            m_isRadioPicked = true;
        }
        return;
    case ControlKind::DropDownList:
    case ControlKind::LineStyles:
    case ControlKind::PositionPicker:
        Pick(id, Selection(id) + 1);
        break;
    case ControlKind::Button:
    case ControlKind::ColorButton:
        ColorsToPick = {0x030201U};
        FontsToPick = {[](FontChoice font) {
            font.Font.Height += 8;
            font.TextColor = 0x060504U;
            return font;
        }};
        Click(id);
        break;
    case ControlKind::EditableList:
        ChangeRows(id);
        break;
    default:
        break;
    }
    m_isRadioPicked = false;
}

void ScriptedView::ChangeRows(int id) {
    for (ListRow& row : m_rows.at(id)) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const ListColumn& column = m_columns.at(id)[i];
            const bool isFirst = column.Kind == CellKind::Choice && row[i] == column.Choices[0];
            row[i] = column.Kind == CellKind::Choice ? std::string(column.Choices[isFirst ? 1 : 0])
                     : column.Kind == CellKind::Line ? "66051 1.500000 2"
                     : column.Kind == CellKind::Text ? row[i] + "新"
                                                     : "3";
        }
    }
    m_dialog.OnChanged(*this);
}

bool ScriptedView::Run(Dialog& dialog) {
    if (!m_changesEverything) {
        return RunModal(dialog);
    }
    ScriptedView view(dialog);
    view.ChangeEverything();
    return view.PressOk();
}

std::string ScriptedView::Text(int id) const {
    const auto items = m_items.find(id);
    if (items == m_items.end()) {
        return m_texts.at(id);
    }
    const int selected = Selection(id);
    return selected < 0 ? "" : items->second[static_cast<std::size_t>(selected)];
}

void ScriptedView::SetText(int id, std::string_view text) {
    m_texts.at(id) = text;
}

bool ScriptedView::IsChecked(int id) const {
    return m_checked.contains(id);
}

void ScriptedView::SetChecked(int id, bool checked) {
    if (checked) {
        m_checked.insert(id);
    } else {
        m_checked.erase(id);
    }
}

void ScriptedView::SetColumns(int id, std::span<const ListColumn> columns) {
    m_columns[id] = columns;
}

void ScriptedView::SetRows(int id, std::vector<ListRow> rows) {
    m_rows[id] = std::move(rows);
}

std::vector<ListRow> ScriptedView::Rows(int id) const {
    return m_rows.at(id);
}

void ScriptedView::SetItems(int id, std::span<const std::string_view> items) {
    m_items[id].assign(items.begin(), items.end());
}

int ScriptedView::Selection(int id) const {
    const auto found = m_selections.find(id);
    return found == m_selections.end() ? -1 : found->second;
}

void ScriptedView::Select(int id, int index) {
    const auto rows = m_rows.find(id);
    const std::size_t count = rows != m_rows.end() ? rows->second.size() : m_items.at(id).size();
    m_selections[id] = index < static_cast<int>(count) ? std::max(index, -1) : -1;
}

std::uint32_t ScriptedView::ShownColor(int id) const {
    return m_colors.at(id);
}

void ScriptedView::ShowColor(int id, std::uint32_t colorRef) {
    m_colors[id] = colorRef;
}

void ScriptedView::SetEnabled(int id, bool enabled) {
    if (enabled) {
        m_disabled.erase(id);
    } else {
        m_disabled.insert(id);
    }
}

void ScriptedView::SetStepRange(int, int low, int high) {
    StepRange = {low, high};
}

void ScriptedView::Focus(int id) {
    Focused = id;
}

void ScriptedView::SelectText(int id) {
    SelectedText = id;
}

Answer ScriptedView::ShowMessage(std::string_view text, MessageButtons buttons) {
    Messages.emplace_back(text);
    return Next(Answers).value_or(buttons == MessageButtons::Ok ? Answer::Ok : Answer::No);
}

std::optional<std::uint32_t> ScriptedView::PickColor(std::uint32_t) {
    return Next(ColorsToPick);
}

std::optional<FontChoice> ScriptedView::PickFont(const FontChoice& shown) {
    const auto pick = Next(FontsToPick);
    return pick ? std::optional((*pick)(shown)) : std::nullopt;
}

ScriptedSheet::ScriptedSheet(Sheet& sheet) : m_sheet(sheet), m_views(sheet.Pages().size()) {
    if (Start().Control != kNoId) {
        GoTo(Page(Start().Page), Start());
    }
}

ScriptedView& ScriptedSheet::Page(std::size_t index) {
    if (m_views[index] == nullptr) {
        m_views[index] = std::make_unique<ScriptedView>(*m_sheet.Pages()[index].Page);
    }
    return *m_views[index];
}

std::vector<DialogView*> ScriptedSheet::Views() const {
    std::vector<DialogView*> views;
    for (const auto& view : m_views) {
        views.push_back(view.get());
    }
    return views;
}

bool ScriptedSheet::PressOk() {
    return m_sheet.OnOK(Views());
}

void ScriptedSheet::Changed() {
    m_sheet.OnChanged(Views());
}

User::User(std::vector<Use> uses, std::vector<UseSheet> sheets) {
    g_uses.assign(uses.begin(), uses.end());
    g_sheetUses.assign(sheets.begin(), sheets.end());
}

User::~User() {
    EXPECT_TRUE(g_uses.empty() && g_sheetUses.empty()) << "a window was not opened";
    g_uses.clear();
    g_sheetUses.clear();
}

bool Accept(ScriptedView& view) {
    return view.PressOk();
}

bool Cancel(ScriptedView&) {
    return false;
}

} // namespace testing_support

namespace millichart {

bool RunModal(Dialog& dialog) {
    const auto use = testing_support::Next(testing_support::g_uses);
    EXPECT_TRUE(use.has_value()) << "nobody expects " << dialog.Template().Title;
    testing_support::ScriptedView view(dialog);
    return use && (*use)(view);
}

bool RunModal(Sheet& sheet) {
    const auto use = testing_support::Next(testing_support::g_sheetUses);
    EXPECT_TRUE(use.has_value()) << "nobody expects " << sheet.Title();
    testing_support::ScriptedSheet opened(sheet);
    return use && (*use)(opened);
}

} // namespace millichart
