#include "editing/qt/LineStyleComboBox.h"

#include "editing/LineStyleItem.h"
#include "penlode/GraphicsEngine.h"

#include <QImage>
#include <QStylePainter>
#include <QStyledItemDelegate>

namespace millichart {
namespace {

constexpr double kPixelsPerInch = 96.0;
constexpr float kMillimetresPerPixel = 25.4F / 96.0F;

/// Draws the open list's items.
class SampleDelegate final : public QStyledItemDelegate {
public:
    explicit SampleDelegate(CLineStyleComboBox& list) : QStyledItemDelegate(&list), m_list(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        m_list.DrawItem(*painter, option.rect, index.row(), isSelected, isSelected);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(), m_list.MeasureItem()};
    }

private:
    CLineStyleComboBox& m_list;
};

} // namespace

CLineStyleComboBox::CLineStyleComboBox(QWidget* parent) : QComboBox(parent) {
    setItemDelegate(new SampleDelegate(*this));
}

void CLineStyleComboBox::Initialize() {
    for (int style = 0; style < kLineStyleCount; ++style) {
        addItem(QString::number(style));
    }
    setCurrentIndex(-1);
}

int CLineStyleComboBox::MeasureItem() const {
    return kLineStyleHeight;
}

int CLineStyleComboBox::CompareItem(int, int) const {
    return 0;
}

void CLineStyleComboBox::DrawItem(QPainter& painter, const QRect& box, int item, bool hasFocus,
                                  bool isSelected) const {
    const double scale = painter.device()->devicePixelRatioF();
    const auto width = static_cast<float>(box.width());
    const auto height = static_cast<float>(box.height());
    const auto engine =
        penlode::CGraphicsEngine::ForRaster({width * kMillimetresPerPixel, height * kMillimetresPerPixel},
                                            kPixelsPerInch * scale, penlode::Color{0});
    if (!engine) {
        return;
    }
    engine->SetPageUnit(penlode::Unit::Pixel);
    engine->SetPageScale(static_cast<float>(scale));
    DrawLineStyleItem(*engine, {0, 0, width, height}, item, hasFocus, isSelected);
    const penlode::Image sample = engine->Pixels();
    QImage picture(reinterpret_cast<const uchar*>(sample.Pixels.data()), sample.Width, sample.Height,
                   QImage::Format_ARGB32);
    picture.setDevicePixelRatio(scale);
    painter.drawImage(box.topLeft(), picture);
}

void CLineStyleComboBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    DrawItem(painter, field, currentIndex(), hasFocus(), hasFocus());
}

} // namespace millichart
