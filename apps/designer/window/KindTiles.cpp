#include "window/KindTiles.h"

#include "window/Examples.h"
#include "window/PartNames.h"
#include "window/Pictures.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

namespace designer {
namespace {

constexpr QSize kLargest{420, 280};
constexpr QSize kLeast{150, 100};
constexpr int kGap = 10; ///< round a picture

/// The example of a kind, whole on white, as sharp as the screen.
QPixmap PictureOfKind(const millichart::ChartKind& kind, double scale) {
    const auto chart = ExampleOf(kind).LayOut();
    const QSize pixels = kLargest * scale;
    const penlode::SizeF page = PageSizeOf(chart);
    constexpr double kMillimetresPerInch = 25.4;
    const double dpi = kMillimetresPerInch * std::min(pixels.width() / static_cast<double>(page.Width),
                                                      pixels.height() / static_cast<double>(page.Height));
    QPixmap canvas(pixels);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    const QImage picture = ImageOf(chart, dpi);
    painter.drawImage(
        QPoint((pixels.width() - picture.width()) / 2, (pixels.height() - picture.height()) / 2), picture);
    painter.end();
    canvas.setDevicePixelRatio(scale);
    return canvas;
}

/// A picture in its own colours, in a frame that tells which one is chosen.
class TileDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QRect picture = QRect(option.rect.topLeft(), option.decorationSize).translated(kGap, kGap);
        const bool isChosen = option.state.testFlag(QStyle::State_Selected);
        const bool isPointedAt = option.state.testFlag(QStyle::State_MouseOver);
        QColor frame = option.palette.color(isChosen || isPointedAt ? QPalette::Highlight : QPalette::Text);
        frame.setAlpha(isChosen || isPointedAt ? 255 : 70);
        painter->save();
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(picture, index.data(Qt::DecorationRole).value<QPixmap>());
        painter->setPen(QPen(frame, isChosen ? 3.0 : 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(picture);
        painter->setPen(option.palette.color(QPalette::WindowText));
        const QRect below(picture.left(), picture.bottom() + kGap / 2, picture.width(),
                          option.fontMetrics.height() + kGap / 2);
        painter->drawText(below, Qt::AlignCenter, index.data().toString());
        painter->restore();
    }
};

} // namespace

KindTiles::KindTiles(QWidget* parent) : QListWidget(parent) {
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setFrameShape(NoFrame);
    setUniformItemSizes(true);
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new TileDelegate(this));
    viewport()->setAutoFillBackground(false);
    Fill();
}

void KindTiles::Fill() {
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        auto* const item = new QListWidgetItem(Capitalised(NameOfKind(kind.Name)), this);
        item->setData(Qt::DecorationRole, PictureOfKind(kind, devicePixelRatioF()));
        item->setData(Qt::UserRole, QString::fromUtf8(kind.Name));
    }
    setCurrentRow(0);
}

void KindTiles::resizeEvent(QResizeEvent* event) {
    Arrange();
    QListWidget::resizeEvent(event);
}

/// In the number of columns that gives the largest pictures.
void KindTiles::Arrange() {
    const QSize room = size();
    const QSize around(2 * kGap, 3 * kGap + fontMetrics().height());
    QSize best = kLeast;
    int columns = std::max(1, room.width() / (kLeast + around).width());
    for (int tried = 1; tried <= count(); ++tried) {
        const int rows = (count() + tried - 1) / tried;
        const QSize cell(room.width() / tried, room.height() / rows);
        const QSize picture = kLargest.scaled((cell - around).boundedTo(kLargest), Qt::KeepAspectRatio);
        if (picture.width() > best.width()) {
            best = picture;
            columns = tried;
        }
    }
    setIconSize(best);
    setGridSize(best + around);
    const int beside = std::max(0, (room.width() - std::min(columns, count()) * gridSize().width()) / 2);
    const int rows = (count() + columns - 1) / columns;
    const int above = std::max(0, (room.height() - rows * gridSize().height()) / 3);
    setViewportMargins(beside, above, 0, 0);
}

} // namespace designer
