#include "editing/Edit.h"
#include "editing/ScriptedView.h"
#include "editing/Sheets.h"
#include "millichart.h"
#include "support/SomeRecords.h"
#include "support/Texts.h"

#include <gtest/gtest.h>

using namespace millichart;
using namespace testing_support;
using penlode::CJsonSerializeStream;
using penlode::Color;

namespace {

using Texts = std::vector<std::string>;

/// Each field of a record, by the record's own list of them: where it stands ("CaptionProp/ShowCaption") and
/// its text.
using FieldTexts = std::vector<std::pair<std::string, std::string>>;

template <class Prop, class Serialize> FieldTexts FieldsOf(const Prop& prop, const Serialize& serialize) {
    Prop saved = prop;
    CJsonSerializeStream stream;
    serialize(stream, saved, "property");
    FieldTexts fields;
    Texts groups;
    std::istringstream text(stream.Text());
    for (std::string line; std::getline(text, line);) {
        const std::size_t quote = line.find('"');
        const std::string key =
            quote == std::string::npos ? "" : line.substr(quote + 1, line.find('"', quote + 1) - quote - 1);
        if (line.ends_with('{')) {
            groups.push_back(groups.size() < 2 ? "" : groups.back() + key + '/');
        } else if (line.ends_with('[')) {
            fields.emplace_back(groups.back() + key, "");
        } else if (line.find("\": ") != std::string::npos) {
            fields.emplace_back(groups.back() + key, line);
        } else if (line.find('}') != std::string::npos) {
            groups.pop_back();
        } else {
            fields.back().second += line; // of a list
        }
    }
    return fields;
}

/// Turns to every page of the sheet that `edit` opens, changes all of it or nothing, and presses OK.
template <class Prop> Prop Edited(Prop prop, bool (*edit)(Prop*), bool changesEverything) {
    const User user({}, {[changesEverything](ScriptedSheet& sheet) {
                        for (std::size_t i = 0; i < sheet.PageCount(); ++i) {
                            if (ScriptedView& page = sheet.Page(i); changesEverything) {
                                page.ChangeEverything();
                            }
                        }
                        const bool isAccepted = sheet.PressOk();
                        for (std::size_t i = 0; i < sheet.PageCount(); ++i) {
                            EXPECT_EQ(sheet.Page(i).Messages, Texts());
                        }
                        return isAccepted;
                    }});
    EXPECT_TRUE(edit(&prop));
    return prop;
}

/// Where two lists of the same fields are alike, or not.
Texts Places(const FieldTexts& a, const FieldTexts& b, bool alike) {
    EXPECT_EQ(a.size(), b.size());
    Texts places;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        if ((a[i].second == b[i].second) == alike) {
            places.push_back(a[i].first);
        }
    }
    return places;
}

/// `normalised` are the fields that OK alone changes: colours become opaque, and numbers what their texts
/// say. `withoutControl` are those that no control changes. A new field is either's, or has a control.
template <class Prop, class Serialize>
void ExpectEveryFieldHasAControl(const Prop& prop, bool (*edit)(Prop*), const Serialize& serialize,
                                 const Texts& normalised, const Texts& withoutControl = {}) {
    const Prop plain = Edited(prop, edit, false);
    EXPECT_EQ(Places(FieldsOf(prop, serialize), FieldsOf(plain, serialize), false), normalised);
    EXPECT_EQ(Edited(plain, edit, false), plain);
    const Prop changed = Edited(plain, edit, true);
    EXPECT_EQ(Places(FieldsOf(plain, serialize), FieldsOf(changed, serialize), true), withoutControl);
    EXPECT_EQ(Edited(changed, edit, false), changed);
}

const auto kPie = [](auto& s, auto& p, auto* tag) { CPiePropSerialize::SerializePieProp(s, p, tag); };
const auto kHalfPie = [](auto& s, auto& p, auto* tag) {
    CHalfPiePropSerialize::SerializeHalfPieProp(s, p, tag);
};
const auto kBars = [](auto& s, auto& p, auto* tag) {
    CHistogramPropSerialize::SerializeHistogramProp(s, p, tag);
};
const auto kCurves = [](auto& s, auto& p, auto* tag) { CCurvePropSerialize::SerializeCurveProp(s, p, tag); };

