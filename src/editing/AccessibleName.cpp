#include "editing/AccessibleName.h"

#include <algorithm>

namespace millichart {
namespace {

bool Is(std::span<const Control> controls, std::size_t index, ControlKind kind) {
    return index < controls.size() && controls[index].Kind == kind;
}

/// The control that lends its text to another; one that is not there for none.
std::size_t NameGiver(std::span<const Control> controls, std::size_t index) {
    const std::size_t before = index - 1;
    if (Is(controls, index, ControlKind::Stepper) && Is(controls, before, ControlKind::Edit)) {
        return NameGiver(controls, before);
    }
    if (Is(controls, before, ControlKind::Label)) {
        return before;
    }
    return Is(controls, index + 1, ControlKind::Button) ? index + 1 : before;
}

std::string Plain(std::string_view text) {
    std::string plain(text);
    std::erase_if(plain, [](char c) { return c == '&' || c == ':'; });
    return plain;
}

} // namespace

std::string AccessibleName(std::span<const Control> controls, std::size_t index) {
    if (!controls[index].Text.empty()) {
        return Plain(controls[index].Text);
    }
    const std::size_t giver = NameGiver(controls, index);
    return giver < controls.size() ? Plain(controls[giver].Text) : std::string();
}

} // namespace millichart
