#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <QAbstractScrollArea>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

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

    /// Lays out and draws it as soon as can be. A null one shows an empty page, and the page after it
    /// begins in the window's middle.
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
    /// The rectangle round a box of the page, in the viewport.
    QRect ToViewport(const penlode::RectF& onPage) const;

    /// The parts that can be seen, with their boxes, as Tab goes through them.
    const std::vector<millichart::PlacedPart>& Parts() const;
    /// How often a layout and a drawing were made until now.
    int LaidOutCount() const;
    int DrawnCount() const;

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

protected:
    bool viewportEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    struct State;

    void FollowPage();
    void FollowChart(std::uint64_t revision);
    void FollowScreen();
    void PlaceRulers();
    void ShowScrollBars();
    void ZoomAt(double zoom, QPointF anchor);

    std::optional<millichart::PlacedPart> PartAt(QPointF inViewport) const;
    void Hover(std::optional<millichart::PlacedPart> part);
    void SelectPlaced(std::optional<millichart::PlacedPart> part);
    void ShowTip(const QPoint& inViewport, const QPoint& onScreen);
    void ShowCursor();
    void BeginPan(QPoint at);
    void BeginDrag(const millichart::PlacedPart& part, QPointF at);
    void DragTo(QPointF at, bool isStraight);
    void EndDrag(bool isKept);
    bool Nudge(Qt::Key key, bool isFar);
    bool PressOnPart(const QKeyEvent& event);
    bool PressOnView(const QKeyEvent& event);
    bool TypeInto(const QString& text);
    bool HasEditableText(const millichart::ChartPart& part) const;

    std::unique_ptr<State> m_state;
};

} // namespace designer