TEST(PieSheets, HaveAControlForEveryField) {
    PieProp pie = SomePie();
    pie.Legend = SomeLegend();
    ExpectEveryFieldHasAControl(pie, &EditPieProp, kPie, {"PieBasicProp/ComponentColor"});
    ExpectEveryFieldHasAControl(SomeHalf(), &EditHalfPieProp, kHalfPie, {});
    ExpectEveryFieldHasAControl(HalfPieHalfPieProp{SomeHalf(), SomeHalf()}, &EditHalfPieHalfPieProp,
                                [](auto& s, auto& p, auto* tag) {
                                    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(s, p, tag);
                                },
                                {});
    ExpectEveryFieldHasAControl(HalfPieHistogramProp{SomeHistogram(), SomeHalf()}, &EditHalfPieHistogramProp,
                                [](auto& s, auto& p, auto* tag) {
                                    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(s, p, tag);
                                },
                                {"Histogram/HistogramPlotProp/ComponentColor"},
                                {"Histogram/HistogramPlotProp/ConponentInfoInSingleRow",
                                 "Histogram/HistogramPlotProp/ConponentInfoSeparator"});
}

TEST(BarAndLineSheets, HaveAControlForEveryField) {
    ExpectEveryFieldHasAControl(
        SomeHistogram(), &EditHistogramProp, kBars, {"HistogramPlotProp/ComponentColor"},
        {"HistogramPlotProp/ConponentInfoInSingleRow", "HistogramPlotProp/ConponentInfoSeparator"});
    ExpectEveryFieldHasAControl(SomeCurves(), &EditCurveProp, kCurves,
                                {"CurvePlotProp/CurveColor", "CurvePlotProp/CurveDotWidth",
                                 "CurvePlotProp/PlotWidth", "CurvePlotProp/PlotHeight"});
}

/// Whose control is whose: each of these changes its field, or its group of fields, and no other.
struct Bound {
    std::size_t Page;
    int Id;
    const char* Field;
};

template <class Window, class Prop, class Serialize>
void ExpectBound(const Prop& prop, const Serialize& serialize, const std::vector<Bound>& bounds) {
    Window untouched(prop);
    ScriptedSheet sheetUntouched(untouched);
    for (std::size_t i = 0; i < sheetUntouched.PageCount(); ++i) {
        sheetUntouched.Page(i);
    }
    ASSERT_TRUE(sheetUntouched.PressOk());
    const Prop plain = untouched.Edited();
    for (const auto& [page, id, field] : bounds) {
        Window window(plain);
        ScriptedSheet sheet(window);
        sheet.Page(page).ChangeOne(id);
        EXPECT_TRUE(sheet.PressOk());
        const Texts changed = Places(FieldsOf(plain, serialize), FieldsOf(window.Edited(), serialize), false);
        EXPECT_FALSE(changed.empty()) << id;
        for (const std::string& place : changed) {
            EXPECT_TRUE(place.starts_with(field)) << id << " changes " << place;
        }
    }
}

