#include "penlode/svg/SvgEngine.h"
#include "support/EverySlot.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

using namespace penlode;

namespace {

/// Every operation as it is, and once more mirrored, turned and sheared, with letters as outlines or not.
std::string Drawn(bool textAsOutlines) {
    CSvgEngine engine(kEverySlotPage, {"Every <operation>", "", kWhite, textAsOutlines});
    DrawEverySlot(engine);
    const Matrix bent{-0.8, 0.3, 0.1, 0.9, 140.0, 5.0};
    engine.SetTransform(&bent);
    DrawEverySlot(engine);
    return engine.Text();
}

std::vector<std::string> LinesOf(std::istream&& stream) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

// What the documents look like is compared with the other engines where a viewer of SVG is installed.
TEST(SvgEverySlot, IsWrittenAsItWas) {
    for (const bool outlines : {false, true}) {
        const std::string kept =
            std::string(MILLICHART_GOLDEN) + (outlines ? "/every-slot-outlines.svg" : "/every-slot.svg");
        if (std::getenv("MILLICHART_UPDATE_GOLDEN") != nullptr) {
            std::ofstream(kept, std::ios::binary) << Drawn(outlines);
        }
        const std::vector<std::string> drawn = LinesOf(std::istringstream(Drawn(outlines)));
        const std::vector<std::string> expected = LinesOf(std::ifstream(kept, std::ios::binary));
        const auto [was, is] = std::mismatch(expected.begin(), expected.end(), drawn.begin(), drawn.end());
        EXPECT_EQ(was == expected.end() ? "" : *was, is == drawn.end() ? "" : *is)
            << kept << ", line " << was - expected.begin() + 1 << "; ./run golden writes it anew";
    }
}

TEST(SvgEverySlot, IsWellFormed) {
    if (std::system("xmllint --version >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "xmllint is not installed";
    }
    for (const bool outlines : {false, true}) {
        const std::string name = testing::TempDir() + "millichart-well-formed.svg";
        std::ofstream(name, std::ios::binary) << Drawn(outlines);
        EXPECT_EQ(std::system(("xmllint --noout \"" + name + "\"").c_str()), 0);
        std::remove(name.c_str());
    }
}
