#include "panel/OptionsPanel.h"

#include "panel/BareText.h"
#include "panel/DocumentTexts.h"
#include "panel/OptionRows.h"
#include "panel/PaletteIcon.h"
#include "panel/TextLine.h"
#include "penlode/text/StringUtil.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>
#include <utility>

namespace designer {
namespace {

using millichart::CaptionProp;
using millichart::ChartDocument;
using millichart::ChartOptions;
using penlode::CStringUtil;

constexpr int kMaxDecimals = 15;
constexpr int kLeastLetters = 10; // that a closed list shows

QString NameFor(const QString& label) {
    return OptionsPanel::tr("设置“%1”").arg(BareText(label));
}

Qt::CheckState ReadabilityOf(const ChartOptions& options) {
    const auto is = [&options](bool isReadable) {
        ChartOptions like = options;
        SetReadable(like, isReadable);
        return like == options;
    };
    return is(true) ? Qt::Checked : is(false) ? Qt::Unchecked : Qt::PartiallyChecked;
}

} // namespace

void SetReadable(ChartOptions& options, bool isReadable) {
    ChartOptions next = isReadable ? ChartOptions::Readable() : ChartOptions();
    next.Title = options.Title;
    next.SecondTitle = options.SecondTitle;
    next.TimeUnit = options.TimeUnit;
    options = next;
}

OptionsPanel::OptionsPanel(QWidget* parent) : QScrollArea(parent), m_texts(new DocumentTexts) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setAccessibleName(tr("文档和易读选项"));
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    auto* group = new QGroupBox(tr("易读"));
    m_form = new QFormLayout(group);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddMaster();
    AddTitle(tr("图标题(&U)"), &ChartOptions::Title, kKindsWithTitle);
    AddTitle(tr("第二个图标题(&2)"), &ChartOptions::SecondTitle, kKindsWithTwoTitles);
    for (const OptionRow& row : OptionRows()) {
        row.IsFlag() ? AddFlag(row) : AddChoice(row);
    }
    AddDecimals();
    m_texts->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    column->addWidget(m_texts);
    column->addWidget(group);
    column->addStretch();
    setWidget(content);
    // Of all lines, so that another kind of chart does not need more.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumWidth(content->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    connect(m_texts, &DocumentTexts::ChangeWanted, this, &OptionsPanel::ChangeWanted);
}

OptionsPanel::~OptionsPanel() = default;

void OptionsPanel::Want(const QString& name, const OptionsChange& change, const QString& merge) {
    Q_EMIT ChangeWanted(
        name, [change](ChartDocument& document) { change(document.Options); }, merge);
}

void OptionsPanel::AddLine(const QString& label, QWidget* control, std::uint32_t kinds,
                           std::function<void(const ChartOptions&)> show) {
    QLabel* shown = nullptr;
    control->setAccessibleName(BareText(label));
    if (qobject_cast<QCheckBox*>(control) != nullptr) {
        m_form->addRow(control);
    } else {
        shown = new QLabel(label);
        shown->setBuddy(control);
        m_form->addRow(shown, control);
        control->setFocusPolicy(Qt::StrongFocus);
        control->installEventFilter(this);
    }
    m_lines.push_back({kinds, control, shown, std::move(show)});
}

void OptionsPanel::AddMaster() {
    m_master = new QCheckBox(tr("易读的图表(&Y)"));
    m_master->setToolTip(tr("让图表好读的一切，一次打开或关闭；下面可以逐项设定"));
    connect(m_master, &QCheckBox::clicked, this, [this] {
        const bool isReadable = m_master->checkState() != Qt::Unchecked;
        Want(isReadable ? tr("打开“易读”") : tr("关闭“易读”"),
             [isReadable](ChartOptions& options) { SetReadable(options, isReadable); });
    });
    m_form->addRow(m_master);
}

