#include "editing/DlgLinePenProp.h"

#include "editing/NumberInput.h"
#include "editing/Refusal.h"
#include "foundation/NumberText.h"

#include <array>
#include <string>

namespace millichart {
namespace {

enum : int { kWidth = 18400, kWidthSteps = 18401, kLineStyle = 18402, kColor = 18403 };

constexpr double kLeastStep = 0.1;
constexpr double kMaxWidth = 20.0;

using enum ControlKind;

constexpr std::array kControls{
    Control{kNoId, Label, "线型(&S):", 7, 12, 44, 8},
    Control{kLineStyle, LineStyles, "", 51, 7, 106, 18},
    Control{kNoId, Label, "颜色(&C):", 7, 33, 44, 8},
    Control{kColor, ColorButton, "", 51, 30, 52, 14},
    Control{kNoId, Label, "线宽(&W):", 7, 53, 44, 8},
    Control{kWidth, Edit, "", 51, 50, 41, 14},
    Control{kWidthSteps, Stepper, "", 92, 50, 11, 14},
    Control{kNoId, Label, "毫米", 107, 53, 20, 8},
    Control{kOkButton, DefaultButton, "确定", 51, 75, 50, 14},
    Control{kCancelButton, Button, "取消", 107, 75, 50, 14},
};

constexpr DialogTemplate kTemplate{14201, "线条属性", 164, 96, kControls};

std::string WidthText(double width) {
    return WithoutTrailingZeros(FixedText(width, 6));
}

} // namespace

LinePenValues ValuesOf(penlode::Pen& pen) {
    penlode::Color color = penlode::kBlack;
    if (pen.GetFillType() == penlode::PenFillType::SolidColor) {
        color = pen.GetColor();
    } else {
        pen.RecordFailure(penlode::Status::WrongState);
    }
    return {ToColorRef(color), static_cast<double>(pen.GetWidth()),
            static_cast<std::int32_t>(pen.GetDashStyle())};
}

void Apply(const LinePenValues& values, penlode::Pen& pen) {
    pen.SetColor(penlode::FromColorRef(values.ColorRef));
    pen.SetWidth(static_cast<float>(values.Width));
    pen.SetDashStyle(static_cast<penlode::DashStyle>(values.DashStyle));
}

const DialogTemplate& CDlgLinePenProp::Template() const {
    return kTemplate;
}

void CDlgLinePenProp::OnInitDialog(DialogView& view) {
    view.ShowColor(kColor, m_values.ColorRef);
    view.Select(kLineStyle, m_values.DashStyle);
    view.SetText(kWidth, WidthText(m_values.Width));
    view.SetStepRange(kWidthSteps, 1, 200);
}

void CDlgLinePenProp::OnStep(DialogView& view, int, int delta) {
    double width = ReadNumber(view.Text(kWidth)) + (delta >= 1 ? kLeastStep : -kLeastStep);
    if (width > kMaxWidth) {
        width = kLeastStep;
    } else if (width < kLeastStep) {
        width = kMaxWidth;
    }
    view.SetText(kWidth, WidthText(width));
}

bool CDlgLinePenProp::OnOK(DialogView& view) {
    m_values.ColorRef = view.ShownColor(kColor);
    m_values.DashStyle = view.Selection(kLineStyle);
    m_values.Width = ReadNumber(view.Text(kWidth));
    const bool isInRange = m_values.Width >= 0.0 && m_values.Width <= kMaxWidth;
    return isInRange || Refuse(view, "线宽应 >= 0, 且 <= 20。", kWidth);
}

} // namespace millichart
