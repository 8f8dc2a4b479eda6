#pragma once

#include "editing/Dialog.h"

namespace millichart {

/// The range of a logarithmic value axis; each end is a power of ten.
struct LogarithmValueRange {
    double Minimum = 0.0;
    double Maximum = 0.0;
};

class CDlgLogarithmValueRange : public Dialog {
public:
    explicit CDlgLogarithmValueRange(const LogarithmValueRange& range) : m_range(range) {}

    const LogarithmValueRange& Edited() const { return m_range; }

    const DialogTemplate& Template() const override;
    void OnInitDialog(DialogView& view) override;
    bool OnOK(DialogView& view) override;

private:
    LogarithmValueRange m_range;
};

} // namespace millichart
