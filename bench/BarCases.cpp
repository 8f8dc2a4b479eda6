#include "BarsByHand.h"
#include "Suite.h"
#include "Voices.h"
#include "millichart.h"
#include "penlode/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <memory>

/// Twelve groups of six bars with all that a bar chart shows, laid out, drawn and encoded; and how the time
/// of one bar grows with their number.
namespace bench {
namespace {

constexpr double kDpi = 144.0;
constexpr std::size_t kComponents = 6;
constexpr double kAxisWidth = 8.0;

std::vector<std::vector<double>> Values(std::size_t groups) {
    std::vector<std::vector<double>> values(groups);
    for (std::size_t i = 0; i < groups * kComponents; ++i) {
        values[i / kComponents].push_back(static_cast<double>(i * 37 % 89 + 5));
    }
    return values;
}

byhand::Bars Twelve() {
    return {200.0,
            100.0,
            12.0,
            6.0,
            160.0,
            80.0,
            2.0,
            2.0,
            "Noto Sans CJK SC",
            100.0,
            10.0,
            2.0,
            Values(12),
            {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
             "November", "December"},
            {"North", "South", "East", "West", "Centre", "Abroad"},
            {0x3B6FB6, 0xE58A3C, 0x57A168, 0xC9504E, 0x8A6BB1, 0x8C6A5D}};
}

penlode::Font FontOf(const byhand::Bars& bars) {
    return {std::wstring(bars.Family.begin(), bars.Family.end()), static_cast<float>(bars.FontSize)};
}

/// Bars alone: no axes, no texts, nothing behind them.
millichart::HistogramProp BareRecord(const byhand::Bars& bars) {
    millichart::HistogramProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.ShowBackground = 0;
    prop.Plot.ShowEdge = 0;
    prop.Plot.PlotWidth = static_cast<float>(bars.Width);
    prop.Plot.PlotHeight = static_cast<float>(bars.Height);
    prop.Plot.GroupDistane = static_cast<float>(bars.Gap);
    prop.Plot.ComponentName = bars.Names;
    for (const unsigned rgb : bars.Colors) {
        prop.Plot.ComponentColor.push_back({0xFF000000U | rgb});
    }
    return prop;
}

millichart::HistogramProp FullRecord(const byhand::Bars& bars) {
    millichart::HistogramProp prop = BareRecord(bars);
    prop.VerAxis.ShowVerAxis = 1;
    prop.VerAxis.VerAxisLabelTextProperty.Font = FontOf(bars);
    prop.HorAxis.ShowHorAxis = 1;
    prop.Plot.ShowBackground = 1;
    prop.Plot.ShowEdge = 1;
    prop.HorAxis.ShowGroupName = 1;
    prop.HorAxis.GroupNameTextProperty.Font = FontOf(bars);
    prop.Plot.ShowComponentValue = 1;
    prop.Plot.ComponentInfoTextProperty.Font = FontOf(bars);
    prop.Legend.ShowLegend = 1;
    prop.Legend.Font = FontOf(bars);
    return prop;
}

void Draw(const byhand::Bars& bars, const millichart::HistogramProp& prop,
          const millichart::ChartOptions& options, penlode::IGraphicsEngine& engine) {
    millichart::CBasicHistogram chart;
    chart.SetOptions(options);
    chart.SetHistogramProp(prop);
    chart.SetNaturalValueRange(0.0, bars.Largest, bars.Step, bars.MinorStep);
    chart.SetComponentValue(bars.Values);
    chart.SetGroupName(bars.GroupNames);
    chart.SetLocation({static_cast<float>(bars.Left - kAxisWidth), static_cast<float>(bars.Top)});
    chart.Layout();
    chart.Draw(&engine);
}

byhand::Bars Moved(byhand::Bars bars) {
    const double shift = NextShift();
    bars.Left += shift;
    bars.Top += shift;
    return bars;
}

penlode::SizeF PageOf(const byhand::Bars& bars) {
    return {static_cast<float>(bars.PageWidth), static_cast<float>(bars.PageHeight)};
}

void AddTwelve(Suite& suite) {
    const byhand::Bars bars = Twelve();
    const auto prop = std::make_shared<const millichart::HistogramProp>(FullRecord(bars));
    for (const Voice& voice : Voices()) {
        suite.Add("bars 12 x 6, PNG" + voice.Name, [=] {
            const auto engine = penlode::CGraphicsEngine::ForRaster(PageOf(bars), kDpi, penlode::kWhite);
            Draw(Moved(bars), *prop, voice.Options, *engine);
            return engine->EncodePng().size();
        });
        suite.Add("bars 12 x 6, SVG" + voice.Name, [=] {
            penlode::CSvgEngine engine(PageOf(bars));
            Draw(bars, *prop, voice.Options, engine);
            return engine.Text().size();
        });
    }
    CompareVoices(suite, "bars 12 x 6, PNG");
    CompareVoices(suite, "bars 12 x 6, SVG");
    suite.Add("bars 12 x 6, PNG by hand", [=] { return byhand::BarsPng(Moved(bars), kDpi).size(); });
    suite.Add("bars 12 x 6, SVG by hand", [=] { return byhand::BarsSvg(bars).size(); });
    suite.Compare("bars 12 x 6, PNG / by hand", "bars 12 x 6, PNG", "bars 12 x 6, PNG by hand", 1.5);
    suite.Compare("bars 12 x 6, SVG / by hand", "bars 12 x 6, SVG", "bars 12 x 6, SVG by hand", 1.5);
}

std::string NameOf(std::size_t groups) {
    return "one of " + std::to_string(groups) + " x 6 bars";
}

/// Laid out and drawn on a picture that is there.
void AddMany(Suite& suite, std::size_t groups) {
    byhand::Bars bars = Twelve();
    bars.Values = Values(groups);
    const auto prop = std::make_shared<const millichart::HistogramProp>(BareRecord(bars));
    const std::shared_ptr<penlode::IGraphicsEngine> engine =
        penlode::CGraphicsEngine::ForRaster(PageOf(bars), kDpi, penlode::kWhite);
    const Way way = [=] {
        Draw(bars, *prop, {}, *engine);
        return groups;
    };
    suite.AddPrepared(
        NameOf(groups), [way] { return way; }, groups * kComponents);
}

} // namespace

void AddBarCases(Suite& suite) {
    AddTwelve(suite);
    for (const std::size_t groups : {10U, 100U, 1000U, 10000U}) {
        AddMany(suite, groups);
        if (groups != 100U) {
            suite.Compare(NameOf(groups) + " / of 100 x 6", NameOf(groups), NameOf(100), 1.5);
        }
    }
}

} // namespace bench
