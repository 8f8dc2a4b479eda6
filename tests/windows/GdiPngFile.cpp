#include "penlode/gdiplus/GdiPlus.h"
#include "support/PngFile.h"

#include <stdexcept>

using namespace penlode;

namespace {

Gdiplus::BitmapData RowsOf(Image& image) {
    Gdiplus::BitmapData rows{};
    rows.Width = static_cast<UINT>(image.Width);
    rows.Height = static_cast<UINT>(image.Height);
    rows.Stride = image.Width * 4;
    rows.PixelFormat = PixelFormat32bppARGB;
    rows.Scan0 = image.Pixels.data();
    return rows;
}

} // namespace

Image DecodePng(const std::string& file) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, file.size());
    file.copy(static_cast<char*>(GlobalLock(memory)), file.size());
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    CreateStreamOnHGlobal(memory, TRUE, &stream);
    Gdiplus::GpBitmap* made = nullptr;
    flat::GdipCreateBitmapFromStream(stream, &made);
    Image image;
    if (const GdipBitmap bitmap{made}) {
        UINT width = 0;
        UINT height = 0;
        flat::GdipGetImageWidth(made, &width);
        flat::GdipGetImageHeight(made, &height);
        image.Width = static_cast<std::int32_t>(width);
        image.Height = static_cast<std::int32_t>(height);
        image.Pixels.resize(static_cast<std::size_t>(width) * height);
        Gdiplus::BitmapData rows = RowsOf(image);
        const Gdiplus::Rect whole(0, 0, image.Width, image.Height);
        flat::GdipBitmapLockBits(made, &whole,
                                 Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf,
                                 PixelFormat32bppARGB, &rows);
        flat::GdipBitmapUnlockBits(made, &rows);
    }
    stream->Release();
    return image;
}

bool PngHasAlpha(const std::string& file) {
    return file.at(25) == 6; // the colour type of the first chunk
}

std::uint32_t PngNumber(const std::string& file, const char* chunk, std::size_t offset) {
    const std::size_t name = file.find(chunk);
    if (name == std::string::npos) {
        throw std::out_of_range(chunk);
    }
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        number = number << 8U | static_cast<unsigned char>(file.at(name + 4 + offset + i));
    }
    return number;
}
