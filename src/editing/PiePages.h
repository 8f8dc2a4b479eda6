#pragma once

#include "charts/pie/HalfPieProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// A pie itself: its look, its size and its components.
class CPagePie : public RecordDialog<PieBasicProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<PieBasicProp>> Fields() const override;
};

/// A half pie itself.
class CPageHalfPie : public RecordDialog<HalfPieBasicProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<HalfPieBasicProp>> Fields() const override;
};

/// The labels round a pie or a half pie.
class CPagePieLabel : public RecordDialog<PieLabelProp> {
public:
    using RecordDialog::RecordDialog;

    const DialogTemplate& Template() const override;

private:
    std::span<const Field<PieLabelProp>> Fields() const override;
};

} // namespace millichart
