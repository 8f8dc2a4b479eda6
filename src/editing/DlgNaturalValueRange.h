#pragma once

#include "editing/Dialog.h"

namespace millichart {

/// The range of a linear value axis and the distances of its ticks, in the axis's own units.
struct NaturalValueRange {
    double Minimum = 0.0;
    double Maximum = 0.0;
    double MajorStep = 0.0;
    double MinorStep = 0.0;
};

/// The minimum is shown and stays. A range of more than ten thousand ticks cannot be confirmed.
class CDlgNaturalValueRange : public Dialog {
public:
    explicit CDlgNaturalValueRange(const NaturalValueRange& range) : m_range(range) {}

    const NaturalValueRange& Edited() const { return m_range; }

    const DialogTemplate& Template() const override;
    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;

private:
    NaturalValueRange m_range;
};

} // namespace millichart
