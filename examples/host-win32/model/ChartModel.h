#pragma once

#include "model/ChartEdits.h"
#include "model/Editor.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// An open document as a window works on it: the chart that is shown, which part is selected or on its way,
/// and what the user does to that part. Knows no window; places are mm of the page, texts UTF-8.
///
///     if (model.Grab(point, reach)) { // button down
///         model.DragTo(other);        // mouse moves: draw Outline()
///         model.Drop();               // button up; or Cancel()
///     }
class ChartModel {
public:
    explicit ChartModel(designer::Editor editor);

    const designer::Editor& Editor() const { return m_editor; }

    /// The document's, or the one that is tried out.
    const millichart::LaidOutChart& Chart() const { return m_chart; }

    /// What can be seen, in the order in which a person goes through it.
    const std::vector<millichart::PlacedPart>& Parts() const { return m_parts; }

    /// What a window shows of the page: all that is drawn, with a margin.
    penlode::RectF Sheet() const;

    /// Another number whenever the chart looks different.
    std::size_t Revision() const { return m_revision; }

    /// What is known of a part, for the status bar.
    std::string DescriptionOf(const millichart::ChartPart& part) const;

    const std::optional<millichart::PlacedPart>& Selected() const { return m_selected; }

    designer::Mobility MobilityOf(const millichart::ChartPart& part) const;

    /// The part under a point, or within `reach` mm of it.
    std::optional<millichart::PlacedPart> PartAt(penlode::PointF point, float reach) const;
    /// A part that is not there is none. What is on its way goes back.
    void Select(std::optional<millichart::ChartPart> part);
    /// The next one, or with -1 the one before; after the last comes the first.
    void SelectNext(int direction);

    /// Selects the part at a point and takes it along, if it can be moved. False, and nothing is selected,
    /// where there is none.
    bool Grab(penlode::PointF point, float reach);
    /// Where the point that was grabbed is now.
    void DragTo(penlode::PointF point);

    bool IsMoving() const { return m_outline.has_value(); }

    /// How far the selected part is on its way.
    penlode::PointF Movement() const { return m_movement; }

    /// Of what moves when the selected part is dragged: "图例"
    std::string MovingName() const;
    /// Where that stands now: entries take their legend along.
    penlode::RectF MovingPlace() const;

    /// Where the selected part would come to stand; none when it is not moving.
    const std::optional<penlode::RectF>& Outline() const { return m_outline; }

    /// Puts the part down: a change that can be undone, unless it is back where it came from.
    void Drop();
    void Cancel();
    /// Moves the selected part by a small step or a larger one, a docked one to the next place in that
    /// direction. Steps that follow each other are one for undo. False for what cannot be moved.
    bool Nudge(int x, int y, bool isFar);
    /// The selected part back to where the chart itself puts it.
    void Reset();

    /// Of the selected part; nothing where there is none to edit.
    std::optional<std::string> EditableText() const;
    void SetText(const std::string& text);
    std::optional<penlode::Color> Color() const;
    void SetColor(penlode::Color color);

    /// Shows a document that is not in the history, until the next change or EndTrial.
    void Try(const millichart::ChartDocument& document);
    void EndTrial();

    /// As of designer::Editor.
    void Change(const std::string& name, const std::function<void(millichart::ChartDocument&)>& change);
    void ChangeTable(const std::string& name, std::size_t table,
                     const std::function<void(designer::DataTable&)>& change);
    void SwitchKind(const millichart::ChartKind& kind);

    bool CanUndo() const { return IsMoving() || m_editor.CanUndo(); }

    /// Gives up a move, if there is one, and else the last change.
    void Undo();
    void Redo();
    std::string Save(const std::string& file);

    void AcceptFile() { m_editor.AcceptFile(); }

private:
    void Show(const millichart::ChartDocument& document);
    void ShowChange(std::uint64_t before);
    void ChangeSelected(const std::string& name,
                        const std::function<void(millichart::ChartDocument&)>& change,
                        const std::string& merge = {});

    designer::Editor m_editor;
    millichart::LaidOutChart m_chart;
    std::vector<millichart::PlacedPart> m_parts;
    std::optional<millichart::PlacedPart> m_selected;
    std::optional<penlode::PointF> m_grabbed; ///< the point, while the button is down
    penlode::PointF m_movement;
    std::optional<penlode::RectF> m_outline;
    std::size_t m_revision = 0;
};

} // namespace host
