#include "support/SomeRecords.h"

#include "support/Texts.h"

using namespace millichart;
using penlode::Color;

CaptionProp SomeCaption() {
    CaptionProp caption;
    caption.ShowCaption = 1;
    caption.Caption = Narrow(L"2022 年发电量\n(TWh)");
    TextProperty& text = caption.CaptionTextProperty;
    text.Font =
        penlode::Font{L"Times New Roman", 3.25F, penlode::FontStyle::Bold | penlode::FontStyle::Italic};
    text.TextColor = penlode::Color{0x80102030};
    text.EdgeColor = penlode::Color{0xFF00FF00};
    text.BkColor = penlode::Color{0x00FFFFFF};
    text.DrawEdge = 7;
    text.DrawBackGround = 1;
    text.Prefix = "<";
    text.Postfix = Narrow(L"》|\\");
    text.Angle = -45;
    return caption;
}

LegendProp SomeLegend() {
    LegendProp legend;
    legend.ShowLegend = 1;
    legend.LegendPos = LegendPosition::TopCenter;
    legend.ShowEdge = 0;
    legend.PenEdge = penlode::Pen(penlode::Color{0xFF123456}, 0.35F, penlode::DashStyle::Dot);
    legend.ShowBackground = 1;
    legend.BackgroundColor = penlode::Color{0xFFABCDEF};
    legend.ItemDist = 2.75F;
    legend.Font = nullptr;
    return legend;
}

PieProp SomePie() {
    PieProp prop;
    PieBasicProp& basic = prop.Basic;
    basic.PieStyle = PieStyle::Flat;
    basic.FixedSize = 1;
    basic.FixedWidth = 42.5F;
    basic.BaseValue = 1e6F;
    basic.BasePieWidth = 0.1F;
    basic.StartAngle = -90.0F;
    basic.DrawSepLine = 0;
    basic.PenSepLine = penlode::Pen(penlode::kWhite, 0.4F, penlode::DashStyle::DashDotDot);
    basic.ComponentName = {Narrow(L"煤炭"), "Oil | gas", ""};
    basic.ComponentColor = {Color{0xFF404040}, Color{0x80C08040}};
    PieLabelProp& label = prop.Label;
    label.ShowNameLabel = 1;
    label.ShowValueLabel = 2;
    label.ShowPercentLabel = 1;
    label.LabelsInSingleRow = 0;
    label.LabelSeparator = Narrow(L"：");
    label.PieLabelTextProperty.Angle = 15;
    label.DistBetweenLabelCenterAndPieCenter = 3.5F;
    label.ShowLabelLeadLine = 0;
    label.LabelLeadLinePen = penlode::Pen(Color{0xFF00FF00}, 0.0F);
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = LegendPosition::BottomCenter;
    return prop;
}

HalfPieProp SomeHalf() {
    HalfPieProp prop;
    prop.Basic.WhichPart = HalfPiePart::Lower;
    prop.Basic.DrawSepLine = 0;
    prop.Basic.PenSepLine = penlode::Pen(penlode::kWhite, 0.4F, penlode::DashStyle::Dot);
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 42.5F;
    prop.Basic.BaseValue = 250.0F;
    prop.Basic.BasePieWidth = 0.1F;
    prop.Basic.ComponentName = {Narrow(L"煤炭"), "Oil"};
    prop.Basic.ComponentColor = {Color{0xFF404040}};
    prop.Label.ShowValueLabel = 1;
    prop.Label.DistBetweenLabelCenterAndPieCenter = 3.5F;
    return prop;
}

