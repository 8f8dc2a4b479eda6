#include "canvas/CanvasState.h"
#include "canvas/ReadingOrder.h"

#include <QApplication>
#include <cmath>

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;
using millichart::PlacedPart;

namespace {

/// What moves when the part is dragged: its entries take the legend along.
PlacedPart MovingPart(const std::vector<PlacedPart>& parts, const PlacedPart& part) {
    if (part.Part.Kind != PartKind::LegendSample && part.Part.Kind != PartKind::LegendName) {
        return part;
    }
    const ChartPart legend{PartKind::Legend, 0, 0, part.Part.Part};
    const std::size_t place = PlaceOf(parts, legend);
    return place < parts.size() ? parts[place] : part;
}

/// So many values a layout may have while the mouse waits for it.
bool IsQuick(const millichart::LaidOutChart& chart) {
    constexpr std::size_t kMostValues = 50'000;
    const auto* curves = std::get_if<millichart::CBasicCurve>(&chart.Chart);
    std::size_t values = 0;
    if (curves != nullptr) {
        for (const auto& curve : curves->GetLayout().Curves) {
            values += curve.Size();
        }
    }
    return values <= kMostValues;
}

/// Where the legend would stand in its place; in a chart that takes long, where the mouse has it. Each place
/// is laid out once.
penlode::RectF Docked(const ShownChart& shown, Drag& drag) {
    const penlode::RectF free = Translated(drag.Box, drag.By);
    const auto dock = DockedPlace(shown.Chart, drag.Part, drag.By);
    if (!dock || !IsQuick(shown.Chart)) {
        return free;
    }
    const auto [place, isNew] = drag.Docks.try_emplace(*dock, free);
    if (isNew) {
        place->second = MovedPlace(*shown.Document, shown.Chart, drag.Part, drag.By).value_or(free);
    }
    return place->second;
}

} // namespace

void ChartCanvas::BeginDrag(const PlacedPart& part, QPointF at) {
    const auto shown = Shown();
    const PlacedPart moving = MovingPart(Parts(), part);
    m_state->Dragged =
        Drag{part.Part, moving.Box, MobilityOf(shown->Chart, part.Part), at, {}, {}, moving.Box};
}

void ChartCanvas::DragTo(QPointF at, bool isStraight) {
    Drag& drag = *m_state->Dragged;
    QPointF by = at - drag.Pressed;
    if (drag.How == Mobility::None || drag.IsDropped ||
        (!drag.IsMoving && by.manhattanLength() < QApplication::startDragDistance())) {
        return;
    }
    if (isStraight) {
        (std::abs(by.x()) < std::abs(by.y()) ? by.rx() : by.ry()) = 0.0;
    }
    drag.IsMoving = true;
    const double pixels = m_state->Page.View().PixelsPerMillimetre() / devicePixelRatioF();
    drag.By = {static_cast<float>(by.x() / pixels), static_cast<float>(by.y() / pixels)};
    drag.Place = Translated(drag.Box, drag.By);
    if (drag.How == Mobility::Docked) {
        drag.Place = Docked(*Shown(), drag);
    }
    viewport()->update();
}

/// What was put down stays drawn there until the chart in which it stands there arrives, if there will be
/// one.
void ChartCanvas::EndDrag(bool isKept) {
    if (!m_state->Dragged || m_state->Dragged->IsDropped) {
        return;
    }
    viewport()->update();
    const Drag drag = *m_state->Dragged;
    if (!isKept || !drag.IsMoving) {
        m_state->Dragged.reset();
        return;
    }
    m_state->Dragged->IsDropped = true;
    const std::uint64_t before = m_state->Page.Wanted();
    Q_EMIT Moved(drag.Part, drag.By, false);
    if (m_state->Page.Wanted() == before) {
        m_state->Dragged.reset();
    }
}

} // namespace designer
