#include "penlode/svg/SvgEngine.h"
#include "support/EverySlot.h"

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <locale>

using namespace penlode;

namespace {

std::string Document(bool outlines) {
    CSvgEngine engine(kEverySlotPage, {"Title", "Description", kWhite, outlines});
    DrawEverySlot(engine);
    return engine.Text();
}

struct DecimalComma final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }

    char do_thousands_sep() const override { return '.'; }

    std::string do_grouping() const override { return "\3"; }
};

/// A locale with a decimal comma, of the C library too where one is installed, until the end of the scope.
class CommaLocale {
public:
    CommaLocale() {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German_Germany.1252"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) {
                break;
            }
        }
    }

    ~CommaLocale() {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, "C");
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    std::locale m_before = std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
};

} // namespace

TEST(SvgDocument, SameCallsGiveTheSameBytesInEveryLocale) {
    const std::string first = Document(false);
    EXPECT_EQ(Document(false), first);
    const CommaLocale comma;
    EXPECT_EQ(Document(false), first);
}

TEST(SvgDocument, CanBeReadWhileItGrows) {
    CSvgEngine engine({80, 60});
    const SolidBrush brush{kBlack};
    engine.BeginContainer();
    engine.FillRectangle(&brush, 0, 0, 1, 1);
    const std::string half = engine.Text();
    EXPECT_TRUE(half.ends_with("  </g>\n</svg>\n"));
    engine.FillRectangle(&brush, 0, 0, 1, 1);
    EXPECT_EQ(engine.Text().substr(0, half.size() - 14), half.substr(0, half.size() - 14));
}

TEST(SvgDocument, IsWellFormed) {
    if (std::system("xmllint --version >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "xmllint is not installed";
    }
    for (const bool outlines : {false, true}) {
        const std::string name = testing::TempDir() + "millichart-well-formed.svg";
        std::ofstream(name, std::ios::binary) << Document(outlines);
        EXPECT_EQ(std::system(("xmllint --noout \"" + name + "\"").c_str()), 0);
        std::remove(name.c_str());
    }
}
