#include "canvas/CanvasColors.h"
#include "canvas/CanvasState.h"
#include "canvas/ReadingOrder.h"
#include "canvas/TextEditor.h"
#include "model/PartLook.h"

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;

namespace {

bool IsCaption(PartKind kind) {
    return kind == PartKind::Caption || kind == PartKind::VerCaption || kind == PartKind::HorCaption;
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
    const auto look = LookOf(shown->Chart, part);
    if (!look) {
        return false;
    }
    EditedText edited;
    edited.Box = look->Box;
    edited.Font = look->Font;
    edited.Color = QColor::fromRgb(look->Color.Argb);
    delete m_state->Editor;
    edited.Text = QString::fromStdString(*EditableText(*shown->Document, shown->Chart, part));
    edited.HasLines = IsCaption(part.Kind) || edited.Text.contains(u'\n');
    const QString before = edited.Text;
    Select(part);
    auto* editor = new TextEditor(std::move(edited), ColorsOf(palette()).Accent, viewport());
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
