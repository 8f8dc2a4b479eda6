#include "editing/DlgLinePenProp.h"
#include "editing/DlgLogarithmValueRange.h"
#include "editing/DlgNaturalValueRange.h"
#include "editing/Edit.h"
#include "editing/LineStyleItem.h"
#include "editing/NumberInput.h"
#include "editing/ScriptedView.h"
#include "editing/TextPropDlg.h"
#include "penlode/recording/RecordingEngine.h"
#include "penlode/text/StringUtil.h"

#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using namespace testing_support;
using penlode::Color;
using penlode::CStringUtil;
using penlode::DashStyle;
using penlode::Pen;
using penlode::PenFillType;
using penlode::Status;

namespace {

constexpr int kWidth = 18400;
constexpr int kWidthSteps = 18401;
constexpr int kLineStyle = 18402;
constexpr int kPenColor = 18403;

using Texts = std::vector<std::string>;

TEST(NumberInput, ReadsAsCDoesButNoWordsAndNoHexadecimal) {
    EXPECT_EQ(ReadNumber(" \t-2.5e1mm"), -25.0);
    EXPECT_EQ(ReadNumber("+.5"), 0.5);
    EXPECT_EQ(ReadNumber("1e"), 1.0);
    for (const char* text : {"", "abc", "nan", "inf", "-infinity", "- 1", "+-1", ".", "e5", "。5"}) {
        EXPECT_EQ(ReadNumber(text), 0.0) << text;
    }
    EXPECT_EQ(ReadNumber("0x1F"), 0.0);
    EXPECT_EQ(ReadNumber("-1e999"), -std::numeric_limits<double>::max());
    EXPECT_EQ(ReadNumber("1e-999"), 0.0);
    std::string tiny = "0.";
    tiny.resize(400, '0');
    tiny.push_back('1');
    EXPECT_EQ(ReadNumber(tiny), 0.0);
    std::string huge;
    huge.resize(400, '9');
    huge.append("e-10");
    EXPECT_EQ(ReadNumber(huge), std::numeric_limits<double>::max());
    EXPECT_EQ(ReadInteger("45deg"), 45);
    EXPECT_EQ(ReadInteger(" -7.9"), -7);
    EXPECT_EQ(ReadInteger("abc"), 0);
    EXPECT_EQ(ReadInteger("99999999999999999999"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(ReadInteger("-3000000000"), std::numeric_limits<std::int32_t>::min());
}

TEST(PenDialog, ShowsThePenAndMakesItOpaque) {
    Pen pen(Color{0x80FF0000U}, 0.25F, DashStyle::DashDot);
    const User user({[](ScriptedView& view) {
        EXPECT_EQ(view.ShownColor(kPenColor), 0x0000FFU);
        EXPECT_EQ(view.Selection(kLineStyle), 3);
        EXPECT_EQ(view.Text(kWidth), "0.25");
        EXPECT_EQ(view.StepRange, std::pair(1, 200));
        return view.PressOk();
    }});
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(pen, Pen(Color{0xFFFF0000U}, 0.25F, DashStyle::DashDot));
    EXPECT_EQ(pen.GetLastStatus(), Status::Ok);
}

TEST(PenDialog, TakesWhatIsChangedAndNothingAfterCancel) {
    Pen pen(Color{0x80FF0000U}, 1.0F);
    const auto change = [](ScriptedView& view) {
        EXPECT_EQ(view.Text(kWidth), "1");
        view.ColorsToPick = {0x112233U};
        view.Click(kPenColor);
        view.Pick(kLineStyle, 2);
        view.Type(kWidth, "0.5");
    };
    const Pen before = pen;
    const User user({[&](ScriptedView& view) { return change(view), false; },
                     [&](ScriptedView& view) { return change(view), view.PressOk(); }});
    EXPECT_FALSE(EditPen(&pen));
    EXPECT_EQ(pen, before);
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(pen, Pen(Color{0xFF332211U}, 0.5F, DashStyle::Dot));
    EXPECT_FALSE(EditPen(nullptr));
}

TEST(PenDialog, RefusesWidthsOutsideItsRange) {
    CDlgLinePenProp dialog({0, 0.1, 0});
    ScriptedView view(dialog);
    for (const char* refused : {"20.5", "-0.1"}) {
        view.Type(kWidth, refused);
        view.Focused = view.SelectedText = kNoId;
        EXPECT_FALSE(view.PressOk()) << refused;
        EXPECT_EQ(view.Focused, kWidth);
        EXPECT_EQ(view.SelectedText, kWidth);
    }
    EXPECT_EQ(view.Messages, Texts(2, "线宽应 >= 0, 且 <= 20。"));
    for (const auto& [typed, width] : {std::pair("0", 0.0), {"20", 20.0}, {"wide", 0.0}}) {
        view.Type(kWidth, typed);
        EXPECT_TRUE(view.PressOk());
        EXPECT_EQ(dialog.Edited().Width, width);
    }
}

TEST(PenDialog, StepsRoundFromOneEndToTheOther) {
    CDlgLinePenProp dialog({0, 2.0, 0});
    ScriptedView view(dialog);

    struct Stepped {
        const char* From;
        int Delta;
        const char* To;
    };

    for (const auto& [from, delta, to] : {Stepped{"19.95", 1, "0.1"},
                                          {"0.15", -1, "20"},
                                          {"20", 1, "0.1"},
                                          {"0.1", -1, "20"},
                                          {"2", 1, "2.1"},
                                          {"2", 5, "2.1"},
                                          {"2", 0, "1.9"},
                                          {"2", -3, "1.9"},
                                          {"x", 1, "0.1"}}) {
        view.Type(kWidth, from);
        view.Step(kWidthSteps, delta);
        EXPECT_EQ(view.Text(kWidth), to) << from << " by " << delta;
    }
}

TEST(PenDialog, APenOfNoPlainColourIsBlackAndRemembersIt) {
    Pen pen(Color{0xFF00FF00U}, 1.0F, DashStyle::Custom);
    pen.SetFillType(PenFillType::LinearGradient);
    const User user({Cancel, [](ScriptedView& view) {
                         EXPECT_EQ(view.ShownColor(kPenColor), 0U);
                         EXPECT_EQ(view.Selection(kLineStyle), -1);
                         return view.PressOk();
                     }});
    EXPECT_FALSE(EditPen(&pen));
    EXPECT_EQ(pen.GetColor(), Color{0xFF00FF00U});
    EXPECT_EQ(pen.GetFillType(), PenFillType::LinearGradient);
    EXPECT_EQ(pen.GetLastStatus(), Status::WrongState);
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(pen, Pen(penlode::kBlack, 1.0F, DashStyle::Custom)) << "no style was picked: it keeps its own";
    EXPECT_EQ(pen.GetFillType(), PenFillType::SolidColor);
}

TEST(LineStyleItem, DrawsASampleOnItsGround) {
    const auto calls = [](int item, bool hasFocus, bool isSelected) {
        penlode::CRecordingEngine engine;
        DrawLineStyleItem(engine, {10, 20, 100, 20}, item, hasFocus, isSelected);
        return engine.Text();
    };
    const std::string grey = "FillRectangle #FFA0A0A0 (10 20 100 20)\n";
    const std::string white = "FillRectangle #FFFFFFFF (10 20 100 20)\n";
    const std::string frame = "DrawRectangle #FF000000/0.1 (12 22 96 16)\n";
    const auto line = [](const std::string& pen) {
        return "DrawLine #FF000000/0.1" + pen + " (12 30) (108 30)\n";
    };
    EXPECT_EQ(calls(-1, true, false), "");
    EXPECT_EQ(calls(0, false, true), frame + line("")) << "selected without the focus: no ground of its own";
    EXPECT_EQ(calls(3, true, true), grey + frame + line("/dash-dot"));
    EXPECT_EQ(calls(1, true, false), grey + white + frame + line("/dash"));
    EXPECT_EQ(calls(4, false, false), white + frame + line("/dash-dot-dot"));
}

constexpr int kDrawEdge = 18404;
constexpr int kDrawBackground = 18405;
constexpr int kPrefix = 18406;
constexpr int kFont = 18408;
constexpr int kPickEdgeColor = 18409;
constexpr int kPickBackgroundColor = 18410;
constexpr int kEdgeColor = 18411;
constexpr int kAngle = 18414;

TextProperty SomeText() {
    TextProperty text;
    text.Font = penlode::Font{L"黑体", 3.5F, penlode::FontStyle::Bold | 0x100};
    text.EdgeColor = Color{0x80123456U};
    text.BkColor = Color{0x40ABCDEFU};
    text.DrawBackGround = 1;
    text.Prefix = "\xFF raw \xB3"; // no valid narrow text
    text.Postfix = CStringUtil::Utf8ToAnsi("元");
    text.Angle = -30;
    return text;
}

TEST(TextDialog, GivesBackWhatIsNotTouched) {
    const TextProperty before = SomeText();
    TextProperty text = before;
    const penlode::Font* font = text.Font.Get();
    const User user({Cancel, [](ScriptedView& view) {
                         EXPECT_EQ(view.Text(kAngle), "-30");
                         EXPECT_FALSE(view.IsChecked(kDrawEdge));
                         EXPECT_TRUE(view.IsChecked(kDrawBackground));
                         EXPECT_EQ(view.ShownColor(kEdgeColor), 0x563412U);
                         view.FontsToPick = {[](FontChoice shown) { return shown; }};
                         view.Click(kFont);
                         return view.PressOk();
                     }});
    EXPECT_FALSE(EditTextProperty(&text));
    EXPECT_EQ(text.Font.Get(), font);
    EXPECT_TRUE(EditTextProperty(&text));
    EXPECT_EQ(text, before);
    EXPECT_FALSE(EditTextProperty(nullptr));
}

TEST(TextDialog, EnablesColoursByTheirBoxesAndMakesPickedOnesOpaque) {
    CTextPropDlg dialog(SomeText());
    ScriptedView view(dialog);
    EXPECT_FALSE(view.IsEnabled(kPickEdgeColor));
    EXPECT_TRUE(view.IsEnabled(kPickBackgroundColor));
    view.Click(kDrawBackground);
    EXPECT_FALSE(view.IsEnabled(kPickBackgroundColor));
    view.Click(kDrawEdge);
    view.Click(kPickEdgeColor); // cancelled
    EXPECT_EQ(dialog.Edited().EdgeColor, Color{0x80123456U});
    view.ColorsToPick = {0x030201U};
    view.Click(kPickEdgeColor);
    EXPECT_EQ(view.ShownColor(kEdgeColor), 0x030201U);
    ASSERT_TRUE(view.PressOk());
    EXPECT_EQ(dialog.Edited().EdgeColor, Color{0xFF010203U});
    EXPECT_EQ(dialog.Edited().BkColor, Color{0x40ABCDEFU});
    EXPECT_EQ(dialog.Edited().DrawEdge, 1);
    EXPECT_EQ(dialog.Edited().DrawBackGround, 0);
}

TEST(TextDialog, TakesTextsAndAnglesAsTheyAreTyped) {
    CTextPropDlg dialog(SomeText());
    ScriptedView view(dialog);
    view.Type(kPrefix, "共 ");
    for (const auto& [typed, angle] : {std::pair("45deg", 45), {"abc", 0}, {"-1000000", -1000000}}) {
        view.Type(kAngle, typed);
        ASSERT_TRUE(view.PressOk());
        EXPECT_EQ(dialog.Edited().Angle, angle);
    }
    EXPECT_EQ(CStringUtil::AnsiToUtf8(dialog.Edited().Prefix), "共 ");
}

TEST(TextDialog, FontsGoByWholePixelsAndComeBackInMillimetres) {
    TextProperty without;
    without.Font = nullptr;
    CTextPropDlg dialog(without);
    ScriptedView view(dialog);
    FontChoice shown;
    view.FontsToPick = {[&](FontChoice font) {
        shown = font;
        font.Font.Height = 16;
        font.Font.Style = penlode::FontStyle::Italic;
        font.TextColor = 0x0000FFU;
        return font;
    }};
    view.Click(kFont);
    EXPECT_EQ(shown.Font, (penlode::LogicalFont{L"宋体", 15, 0})) << "4 mm on 96 pixels an inch";
    ASSERT_TRUE(dialog.Edited().Font);
    EXPECT_EQ(dialog.Edited().Font->Family, L"宋体");
    EXPECT_NEAR(dialog.Edited().Font->Size, 4.2301F, 1e-4F);
    EXPECT_EQ(dialog.Edited().Font->Style, penlode::FontStyle::Italic);
    EXPECT_EQ(dialog.Edited().TextColor, Color{0xFFFF0000U});
}

TEST(NaturalRange, AsksForASoundRange) {
    struct Typed {
        const char* Maximum;
        const char* Major;
        const char* Minor;
        const char* Message;
    };

    for (const auto& [maximum, major, minor, message] :
         {Typed{"10", "1", "1", "最大值应大于最小值。"},
          {"x", "1", "1", "最大值应大于最小值。"},
          {"100000000", "1", "1", "最大值应小于100000000。"},
          {"100", "0", "1", "主刻度步长应大于0。"},
          {"100", "100.01", "1", "主刻度步长不能大于最大值。"},
          {"100", "20", "-1", "次刻度步长应大于0。"},
          {"100", "20", "20.5", "次刻度步长不能大于主刻度步长。"},
          {"100", "0.01", "0.01", nullptr},
          {"100", "100", "100", nullptr}}) {
        CDlgNaturalValueRange dialog({10.0, 50.0, 10.0, 1.25});
        ScriptedView view(dialog);
        EXPECT_EQ(view.Text(18480), "10.00");
        EXPECT_EQ(view.Text(18483), "1.25");
        view.Type(18481, maximum);
        view.Type(18482, major);
        view.Type(18483, minor);
        EXPECT_EQ(view.PressOk(), message == nullptr) << maximum << ' ' << major << ' ' << minor;
        EXPECT_EQ(view.Messages, message == nullptr ? Texts{} : Texts{message});
    }
    CDlgNaturalValueRange below({-1.0, 50.0, 10.0, 1.0});
    ScriptedView view(below);
    EXPECT_FALSE(view.PressOk());
    EXPECT_EQ(view.Messages, Texts{"最小值不能小于0。"});
}

TEST(NaturalRange, StaysOpenOverTooManyTicksWhateverIsAnswered) {
    for (const auto& [answer, closes] :
         {std::pair(Answer::Yes, false), {Answer::No, false}, {Answer::NotShown, true}}) {
        for (const auto& [major, minor] : {std::pair("0.009", "0.009"), {"1", "0.0099"}}) {
            CDlgNaturalValueRange dialog({0.0, 100.0, 10.0, 1.0});
            ScriptedView view(dialog);
            view.Answers = {answer};
            view.Type(18482, major);
            view.Type(18483, minor);
            EXPECT_EQ(view.PressOk(), closes);
            EXPECT_EQ(view.Messages, Texts{"步长过小,可能要花很多时间进行计算。\n是否继续?"});
        }
    }
}

TEST(NaturalRange, WritesBackAfterOkAlone) {
    double minimum = 0.004;
    double maximum = 100.0;
    double major = 20.0;
    double minor = 5.0;
    const auto change = [](ScriptedView& view) { view.Type(18481, "80"); };
    const User user({[&](ScriptedView& view) { return change(view), false; },
                     [&](ScriptedView& view) { return change(view), view.PressOk(); }});
    EXPECT_FALSE(EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    EXPECT_EQ(maximum, 100.0);
    EXPECT_TRUE(EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    EXPECT_EQ(std::tuple(minimum, maximum, major, minor), std::tuple(0.0, 80.0, 20.0, 5.0));
    EXPECT_FALSE(EditNaturalValueRange(&minimum, &maximum, &major, nullptr));
}

TEST(LogarithmRange, SelectsWhatLiesNear) {
    const auto selected = [](double minimum, double maximum) {
        CDlgLogarithmValueRange dialog({minimum, maximum});
        const ScriptedView view(dialog);
        return std::pair(view.Selection(18484), view.Selection(18485));
    };
    EXPECT_EQ(selected(0.000001, 0.00001), std::pair(0, 0));
    EXPECT_EQ(selected(0.1, 1e7), std::pair(5, 12)) << "0.1 in single precision";
    EXPECT_EQ(selected(1.0 + 9e-9, 10.0 - 9e-9), std::pair(6, 6));
    EXPECT_EQ(selected(1.0 + 2e-8, 10.0 - 2e-8), std::pair(-1, -1));
    EXPECT_EQ(selected(0.5, 0.000001), std::pair(-1, -1));
}

TEST(LogarithmRange, AsksForBothEndsInOrder) {
    double minimum = 0.5;
    double maximum = 1e9;
    const User user({[](ScriptedView& view) {
        EXPECT_FALSE(view.PressOk());
        EXPECT_EQ(view.Focused, 18484);
        view.Pick(18484, 7);
        EXPECT_FALSE(view.PressOk());
        EXPECT_EQ(view.Focused, 18485);
        view.Pick(18485, 6);
        EXPECT_FALSE(view.PressOk());
        EXPECT_EQ(view.Messages, (Texts{"请选择最小值。", "请选择最大值。", "最大值应大于最小值。"}));
        view.Pick(18485, 7);
        return view.PressOk();
    }});
    EXPECT_TRUE(EditLogarithmValueRange(&minimum, &maximum));
    EXPECT_EQ(std::pair(minimum, maximum), std::pair(10.0, 100.0));
    EXPECT_FALSE(EditLogarithmValueRange(nullptr, &maximum));
}

TEST(LivePreview, TellsEachAcceptedChangeAndTheOriginalOnCancel) {
    Pen pen(Color{0x80FF0000U}, 1.0F);
    std::vector<Pen> told;
    const auto tell = [&told](const Pen& now) { told.push_back(now); };
    const auto change = [&told](ScriptedView& view) {
        view.Type(kWidth, "30");
        EXPECT_TRUE(told.empty()) << "OK would refuse it";
        EXPECT_TRUE(view.Messages.empty());
        view.Type(kWidth, "3");
        view.Type(kWidth, "3.0");
        view.Pick(kLineStyle, 1);
    };
    const User user({[&](ScriptedView& view) { return change(view), false; }, Accept});
    EXPECT_FALSE(EditWithPreview(&pen, tell));
    const Color opaque{0xFFFF0000U};
    EXPECT_EQ(told, (std::vector{Pen(opaque, 3.0F), Pen(opaque, 3.0F, DashStyle::Dash), pen}));
    told.clear();
    EXPECT_TRUE(EditWithPreview(&pen, tell));
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(pen, Pen(opaque, 1.0F));
    EXPECT_FALSE(EditWithPreview(static_cast<Pen*>(nullptr), tell));
}

TEST(LivePreview, TellsPickedColoursAtOnce) {
    TextProperty text = SomeText();
    std::vector<TextProperty> told;
    const User user({[&](ScriptedView& view) {
        view.Click(kDrawEdge);
        view.ColorsToPick = {0x030201U};
        view.Click(kPickEdgeColor);
        return false;
    }});
    EXPECT_FALSE(EditWithPreview(&text, [&told](const TextProperty& now) { told.push_back(now); }));
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0].DrawEdge, 1);
    EXPECT_EQ(told[1].EdgeColor, Color{0xFF010203U});
    EXPECT_EQ(told[2], SomeText());
}

} // namespace
