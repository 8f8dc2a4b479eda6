#include "penlode/Units.h"
#include "penlode/cairo/CairoTarget.h"
#include "penlode/cairo/PngWriter.h"
#include "penlode/engine/RasterSize.h"
#include "penlode/text/StringUtil.h"

#include <cairo-pdf.h>
#include <cstring>
#include <new>

namespace penlode {
namespace {

cairo_status_t AppendTo(void* file, const unsigned char* bytes, unsigned int count) {
    try {
        static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
        return CAIRO_STATUS_SUCCESS;
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

bool HasPixels(cairo_surface_t* surface) {
    switch (cairo_surface_get_type(surface)) {
    case CAIRO_SURFACE_TYPE_PDF:
    case CAIRO_SURFACE_TYPE_PS:
    case CAIRO_SURFACE_TYPE_SVG:
    case CAIRO_SURFACE_TYPE_RECORDING:
    case CAIRO_SURFACE_TYPE_SCRIPT:
    case CAIRO_SURFACE_TYPE_WIN32_PRINTING:
        return false;
    default:
        return true;
    }
}

void FillWith(cairo_t* context, Color color) {
    cairo_save(context);
    cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_rgba(context, color.R() / 255.0, color.G() / 255.0, color.B() / 255.0,
                          color.A() / 255.0);
    cairo_paint(context);
    cairo_restore(context);
}

/// The host's clip in pixels, within what Cairo can count. A recording surface may have no bounds.
BoxD ClipOf(cairo_t* context, const Matrix& userToPixels) {
    constexpr double kFar = 1048576.0;
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    cairo_clip_extents(context, &x1, &y1, &x2, &y2);
    return Common(Mapped(userToPixels, BoxD{x1, y1, x2, y2}), {-kFar, -kFar, kFar, kFar});
}

/// Cairo's image, finished with all drawings so far; empty for other kinds.
PremultipliedPixels PixelsOf(cairo_surface_t* surface) {
    cairo_surface_flush(surface);
    return {cairo_image_surface_get_data(surface), cairo_image_surface_get_width(surface),
            cairo_image_surface_get_height(surface), cairo_image_surface_get_stride(surface)};
}

/// What is no UTF-8 is replaced: Cairo would end the whole surface with an error.
void SetText(cairo_surface_t* pdf, cairo_pdf_metadata_t which, const std::string& text) {
    if (!text.empty()) {
        const std::string sound = CStringUtil::WideToUtf8(CStringUtil::Utf8ToWideString(text));
        cairo_pdf_surface_set_metadata(pdf, which, sound.c_str());
    }
}

} // namespace

CGraphicsEngine::CGraphicsEngine(std::unique_ptr<Target> target)
    : CTrackingEngine(target->Dpi, target->Dpi), m_target(std::move(target)) {}

CGraphicsEngine::~CGraphicsEngine() = default;

std::unique_ptr<CGraphicsEngine> CGraphicsEngine::ForRaster(SizeF millimetres, double dpi, Color background) {
    const std::optional<RasterSize> size = RasterSizeOf(millimetres, dpi);
    if (!size) {
        return nullptr;
    }
    const auto [width, height] = *size;
    const CairoSurface surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height)));
    CairoContext context(cairo_create(surface.get()));
    if (cairo_status(context.get()) != CAIRO_STATUS_SUCCESS) {
        return nullptr;
    }
    FillWith(context.get(), background);
    const CanvasSetting setting{{true, dpi, {0.0, 0.0, width, height}, {}, {width, height}}, {}};
    return std::unique_ptr<CGraphicsEngine>(new CGraphicsEngine(
        std::make_unique<Target>(Target::Kind::Picture, std::move(context), setting, dpi)));
}