TEST(HistogramSheet, BindsEachControlToItsField) {
    ExpectBound<CSheetHistogram>(SomeHistogram(), kBars,
                                 {{0, 18460, "HistogramPlotProp/Component"},
                                  {0, 18477, "HistogramPlotProp/Juxtaposition"},
                                  {0, 18425, "HistogramPlotProp/LogarithmScale"},
                                  {0, 18450, "HistogramPlotProp/PlotWidth"},
                                  {0, 18429, "HistogramPlotProp/PlotHeight"},
                                  {0, 18461, "HistogramPlotProp/ShowEdge"},
                                  {0, 18462, "HistogramPlotProp/EdgePen"},
                                  {0, 18463, "HistogramPlotProp/ShowBackground"},
                                  {0, 18465, "HistogramPlotProp/PlotBackgroundColor"},
                                  {0, 18456, "HistogramPlotProp/GroupDistane"},
                                  {0, 18478, "HistogramPlotProp/PieStyle"},
                                  {0, 18421, "HistogramPlotProp/ShowComponentName"},
                                  {0, 18422, "HistogramPlotProp/ShowComponentValue"},
                                  {0, 18423, "HistogramPlotProp/ComponentInfoTextProperty/"},
                                  {1, 18428, "HistogramVerAxisProp/ShowVerAxis"},
                                  {1, 18430, "HistogramVerAxisProp/VerAxisPen"},
                                  {1, 18441, "HistogramVerAxisProp/ShowVerCaption"},
                                  {1, 18467, "HistogramVerAxisProp/VerCaption"},
                                  {1, 18442, "HistogramVerAxisProp/VerCaptionTextProperty/"},
                                  {1, 18431, "HistogramVerAxisProp/MajorScaleStyle"},
                                  {1, 18435, "HistogramVerAxisProp/MinorScaleStyle"},
                                  {1, 18439, "HistogramVerAxisProp/ShowVerAxisLabel"},
                                  {1, 18440, "HistogramVerAxisProp/VerAxisLabelTextProperty/"},
                                  {1, 18443, "HistogramVerAxisProp/ShowHorMajorGrid"},
                                  {1, 18444, "HistogramVerAxisProp/HorMajorGridPen"},
                                  {1, 18445, "HistogramVerAxisProp/ShowHorMinorGrid"},
                                  {1, 18446, "HistogramVerAxisProp/HorMinorGridPen"},
                                  {2, 18447, "HistogramHorAxisProp/ShowHorAxis"},
                                  {2, 18451, "HistogramHorAxisProp/HorAxisPen"},
                                  {2, 18448, "HistogramHorAxisProp/ShowHorCaption"},
                                  {2, 18468, "HistogramHorAxisProp/HorCaption"},
                                  {2, 18449, "HistogramHorAxisProp/HorCaptionTextProperty/"},
                                  {2, 18426, "HistogramHorAxisProp/ShowGroupName"},
                                  {2, 18457, "HistogramHorAxisProp/GroupNameTextProperty/"},
                                  {2, 18453, "HistogramHorAxisProp/ScaleStyle"},
                                  {2, 18458, "HistogramHorAxisProp/ShowVerGrid"},
                                  {2, 18459, "HistogramHorAxisProp/VerGridPen"}});
}

TEST(CurveSheet, BindsEachControlToItsField) {
    ExpectBound<CSheetCurve>(SomeCurves(), kCurves,
                             {{0, 18490, "CurvePlotProp/"},
                              {0, 18489, "CurvePlotProp/LogarithmScale"},
                              {0, 18491, "CurvePlotProp/PlotWidth"},
                              {0, 18492, "CurvePlotProp/PlotHeight"},
                              {0, 18493, "CurvePlotProp/ShowEdge"},
                              {0, 18494, "CurvePlotProp/EdgePen"},
                              {0, 18495, "CurvePlotProp/ShowBackground"},
                              {0, 18497, "CurvePlotProp/PlotBackgroundColor"},
                              {1, 18511, "CurveVerAxisProp/ShowVerAxis"},
                              {1, 18512, "CurveVerAxisProp/VerAxisPen"},
                              {1, 18513, "CurveVerAxisProp/ShowVerCaption"},
                              {1, 18514, "CurveVerAxisProp/VerCaption"},
                              {1, 18515, "CurveVerAxisProp/VerCaptionTextProperty/"},
                              {1, 18519, "CurveVerAxisProp/MajorScaleStyle"},
                              {1, 18520, "CurveVerAxisProp/MinorScaleStyle"},
                              {1, 18524, "CurveVerAxisProp/ShowVerAxisLabel"},
                              {1, 18525, "CurveVerAxisProp/VerAxisLabelTextProperty/"},
                              {1, 18526, "CurveVerAxisProp/ShowHorMajorGrid"},
                              {1, 18528, "CurveVerAxisProp/HorMajorGridPen"},
                              {1, 18527, "CurveVerAxisProp/ShowHorMinorGrid"},
                              {1, 18529, "CurveVerAxisProp/HorMinorGridPen"},
                              {2, 18498, "CurveHorAxisProp/ShowHorAxis"},
                              {2, 18499, "CurveHorAxisProp/HorAxisPen"},
                              {2, 18500, "CurveHorAxisProp/ShowHorCaption"},
                              {2, 18501, "CurveHorAxisProp/HorCaption"},
                              {2, 18502, "CurveHorAxisProp/HorCaptionTextProperty/"},
                              {2, 18503, "CurveHorAxisProp/ShowLabel"},
                              {2, 18546, "CurveHorAxisProp/LabelStep"},
                              {2, 18504, "CurveHorAxisProp/HorLabelTextProperty/"},
                              {2, 18505, "CurveHorAxisProp/ScaleStyle"},
                              {2, 18548, "CurveHorAxisProp/ScaleStep"},
                              {2, 18509, "CurveHorAxisProp/ShowVerGrid"},
                              {2, 18547, "CurveHorAxisProp/VerGridStep"},
                              {2, 18510, "CurveHorAxisProp/VerGridPen"}});
}

