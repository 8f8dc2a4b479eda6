#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <QAbstractScrollArea>
#include <cstdint>
#include <memory>
#include <optional>

namespace designer {

/// A document as it is laid out and drawn; shared between threads, which only read it.
struct ShownChart {
    std::shared_ptr<const millichart::ChartDocument> Document;
    millichart::LaidOutChart Chart;
    std::uint64_t Revision = 0;
};

/// A chart on its page at true size, in which a person points at parts, moves them and edits texts. Knows
/// what parts there are by the chart alone and changes nothing itself: what the person does is told by
/// signals, and whoever owns the document shows the next one.
///
/// Layout and drawing run on a thread of their own; of several documents shown quickly, the latest wins.
class ChartCanvas : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit ChartCanvas(QWidget* parent = nullptr);
    ~ChartCanvas() override;

    /// Lays out and draws it as soon as can be. A null one shows an empty page.
    void Show(std::shared_ptr<const millichart::ChartDocument> document, std::uint64_t revision);

    /// What is on the screen now, or null; may be older than what was shown last.
    std::shared_ptr<const ShownChart> Shown() const;
    /// Waits until what was shown last is on the screen; for tests and for what must not be late.
    void WaitUntilShown();

    /// 1 is true size.
    double Zoom() const;
    void SetZoom(double zoom);
    void ZoomIn();
    void ZoomOut();
    /// All of the page, now and whenever the window changes, until another zoom is set.
    void FitPage();

    std::optional<millichart::ChartPart> Selected() const;
    /// Scrolls to it; nothing selects nothing.
    void Select(std::optional<millichart::ChartPart> part);
    /// In reading order of the parts; -1 backwards.
    void SelectNext(int direction);
    /// Opens an editor in the place of the part's text; false if it has none that can be edited.
    bool EditText(const millichart::ChartPart& part);

    /// Of a point of the page, in mm, in the viewport; for whoever points by program.
    QPoint ToViewport(penlode::PointF onPage) const;
    penlode::PointF ToPage(QPoint inViewport) const;

Q_SIGNALS:
    void ZoomChanged(double zoom);
    /// Another part, or none, is under the mouse.
    void Hovered(std::optional<millichart::ChartPart> part);
    void SelectionChanged(std::optional<millichart::ChartPart> part);
    /// It was dragged and put down, or nudged by a key; of a series of nudges each is told.
    void Moved(millichart::ChartPart part, penlode::PointF by, bool isNudge);
    void ResetWanted(millichart::ChartPart part);
    /// A person has finished editing its text.
    void TextEdited(millichart::ChartPart part, QString text);
    /// A double click, or Enter, on a part; none for the page beside the chart.
    void Opened(std::optional<millichart::ChartPart> part);
    /// A double click, or Space, on a legend's sample.
    void ColorWanted(millichart::ChartPart part);
    /// At a point of the viewport, by the right button or the menu key.
    void MenuWanted(std::optional<millichart::ChartPart> part, QPoint where);
    /// A document's picture has come onto the screen.
    void ChartShown(std::uint64_t revision);
};

} // namespace designer