void OptionsPanel::AddFlag(const OptionRow& row) {
    const QString label = tr(row.Text);
    auto* box = new QCheckBox(label);
    box->setToolTip(tr(row.Tip));
    const auto field = row.Field;
    const std::int32_t on = row.Choices[1].Value;
    connect(box, &QCheckBox::clicked, this, [=, this, off = row.Choices[0].Value](bool isOn) {
        Want(NameFor(label), [=](ChartOptions& options) { options.*field = isOn ? on : off; });
    });
    AddLine(label, box, row.Kinds,
            [=](const ChartOptions& options) { box->setChecked(options.*field == on); });
}

void OptionsPanel::AddChoice(const OptionRow& row) {
    const QString label = tr(row.Text);
    auto* box = new QComboBox;
    box->setToolTip(tr(row.Tip));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kLeastLetters);
    const auto field = row.Field;
    const int height = fontMetrics().height();
    if (field == &ChartOptions::Palette) {
        box->setIconSize({height * 7 / 2, height});
    }
    for (const OptionChoice& choice : row.Choices) {
        const bool hasIcon = field == &ChartOptions::Palette;
        box->addItem(hasIcon ? PaletteIcon(choice.Value, box->iconSize(), devicePixelRatioF()) : QIcon(),
                     tr(choice.Text), choice.Value);
    }
    connect(box, &QComboBox::activated, this, [=, this](int index) {
        const int value = box->itemData(index).toInt();
        Want(NameFor(label), [=](ChartOptions& options) { options.*field = value; });
    });
    // A number without a name counts as the first.
    AddLine(label, box, row.Kinds, [=](const ChartOptions& options) {
        box->setCurrentIndex(std::max(box->findData(options.*field), 0));
    });
}

void OptionsPanel::AddDecimals() {
    const QString label = tr("最多小数位数(&X)");
    auto* box = new QSpinBox;
    box->setRange(0, kMaxDecimals);
    box->setToolTip(tr("柱和扇区处的数最多写几位小数；数字按原样时有效"));
    connect(box, &QSpinBox::valueChanged, this, [=, this](int value) {
        Want(
            NameFor(label), [value](ChartOptions& options) { options.MaxDecimals = value; },
            QStringLiteral("max-decimals"));
    });
    AddLine(label, box, kKindsWithValues,
            [box](const ChartOptions& options) { box->setValue(options.MaxDecimals); });
}

void OptionsPanel::AddTitle(const QString& label, CaptionProp ChartOptions::*title, std::uint32_t kinds) {
    auto* line = new TextLine(QStringLiteral("title-%1").arg(m_lines.size()));
    line->setToolTip(tr("画在图上；留空则没有"));
    connect(line, &TextLine::Typed, this, [=, this](const QString& text, const QString& merge) {
        const std::string narrow = CStringUtil::Utf8ToAnsi(text.toStdString());
        Want(
            NameFor(label),
            [=](ChartOptions& options) {
                (options.*title).Caption = narrow;
                (options.*title).ShowCaption = 1;
            },
            merge);
    });
    AddLine(label, line, kinds, [=](const ChartOptions& options) {
        line->TakeShown(QString::fromStdString(CStringUtil::AnsiToUtf8((options.*title).Caption)));
    });
}

void OptionsPanel::Show(const ChartDocument& document) {
    const millichart::ChartKind* kind = KindOf(document.Content);
    for (const Line& line : m_lines) {
        const QSignalBlocker quiet(line.Control);
        line.Show(document.Options);
        const bool isShown = IsKindIn(kind, line.Kinds);
        line.Control->setVisible(isShown);
        if (line.Label != nullptr) {
            line.Label->setVisible(isShown);
        }
    }
    m_master->setCheckState(ReadabilityOf(document.Options));
    m_texts->Show(document);
}

/// The wheel scrolls the panel; it changes a value only where the user is.
bool OptionsPanel::eventFilter(QObject* object, QEvent* event) {
    const auto* control = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::Wheel && control != nullptr && !control->hasFocus()) {
        event->ignore();
        return true;
    }
    return QScrollArea::eventFilter(object, event);
}

} // namespace designer
