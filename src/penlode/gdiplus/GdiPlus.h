#pragma once

/// GDI+'s flat interface, whose functions are in Gdiplus::DllExports. Included by the sources of this room
/// alone: hosts see its types by name only.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// GDI+'s headers need what <windows.h> may leave out.
#include <algorithm>
#include <memory>
#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>

namespace penlode {

namespace flat = Gdiplus::DllExports;

template <auto Delete> struct GdipDeleter {
    template <class T> void operator()(T* object) const { Delete(object); }
};

using GdipGraphics = std::unique_ptr<Gdiplus::GpGraphics, GdipDeleter<flat::GdipDeleteGraphics>>;
using GdipPen = std::unique_ptr<Gdiplus::GpPen, GdipDeleter<flat::GdipDeletePen>>;
using GdipPath = std::unique_ptr<Gdiplus::GpPath, GdipDeleter<flat::GdipDeletePath>>;
using GdipRegion = std::unique_ptr<Gdiplus::GpRegion, GdipDeleter<flat::GdipDeleteRegion>>;
using GdipMatrix = std::unique_ptr<Gdiplus::GpMatrix, GdipDeleter<flat::GdipDeleteMatrix>>;
using GdipFontFamily = std::unique_ptr<Gdiplus::GpFontFamily, GdipDeleter<flat::GdipDeleteFontFamily>>;
using GdipFont = std::unique_ptr<Gdiplus::GpFont, GdipDeleter<flat::GdipDeleteFont>>;
using GdipStringFormat = std::unique_ptr<Gdiplus::GpStringFormat, GdipDeleter<flat::GdipDeleteStringFormat>>;
using GdipImageAttributes =
    std::unique_ptr<Gdiplus::GpImageAttributes, GdipDeleter<flat::GdipDisposeImageAttributes>>;

/// Of any kind.
struct GdipBrushDeleter {
    void operator()(Gdiplus::GpBrush* brush) const { flat::GdipDeleteBrush(brush); }
};

using GdipBrush = std::unique_ptr<Gdiplus::GpBrush, GdipBrushDeleter>;

/// Bitmaps and metafiles.
struct GdipImageDeleter {
    void operator()(Gdiplus::GpImage* image) const { flat::GdipDisposeImage(image); }
};

using GdipImage = std::unique_ptr<Gdiplus::GpImage, GdipImageDeleter>;
using GdipBitmap = std::unique_ptr<Gdiplus::GpBitmap, GdipImageDeleter>;

/// What a creating function makes, or null if it fails. The function writes its result to its last argument.
template <class Handle, class Create, class... Arguments>
Handle Created(Create create, const Arguments&... arguments) {
    typename Handle::pointer made = nullptr;
    return create(arguments..., &made) == Gdiplus::Ok ? Handle(made) : Handle();
}

/// Starts GDI+ when it is first asked. False where it does not start; then nothing is drawn or measured.
///
/// It is never shut down: that must not happen while a DLL is unloaded, and the system takes everything back
/// when the process ends.
bool StartGdiplus();

} // namespace penlode
