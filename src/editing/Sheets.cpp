#include "editing/Sheets.h"

#include <algorithm>

namespace millichart {
namespace {

SheetPage PageOf(Dialog& page) {
    return {&page, page.Template().Title};
}

/// Reads those of the pages that were shown, in the order of these indices, up to the first that refuses.
bool ReadBack(const std::vector<SheetPage>& pages, std::span<DialogView* const> views,
              std::initializer_list<std::size_t> order) {
    return std::all_of(order.begin(), order.end(),
                       [&](std::size_t i) { return views[i] == nullptr || pages[i].Page->OnOK(*views[i]); });
}

} // namespace

CSheetPie::CSheetPie(const PieProp& prop)
    : m_prop(prop), m_basic(prop.Basic), m_label(prop.Label), m_legend(prop.Legend) {}

std::string_view CSheetPie::Title() const {
    return "饼图属性";
}

std::vector<SheetPage> CSheetPie::Pages() {
    return {PageOf(m_basic), PageOf(m_label), PageOf(m_legend)};
}

bool CSheetPie::OnOK(std::span<DialogView* const> views) {
    const bool isAccepted = ReadBack(Pages(), views, {0, 1, 2});
    if (isAccepted) {
        m_prop = {m_basic.Edited(), m_label.Edited(), m_legend.Edited()};
    }
    return isAccepted;
}

CSheetHalfPie::CSheetHalfPie(const HalfPieProp& prop)
    : m_prop(prop), m_basic(prop.Basic), m_label(prop.Label) {}

std::string_view CSheetHalfPie::Title() const {
    return "半饼图属性";
}

std::vector<SheetPage> CSheetHalfPie::Pages() {
    return {PageOf(m_basic), PageOf(m_label)};
}

bool CSheetHalfPie::OnOK(std::span<DialogView* const> views) {
    const bool isAccepted = ReadBack(Pages(), views, {0, 1});
    if (isAccepted) {
        m_prop = {m_basic.Edited(), m_label.Edited()};
    }
    return isAccepted;
}

CSheetHalfPieHalfPie::CSheetHalfPieHalfPie(const HalfPieHalfPieProp& prop)
    : m_prop(prop), m_first(prop.First), m_second(prop.Second) {}

std::string_view CSheetHalfPieHalfPie::Title() const {
    return "半饼_半饼图属性";
}

std::vector<SheetPage> CSheetHalfPieHalfPie::Pages() {
    const auto first = m_first.Pages();
    const auto second = m_second.Pages();
    return {{first[0].Page, "半饼图1"},
            {first[1].Page, "标签1"},
            {second[0].Page, "半饼图2"},
            {second[1].Page, "标签2"}};
}

bool CSheetHalfPieHalfPie::OnOK(std::span<DialogView* const> views) {
    const bool isAccepted = m_first.OnOK(views.first(2)) && m_second.OnOK(views.subspan(2));
    if (isAccepted) {
        m_prop = {m_first.Edited(), m_second.Edited()};
    }
    return isAccepted;
}

CSheetHistogram::CSheetHistogram(const HistogramProp& prop)
    : m_prop(prop), m_plot(prop.Plot), m_verAxis(prop.VerAxis), m_horAxis(prop.HorAxis),
      m_caption(prop.Caption), m_legend(prop.Legend) {}

std::string_view CSheetHistogram::Title() const {
    return "直方图属性";
}

std::vector<SheetPage> CSheetHistogram::Pages() {
    return {PageOf(m_plot), PageOf(m_verAxis), PageOf(m_horAxis), PageOf(m_caption), PageOf(m_legend)};
}

/// The caption is read first.
bool CSheetHistogram::OnOK(std::span<DialogView* const> views) {
    const bool isAccepted = ReadBack(Pages(), views, {3, 0, 1, 2, 4});
    if (isAccepted) {
        m_prop = {m_caption.Edited(), m_verAxis.Edited(), m_horAxis.Edited(), m_plot.Edited(),
                  m_legend.Edited()};
    }
    return isAccepted;
}

CSheetHalfPieHistogram::CSheetHalfPieHistogram(const HalfPieHistogramProp& prop)
    : m_prop(prop), m_histogram(prop.Histogram), m_halfPie(prop.HalfPie) {}

std::string_view CSheetHalfPieHistogram::Title() const {
    return "半饼_直方图属性";
}

std::vector<SheetPage> CSheetHalfPieHistogram::Pages() {
    std::vector<SheetPage> pages = m_histogram.Pages();
    const auto halfPie = m_halfPie.Pages();
    pages.insert(pages.end(), halfPie.begin(), halfPie.end());
    return pages;
}

bool CSheetHalfPieHistogram::OnOK(std::span<DialogView* const> views) {
    const bool isAccepted = m_histogram.OnOK(views.first(5)) && m_halfPie.OnOK(views.subspan(5));
    if (isAccepted) {
        m_prop = {m_histogram.Edited(), m_halfPie.Edited()};
    }
    return isAccepted;
}

CSheetCurve::CSheetCurve(const CurveProp& prop)
    : m_prop(prop), m_plot(prop.Plot), m_verAxis(prop.VerAxis), m_horAxis(prop.HorAxis),
      m_caption(prop.Caption), m_legend(prop.Legend) {}

std::string_view CSheetCurve::Title() const {
    return "曲线属性";
}

std::vector<SheetPage> CSheetCurve::Pages() {
    return {PageOf(m_plot), PageOf(m_verAxis), PageOf(m_horAxis), PageOf(m_caption), PageOf(m_legend)};
}

bool CSheetCurve::OnOK(std::span<DialogView* const> views) {
    const bool isAccepted = ReadBack(Pages(), views, {0, 1, 2, 3, 4});
    if (isAccepted) {
        m_prop = {m_caption.Edited(), m_verAxis.Edited(), m_horAxis.Edited(), m_plot.Edited(),
                  m_legend.Edited()};
    }
    return isAccepted;
}

} // namespace millichart
