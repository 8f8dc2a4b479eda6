#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/cairo/GraphicsEngine.h"

#include <cmath>
#include <concepts>

namespace penlode {

/// What an engine draws on: a canvas, and whatever belongs to its kind.
struct CGraphicsEngine::Target {
    enum class Kind { Picture, Pdf, Host };

    Target(Kind kind, CairoContext context, const CanvasSetting& setting, double dpi)
        : What(kind), Dpi(dpi), Canvas(std::move(context), setting) {}

    /// Runs one drawing operation. Under a transform that folds the plane it draws nothing, and is Ok.
    template <std::invocable<const Painter&> Operation>
    Status Draw(const CSurfaceState& state, Operation&& operation) {
        if (Finished) {
            return Status::WrongState;
        }
        Status answer = Status::Ok;
        {
            const Painter painter(Canvas, state);
            if (painter.IsReady()) {
                answer = operation(painter);
            }
        }
        const Status outcome = Canvas.Recover();
        return answer == Status::Ok ? outcome : answer;
    }

    Kind What;
    double Dpi;
    std::unique_ptr<std::string> PdfFile; ///< outlives the canvas, which writes to it to the last
    CairoCanvas Canvas;
    bool Finished = false;
};

} // namespace penlode