std::unique_ptr<CGraphicsEngine> CGraphicsEngine::ForPdf(SizeF millimetres, const PdfTexts& texts) {
    if (!IsPageSize(millimetres)) {
        return nullptr;
    }
    const double width = millimetres.Width * kPointsPerInch / kMillimetresPerInch;
    const double height = millimetres.Height * kPointsPerInch / kMillimetresPerInch;
    auto file = std::make_unique<std::string>();
    const CairoSurface surface(cairo_pdf_surface_create_for_stream(AppendTo, file.get(), width, height));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, "2000-01-01T00:00:00Z");
    SetText(surface.get(), CAIRO_PDF_METADATA_TITLE, texts.Title);
    SetText(surface.get(), CAIRO_PDF_METADATA_SUBJECT, texts.Subject);
    CairoContext context(cairo_create(surface.get()));
    if (cairo_status(context.get()) != CAIRO_STATUS_SUCCESS) {
        return nullptr;
    }
    const CanvasSetting setting{{false, kPointsPerInch, {0.0, 0.0, width, height}, {}, {}}, {}};
    auto target = std::make_unique<Target>(Target::Kind::Pdf, std::move(context), setting, kPointsPerInch);
    target->PdfFile = std::move(file);
    return std::unique_ptr<CGraphicsEngine>(new CGraphicsEngine(std::move(target)));
}

std::unique_ptr<CGraphicsEngine> CGraphicsEngine::ForCairo(_cairo* context, double dpi) {
    if (context == nullptr || cairo_status(context) != CAIRO_STATUS_SUCCESS || !IsResolution(dpi)) {
        return nullptr;
    }
    cairo_matrix_t m;
    cairo_get_matrix(context, &m);
    double scaleX = 1.0;
    double scaleY = 1.0;
    cairo_surface_t* surface = cairo_get_group_target(context);
    cairo_surface_get_device_scale(surface, &scaleX, &scaleY);
    double offsetX = 0.0;
    double offsetY = 0.0;
    cairo_surface_get_device_offset(surface, &offsetX, &offsetY);
    const Matrix toPixels = Matrix{m.xx, m.yx, m.xy, m.yy, m.x0, m.y0} * Matrix::Scale(scaleX, scaleY) *
                            Matrix::Translation(offsetX, offsetY);
    const CanvasSetting setting{
        {HasPixels(surface), dpi * toPixels.LengthFactor(), ClipOf(context, toPixels), toPixels, {}},
        Matrix::Translation(-offsetX, -offsetY) * Matrix::Scale(1.0 / scaleX, 1.0 / scaleY),
        false};
    return std::unique_ptr<CGraphicsEngine>(new CGraphicsEngine(
        std::make_unique<Target>(Target::Kind::Host, CairoContext(cairo_reference(context)), setting, dpi)));
}

std::string CGraphicsEngine::EncodePng() const {
    if (m_target->What != Target::Kind::Picture) {
        return {};
    }
    return penlode::EncodePng(PixelsOf(m_target->Canvas.Surface()), m_target->Dpi, m_target->Dpi);
}

Image CGraphicsEngine::Pixels() const {
    Image image;
    if (m_target->What != Target::Kind::Picture) {
        return image;
    }
    const PremultipliedPixels pixels = PixelsOf(m_target->Canvas.Surface());
    image.Width = pixels.Width;
    image.Height = pixels.Height;
    image.HorizontalDpi = image.VerticalDpi = static_cast<float>(m_target->Dpi);
    image.Pixels.resize(static_cast<std::size_t>(pixels.Width) * static_cast<std::size_t>(pixels.Height));
    Color* out = image.Pixels.data();
    for (std::int32_t y = 0; y < pixels.Height; ++y) {
        const unsigned char* row = pixels.Data + static_cast<std::ptrdiff_t>(y) * pixels.Stride;
        for (std::int32_t x = 0; x < pixels.Width; ++x, row += 4) {
            std::uint32_t word = 0;
            std::memcpy(&word, row, sizeof word);
            *out++ = {Unpremultiplied(word)};
        }
    }
    return image;
}

std::string CGraphicsEngine::FinishPdf() {
    if (m_target->What != Target::Kind::Pdf) {
        return {};
    }
    if (!m_target->Finished) {
        m_target->Finished = true;
        cairo_show_page(m_target->Canvas.Context());
        cairo_surface_finish(m_target->Canvas.Surface());
    }
    return *m_target->PdfFile;
}

} // namespace penlode
