#include "penlode/Units.h"
#include "penlode/engine/RasterSize.h"
#include "penlode/gdiplus/GdiTarget.h"

#include <cmath>
#include <utility>

namespace penlode {
namespace {

constexpr double kHundredths = 100.0;

bool IsMetafile(HDC context) {
    const DWORD kind = GetObjectType(context);
    return kind == OBJ_ENHMETADC || kind == OBJ_METADC;
}

bool IsPage(HDC context) {
    const int technology = GetDeviceCaps(context, TECHNOLOGY);
    return technology == DT_RASPRINTER || technology == DT_PLOTTER || IsMetafile(context);
}

/// Metafiles count by the size that a driver gives its device, whatever size the user likes texts to have.
double PixelsPerInch(HDC context, int pixels, int millimetres, int logical) {
    const int size = GetDeviceCaps(context, millimetres);
    return size > 0 ? GetDeviceCaps(context, pixels) * kMillimetresPerInch / size
                    : GetDeviceCaps(context, logical);
}

Resolution MetafileResolution(HDC reference) {
    return {PixelsPerInch(reference, HORZRES, HORZSIZE, LOGPIXELSX),
            PixelsPerInch(reference, VERTRES, VERTSIZE, LOGPIXELSY)};
}

Resolution ResolutionOf(HDC context) {
    if (IsMetafile(context)) {
        return MetafileResolution(context);
    }
    return {static_cast<double>(GetDeviceCaps(context, LOGPIXELSX)),
            static_cast<double>(GetDeviceCaps(context, LOGPIXELSY))};
}

/// What of a context can be seen, from its viewport's origin: of a page the whole, since its clip may not be
/// set yet; of a host's metafile whatever it may be made to hold.
BoxD SeenArea(HDC context, const Resolution& dpi) {
    if (IsMetafile(context)) {
        const double width = kMaxPageSide * dpi.X / kMillimetresPerInch;
        const double height = kMaxPageSide * dpi.Y / kMillimetresPerInch;
        return {-width, -height, width, height};
    }
    RECT seen{0, 0, GetDeviceCaps(context, HORZRES), GetDeviceCaps(context, VERTRES)};
    if (IsPage(context)) {
        DPtoLP(context, reinterpret_cast<POINT*>(&seen), 2);
    } else {
        RECT clip{};
        seen = GetClipBox(context, &clip) == ERROR ? seen : clip;
    }
    return {static_cast<double>(seen.left), static_cast<double>(seen.top), static_cast<double>(seen.right),
            static_cast<double>(seen.bottom)};
}

/// The screen's device context, given back when it goes.
class ScreenDc {
public:
    ScreenDc() : m_dc(GetDC(nullptr)) {}

    ~ScreenDc() { ReleaseDC(nullptr, m_dc); }

    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;