TEST(Sheets, StylesAreNoneOuterInnerAndCrossInTheirOrder) {
    const auto styleOf = [](auto window, int radio) {
        ScriptedSheet sheet(window);
        sheet.Page(1).Click(radio);
        EXPECT_TRUE(sheet.PressOk());
        return window.Edited().VerAxis.MajorScaleStyle;
    };
    HistogramProp bars;
    bars.VerAxis.MajorScaleStyle = 9;
    const CSheetHistogram histogram(bars);
    EXPECT_EQ(styleOf(histogram, 18431), ScaleStyle::None);
    EXPECT_EQ(styleOf(histogram, 18433), ScaleStyle::Outer);
    EXPECT_EQ(styleOf(histogram, 18432), ScaleStyle::Inner);
    EXPECT_EQ(styleOf(histogram, 18434), ScaleStyle::Cross);
    EXPECT_EQ(styleOf(histogram, 18436), 9) << "another group's: the style that none of the four is stays";
    const CSheetCurve curve{CurveProp()};
    EXPECT_EQ(styleOf(curve, 18517), ScaleStyle::Outer);
    EXPECT_EQ(styleOf(curve, 18518), ScaleStyle::Inner);
}

TEST(Sheets, LeaveEverythingAfterCancelAndPagesThatWereNotOpened) {
    HistogramProp prop = SomeHistogram();
    const penlode::Pen* pen = prop.VerAxis.VerAxisPen.Get();
    const auto change = [](ScriptedSheet& sheet) { sheet.Page(0).ChangeEverything(); };
    const User user({}, {[&](ScriptedSheet& sheet) { return change(sheet), false; },
                         [&](ScriptedSheet& sheet) { return change(sheet), sheet.PressOk(); }});
    EXPECT_FALSE(EditHistogramProp(&prop));
    EXPECT_EQ(prop, SomeHistogram());
    EXPECT_EQ(prop.VerAxis.VerAxisPen.Get(), pen);
    EXPECT_TRUE(EditHistogramProp(&prop));
    EXPECT_NE(prop.Plot, SomeHistogram().Plot);
    prop.Plot = SomeHistogram().Plot;
    EXPECT_EQ(prop, SomeHistogram());
    EXPECT_FALSE(EditHistogramProp(nullptr));
}

/// What a page says of a number, and where the focus goes.
struct Refusal {
    std::size_t Page;
    int Edit;
    const char* Typed;
    const char* Message; ///< null if the number is accepted
};

template <class Window, class Prop>
void ExpectRefusals(const Prop& prop, const std::vector<Refusal>& refusals) {
    for (const auto& [index, edit, typed, message] : refusals) {
        Window window(prop);
        ScriptedSheet sheet(window);
        ScriptedView& page = sheet.Page(index);
        page.Type(edit, typed);
        EXPECT_EQ(sheet.PressOk(), message == nullptr) << edit << ' ' << typed;
        EXPECT_EQ(page.Messages, message == nullptr ? Texts{} : Texts{message});
        EXPECT_EQ(page.Focused, message == nullptr ? kNoId : edit);
        EXPECT_EQ(window.Edited() == prop, message != nullptr) << "nothing of a refused sheet is kept";
    }
}

