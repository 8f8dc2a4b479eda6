#pragma once

#include "foundation/ChartOptions.h"
#include "foundation/Export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace millichart {

/// Writes the numbers of a chart: at its value axis, its bars and its slices. As constructed, or made from
/// options without exact numbers, it writes whole numbers, one or two decimals by fixed rules.
///
///                     | classical          | exact, with commas  | exact, Chinese
///     0, 0.25 ... 1   | 0, 0, 0, 1, 1      | 0.00, 0.25 ... 1.00 | 0.00, 0.25 ... 1.00
///     0, 5000, 10000  | 0, 5000, 10000     | 0, 5,000, 10,000    | 0, 0.5万, 1.0万
///     a bar of 1234.5 | 1234               | 1,234.5             | 1234.5
///
/// Texts are narrow (GB18030). An exact one never says -0, and is a power of ten, as in 2.5×10¹², where plain
/// digits could not be read.
class MILLICHART_API NumberFormat {
public:
    NumberFormat() = default;
    explicit NumberFormat(const ChartOptions& options);

    /// Of a linear axis's ticks, which ascend by `step`; exact ones all with the decimals that the step and
    /// the first tick need, and in one unit.
    std::vector<std::string> StepLabels(const std::vector<double>& ticks, double step) const;

    /// Of a logarithmic axis's ticks, each ten times the one before it. Exact ones are all powers of ten if
    /// one is above 100,000 or below 0.00001: 10⁰, 10¹ ... 10⁶, or 5×10⁰ and so on.
    std::vector<std::string> DecadeLabels(const std::vector<double>& ticks) const;

    /// Of a value at a bar or slice; an exact one with its own decimals, up to MaxDecimals.
    std::string ValueText(double value, int classicalDecimals) const;

    /// With one decimal and "%". An exact one is <0.1% or >99.9% where it would be all or nothing and is not.
    std::string PercentText(double percent) const;

private:
    bool m_isExact = false;
    std::int32_t m_thousands = ThousandsStyle::None;
    int m_maxDecimals = 0;
};

} // namespace millichart
