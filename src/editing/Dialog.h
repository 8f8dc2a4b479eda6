#pragma once

#include "editing/DialogTemplate.h"
#include "editing/DialogView.h"
#include "editing/SheetStart.h"

#include <span>
#include <string_view>
#include <vector>

namespace millichart {

/// What a modal dialog, or one page of a sheet, shows and does. It holds what is edited as a working copy of
/// its own and speaks to its window through the view alone.
class Dialog {
public:
    virtual ~Dialog() = default;

    virtual const DialogTemplate& Template() const = 0;

    /// Once, before the window shows.
    virtual void OnInitDialog(DialogView& view) = 0;

    /// The user pressed a button, checked a box or picked from a list.
    virtual void OnClicked(DialogView&, [[maybe_unused]] int id) {}

    /// The user pressed a stepper's arrow: `delta` is 1 or more for up.
    virtual void OnStep(DialogView&, [[maybe_unused]] int id, [[maybe_unused]] int delta) {}

    /// The user changed something since the last call. At most once a frame.
    virtual void OnChanged(DialogView&) {}

    /// Reads the controls into the working copy; false keeps the window open. A page's is called with its
    /// sheet's.
    virtual bool OnOK(DialogView& view) = 0;

protected:
    Dialog() = default;
    Dialog(const Dialog&) = default;
    Dialog& operator=(const Dialog&) = default;
};

/// A page of a sheet, and what its tab shows.
struct SheetPage {
    Dialog* Page; ///< the sheet's
    std::string_view Title;
};

/// Pages behind tabs, with OK and Cancel for all of them. A page's window is made when it is first shown.
class Sheet {
public:
    virtual ~Sheet() = default;

    virtual std::string_view Title() const = 0;

    /// In the order of their tabs.
    virtual std::vector<SheetPage> Pages() = 0;

    /// The user changed something since the last call. At most once a frame. `views` are the pages' windows,
    /// null for one that was never shown.
    virtual void OnChanged(std::span<DialogView* const>) {}

    /// Reads all pages that were shown; false keeps the sheet open.
    virtual bool OnOK(std::span<DialogView* const> views) = 0;

    /// Where its window opens, which is on one of its pages.
    const SheetStart& Start() const { return m_start; }

    void OpenAt(const SheetStart& start) { m_start = start; }

protected:
    Sheet() = default;
    Sheet(const Sheet&) = default;
    Sheet& operator=(const Sheet&) = default;

private:
    SheetStart m_start;
};

/// Shows a window on the host's active one until it is closed; true after OK. Each toolkit defines both.
bool RunModal(Dialog& dialog);
bool RunModal(Sheet& sheet);

} // namespace millichart
