#pragma once

#include "charts/pie/HalfPieHistogramProp.h"
#include "editing/HorAxisPages.h"
#include "editing/PiePages.h"
#include "editing/PlotPages.h"
#include "editing/SharedPages.h"
#include "editing/VerAxisPages.h"

/// The sheets in which a whole chart's record is edited. Each holds a copy of the record and a page on a copy
/// of each of its parts; once all pages that were shown have accepted, the parts go back into the copy.
namespace millichart {

class CSheetPie : public Sheet {
public:
    explicit CSheetPie(const PieProp& prop);

    const PieProp& Edited() const { return m_prop; }

    std::string_view Title() const override;
    std::vector<SheetPage> Pages() override;
    bool OnOK(std::span<DialogView* const> views) override;

private:
    PieProp m_prop;
    CPagePie m_basic;
    CPagePieLabel m_label;
    CPageLegend m_legend;
};

class CSheetHalfPie : public Sheet {
public:
    explicit CSheetHalfPie(const HalfPieProp& prop);

    const HalfPieProp& Edited() const { return m_prop; }

    std::string_view Title() const override;
    std::vector<SheetPage> Pages() override;
    bool OnOK(std::span<DialogView* const> views) override;

private:
    HalfPieProp m_prop;
    CPageHalfPie m_basic;
    CPagePieLabel m_label;
};

class CSheetHalfPieHalfPie : public Sheet {
public:
    explicit CSheetHalfPieHalfPie(const HalfPieHalfPieProp& prop);

    const HalfPieHalfPieProp& Edited() const { return m_prop; }

    std::string_view Title() const override;
    std::vector<SheetPage> Pages() override;
    bool OnOK(std::span<DialogView* const> views) override;

private:
    HalfPieHalfPieProp m_prop;
    CSheetHalfPie m_first;
    CSheetHalfPie m_second;
};

class CSheetHistogram : public Sheet {
public:
    explicit CSheetHistogram(const HistogramProp& prop);

    const HistogramProp& Edited() const { return m_prop; }

    std::string_view Title() const override;
    std::vector<SheetPage> Pages() override;
    bool OnOK(std::span<DialogView* const> views) override;

private:
    HistogramProp m_prop;
    CPageHistogramPlot m_plot;
    CPageHistogramVerAxis m_verAxis;
    CPageHistogramHorAxis m_horAxis;
    CPageCaption m_caption;
    CPageLegend m_legend;
};

/// A bar chart's pages, then a half pie's.
class CSheetHalfPieHistogram : public Sheet {
public:
    explicit CSheetHalfPieHistogram(const HalfPieHistogramProp& prop);

    const HalfPieHistogramProp& Edited() const { return m_prop; }

    std::string_view Title() const override;
    std::vector<SheetPage> Pages() override;
    bool OnOK(std::span<DialogView* const> views) override;

private:
    HalfPieHistogramProp m_prop;
    CSheetHistogram m_histogram;
    CSheetHalfPie m_halfPie;
};

class CSheetCurve : public Sheet {
public:
    explicit CSheetCurve(const CurveProp& prop);

    const CurveProp& Edited() const { return m_prop; }

    std::string_view Title() const override;
    std::vector<SheetPage> Pages() override;
    bool OnOK(std::span<DialogView* const> views) override;

private:
    CurveProp m_prop;
    CPageCurvePlot m_plot;
    CPageCurveVerAxis m_verAxis;
    CPageCurveHorAxis m_horAxis;
    CPageCaption m_caption;
    CPageLegend m_legend;
};

} // namespace millichart
