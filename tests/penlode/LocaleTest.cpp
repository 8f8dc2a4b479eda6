#include "millichart.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"
#include "support/EverySlot.h"
#include "support/Shell.h"

#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>

using namespace penlode;

namespace {

const char* const kDocument =
    R"({"data": {"values": ["1234.5", 2765.5]}, "property": {"PieBasicProp": {"PieStyle": "3D",
    "FixedSize": 1, "FixedWidth": 31.5, "PenSepLine": "#FF000000 0.25 dash", "ComponentName": "甲||乙||",
    "ComponentColor": ["#336699", "#993366"]}, "PieLabelProp": {"ShowNameLabel": 1, "ShowValueLabel": 1,
    "ShowPercentLabel": 1, "PieLabelTextProperty": {"字体": "宋体 3.5", "DrawBackGround": 0, "Angle": 7.5}}}})";

/// A program in a language that writes 1,5 and 1.234.567: false if this machine knows none.
bool EnterCommaLocale(const TemporaryFolder& folder) {
    const std::string made = folder.Path("de_DE.UTF-8");
    Shell("localedef -i de_DE -f UTF-8 " + made + " 2>&1");
    if (std::filesystem::exists(made)) {
        setenv("LOCPATH", folder.Path("").c_str(), 1);
    }
    try {
        std::locale::global(std::locale("de_DE.UTF-8"));
    } catch (const std::runtime_error&) {
        return false;
    }
    return std::string(std::localeconv()->decimal_point) == ",";
}

/// Reads a document, draws it beside the drawing of every operation, and saves it again.
class Report {
public:
    Report() {
        CJsonSerializeStream stream(kDocument);
        millichart::CPiePropSerialize::SerializePieProp(stream, m_prop, "property");
        m_pie.SetPieProp(m_prop);
        m_pie.SetComponentValue({1234.5, 2765.5});
        m_pie.SetLocation({112.5F, 88.25F});
        m_pie.Layout();
    }

    std::string Files() {
        const auto png = CGraphicsEngine::ForRaster(kEverySlotPage, 96.5, kWhite);
        const auto pdf = CGraphicsEngine::ForPdf(kEverySlotPage);
        CSvgEngine svg(kEverySlotPage);
        for (IGraphicsEngine* engine :
             {static_cast<IGraphicsEngine*>(png.get()), static_cast<IGraphicsEngine*>(pdf.get()),
              static_cast<IGraphicsEngine*>(&svg)}) {
            DrawEverySlot(*engine);
            m_pie.Draw(engine);
        }
        return png->EncodePng() + pdf->FinishPdf() + svg.Text() + Saved();
    }

private:
    std::string Saved() {
        CJsonSerializeStream stream;
        millichart::CPiePropSerialize::SerializePieProp(stream, m_prop, "property");
        return stream.Text();
    }

    millichart::PieProp m_prop;
    millichart::CBasicPie m_pie;
};

constexpr int kDrawn = 0;
constexpr int kNoSuchLocale = 3;

/// In a process of its own, so that nothing is left from the other locale.
int DrawInCommaLocale(const TemporaryFolder& folder) {
    const pid_t child = fork();
    if (child == 0) {
        const bool entered = EnterCommaLocale(folder);
        if (entered) {
            folder.Write("files", Report().Files());
        }
        _exit(entered ? kDrawn : kNoSuchLocale);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(Locale, FilesHaveTheSameBytesInAHostThatWritesCommas) {
    const TemporaryFolder folder;
    const int status = DrawInCommaLocale(folder);
    if (status == kNoSuchLocale) {
        GTEST_SKIP() << "needs the German locale, or the package locales to make it";
    }
    ASSERT_EQ(status, kDrawn);
    const std::string here = Report().Files();
    EXPECT_NE(here.find("甲;1234.5;30.9%"), std::string::npos) << "the drawing holds numbers";
    EXPECT_NE(here.find("31.5"), std::string::npos);
    EXPECT_TRUE(ReadAll(folder.Path("files")) == here);
}