TEST(Sheets, RefuseNumbersOutsideTheirRanges) {
    const char* width = "绘图区宽度应在5～1000毫米之间。";
    const char* height = "绘图区高度应在5～1000毫米之间。";
    const char* distance = "分类间距应在0～1000毫米之间。";
    ExpectRefusals<CSheetHistogram>(HistogramProp(), {{0, 18450, "4.9", width},
                                                      {0, 18450, "5", nullptr},
                                                      {0, 18450, "1000", nullptr},
                                                      {0, 18450, "1000.1", width},
                                                      {0, 18429, "x", height},
                                                      {0, 18456, "x", nullptr},
                                                      {0, 18456, "-0.1", distance},
                                                      {4, 18578, "1001", "图例项间距应在0～1000毫米之间。"}});
    ExpectRefusals<CSheetCurve>(CurveProp(), {{0, 18491, "4.99", width},
                                              {0, 18492, "1000.01", height},
                                              {0, 18492, "1000", nullptr},
                                              {2, 18546, "0", "标注的显示间隔应大于等于1。"},
                                              {2, 18548, "-1", "刻度的显示间隔应大于等于1。"},
                                              {2, 18547, "x", "纵向网格线的显示间隔应大于等于1。"},
                                              {2, 18547, "2", nullptr}});
    ExpectRefusals<CSheetPie>(PieProp(), {{0, 18582, "0", "直径应大于0且不超过1000毫米。"},
                                          {0, 18583, "1e30", nullptr},
                                          {0, 18583, "-1", "基准值应大于0。"},
                                          {0, 18584, "1000.5", "基准直径应大于0且不超过1000毫米。"},
                                          {1, 18596, "-1000.5", "标签与饼图的距离应在-1000～1000毫米之间。"},
                                          {1, 18596, "-1000", nullptr}});
}

TEST(CurveSheet, ListsCurvesAsTextsAndTakesThemBack) {
    CurveProp prop = SomeCurves();
    prop.Plot.CurveName.push_back("\xFF"); // without settings, and no valid name
    prop.Plot.CurveDotStyle[1] = 99;
    CSheetCurve window(prop);
    ScriptedSheet sheet(window);
    ScriptedView& page = sheet.Page(0);
    std::vector<ListRow> rows = page.Rows(18490);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0], (ListRow{"东", "12874308 0.250000 0", "不显示", "327680", "1.5", "当成0值"}));
    EXPECT_EQ(rows[1][2], "99") << "no such marker";
    EXPECT_EQ(rows[3], (ListRow{"\xEF\xBF\xBD", "0 0.100000 0", "不显示", "0", "1.0", "断开"}));
    EXPECT_EQ(page.Text(18491), "120");
    rows[2] = {"新", " 255  0.75 3 ", "实心圆", "65280", "0", "断开"};
    page.SetRows(18490, rows);
    ASSERT_TRUE(sheet.PressOk());
    const CurvePlotProp& plot = window.Edited().Plot;
    EXPECT_EQ(plot.CurveName, (Texts{Narrow(L"东"), "", Narrow(L"新"), "\xFF"}));
    EXPECT_EQ(plot.CurveColor[2], Color{0xFFFF0000U});
    EXPECT_EQ(plot.CurveWidth[2], 0.75F);
    EXPECT_EQ(plot.CurveDashStyle, (std::vector{0, 4, 3, 0}));
    EXPECT_EQ(plot.CurveDotStyle, (std::vector{0, 99, 3, 0}));
    EXPECT_EQ(plot.CurveDotColor[2], Color{0xFF00FF00U});
    EXPECT_EQ(plot.CurveDotWidth[2], 1.0F);
}