HistogramProp SomeHistogram() {
    HistogramProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = Narrow(L"发电量");
    prop.Caption.CaptionTextProperty.Angle = 1;
    HistogramVerAxisProp& ver = prop.VerAxis;
    ver.ShowVerAxis = 2;
    ver.MajorScaleStyle = ScaleStyle::Cross;
    ver.MinorScaleStyle = ScaleStyle::Inner;
    ver.VerAxisPen = penlode::Pen(Color{0xFF000001}, 0.3F);
    ver.ShowVerAxisLabel = 0;
    ver.VerAxisLabelTextProperty.Angle = 2;
    ver.ShowHorMajorGrid = 0;
    ver.HorMajorGridPen = penlode::Pen(Color{0xFF000002}, 0.4F, penlode::DashStyle::Dash);
    ver.ShowHorMinorGrid = 3;
    ver.HorMinorGridPen = penlode::Pen(Color{0xFF000003}, 0.5F, penlode::DashStyle::Dot);
    ver.ShowVerCaption = 4;
    ver.VerCaption = "TWh";
    ver.VerCaptionTextProperty.Angle = 90;
    HistogramHorAxisProp& hor = prop.HorAxis;
    hor.ShowHorAxis = 5;
    hor.HorAxisPen = penlode::Pen(Color{0xFF000004}, 0.6F);
    hor.ScaleStyle = ScaleStyle::None;
    hor.ShowGroupName = 6;
    hor.GroupNameTextProperty.Angle = 3;
    hor.ShowVerGrid = 0;
    hor.VerGridPen = penlode::Pen(Color{0xFF000005}, 0.7F);
    hor.ShowHorCaption = 7;
    hor.HorCaption = "year";
    hor.HorCaptionTextProperty.Angle = 4;
    HistogramPlotProp& plot = prop.Plot;
    plot.ShowBackground = 0;
    plot.PlotBackgroundColor = Color{0xFFFAFAFA};
    plot.ShowEdge = 8;
    plot.EdgePen = penlode::Pen(Color{0xFF000006}, 0.8F);
    plot.ComponentName = {Narrow(L"水|力"), "", "wind"};
    plot.ComponentColor = {Color{0xFF4472C4}, Color{0x80ED7D31}};
    plot.ShowComponentName = 9;
    plot.ShowComponentValue = 10;
    plot.ConponentInfoInSingleRow = 0;
    plot.ConponentInfoSeparator = Narrow(L"：");
    plot.ComponentInfoTextProperty.Angle = 5;
    plot.PlotWidth = 120.5F;
    plot.PlotHeight = 60.25F;
    plot.GroupDistane = 4.5F;
    plot.Juxtaposition = 0;
    plot.PieStyle = BarStyle::WithDepth;
    plot.LogarithmScale = 11;
    prop.Legend.ShowLegend = 12;
    prop.Legend.LegendPos = LegendPosition::TopRight;
    return prop;
}

CurveProp SomeCurves() {
    CurveProp prop;
    prop.Caption.Caption = Narrow(L"水深");
    prop.VerAxis.MinorScaleStyle = ScaleStyle::Inner;
    prop.VerAxis.VerCaption = "m";
    CurveHorAxisProp& hor = prop.HorAxis;
    hor.ShowHorAxis = 2;
    hor.HorAxisPen = penlode::Pen(Color{0xFF000001}, 0.3F);
    hor.ScaleStyle = ScaleStyle::Cross;
    hor.ScaleStep = 3;
    hor.ShowLabel = 0;
    hor.LabelStep = 4;
    hor.HorLabelTextProperty.Angle = 45;
    hor.ShowVerGrid = 5;
    hor.VerGridStep = 6;
    hor.VerGridPen = penlode::Pen(Color{0xFF000002}, 0.4F, penlode::DashStyle::Dot);
    hor.ShowHorCaption = 7;
    hor.HorCaption = "year";
    hor.HorCaptionTextProperty.Angle = 90;
    CurvePlotProp& plot = prop.Plot;
    plot.ShowBackground = 0;
    plot.PlotBackgroundColor = Color{0xFFFAFAFA};
    plot.ShowEdge = 8;
    plot.EdgePen = penlode::Pen(Color{0xFF000003}, 0.5F);
    plot.CurveName = {Narrow(L"东"), "", "W"};
    plot.CurveColor = {Color{0xFF4472C4}, Color{0x80ED7D31}, Color{0xFF000004}};
    plot.CurveWidth = {0.25F, 0.5F, 0.0F};
    plot.CurveDashStyle = {0, 4, -2};
    plot.CurveDotStyle = {CurveDotStyle::None, CurveDotStyle::HollowInvertedTriangle,
                          CurveDotStyle::SolidSquare};
    plot.CurveDotColor = {Color{0xFF000005}, Color{0xFF000006}, Color{0xFF000007}};
    plot.CurveDotWidth = {1.5F, 2.0F, 3.25F};
    plot.NullValueStyle = {CurveNullValueStyle::AsZero, CurveNullValueStyle::Break,
                           CurveNullValueStyle::AsZero};
    plot.PlotWidth = 120.5F;
    plot.PlotHeight = 60.25F;
    plot.LogarithmScale = 9;
    prop.Legend.LegendPos = LegendPosition::TopRight;
    return prop;
}

millichart::ChartOptions SomeOptions() {
    millichart::ChartOptions options = millichart::ChartOptions::Readable();
    options.Thousands = millichart::ThousandsStyle::Chinese;
    options.MaxDecimals = 7;
    options.TimeUnit = millichart::TimeUnit::Seconds;
    options.Palette = millichart::ChartPalette::Print;
    options.Title = SomeCaption();
    options.SecondTitle.Caption = "b";
    return options;
}
