#pragma once

#include "penlode/RecordedCall.h"
#include "penlode/engine/TrackingEngine.h"

#include <string>
#include <vector>

namespace penlode {

/// An engine that draws nothing and writes down every call that changes or draws something, in order; queries
/// (Get..., Measure..., TransformPoints) are answered and leave no line. Bad arguments are written down too,
/// and answered as by the engines that draw. Its device unit is the millimetre.
class PENLODE_API CRecordingEngine final : public CTrackingEngine {
public:
    CRecordingEngine();

    const std::vector<RecordedCall>& Calls() const { return m_calls; }

    void Clear() { m_calls.clear(); }

    /// All calls, one a line, each line ended by "\n".
    std::string Text(int decimals = 2) const;

private:
    // What is recorded is checked, and nothing more.
    Status StrokeOutline(const Outline&, const Pen&) override { return Status::Ok; }

    Status FillOutline(const Outline&, const SolidBrush&) override { return Status::Ok; }

    Status StrokeDataLine(DataRun&, const Pen&) override { return Status::Ok; }

    std::vector<float> DataColumns(float, float) const override { return {}; }

    Status PaintText(const TextRun&) override { return Status::Ok; }

    Status PaintImage(const ImagePart&) override { return Status::Ok; }

    Status PaintGradient(const GradientMesh&) override { return Status::Ok; }

    std::vector<RecordedCall> m_calls;
};

} // namespace penlode