TEST(Sheets, KeepNamesAndColoursEqualInNumber) {
    CSheetHistogram window(SomeHistogram()); // three names, two colours
    ScriptedSheet sheet(window);
    std::vector<ListRow> rows = sheet.Page(0).Rows(18460);
    rows.erase(rows.begin());
    sheet.Page(0).SetRows(18460, rows);
    ASSERT_TRUE(sheet.PressOk());
    EXPECT_EQ(window.Edited().Plot.ComponentName, (Texts{"", "wind"}));
    EXPECT_EQ(window.Edited().Plot.ComponentColor, (std::vector{Color{0xFFED7D31U}, penlode::kBlack}));
}

TEST(LivePreview, TellsWhatASheetWouldGive) {
    CurveProp prop;
    std::vector<CurveProp> told;
    const User user({}, {[](ScriptedSheet& sheet) {
                        sheet.Page(0).Type(18491, "3");
                        sheet.Changed();
                        sheet.Page(0).Type(18491, "90");
                        sheet.Changed();
                        EXPECT_TRUE(sheet.Page(0).Messages.empty());
                        return false;
                    }});
    EXPECT_FALSE(EditWithPreview(&prop, [&told](const CurveProp& now) { told.push_back(now); }));
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].Plot.PlotWidth, 90.0F);
    EXPECT_EQ(told[1], CurveProp());
}

/// What a sheet shows when it opens at a part.
struct Opened {
    std::size_t Page;
    int Focused;
    int Row;
    bool IsEnabled;

    friend bool operator==(const Opened&, const Opened&) = default;
};

template <class Prop> Opened OpenedAt(Prop prop, const ChartPart& part) {
    Opened opened{};
    const User user({}, {[&opened](ScriptedSheet& sheet) {
                        const SheetStart start = sheet.Start();
                        opened = {start.Page, kNoId, -1, true};
                        if (start.Control != kNoId) {
                            ScriptedView& page = sheet.Page(start.Page);
                            opened = {start.Page, page.Focused, page.Selection(start.Control),
                                      page.IsEnabled(start.Control)};
                        }
                        return false;
                    }});
    EXPECT_FALSE(EditWithPreview(&prop, std::function<void(const Prop&)>(), part));
    return opened;
}

/// A control of another page would throw, and a row of another list would be none.
template <class Prop>
void ExpectPlaces(const Prop& prop, std::size_t part, std::initializer_list<PartKind> kinds) {
    for (const PartKind kind : kinds) {
        SCOPED_TRACE(static_cast<int>(kind));
        const Opened opened = OpenedAt(prop, {kind, 1, 1, part});
        EXPECT_NE(opened.Focused, kNoId);
        EXPECT_TRUE(opened.IsEnabled);
        const bool isRow = kind == PartKind::Slice || kind == PartKind::Bar || kind == PartKind::Curve ||
                           kind == PartKind::CurvePoint || kind == PartKind::LegendSample ||
                           kind == PartKind::LegendName;
        if (kind != PartKind::Legend) { // whose control shows a place
            EXPECT_EQ(opened.Row, isRow ? 1 : -1);
        }
    }
}

