#pragma once

#include "model/History.h"
#include "model/MovableParts.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// An open document: what it shows, which part is selected and on its way, and what can be undone. Knows no
/// window; places are mm of the page.
///
///     if (model.Grab(point)) {    // button down
///         model.DragTo(other);    // mouse moves: draw Outline()
///         model.Drop();           // button up; or Cancel()
///     }
class ChartModel {
public:
    explicit ChartModel(millichart::ChartDocument document);

    const millichart::ChartDocument& Document() const { return m_history.Current(); }

    const millichart::LaidOutChart& Chart() const { return m_chart; }

    const std::vector<MovablePart>& Parts() const { return m_parts; }

    /// What a window shows of the page: all that is drawn, with a margin.
    penlode::RectF Sheet() const;

    /// Another number whenever the chart looks different.
    std::size_t Revision() const { return m_revision; }

    /// Null when nothing is.
    const MovablePart* Selected() const;

    void Deselect();
    /// The next one, or with -1 the one before; after the last comes the first. What is on its way is
    /// dropped.
    void SelectNext(int direction);

    /// Selects the part at a point and takes it along. False, and nothing is selected, where there is none.
    bool Grab(penlode::PointF point);
    /// Where the point that was grabbed is now.
    void DragTo(penlode::PointF point);
    /// Moves the selected part by a step, from where it is on its way.
    void Nudge(penlode::PointF by);

    bool IsMoving() const { return m_moving.has_value(); }

    /// How far the selected part is on its way.
    penlode::PointF Movement() const { return m_moving.value_or(penlode::PointF{}); }

    /// Where the selected part would come to stand; none when it is not moving.
    std::optional<penlode::RectF> Outline() const;
    /// Puts the part down: a change that can be undone, unless it is back where it came from.
    void Drop();
    void Cancel();

    bool CanUndo() const { return IsMoving() || m_history.CanUndo(); }

    bool CanRedo() const { return m_history.CanRedo(); }

    /// Gives up a move, if there is one, and else the last change.
    void Undo();
    void Redo();

    /// Is it as it was last loaded or saved?
    bool IsSaved() const { return m_history.IsSaved(); }

    /// Gives the reason of a failure, or an empty text.
    std::string Save(const std::string& file);

private:
    void LayOut();

    History<millichart::ChartDocument> m_history;
    millichart::LaidOutChart m_chart;
    std::vector<MovablePart> m_parts;
    std::optional<std::size_t> m_selected;
    std::optional<penlode::PointF> m_moving;
    penlode::PointF m_grabbed;
    std::size_t m_revision = 0;
};

} // namespace host
