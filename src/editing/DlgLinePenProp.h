#pragma once

#include "editing/Dialog.h"
#include "penlode/Pen.h"

#include <cstdint>

namespace millichart {

struct LinePenValues {
    std::uint32_t ColorRef = 0; ///< a Windows RGB value
    double Width = 0.1;         ///< mm
    std::int32_t DashStyle = 0; ///< 0 solid to 4 dash-dot-dot, −1 if none is picked

    friend bool operator==(const LinePenValues&, const LinePenValues&) = default;
};

/// What the dialog shows of a pen. Of one whose fill is no plain colour it shows black, and records
/// WrongState in it.
LinePenValues ValuesOf(penlode::Pen& pen);

/// Makes a pen what the dialog gives back: opaque, with its own dash style if none was picked.
void Apply(const LinePenValues& values, penlode::Pen& pen);

/// Dash style, colour and width of a line, from 0 to 20 mm.
class CDlgLinePenProp : public Dialog {
public:
    explicit CDlgLinePenProp(const LinePenValues& values) : m_values(values) {}

    const LinePenValues& Edited() const { return m_values; }

    const DialogTemplate& Template() const override;
    void OnInitDialog(DialogView& view) override;
    /// Up and down by 0.1 mm, round from 20 to 0.1 and back.
    void OnStep(DialogView& view, int id, int delta) override;
    bool OnOK(DialogView& view) override;

private:
    LinePenValues m_values;
};

} // namespace millichart
