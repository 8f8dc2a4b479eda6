#include "penlode/cairo/CairoCanvas.h"

#include <utility>

namespace penlode {
namespace {

cairo_antialias_t AntialiasFor(SmoothingMode mode) {
    const bool jagged = mode == SmoothingMode::None || mode == SmoothingMode::HighSpeed;
    return jagged ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT;
}

} // namespace

CairoCanvas::CairoCanvas(CairoContext context, const CanvasSetting& setting)
    : m_surface(cairo_surface_reference(cairo_get_target(context.get()))), m_context(std::move(context)),
      m_setting(setting) {
    cairo_save(m_context.get());
}

CairoCanvas::~CairoCanvas() {
    cairo_restore(m_context.get());
}

Status CairoCanvas::Recover() {
    const cairo_status_t status = cairo_status(m_context.get());
    if (status == CAIRO_STATUS_SUCCESS) {
        return Status::Ok;
    }
    if (m_setting.OwnsSurface && cairo_surface_status(m_surface.get()) == CAIRO_STATUS_SUCCESS) {
        m_context.reset(cairo_create(m_surface.get()));
        cairo_save(m_context.get());
        m_clip = {};
        m_clippedTo.clear();
        m_clipGeneration.reset();
    }
    return status == CAIRO_STATUS_NO_MEMORY ? Status::OutOfMemory : Status::GenericError;
}

bool CairoCanvas::Begin(const CSurfaceState& state) {
    if (cairo_status(m_context.get()) != CAIRO_STATUS_SUCCESS) {
        return false;
    }
    UpdateClip(state);
    cairo_set_operator(m_context.get(), CAIRO_OPERATOR_OVER);
    m_clip.BeginDrawing(m_context.get());
    cairo_t* context = m_context.get();
    const cairo_matrix_t matrix = ToCairo(m_setting.ToUserSpace);
    cairo_set_matrix(context, &matrix);
    cairo_new_path(context);
    cairo_set_antialias(context, AntialiasFor(state.GetSmoothingMode()));
    cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
    return true;
}

void CairoCanvas::End() {
    const cairo_matrix_t matrix = ToCairo(m_setting.ToUserSpace);
    cairo_set_matrix(m_context.get(), &matrix);
    m_clip.EndDrawing(m_context.get());
}

void CairoCanvas::UpdateClip(const CSurfaceState& state) {
    if (m_clipGeneration == state.ClipGeneration()) {
        return;
    }
    m_clipGeneration = state.ClipGeneration();
    std::vector<Region> clips = state.DeviceClips();
    if (clips == m_clippedTo) {
        return;
    }
    cairo_restore(m_context.get());
    cairo_save(m_context.get());
    const cairo_matrix_t matrix = ToCairo(m_setting.ToUserSpace);
    cairo_set_matrix(m_context.get(), &matrix);
    m_clip.Apply(m_context.get(), clips,
                 {m_setting.Device.FromState, m_setting.Device.HasPixels, m_setting.Device.Area.Grown(64.0)});
    m_clippedTo = std::move(clips);
}

Painter::Painter(CairoCanvas& canvas, const CSurfaceState& state)
    : ShapePainter(canvas.Setting().Device, state), m_canvas(canvas),
      m_ready(IsSound(ToDevice(), kMaxTransform) && canvas.Begin(state)) {}

Painter::~Painter() {
    if (m_ready) {
        m_canvas.End();
    }
}

void Painter::SetColor(Color color) const {
    cairo_set_source_rgba(Context(), color.R() / 255.0, color.G() / 255.0, color.B() / 255.0,
                          color.A() / 255.0);
}

void Painter::SetMatrix(const Matrix& toDevice) const {
    const cairo_matrix_t matrix = ToCairo(toDevice * m_canvas.Setting().ToUserSpace);
    cairo_set_matrix(Context(), &matrix);
}

cairo_matrix_t ToCairo(const Matrix& m) {
    return {m.M11, m.M12, m.M21, m.M22, m.Dx, m.Dy};
}

} // namespace penlode
