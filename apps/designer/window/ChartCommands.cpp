#include "window/ChartCommands.h"

#include "model/ChartEdits.h"
#include "window/PartNames.h"
#include "window/PropertySheets.h"
#include "window/SizeDialog.h"

#include <QColorDialog>
#include <QMenu>

namespace designer {
namespace {

using millichart::ChartDocument;
using millichart::ChartPart;
using penlode::PointF;

/// Nudges of one part are one change.
QString KeyOf(const ChartPart& part) {
    return QStringLiteral("nudge %1 %2 %3 %4")
        .arg(static_cast<int>(part.Kind))
        .arg(part.Index)
        .arg(part.Component)
        .arg(part.Part);
}

/// A legend moves as a whole.
millichart::PartKind Moving(millichart::PartKind kind) {
    using enum millichart::PartKind;
    return kind == LegendName || kind == LegendSample ? Legend : kind;
}

} // namespace

ChartCommands::ChartCommands(EditSession& session, ChartCanvas& canvas, QWidget& window)
    : QObject(&window), m_session(session), m_canvas(canvas), m_window(window) {
    connect(&canvas, &ChartCanvas::Moved, this, &ChartCommands::Move);
    connect(&canvas, &ChartCanvas::ResetWanted, this, &ChartCommands::Reset);
    connect(&canvas, &ChartCanvas::TextEdited, this, &ChartCommands::TakeText);
    connect(&canvas, &ChartCanvas::Opened, this, &ChartCommands::EditProperties);
    connect(&canvas, &ChartCanvas::ColorWanted, this, &ChartCommands::PickColor);
    connect(&canvas, &ChartCanvas::MenuWanted, this, &ChartCommands::ShowMenu);
}

/// What the canvas shows may still be an older one.
const millichart::LaidOutChart& ChartCommands::Chart() {
    const std::uint64_t revision = m_session.Current().Revision();
    if (const auto shown = m_canvas.Shown(); shown != nullptr && shown->Revision == revision) {
        m_chart = shown;
    }
    if (m_chart == nullptr || m_chart->Revision != revision) {
        m_chart = std::make_shared<const ShownChart>(
            ShownChart{m_session.Current().Shared(), m_session.Current().Document().LayOut(), revision});
    }
    return m_chart->Chart;
}

void ChartCommands::Move(const ChartPart& part, PointF by, bool isNudge) {
    const millichart::LaidOutChart& chart = Chart();
    m_session.Change(
        tr("移动%1").arg(NameOf(Moving(part.Kind))),
        [&](ChartDocument& document) { MovePart(document, chart, part, by); },
        isNudge ? KeyOf(part) : QString());
}

void ChartCommands::Reset(const ChartPart& part) {
    const millichart::LaidOutChart& chart = Chart();
    m_session.Change(tr("%1复位").arg(NameOf(Moving(part.Kind))),
                     [&](ChartDocument& document) { ResetPart(document, chart, part); });
}

void ChartCommands::TakeText(const ChartPart& part, const QString& text) {
    const millichart::LaidOutChart& chart = Chart();
    m_session.Change(tr("修改%1").arg(NameOf(part.Kind)),
                     [&](ChartDocument& document) { SetText(document, chart, part, text.toStdString()); });
}

void ChartCommands::EditProperties(const std::optional<ChartPart>& at) {
    ChartDocument edited = m_session.Current().Document();
    const bool isAccepted =
        EditRecord(edited, at, [this](const ChartDocument& trial) { m_session.Preview(trial); });
    if (isAccepted) {
        m_session.Change(tr("修改属性"), [&](ChartDocument& document) { document = std::move(edited); });
    } else {
        m_session.EndPreview();
    }
}

void ChartCommands::PickColor(const ChartPart& part) {
    const ChartDocument before = m_session.Current().Document();
    const millichart::LaidOutChart& chart = Chart();
    const std::optional<penlode::Color> color = ColorOf(before, chart, part);
    if (!color) {
        return;
    }
    const auto changed = [&](const QColor& to) {
        ChartDocument trial = before;
        SetColor(trial, chart, part, penlode::Color{to.rgb()});
        return trial;
    };
    QColorDialog dialog(QColor::fromRgba(color->Argb), &m_window);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    connect(&dialog, &QColorDialog::currentColorChanged, this,
            [&](const QColor& to) { m_session.Preview(changed(to)); });
    if (dialog.exec() == QDialog::Accepted) {
        m_session.Change(tr("修改颜色"),
                         [&](ChartDocument& document) { document = changed(dialog.selectedColor()); });
    } else {
        m_session.EndPreview();
    }
}

void ChartCommands::Resize() {
    const penlode::RectF now = Chart().FullExtent();
    SizeDialog dialog({now.Width, now.Height}, &m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    bool isDone = false;
    m_session.Change(tr("修改大小"),
                     [&](ChartDocument& document) { isDone = document.FitTo(dialog.Size()); });
    if (!isDone) {
        Q_EMIT Told(tr("这个大小容不下图表的文字。"));
    }
}

bool ChartCommands::HasColor(const ChartPart& part) {
    return ColorOf(m_session.Current().Document(), Chart(), part).has_value();
}

bool ChartCommands::CanReset(const ChartPart& part) {
    return MobilityOf(Chart(), part) != Mobility::None;
}

void ChartCommands::ShowMenu(const std::optional<ChartPart>& part, QPoint where) {
    QMenu menu(&m_window);
    menu.setObjectName(QStringLiteral("chartMenu"));
    if (part && EditableText(m_session.Current().Document(), Chart(), *part)) {
        menu.addAction(tr("编辑文字(&T)"), this, [&] { m_canvas.EditText(*part); });
    }
    if (part && HasColor(*part)) {
        menu.addAction(tr("颜色(&C)…"), this, [&] { PickColor(*part); });
    }
    if (part && CanReset(*part)) {
        menu.addAction(tr("复位(&R)"), this, [&] { Reset(*part); });
    }
    menu.addAction(part ? tr("%1属性(&P)…").arg(NameOf(part->Kind)) : tr("属性(&P)…"), this,
                   [&] { EditProperties(part); });
    menu.exec(m_canvas.viewport()->mapToGlobal(where));
}

} // namespace designer
