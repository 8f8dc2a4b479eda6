#include "editing/ScriptedView.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace millichart;

namespace testing_support {
namespace {

std::deque<Use> g_uses;

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
    } else if (KindOf(id) == ControlKind::ColorButton) {
        ShowColor(id, PickColor(ShownColor(id)).value_or(ShownColor(id)));
    }
    m_dialog.OnClicked(*this, id);
    m_dialog.OnChanged(*this);
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

void ScriptedView::SetItems(int id, std::span<const std::string_view> items) {
    m_items[id].assign(items.begin(), items.end());
}

int ScriptedView::Selection(int id) const {
    const auto found = m_selections.find(id);
    return found == m_selections.end() ? -1 : found->second;
}

void ScriptedView::Select(int id, int index) {
    m_selections[id] = index < static_cast<int>(m_items.at(id).size()) ? std::max(index, -1) : -1;
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

User::User(std::vector<Use> uses) {
    g_uses.assign(uses.begin(), uses.end());
}

User::~User() {
    EXPECT_TRUE(g_uses.empty()) << g_uses.size() << " dialogs were not opened";
    g_uses.clear();
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

} // namespace millichart
