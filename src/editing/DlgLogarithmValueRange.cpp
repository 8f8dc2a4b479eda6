#include "editing/DlgLogarithmValueRange.h"

#include "editing/NumberInput.h"
#include "editing/Refusal.h"

#include <array>
#include <cmath>

namespace millichart {
namespace {

enum : int { kMinimum = 18484, kMaximum = 18485 };

constexpr double kTolerance = 1e-8;

constexpr std::array<std::string_view, 14> kPowers{
    "0.000001", "0.00001", "0.0001", "0.001", "0.01",   "0.1",     "1", //
    "10",       "100",     "1000",   "10000", "100000", "1000000", "10000000"};

/// The least power is no maximum.
constexpr std::span<const std::string_view> kMaxima = std::span(kPowers).subspan(1);

using enum ControlKind;

constexpr std::array kControls{
    Control{kNoId, Label, "最小值:", 7, 10, 44, 8},
    Control{kMinimum, DropDownList, "", 51, 7, 106, 14},
    Control{kNoId, Label, "最大值:", 7, 30, 44, 8},
    Control{kMaximum, DropDownList, "", 51, 27, 106, 14},
    Control{kOkButton, DefaultButton, "确定", 51, 52, 50, 14},
    Control{kCancelButton, Button, "取消", 107, 52, 50, 14},
};

constexpr DialogTemplate kTemplate{14207, "对数坐标设置", 164, 73, kControls};

/// The first entry near `value`; entries are compared as `Number`s.
template <class Number> int IndexOf(std::span<const std::string_view> entries, double value) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto entry = static_cast<Number>(ReadNumber(entries[i]));
        if (std::abs(static_cast<double>(entry) - value) <= kTolerance) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool AskFor(DialogView& view, int list, std::string_view message) {
    view.ShowMessage(message);
    view.Focus(list);
    return false;
}

} // namespace

const DialogTemplate& CDlgLogarithmValueRange::Template() const {
    return kTemplate;
}

void CDlgLogarithmValueRange::OnInitDialog(DialogView& view) {
    view.SetItems(kMinimum, kPowers);
    view.SetItems(kMaximum, kMaxima);
    view.Select(kMinimum, IndexOf<float>(kPowers, m_range.Minimum));
    view.Select(kMaximum, IndexOf<double>(kMaxima, m_range.Maximum));
}

bool CDlgLogarithmValueRange::OnOK(DialogView& view) {
    const int minimum = view.Selection(kMinimum);
    if (minimum < 0) {
        return AskFor(view, kMinimum, "请选择最小值。");
    }
    m_range.Minimum = ReadNumber(view.Text(kMinimum));
    if (view.Selection(kMaximum) < 0) {
        return AskFor(view, kMaximum, "请选择最大值。");
    }
    m_range.Maximum = ReadNumber(view.Text(kMaximum));
    if (m_range.Maximum <= m_range.Minimum) {
        return Refuse(view, "最大值应大于最小值。");
    }
    return true;
}

} // namespace millichart
