#include "penlode/svg/SvgEngine.h"
#include "support/EverySlot.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

using namespace penlode;

namespace {

std::string Document(bool outlines) {
    CSvgEngine engine(kEverySlotPage, {"Title", "Description", kWhite, outlines});
    DrawEverySlot(engine);
    return engine.Text();
}

} // namespace

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
