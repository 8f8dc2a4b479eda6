#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/cairo/GraphicsEngine.h"

#include <cmath>
#include <concepts>

namespace penlode {

/// What an engine draws on: a canvas, the state that every engine keeps, and whatever belongs to its kind.
struct CGraphicsEngine::Target {
    enum class Kind { Picture, Pdf, Host };

    Target(Kind kind, CairoContext context, const CanvasSetting& setting, double dpi)
        : What(kind), Dpi(dpi), Canvas(std::move(context), setting), State(dpi, dpi) {}

    /// Runs one drawing operation.
    template <std::invocable<const Painter&> Operation> Status Draw(Operation&& operation) {
        if (Finished) {
            return Status::WrongState;
        }
        const Painter painter(Canvas, State);
        return painter.IsReady() ? operation(painter) : Status::InvalidParameter;
    }

    Kind What;
    double Dpi;
    std::unique_ptr<std::string> PdfFile; ///< outlives the canvas, which writes to it to the last
    CairoCanvas Canvas;
    CSurfaceState State;
    bool Finished = false;
};

template <class... Numbers> bool AreFinite(Numbers... numbers) {
    return (... && std::isfinite(numbers));
}

inline bool IsFinite(const RectF& r) {
    return AreFinite(r.X, r.Y, r.Width, r.Height);
}

} // namespace penlode
