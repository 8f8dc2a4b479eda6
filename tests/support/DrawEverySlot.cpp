#include "penlode/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"
#include "support/EverySlot.h"

#include <fstream>
#include <iostream>
#include <string>

using namespace penlode;

namespace {

constexpr double kDpi = 192.0;

bool Write(const std::string& name, const std::string& bytes) {
    std::ofstream file(name, std::ios::binary);
    file << bytes;
    file.close();
    return static_cast<bool>(file);
}

std::string Png() {
    const auto engine = CGraphicsEngine::ForRaster(kEverySlotPage, kDpi, kWhite);
    DrawEverySlot(*engine);
    return engine->EncodePng();
}

#ifdef _WIN32
constexpr const char* kPaper = "/every-slot.emf";

std::string Paper() {
    const auto engine = CGraphicsEngine::ForMetafile(kEverySlotPage);
    DrawEverySlot(*engine);
    return engine->FinishMetafile();
}
#else
constexpr const char* kPaper = "/every-slot.pdf";

std::string Paper() {
    const auto engine = CGraphicsEngine::ForPdf(kEverySlotPage);
    DrawEverySlot(*engine);
    return engine->FinishPdf();
}
#endif

std::string Svg(bool textAsOutlines) {
    CSvgEngine engine(kEverySlotPage, {"Every operation", "", kWhite, textAsOutlines});
    DrawEverySlot(engine);
    return engine.Text();
}

} // namespace

/// draw-every-slot FOLDER: the drawing that uses every operation, as each engine draws it, into that folder.
int main(int argc, char** argv) {
    const std::string folder = argc == 2 ? argv[1] : ".";
    const bool written = Write(folder + "/every-slot.png", Png()) && Write(folder + kPaper, Paper()) &&
                         Write(folder + "/every-slot.svg", Svg(false)) &&
                         Write(folder + "/every-slot-outlines.svg", Svg(true));
    if (!written) {
        std::cerr << "draw-every-slot: cannot write into " << folder << '\n';
    }
    return written ? 0 : 1;
}