TEST(SheetsAtAPart, OpenOnItsPageAtItsControl) {
    HistogramProp bars = SomeHistogram();
    bars.Plot.ComponentName = {"a", "b"};
    bars.Caption.ShowCaption = bars.VerAxis.ShowVerAxis = bars.VerAxis.ShowVerCaption = 1;
    bars.VerAxis.ShowVerAxisLabel = bars.HorAxis.ShowHorAxis = bars.HorAxis.ShowHorCaption = 1;
    bars.HorAxis.ShowGroupName = 1;
    EXPECT_EQ(OpenedAt(bars, {PartKind::Caption}), (Opened{3, 18561, -1, true}));
    EXPECT_EQ(OpenedAt(bars, {PartKind::Bar, 7, 1}), (Opened{0, 18460, 1, true})) << "one row for all groups";
    EXPECT_EQ(OpenedAt(bars, {PartKind::Bar, 0, 9}).Row, -1) << "no such row";
    EXPECT_EQ(OpenedAt(bars, {PartKind::Legend}).Page, 4U);
    EXPECT_EQ(OpenedAt(bars, {PartKind::Slice}), (Opened{0, kNoId, -1, true})) << "no part of it";
    ExpectPlaces(bars, 0,
                 {PartKind::Plot, PartKind::VerAxis, PartKind::HorAxis, PartKind::Bar, PartKind::BarLabel,
                  PartKind::VerAxisLabel, PartKind::GroupName, PartKind::VerCaption, PartKind::HorCaption,
                  PartKind::Caption, PartKind::Legend, PartKind::LegendSample, PartKind::LegendName});

    CurveProp curves = SomeCurves();
    curves.Plot.CurveName = {"a", "b"};
    curves.Caption.ShowCaption = curves.VerAxis.ShowVerAxis = curves.VerAxis.ShowVerCaption = 1;
    curves.VerAxis.ShowVerAxisLabel = curves.HorAxis.ShowHorAxis = curves.HorAxis.ShowHorCaption = 1;
    curves.HorAxis.ShowLabel = 1;
    EXPECT_EQ(OpenedAt(curves, {PartKind::CurvePoint, 1, 500}), (Opened{0, 18490, 1, true}));
    EXPECT_EQ(OpenedAt(curves, {PartKind::HorCaption}), (Opened{2, 18501, -1, true}));
    ExpectPlaces(curves, 0,
                 {PartKind::Plot, PartKind::VerAxis, PartKind::HorAxis, PartKind::Curve, PartKind::CurvePoint,
                  PartKind::VerAxisLabel, PartKind::HorAxisLabel, PartKind::VerCaption, PartKind::HorCaption,
                  PartKind::Caption, PartKind::Legend, PartKind::LegendSample, PartKind::LegendName});

    PieProp pie = SomePie();
    pie.Basic.ComponentName = {"a", "b"};
    EXPECT_EQ(OpenedAt(pie, {PartKind::SliceLabel, 1}), (Opened{1, 18593, -1, true}));
    EXPECT_EQ(OpenedAt(pie, {PartKind::Caption}), (Opened{0, kNoId, -1, true}))
        << "its title is none of the record's";
    ExpectPlaces(pie, 0,
                 {PartKind::Slice, PartKind::SliceLabel, PartKind::Legend, PartKind::LegendSample,
                  PartKind::LegendName});

    HalfPieProp half = SomeHalf();
    half.Basic.ComponentName = {"a", "b"};
    ExpectPlaces(half, 0, {PartKind::Slice, PartKind::SliceLabel});
    const HalfPieHalfPieProp halves{half, half};
    EXPECT_EQ(OpenedAt(halves, {PartKind::Slice, 1}), (Opened{0, 18580, 1, true}));
    EXPECT_EQ(OpenedAt(halves, {PartKind::SliceLabel, 1, 0, 1}), (Opened{3, 18593, -1, true}));
    const HalfPieHistogramProp mixed{bars, half};
    EXPECT_EQ(OpenedAt(mixed, {PartKind::Slice, 1}), (Opened{5, 18580, 1, true}));
    EXPECT_EQ(OpenedAt(mixed, {PartKind::LegendName, 1, 0, 1}), (Opened{0, 18460, 1, true}));
    ExpectPlaces(mixed, 0, {PartKind::Slice, PartKind::SliceLabel});
    ExpectPlaces(mixed, 1, {PartKind::Bar, PartKind::BarLabel, PartKind::Plot, PartKind::Legend});
}

TEST(SheetsAtAPart, EditAndPreviewAsEver) {
    CurveProp prop = SomeCurves();
    prop.Caption.ShowCaption = 1;
    std::vector<CurveProp> told;
    {
        const User user({}, {[&told](ScriptedSheet& sheet) {
                            sheet.Page(3).Type(18561, "new");
                            sheet.Changed();
                            EXPECT_EQ(told.size(), 1U);
                            return sheet.PressOk();
                        }});
        EXPECT_TRUE(EditWithPreview(&prop, [&told](const CurveProp& now) { told.push_back(now); },
                                    {PartKind::Caption}));
    }
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].Caption.Caption, "new");
    EXPECT_EQ(prop, told[0]);
    EXPECT_FALSE(EditWithPreview(static_cast<CurveProp*>(nullptr), {}, {PartKind::Caption}));
}

} // namespace
