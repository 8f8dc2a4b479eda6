#include "canvas/ChartCanvas.h"

#include "canvas/CanvasAccess.h"
#include "canvas/CanvasState.h"
#include "canvas/ReadingOrder.h"
#include "canvas/Ruler.h"
#include "canvas/TextEditor.h"

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>
#include <cmath>
#include <utility>

namespace designer {
namespace {

/// Of the toolkit's pixels. Screens that say nonsense of their size count as usual ones.
double TrueDpi(const QScreen* screen) {
    constexpr double kUsual = 96.0;
    const double dpi = screen == nullptr ? kUsual : screen->physicalDotsPerInch();
    return dpi >= 50.0 && dpi <= 500.0 ? dpi : kUsual;
}

constexpr int kGap = 20;

int Round(double value) {
    return static_cast<int>(std::lround(value));
}

} // namespace

ChartCanvas::ChartCanvas(QWidget* parent) : QAbstractScrollArea(parent), m_state(std::make_unique<State>()) {
    InstallCanvasAccess();
    setAccessibleName(tr("图表"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->grabGesture(Qt::PinchGesture);
    m_state->Top = new Ruler(Qt::Horizontal, this);
    m_state->Left = new Ruler(Qt::Vertical, this);
    const int thick = Ruler::Thickness(*m_state->Top);
    setViewportMargins(thick, thick, 0, 0);
    m_state->SecondClick.setSingleShot(true);
    connect(&m_state->SecondClick, &QTimer::timeout, this, [this] {
        if (m_state->Selected) {
            EditText(m_state->Selected->Placed.Part);
        }
    });
    connect(&m_state->Page, &PageOnScreen::Changed, this, &ChartCanvas::FollowPage);
    connect(&m_state->Page, &PageOnScreen::ChartShown, this, &ChartCanvas::FollowChart);
    FollowScreen();
}

ChartCanvas::~ChartCanvas() {
    delete m_state->Editor; // while there still is whom its end is told
}

void ChartCanvas::Show(std::shared_ptr<const millichart::ChartDocument> document, std::uint64_t revision) {
    m_state->Page.Show(std::move(document), revision);
}

std::shared_ptr<const ShownChart> ChartCanvas::Shown() const {
    return m_state->Page.Shown();
}

void ChartCanvas::WaitUntilShown() {
    m_state->Page.WaitUntilShown();
}

const std::vector<millichart::PlacedPart>& ChartCanvas::Parts() const {
    return m_state->Page.Parts();
}

int ChartCanvas::LaidOutCount() const {
    return m_state->Page.Thread().LaidOutCount();
}

int ChartCanvas::DrawnCount() const {
    return m_state->Page.Thread().DrawnCount();
}

double ChartCanvas::Zoom() const {
    return m_state->Page.View().Zoom();
}

void ChartCanvas::SetZoom(double zoom) {
    ZoomAt(zoom, QRectF(viewport()->rect()).center());
}

void ChartCanvas::ZoomIn() {
    SetZoom(NextZoom(Zoom(), 1));
}

void ChartCanvas::ZoomOut() {
    SetZoom(NextZoom(Zoom(), -1));
}

void ChartCanvas::FitPage() {
    m_state->Page.Fit();
}

void ChartCanvas::ZoomAt(double zoom, QPointF anchor) {
    const QPointF device = anchor * devicePixelRatioF();
    m_state->Page.StopFitting();
    m_state->Page.Change([&](PageView& view) { view.SetZoom(zoom, {Round(device.x()), Round(device.y())}); });
}

QPoint ChartCanvas::ToViewport(penlode::PointF onPage) const {
    const penlode::PointD place = m_state->Page.View().ToWindow(onPage);
    return (QPointF(place.X, place.Y) / devicePixelRatioF()).toPoint();
}

penlode::PointF ChartCanvas::ToPage(QPoint inViewport) const {
    const QPointF place = QPointF(inViewport) * devicePixelRatioF();
    return m_state->Page.View().ToPage(penlode::PointD{place.x(), place.y()});
}

QRect ChartCanvas::ToViewport(const penlode::RectF& onPage) const {
    const PageView& view = m_state->Page.View();
    const penlode::PointD from = view.ToWindow(onPage.TopLeft());
    const penlode::PointD to = view.ToWindow(penlode::PointF{onPage.Right(), onPage.Bottom()});
    const double ratio = devicePixelRatioF();
    return QRectF(QPointF(from.X, from.Y) / ratio, QPointF(to.X, to.Y) / ratio).normalized().toAlignedRect();
}

/// The view or the picture is another one.
void ChartCanvas::FollowPage() {
    ShowScrollBars();
    const PageView& view = m_state->Page.View();
    m_state->Top->Show(view);
    m_state->Left->Show(view);
    if (m_state->Editor) {
        m_state->Editor->Follow(view.PixelsPerMillimetre() / devicePixelRatioF(),
                                [this](const auto& box) { return ToViewport(box); });
    }
    viewport()->update();
    if (m_state->ToldZoom != view.Zoom()) {
        m_state->ToldZoom = view.Zoom();
        Q_EMIT ZoomChanged(view.Zoom());
    }
}

/// What was hovered or selected is found again in the new chart, or forgotten.
void ChartCanvas::FollowChart(std::uint64_t revision) {
    const auto& parts = m_state->Page.Parts();
    const auto again = [&](const std::optional<OutlinedPart>& part) -> std::optional<millichart::PlacedPart> {
        if (!part) {
            return std::nullopt;
        }
        const millichart::ChartPart& sought = part->Placed.Part;
        const std::size_t place = PlaceOf(parts, sought);
        if (place < parts.size() || sought.Kind != millichart::PartKind::CurvePoint) {
            return place < parts.size() ? std::optional(parts[place]) : std::nullopt;
        }
        const auto near = Shown()->Chart.HitTest(part->Placed.Box.Center());
        return near && near->Part == sought ? near : std::nullopt;
    };
    const auto hovered = again(m_state->Hovered);
    const auto selected = again(m_state->Selected);
    if (m_state->Dragged && (m_state->Dragged->IsDropped || !selected)) {
        m_state->Dragged.reset();
    }
    UpdateCanvasAccess(*this);
    Hover(hovered);
    SelectPlaced(selected);
    ShowCursor();
    Q_EMIT ChartShown(revision);
}

/// The resolution and the ratio of the screen that the window is on now.
void ChartCanvas::FollowScreen() {
    const double ratio = devicePixelRatioF();
    m_state->ScreenDpi = TrueDpi(screen());
    const double dpi = m_state->ScreenDpi * ratio;
    m_state->Page.Change([&](PageView& view) {
        if (view.Dpi() != dpi) {
            view.SetDpi(dpi);
            view.SetGap(Round(kGap * ratio));
        }
        view.SetWindow(Round(viewport()->width() * ratio), Round(viewport()->height() * ratio));
    });
}

void ChartCanvas::PlaceRulers() {
    const QRect page = viewport()->geometry();
    const int thick = page.top() - contentsRect().top();
    m_state->Top->setGeometry(page.left(), page.top() - thick, page.width(), thick);
    m_state->Left->setGeometry(page.left() - thick, page.top(), thick, page.height());
}

/// A bar that comes or goes changes the window, and so the view, while the other one waits.
void ChartCanvas::ShowScrollBars() {
    const bool wasSetting = std::exchange(m_state->IsSettingBars, true);
    const auto show = [this](QScrollBar& bar, int from, int window, int least, int most) {
        bar.setPageStep(window);
        bar.setSingleStep(Round(20 * devicePixelRatioF()));
        const bool isAllSeen = most - least <= window;
        bar.setRange(isAllSeen ? from : least, isAllSeen ? from : most - window);
        bar.setValue(from);
    };
    const PageView& view = m_state->Page.View();
    show(*horizontalScrollBar(), view.Scroll().X, view.VisibleArea().Width(), view.ScrollRange().Left,
         view.ScrollRange().Right);
    show(*verticalScrollBar(), view.Scroll().Y, view.VisibleArea().Height(), view.ScrollRange().Top,
         view.ScrollRange().Bottom);
    m_state->IsSettingBars = wasSetting;
}

bool ChartCanvas::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::Leave:
        Hover(std::nullopt);
        m_state->Top->Mark(std::nullopt);
        m_state->Left->Mark(std::nullopt);
        break;
    case QEvent::ToolTip: {
        const auto& help = static_cast<QHelpEvent&>(*event);
        ShowTip(help.pos(), help.globalPos());
        return true;
    }
    case QEvent::NativeGesture: {
        const auto& gesture = static_cast<QNativeGestureEvent&>(*event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture) {
            ZoomAt(Zoom() * (1.0 + gesture.value()), gesture.position());
            return true;
        }
        break;
    }
    case QEvent::Gesture:
        if (auto* pinch =
                static_cast<QPinchGesture*>(static_cast<QGestureEvent&>(*event).gesture(Qt::PinchGesture))) {
            ZoomAt(Zoom() * pinch->scaleFactor(), viewport()->mapFromGlobal(pinch->centerPoint()));
            return true;
        }
        break;
    default:
        break;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void ChartCanvas::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        viewport()->update();
    }
}

void ChartCanvas::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    PlaceRulers();
    FollowScreen();
}

void ChartCanvas::showEvent(QShowEvent* event) {
    QAbstractScrollArea::showEvent(event);
    if (const QWindow* shown = window()->windowHandle()) {
        connect(shown, &QWindow::screenChanged, this, &ChartCanvas::FollowScreen, Qt::UniqueConnection);
    }
    FollowScreen();
}

void ChartCanvas::scrollContentsBy(int, int) {
    if (m_state->IsSettingBars) {
        return;
    }
    m_state->Page.Change([this](PageView& view) {
        view.ScrollBy(horizontalScrollBar()->value() - view.Scroll().X,
                      verticalScrollBar()->value() - view.Scroll().Y);
    });
}

} // namespace designer
