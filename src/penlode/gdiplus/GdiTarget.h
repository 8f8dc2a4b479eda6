#pragma once

#include "penlode/engine/Mark.h"
#include "penlode/gdiplus/GdiCanvas.h"
#include "penlode/gdiplus/GraphicsEngine.h"

#include <concepts>
#include <utility>

namespace penlode {

/// Dots per inch across and down.
struct Resolution {
    double X;
    double Y;
};

/// What an engine draws on, and whatever belongs to its kind.
struct CGraphicsEngine::Target {
    enum class Kind { Picture, Context, Metafile };

    Target(Kind kind, GdipGraphics graphics, const DeviceSetting& setting, const Resolution& dpi)
        : What(kind), PixelsPerInch(dpi), Canvas(std::in_place, std::move(graphics), setting) {}

    ~Target() {
        Canvas.reset(); // GDI+ holds the context as long as it draws on it
        if (Context != nullptr) {
            RestoreDC(Context, SavedContext);
        }
        if (PlainMetafile != nullptr) {
            DeleteEnhMetaFile(CloseEnhMetaFile(PlainMetafile));
        }
    }

    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    /// Runs one drawing operation. Under a transform that folds the plane it draws nothing, and is Ok.
    template <std::invocable<const GdiPainter&> Operation>
    Status Draw(const CSurfaceState& state, Operation&& operation) {
        LastMark.reset();
        if (!Canvas) {
            return Status::WrongState;
        }
        const GdiPainter painter(*Canvas, state);
        return painter.IsReady() ? operation(painter) : Status::Ok;
    }

    /// The same for a shape; one that is filled has a pen of its colour. A small one that lies on the one
    /// before is not drawn again, unless a host may have drawn in between.
    template <std::invocable<const GdiPainter&> Operation>
    Status DrawShape(const CSurfaceState& state, const Outline& outline, const Pen& look, bool fills,
                     Operation&& operation) {
        std::optional<Mark> mark;
        if (What != Kind::Context && Canvas) {
            mark = MarkOf(outline, look, fills, Canvas->Setting(), state);
        }
        if (mark && LastMark && LastMark->Hides(*mark)) {
            return Status::Ok;
        }
        const Status answer = Draw(state, operation);
        if (answer == Status::Ok) {
            LastMark = mark;
        }
        return answer;
    }

    Kind What;
    Resolution PixelsPerInch;
    HDC Context = nullptr; ///< saved, to be restored
    int SavedContext = 0;
    GdipImage Surface;               ///< a picture, or a metafile of both kinds of records
    HDC PlainMetafile = nullptr;     ///< one of GDI's records, while it is recorded
    std::optional<GdiCanvas> Canvas; ///< none when the metafile is finished
    std::string File;                ///< the finished metafile
    std::optional<Mark> LastMark;    ///< drawn by the last operation, if it was one
};

} // namespace penlode
