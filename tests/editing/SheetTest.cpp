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

/// Each field of a record on a line of its own, by the record's own list of them.
template <class Prop, class Serialize> Texts FieldsOf(const Prop& prop, const Serialize& serialize) {
    Prop saved = prop;
    CJsonSerializeStream stream;
    serialize(stream, saved, "property");
    Texts lines;
    std::istringstream text(stream.Text());
    for (std::string line; std::getline(text, line);) {
        const bool isInList = !lines.empty() && lines.back().ends_with('[');
        if (isInList) {
            lines.back() += line + (line.find(']') == std::string::npos ? "[" : "");
        } else if (!line.ends_with('{') && line.find('}') == std::string::npos) {
            lines.push_back(line);
        }
    }
    return lines;
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

/// The keys whose values are alike, or not, in two lists of the same fields.
Texts Keys(const Texts& a, const Texts& b, bool alike) {
    EXPECT_EQ(a.size(), b.size());
    Texts keys;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        if ((a[i] == b[i]) == alike) {
            const std::size_t begin = a[i].find('"') + 1;
            keys.push_back(a[i].substr(begin, a[i].find('"', begin) - begin));
        }
    }
    return keys;
}

/// `normalised` are the fields that OK alone changes, such as a flag of 2; `withoutControl` those that no
/// control changes. A new field is either's, or has a control.
template <class Prop, class Serialize>
void ExpectEveryFieldHasAControl(const Prop& prop, bool (*edit)(Prop*), const Serialize& serialize,
                                 const Texts& normalised, const Texts& withoutControl = {}) {
    const Prop plain = Edited(prop, edit, false);
    EXPECT_EQ(Keys(FieldsOf(prop, serialize), FieldsOf(plain, serialize), false), normalised);
    EXPECT_EQ(Edited(plain, edit, false), plain);
    const Prop changed = Edited(plain, edit, true);
    EXPECT_EQ(Keys(FieldsOf(plain, serialize), FieldsOf(changed, serialize), true), withoutControl);
}

const Texts kBarsNormalised{"ShowVerAxis",        "ShowHorMinorGrid", "ShowVerCaption", "ShowHorAxis",
                            "ShowGroupName",      "ShowHorCaption",   "ShowEdge",       "ShowComponentName",
                            "ShowComponentValue", "ComponentColor",   "LogarithmScale", "ShowLegend"};
/// The bar chart's sheet leaves these to the host.
const Texts kBarsWithoutControl{"ConponentInfoInSingleRow", "ConponentInfoSeparator"};

Texts operator+(Texts a, const Texts& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(PieSheets, HaveAControlForEveryField) {
    PieProp pie = SomePie();
    pie.Legend = SomeLegend();
    ExpectEveryFieldHasAControl(
        pie, &EditPieProp,
        [](auto& s, auto& p, auto* tag) { CPiePropSerialize::SerializePieProp(s, p, tag); },
        {"ComponentColor", "ShowValueLabel"});
    const auto half = [](auto& s, auto& p, auto* tag) {
        CHalfPiePropSerialize::SerializeHalfPieProp(s, p, tag);
    };
    ExpectEveryFieldHasAControl(SomeHalf(), &EditHalfPieProp, half, {"ComponentColor"});
    ExpectEveryFieldHasAControl(HalfPieHalfPieProp{SomeHalf(), SomeHalf()}, &EditHalfPieHalfPieProp,
                                [](auto& s, auto& p, auto* tag) {
                                    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(s, p, tag);
                                },
                                {"ComponentColor", "ComponentColor"});
    ExpectEveryFieldHasAControl(
        HalfPieHistogramProp{SomeHistogram(), SomeHalf()}, &EditHalfPieHistogramProp,
        [](auto& s, auto& p, auto* tag) {
            CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(s, p, tag);
        },
        Texts{"ComponentColor"} + kBarsNormalised, kBarsWithoutControl);
}

TEST(BarAndLineSheets, HaveAControlForEveryField) {
    ExpectEveryFieldHasAControl(
        SomeHistogram(), &EditHistogramProp,
        [](auto& s, auto& p, auto* tag) { CHistogramPropSerialize::SerializeHistogramProp(s, p, tag); },
        kBarsNormalised, kBarsWithoutControl);
    ExpectEveryFieldHasAControl(
        SomeCurves(), &EditCurveProp,
        [](auto& s, auto& p, auto* tag) { CCurvePropSerialize::SerializeCurveProp(s, p, tag); },
        {"ShowHorAxis", "ShowVerGrid", "ShowHorCaption", "ShowEdge", "CurveColor", "CurveDotWidth",
         "PlotWidth", "PlotHeight", "LogarithmScale"});
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
    ExpectRefusals<CSheetPie>(PieProp(), {{0, 18582, "0", "直径应大于0, 且不超过1000毫米。"},
                                          {0, 18583, "1e30", nullptr},
                                          {0, 18583, "-1", "基准值应大于0。"},
                                          {0, 18584, "1000.5", "基准直径应大于0, 且不超过1000毫米。"},
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
    EXPECT_EQ(rows[1][2], "") << "no such marker";
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

} // namespace