    HDC Handle() const { return m_dc; }

private:
    HDC m_dc;
};

constexpr CLSID kPngEncoder{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

struct Released {
    void operator()(IStream* stream) const { stream->Release(); }
};

std::string ContentOf(IStream* stream) {
    HGLOBAL memory = nullptr;
    STATSTG statistics{};
    if (GetHGlobalFromStream(stream, &memory) != S_OK || stream->Stat(&statistics, STATFLAG_NONAME) != S_OK) {
        return {};
    }
    const std::string content(static_cast<const char*>(GlobalLock(memory)),
                              static_cast<std::size_t>(statistics.cbSize.QuadPart));
    GlobalUnlock(memory);
    return content;
}

std::string Encoded(Gdiplus::GpImage* image) {
    IStream* made = nullptr;
    if (CreateStreamOnHGlobal(nullptr, TRUE, &made) != S_OK) {
        return {};
    }
    const std::unique_ptr<IStream, Released> stream(made);
    return flat::GdipSaveImageToStream(image, stream.get(), &kPngEncoder, nullptr) == Gdiplus::Ok
               ? ContentOf(stream.get())
               : std::string();
}

bool IsOpaque(const Image& image) {
    return std::all_of(image.Pixels.begin(), image.Pixels.end(),
                       [](Color color) { return color.A() == 0xFFU; });
}

/// Its bytes, once it is of no more use.
std::string BytesOf(HENHMETAFILE metafile) {
    std::string bytes(GetEnhMetaFileBits(metafile, 0, nullptr), '\0');
    GetEnhMetaFileBits(metafile, static_cast<UINT>(bytes.size()), reinterpret_cast<BYTE*>(bytes.data()));
    DeleteEnhMetaFile(metafile);
    return bytes;
}

/// A metafile of that many hundredths of a millimetre, for GDI+'s records and GDI's.
GdipImage DualMetafile(HDC screen, const RECT& frame) {
    const Gdiplus::Rect place(0, 0, frame.right, frame.bottom);
    Gdiplus::GpMetafile* metafile = nullptr;
    flat::GdipRecordMetafileI(screen, Gdiplus::EmfTypeEmfPlusDual, &place, Gdiplus::MetafileFrameUnitGdi,
                              L"Millichart", &metafile);
    return GdipImage(metafile);
}

HENHMETAFILE HandleOf(Gdiplus::GpImage* metafile) {
    HENHMETAFILE handle = nullptr;
    flat::GdipGetHemfFromMetafile(static_cast<Gdiplus::GpMetafile*>(metafile), &handle);
    return handle;
}

/// Whether a metafile for both gets GDI's records too. Where it does not, programs without GDI+ would see
/// nothing of it.
bool RecordsBoth(HDC screen) {
    const GdipImage metafile = DualMetafile(screen, {0, 0, 1000, 1000});
    GdipGraphics graphics = Created<GdipGraphics>(flat::GdipGetImageGraphicsContext, metafile.get());
    if (graphics == nullptr) {
        return false;
    }
    Gdiplus::GpSolidFill* black = nullptr;
    flat::GdipCreateSolidFill(kBlack.Argb, &black);
    const GdipBrush brush(black);
    flat::GdipFillRectangle(graphics.get(), brush.get(), 0.0F, 0.0F, 5.0F, 5.0F);
    graphics.reset();
    const HENHMETAFILE handle = HandleOf(metafile.get());
    bool found = false;
    const auto look = [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM argument) -> int {
        const DWORD kind = record->iType;
        *reinterpret_cast<bool*>(argument) |= kind != EMR_HEADER && kind != EMR_GDICOMMENT && kind != EMR_EOF;
        return 1;
    };
    EnumEnhMetaFile(nullptr, handle, look, &found, nullptr);
    DeleteEnhMetaFile(handle);
    return found;
}

} // namespace

CGraphicsEngine::CGraphicsEngine(std::unique_ptr<Target> target)
    : CTrackingEngine(target->PixelsPerInch.X, target->PixelsPerInch.Y), m_target(std::move(target)) {}

CGraphicsEngine::~CGraphicsEngine() = default;

std::unique_ptr<CGraphicsEngine> CGraphicsEngine::ForRaster(SizeF millimetres, double dpi, Color background) {
    const std::optional<RasterSize> size = RasterSizeOf(millimetres, dpi);
    if (!size || !StartGdiplus()) {
        return nullptr;
    }
    const auto [width, height] = *size;
    GdipBitmap bitmap = Created<GdipBitmap>(flat::GdipCreateBitmapFromScan0, static_cast<INT>(width),
                                            static_cast<INT>(height), 0, PixelFormat32bppPARGB, nullptr);
    if (bitmap == nullptr) {
        return nullptr;
    }
    flat::GdipBitmapSetResolution(bitmap.get(), static_cast<float>(dpi), static_cast<float>(dpi));
    GdipGraphics graphics = Created<GdipGraphics>(flat::GdipGetImageGraphicsContext, bitmap.get());
    if (graphics == nullptr) {
        return nullptr;
    }
    flat::GdipGraphicsClear(graphics.get(), background.Argb);
    const DeviceSetting setting{true, dpi, {0.0, 0.0, width, height}, {}, {width, height}};
    auto target =
        std::make_unique<Target>(Target::Kind::Picture, std::move(graphics), setting, Resolution{dpi, dpi});
    target->Surface.reset(bitmap.release());
    return std::unique_ptr<CGraphicsEngine>(new CGraphicsEngine(std::move(target)));
}

std::unique_ptr<CGraphicsEngine> CGraphicsEngine::ForDeviceContext(HDC context, double dpi) {
    if (context == nullptr || !(dpi == 0.0 || IsResolution(dpi)) || !StartGdiplus()) {
        return nullptr;
    }
    const Resolution resolution = dpi == 0.0 ? ResolutionOf(context) : Resolution{dpi, dpi};
    if (!IsResolution(resolution.X) || !IsResolution(resolution.Y)) {
        return nullptr;
    }
    const int saved = SaveDC(context);
    GdipGraphics graphics = Created<GdipGraphics>(flat::GdipCreateFromHDC, context);
    if (graphics == nullptr) {
        RestoreDC(context, saved);
        return nullptr;
    }
    const DeviceSetting setting{!IsPage(context), resolution.X, SeenArea(context, resolution), {}, {}};
    auto target = std::make_unique<Target>(Target::Kind::Context, std::move(graphics), setting, resolution);
    target->Context = context;
    target->SavedContext = saved;
    return std::unique_ptr<CGraphicsEngine>(new CGraphicsEngine(std::move(target)));
}

std::unique_ptr<CGraphicsEngine> CGraphicsEngine::ForMetafile(SizeF millimetres) {
    if (!IsPageSize(millimetres) || !StartGdiplus()) {
        return nullptr;
    }
    const ScreenDc screen;
    const RECT frame{0, 0, std::lround(millimetres.Width * kHundredths),
                     std::lround(millimetres.Height * kHundredths)};
    static const bool kRecordsBoth = RecordsBoth(screen.Handle());
    GdipImage dual = kRecordsBoth ? DualMetafile(screen.Handle(), frame) : nullptr;
    HDC plain = kRecordsBoth ? nullptr : CreateEnhMetaFileW(screen.Handle(), nullptr, &frame, nullptr);
    GdipGraphics graphics = dual != nullptr
                                ? Created<GdipGraphics>(flat::GdipGetImageGraphicsContext, dual.get())
                                : Created<GdipGraphics>(flat::GdipCreateFromHDC, plain);
    if (graphics == nullptr) {
        DeleteEnhMetaFile(CloseEnhMetaFile(plain));
        return nullptr;
    }
    const Resolution dpi = MetafileResolution(screen.Handle());
    const BoxD page{0.0, 0.0, millimetres.Width * dpi.X / kMillimetresPerInch,
                    millimetres.Height * dpi.Y / kMillimetresPerInch};
    const DeviceSetting setting{false, dpi.X, page, {}, {}};
    auto target = std::make_unique<Target>(Target::Kind::Metafile, std::move(graphics), setting, dpi);
    target->Surface = std::move(dual);
    target->PlainMetafile = plain;
    return std::unique_ptr<CGraphicsEngine>(new CGraphicsEngine(std::move(target)));
}

std::string CGraphicsEngine::EncodePng() const {
    const Image image = Pixels();
    if (image.Pixels.empty()) {
        return {};
    }
    if (!IsOpaque(image)) {
        return Encoded(m_target->Surface.get());
    }
    auto* const picture = static_cast<Gdiplus::GpBitmap*>(m_target->Surface.get());
    const GdipBitmap opaque = Created<GdipBitmap>(flat::GdipCloneBitmapAreaI, 0, 0, image.Width, image.Height,
                                                  PixelFormat24bppRGB, picture);
    flat::GdipBitmapSetResolution(opaque.get(), image.HorizontalDpi, image.VerticalDpi);
    return Encoded(opaque.get());
}

Image CGraphicsEngine::Pixels() const {
    Image image;
    if (m_target->What != Target::Kind::Picture) {
        return image;
    }
    const BoxD& area = m_target->Canvas->Setting().Area;
    image.Width = static_cast<std::int32_t>(area.Width());
    image.Height = static_cast<std::int32_t>(area.Height());
    image.HorizontalDpi = image.VerticalDpi = static_cast<float>(m_target->PixelsPerInch.X);
    image.Pixels.resize(static_cast<std::size_t>(image.Width) * static_cast<std::size_t>(image.Height));
    static_assert(sizeof(Color) == 4);
    Gdiplus::BitmapData rows{};
    rows.Width = static_cast<UINT>(image.Width);
    rows.Height = static_cast<UINT>(image.Height);
    rows.Stride = image.Width * 4;
    rows.PixelFormat = PixelFormat32bppARGB;
    rows.Scan0 = image.Pixels.data();
    const Gdiplus::Rect whole(0, 0, image.Width, image.Height);
    auto* const picture = static_cast<Gdiplus::GpBitmap*>(m_target->Surface.get());
    if (flat::GdipBitmapLockBits(picture, &whole,
                                 Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf,
                                 PixelFormat32bppARGB, &rows) == Gdiplus::Ok) {
        flat::GdipBitmapUnlockBits(picture, &rows);
    }
    return image;
}

std::string CGraphicsEngine::FinishMetafile() {
    if (m_target->What != Target::Kind::Metafile) {
        return {};
    }
    if (m_target->Canvas) {
        m_target->Canvas.reset();
        m_target->File = BytesOf(m_target->Surface != nullptr
                                     ? HandleOf(m_target->Surface.get())
                                     : CloseEnhMetaFile(std::exchange(m_target->PlainMetafile, nullptr)));
    }
    return m_target->File;
}

} // namespace penlode
