#pragma once

#include "canvas/ChartCanvas.h"
#include "canvas/PageOnScreen.h"
#include "canvas/PartOutline.h"
#include "model/ChartEdits.h"

#include <QPointer>
#include <QTimer>
#include <map>

namespace designer {

class Ruler;
class TextEditor;

/// A part with its shape, so that this is found once and not with each painting.
struct OutlinedPart {
    millichart::PlacedPart Placed;
    PartOutline Outline;
    Mobility How = Mobility::None;
};

/// A part on its way, in mm of the page.
struct Drag {
    millichart::ChartPart Part;
    penlode::RectF Box; ///< of what moves, which is the legend for its entries
    Mobility How = Mobility::None;
    QPointF Pressed; ///< in the viewport
    penlode::PointF By;
    std::map<std::int32_t, penlode::RectF> Docks; ///< where it would stand, by the legend's places
    penlode::RectF Place;                         ///< where it would stand now
    bool IsMoving = false;                        ///< the mouse went far enough not to be a click
    bool IsDropped = false;                       ///< and waits for the chart in which it stands there
};

/// What a canvas remembers between events.
struct ChartCanvas::State {
    PageOnScreen Page;
    Ruler* Top = nullptr;
    Ruler* Left = nullptr;
    double ScreenDpi = 96.0; ///< in the toolkit's pixels
    double ToldZoom = 1.0;
    bool IsSettingBars = false;

    std::optional<OutlinedPart> Hovered;
    std::optional<OutlinedPart> Selected;
    std::optional<Drag> Dragged;
    std::optional<QPoint> PanFrom; ///< where the mouse was last, in the viewport
    bool IsSpaceDown = false;
    bool HasPanned = false; ///< since Space went down

    bool IsSecondClick = false; ///< the mouse went down on what was selected already
    QTimer SecondClick;         ///< runs from a click on what is selected until it is no double click
    QPointer<TextEditor> Editor;
};

} // namespace designer
