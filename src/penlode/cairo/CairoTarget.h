#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/engine/Mark.h"

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
        LastMark.reset();
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

    /// The same for a shape; one that is filled has a pen of its colour. A small one that lies on the one
    /// before is not drawn again, unless a host may have drawn in between.
    template <std::invocable<const Painter&> Operation>
    Status DrawShape(const CSurfaceState& state, const Outline& outline, const Pen& look, bool fills,
                     Operation&& operation) {
        std::optional<Mark> mark;
        if (What != Kind::Host && !Finished) {
            mark = MarkOf(outline, look, fills, Canvas.Setting().Device, state);
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
    double Dpi;
    std::unique_ptr<std::string> PdfFile; ///< outlives the canvas, which writes to it to the last
    CairoCanvas Canvas;
    bool Finished = false;
    std::optional<Mark> LastMark; ///< drawn by the last operation, if it was one
};

} // namespace penlode
