#include "canvas/CanvasColors.h"
#include "canvas/CanvasState.h"
#include "canvas/ReadingOrder.h"
#include "canvas/TextEditor.h"

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;
using millichart::TextOwner;
using millichart::TextRole;

namespace {

std::optional<TextRole> RoleOf(PartKind kind) {
    switch (kind) {
    case PartKind::Slice:
    case PartKind::SliceLabel:
        return TextRole::SliceLabel;
    case PartKind::BarLabel:
        return TextRole::BarLabel;
    case PartKind::VerAxisLabel:
        return TextRole::VerAxisLabel;
    case PartKind::HorAxisLabel:
        return TextRole::HorAxisLabel;
    case PartKind::GroupName:
        return TextRole::GroupName;
    case PartKind::VerCaption:
        return TextRole::VerCaption;
    case PartKind::HorCaption:
        return TextRole::HorCaption;
    case PartKind::Caption:
        return TextRole::Caption;
    case PartKind::LegendSample:
    case PartKind::LegendName:
        return TextRole::LegendName;
    default:
        return std::nullopt;
    }
}

bool IsCaption(PartKind kind) {
    return kind == PartKind::Caption || kind == PartKind::VerCaption || kind == PartKind::HorCaption;
}

/// The text's look and place; nothing for one that is not on the page. Turned texts are edited upright.
std::optional<EditedText> LookOf(const millichart::LaidOutChart& chart, const ChartPart& part) {
    std::optional<EditedText> look;
    const auto role = RoleOf(part.Kind);
    chart.VisitTexts([&](millichart::ChartText&& text) {
        if (!role || text.Owner != TextOwner{*role, part.Index, part.Component, part.Part} ||
            text.Font == nullptr) {
            return;
        }
        const penlode::PointF middle = text.Box().Center();
        const penlode::SizeF size = text.Size;
        look.emplace();
        look->Box = {middle.X - size.Width / 2.0F, middle.Y - size.Height / 2.0F, size.Width, size.Height};
        look->Font = *text.Font;
        look->Color = QColor::fromRgb(text.Color.Argb | 0xFF000000U);
    });
    return look;
}

} // namespace

bool ChartCanvas::HasEditableText(const ChartPart& part) const {
    const auto shown = Shown();
    return shown && shown->Document && EditableText(*shown->Document, shown->Chart, part).has_value();
}

bool ChartCanvas::EditText(const ChartPart& part) {
    const auto shown = Shown();
    if (!HasEditableText(part)) {
        return false;
    }
    auto edited = LookOf(shown->Chart, part);
    if (!edited) {
        return false;
    }
    delete m_state->Editor;
    edited->Text = QString::fromStdString(*EditableText(*shown->Document, shown->Chart, part));
    edited->HasLines = IsCaption(part.Kind) || edited->Text.contains(u'\n');
    const QString before = edited->Text;
    Select(part);
    auto* editor = new TextEditor(*std::move(edited), ColorsOf(palette()).Accent, viewport());
    editor->setAccessibleName(tr("编辑文字"));
    m_state->Editor = editor;
    connect(editor, &TextEditor::Finished, this, [this, part, before](bool isKept, const QString& now) {
        m_state->Editor = nullptr;
        setFocus();
        viewport()->update();
        if (isKept && now != before) {
            Q_EMIT TextEdited(part, now);
        }
    });
    editor->Follow(m_state->Page.View().PixelsPerMillimetre() / devicePixelRatioF(),
                   [this](const auto& box) { return ToViewport(box); });
    editor->show();
    editor->setFocus();
    return true;
}

/// What is typed takes the old text's place.
bool ChartCanvas::TypeInto(const QString& text) {
    if (!m_state->Selected || !EditText(m_state->Selected->Placed.Part)) {
        return false;
    }
    m_state->Editor->insertPlainText(text);
    return true;
}

} // namespace designer
