#include "penlode/svg/SvgEngine.h"

#include "penlode/Units.h"
#include "penlode/engine/Drawings.h"
#include "penlode/engine/Finite.h"
#include "penlode/engine/Outline.h"
#include "penlode/engine/SurfaceState.h"
#include "penlode/svg/SvgClip.h"
#include "penlode/svg/SvgDocument.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgGradient.h"
#include "penlode/svg/SvgGroups.h"
#include "penlode/svg/SvgImage.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgShapes.h"
#include "penlode/svg/SvgText.h"
#include "penlode/svg/SvgWriter.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace penlode {
namespace {

double SideOf(float millimetres) {
    return std::isfinite(millimetres) ? std::clamp<double>(millimetres, 0.0, svg::kMaxDistance) : 0.0;
}

SizeF PageOf(SizeF millimetres) {
    return {static_cast<float>(SideOf(millimetres.Width)), static_cast<float>(SideOf(millimetres.Height))};
}

} // namespace

/// The document, and what it takes to write in it.
struct CSvgEngine::Drawing {
    Drawing(SizeF page, const SvgOptions& options)
        : Page(page), TextAsOutlines(options.TextAsOutlines), Document(page, options), Groups(page) {}

    svg::PageMap Map(const CSurfaceState& state) const { return {state.WorldToDevice(), Page}; }

    void Write(const CSurfaceState& state, const std::string& element) {
        LastShape.clear();
        if (!element.empty()) {
            Document.Add(Groups.For(state, Document.Definitions()), element);
        }
    }

    /// Data denser than the page draw one marker many times over: an opaque one that is the same as the last
    /// is not written again.
    void WriteShape(const CSurfaceState& state, std::string element, Color color) {
        if (color.A() == 0xFFU && element == LastShape && state.ClipGeneration() == LastClip) {
            return;
        }
        Write(state, element);
        LastShape = std::move(element);
        LastClip = state.ClipGeneration();
    }

    /// Writes what `element` makes of the map to the page.
    template <class Element> Status Draw(const CSurfaceState& state, Color color, const Element& element) {
        const svg::PageMap map = Map(state);
        if (svg::CanMap(map.ToPage) && color.A() != 0) {
            WriteShape(state, element(map), color);
        }
        return Status::Ok;
    }

    std::string TextLine(const svg::PageMap& map, const PlacedLine& line, const Font& font,
                         const std::string& fill) {
        return TextAsOutlines ? svg::OutlineElement(map, line, font, fill)
                              : svg::TextElement(map.ToPage, line, font, Families.For(font.Family), fill);
    }

    SizeF Page;
    bool TextAsOutlines;
    svg::SvgDocument Document;
    svg::SvgGroups Groups;
    svg::SvgFamilies Families;
    std::string LastShape; ///< the last element written, if it was a shape
    std::uint64_t LastClip = 0;
};

CSvgEngine::CSvgEngine(SizeF millimetres, const SvgOptions& options)
    : CTrackingEngine(kMillimetresPerInch, kMillimetresPerInch),
      m_drawing(std::make_unique<Drawing>(PageOf(millimetres), options)) {}

CSvgEngine::~CSvgEngine() = default;

std::string CSvgEngine::Text() const {
    return m_drawing->Document.Text();
}

Status CSvgEngine::StrokeOutline(const Outline& outline, const Pen& pen) {
    return m_drawing->Draw(State(), pen.GetColor(), [&](const svg::PageMap& map) {
        return svg::ShapeElement(map, outline, svg::StrokePaint(pen, map.ToPage.LengthFactor()));
    });
}

Status CSvgEngine::FillOutline(const Outline& outline, const SolidBrush& brush) {
    return m_drawing->Draw(State(), brush.FillColor, [&](const svg::PageMap& map) {
        return svg::ShapeElement(map, outline, {svg::FillAttributes(brush.FillColor)});
    });
}

Status CSvgEngine::StrokeDataLine(DataRun& run, const Pen& pen) {
    return m_drawing->Draw(State(), pen.GetColor(), [&](const svg::PageMap& map) {
        return svg::DataLineElement(map, run, svg::StrokePaint(pen, map.ToPage.LengthFactor()));
    });
}

std::vector<float> CSvgEngine::DataColumns(float left, float right) const {
    return ColumnsBetween(left, right, m_drawing->Map(State()).ToPage, svg::kColumnWidth);
}

Status CSvgEngine::PaintText(const TextRun& text) {
    const svg::PageMap map = m_drawing->Map(State());
    if (!svg::CanMap(map.ToPage) || text.Ink.A() == 0) {
        return Status::Ok;
    }
    const std::string fill = svg::FillAttributes(text.Ink);
    for (const PlacedLine& line : PlaceLines(text.Text, *text.Face, text.Box, text.Format)) {
        m_drawing->Write(State(), m_drawing->TextLine(map, line, *text.Face, fill));
    }
    return Status::Ok;
}

Status CSvgEngine::PaintImage(const ImagePart& part) {
    const svg::PageMap map = m_drawing->Map(State());
    if (!svg::CanMap(map.ToPage)) {
        return Status::Ok;
    }
    if (part.Abort != nullptr && part.Abort(part.CallbackData)) {
        return Status::Aborted;
    }
    const svg::DrawnImage drawn = svg::ImageElement(map, part);
    if (drawn.ClipData.empty()) {
        m_drawing->Write(State(), drawn.Element);
        return Status::Ok;
    }
    const std::string clip = svg::ClipAttribute(drawn.ClipData, m_drawing->Document.Definitions());
    m_drawing->Write(State(), svg::SvgElement("g").Raw(clip).Around(drawn.Element));
    return Status::Ok;
}

Status CSvgEngine::PaintGradient(const GradientMesh& mesh) {
    const svg::PageMap map = m_drawing->Map(State());
    if (svg::CanMap(map.ToPage)) {
        m_drawing->Write(State(), svg::GradientElements(map, mesh, m_drawing->Document.Definitions()));
    }
    return Status::Ok;
}

std::uint32_t CSvgEngine::BeginContainer() {
    const std::size_t clipsOutside = State().ClipCount();
    const std::uint32_t container = CTrackingEngine::BeginContainer();
    m_drawing->Groups.Begin(container, clipsOutside);
    return container;
}

Status CSvgEngine::EndContainer(std::uint32_t container) {
    const Status status = CTrackingEngine::EndContainer(container);
    if (status == Status::Ok) {
        m_drawing->Groups.End(container);
    }
    return status;
}

} // namespace penlode
