#include "editing/DlgNaturalValueRange.h"

#include "editing/NumberInput.h"
#include "editing/Refusal.h"
#include "foundation/NumberText.h"

#include <array>

namespace millichart {
namespace {

enum : int { kMinimum = 18480, kMaximum = 18481, kMajorStep = 18482, kMinorStep = 18483 };

constexpr double kLimit = 100000000.0;
constexpr double kMaxTicks = 10000.0;

using enum ControlKind;

constexpr std::array kControls{
    Control{kNoId, Label, "最小值:", 7, 10, 56, 8},
    Control{kMinimum, ReadOnlyEdit, "", 63, 7, 94, 14},
    Control{kNoId, Label, "最大值:", 7, 30, 56, 8},
    Control{kMaximum, Edit, "", 63, 27, 94, 14},
    Control{kNoId, Label, "主刻度步长:", 7, 50, 56, 8},
    Control{kMajorStep, Edit, "", 63, 47, 94, 14},
    Control{kNoId, Label, "次刻度步长:", 7, 70, 56, 8},
    Control{kMinorStep, Edit, "", 63, 67, 94, 14},
    Control{kOkButton, DefaultButton, "确定", 51, 92, 50, 14},
    Control{kCancelButton, Button, "取消", 107, 92, 50, 14},
};

constexpr DialogTemplate kTemplate{14206, "自然坐标设置", 164, 113, kControls};

} // namespace

const DialogTemplate& CDlgNaturalValueRange::Template() const {
    return kTemplate;
}

void CDlgNaturalValueRange::OnInitDialog(DialogView& view) {
    view.SetText(kMinimum, FixedText(m_range.Minimum, 2));
    view.SetText(kMaximum, FixedText(m_range.Maximum, 2));
    view.SetText(kMajorStep, FixedText(m_range.MajorStep, 2));
    view.SetText(kMinorStep, FixedText(m_range.MinorStep, 2));
}

bool CDlgNaturalValueRange::OnOK(DialogView& view) {
    auto& [minimum, maximum, majorStep, minorStep] = m_range;
    minimum = ReadNumber(view.Text(kMinimum));
    if (minimum < 0.0) {
        return Refuse(view, "最小值不能小于0。");
    }
    maximum = ReadNumber(view.Text(kMaximum));
    if (maximum <= minimum) {
        return Refuse(view, "最大值应大于最小值。");
    }
    if (maximum >= kLimit) {
        return Refuse(view, "最大值应小于100000000。");
    }
    majorStep = ReadNumber(view.Text(kMajorStep));
    if (majorStep <= 0.0) {
        return Refuse(view, "主刻度步长应大于0。");
    }
    if (majorStep > maximum) {
        return Refuse(view, "主刻度步长不能大于最大值。");
    }
    minorStep = ReadNumber(view.Text(kMinorStep));
    if (minorStep <= 0.0) {
        return Refuse(view, "次刻度步长应大于0。");
    }
    if (minorStep > majorStep) {
        return Refuse(view, "次刻度步长不能大于主刻度步长。");
    }
    const bool isTooDense = maximum / majorStep > kMaxTicks || maximum / minorStep > kMaxTicks;
    // Yes and No both keep the dialog open: the steps have to grow.
    return !isTooDense || view.ShowMessage("步长过小,可能要花很多时间进行计算。\n是否继续?",
                                           MessageButtons::YesNo) == Answer::NotShown;
}

} // namespace millichart
