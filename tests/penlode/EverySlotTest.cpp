#include "support/EverySlot.h"

#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"
#include "support/SlotProbe.h"

#include <gtest/gtest.h>

using namespace penlode;

namespace {

const std::set<std::string> kNone;

/// With every operation in place, all are used and none is refused.
void DrawThroughProbe(IGraphicsEngine& engine, const std::string& leftOut) {
    SlotProbe probe(engine, leftOut);
    DrawEverySlot(probe);
    if (leftOut.empty()) {
        EXPECT_EQ(probe.Used(), AllSlots());
        EXPECT_EQ(probe.Refused(), kNone);
    }
}

std::string AsPng(const std::string& leftOut) {
    const auto engine = CGraphicsEngine::ForRaster(kEverySlotPage, 96, kWhite);
    DrawThroughProbe(*engine, leftOut);
    return engine->EncodePng();
}

std::string AsPdf(const std::string& leftOut) {
    const auto engine = CGraphicsEngine::ForPdf(kEverySlotPage);
    DrawThroughProbe(*engine, leftOut);
    return engine->FinishPdf();
}

std::string AsSvg(const std::string& leftOut) {
    CSvgEngine engine(kEverySlotPage);
    DrawThroughProbe(engine, leftOut);
    return engine.Text();
}

/// The operations whose absence the file does not show.
std::set<std::string> Invisible(std::string (*draw)(const std::string& leftOut)) {
    const std::string whole = draw({});
    std::set<std::string> invisible;
    for (const std::string& slot : AllSlots()) {
        if (draw(slot) == whole) {
            invisible.insert(slot);
        }
    }
    return invisible;
}

} // namespace

// An operation that an engine does not carry out would show as little as one that was left out.

TEST(EverySlot, ShowsInAPicture) {
    EXPECT_EQ(Invisible(AsPng), kNone);
}

TEST(EverySlot, ShowsInAPdf) {
    EXPECT_EQ(Invisible(AsPdf), kNone);
}

TEST(EverySlot, ShowsInAnSvg) {
    EXPECT_EQ(Invisible(AsSvg), kNone);
}
