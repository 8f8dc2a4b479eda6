#include "PieByHand.h"
#include "Suite.h"
#include "Voices.h"
#include "millichart.h"
#include "penlode/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <memory>

/// A pie of twelve with labels and a legend, laid out, drawn and encoded.
namespace bench {
namespace {

constexpr double kDpi = 144.0;

byhand::Pie Twelve() {
    return {120.0,
            70.0,
            45.0,
            35.0,
            40.0,
            3.0,
            "Noto Sans CJK SC",
            {12, 7, 9, 14, 5, 8, 11, 6, 10, 4, 9, 5},
            {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
             "November", "December"},
            {0x3B6FB6, 0xE58A3C, 0x57A168, 0xC9504E, 0x8A6BB1, 0x8C6A5D, 0xD77FB4, 0x7F7F7F, 0xB5B944,
             0x4BB3C3, 0x2C4A7C, 0xA5632A}};
}

millichart::PieProp RecordOf(const byhand::Pie& pie) {
    millichart::PieProp prop;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = static_cast<float>(pie.Diameter);
    prop.Basic.PenSepLine = penlode::Pen(penlode::kBlack, 0.2F);
    prop.Basic.ComponentName = pie.Names;
    for (const unsigned rgb : pie.Colors) {
        prop.Basic.ComponentColor.push_back({0xFF000000U | rgb});
    }
    const penlode::Font font{std::wstring(pie.Family.begin(), pie.Family.end()),
                             static_cast<float>(pie.FontSize)};
    prop.Label.ShowNameLabel = 1;
    prop.Label.ShowPercentLabel = 1;
    prop.Label.DistBetweenLabelCenterAndPieCenter = 2.0F;
    prop.Label.PieLabelTextProperty.Font = font;
    prop.Legend.ShowLegend = 1;
    prop.Legend.Font = font;
    return prop;
}

void Draw(const byhand::Pie& pie, const millichart::PieProp& prop, const millichart::ChartOptions& options,
          penlode::IGraphicsEngine& engine) {
    millichart::CBasicPie chart;
    chart.SetOptions(options);
    chart.SetPieProp(prop);
    chart.SetComponentValue(pie.Values);
    chart.SetLocation({static_cast<float>(pie.CenterX), static_cast<float>(pie.CenterY)});
    chart.Layout();
    chart.Draw(&engine);
}

byhand::Pie Moved(byhand::Pie pie) {
    const double shift = NextShift();
    pie.CenterX += shift;
    pie.CenterY += shift;
    return pie;
}

} // namespace

void AddPieCases(Suite& suite) {
    const byhand::Pie pie = Twelve();
    const auto prop = std::make_shared<const millichart::PieProp>(RecordOf(pie));
    const penlode::SizeF page{static_cast<float>(pie.PageWidth), static_cast<float>(pie.PageHeight)};
    for (const Voice& voice : Voices()) {
        suite.Add("pie of 12, PNG" + voice.Name, [=] {
            const auto engine = penlode::CGraphicsEngine::ForRaster(page, kDpi, penlode::kWhite);
            Draw(Moved(pie), *prop, voice.Options, *engine);
            return engine->EncodePng().size();
        });
        suite.Add("pie of 12, SVG" + voice.Name, [=] {
            penlode::CSvgEngine engine(page);
            Draw(pie, *prop, voice.Options, engine);
            return engine.Text().size();
        });
    }
    CompareVoices(suite, "pie of 12, PNG");
    CompareVoices(suite, "pie of 12, SVG");
    suite.Add("pie of 12, PNG by hand", [=] { return byhand::PiePng(Moved(pie), kDpi).size(); });
    suite.Add("pie of 12, SVG by hand", [=] { return byhand::PieSvg(pie).size(); });
    suite.Compare("pie of 12, PNG / by hand", "pie of 12, PNG", "pie of 12, PNG by hand", 1.5);
    suite.Compare("pie of 12, SVG / by hand", "pie of 12, SVG", "pie of 12, SVG by hand", 1.5);
}

} // namespace bench
