#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"
#include "model/DataTable.h"
#include "model/FileMark.h"
#include "model/History.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace designer {

/// An open document while a person works on it: what it holds, what can be undone, which file it is. Knows no
/// window. Texts and file names are UTF-8. Changes have names for the menu ("移动图例"), which the caller
/// gives in his user's language.
///
///     Editor editor = Editor::Open("sales.chart.json");
///     editor.Move("移动图例", part, {3.0F, 0.0F});
///     editor.Undo();
///     const std::string fault = editor.Save("sales.chart.json");
class Editor {
public:
    /// A new one of a kind, with the data of its example; not saved yet.
    static Editor New(const millichart::ChartKind& kind);
    /// A document's file. What is wrong with it is among `Document().Diagnostics()`.
    static Editor Open(const std::string& file);
    /// A table's file of any form that documents read, as a chart of that kind; has no file of its own yet,
    /// and holds the data itself.
    static Editor FromTable(const millichart::ChartKind& kind, millichart::TableInput table);
    /// A document that is there already, such as a recovered one. Counts as not saved.
    explicit Editor(millichart::ChartDocument document, std::string file = {});

    const millichart::ChartDocument& Document() const { return *m_history.Current().Document; }

    /// The same, for a thread that draws it while others are made.
    std::shared_ptr<const millichart::ChartDocument> Shared() const { return m_history.Current().Document; }

    const std::vector<DataTable>& Tables() const { return *m_history.Current().Tables; }

    std::shared_ptr<const std::vector<DataTable>> SharedTables() const { return m_history.Current().Tables; }

    /// Another number whenever the document may be another.
    std::uint64_t Revision() const { return m_revision; }

    /// Empty for one that was never saved.
    const std::string& File() const { return m_file; }

    /// The file's name without its folder; empty without one.
    std::string Title() const;

    /// What a save beside its own file would write.
    std::string Text() const;

    /// Changes that follow each other with the same `merge`, unless it is empty, are one for undo: a key held
    /// down, a cell being typed in; a series that comes back to where it began leaves nothing. Nothing
    /// happens if the document is the same afterwards.
    void Change(std::string name, const std::function<void(millichart::ChartDocument&)>& change,
                std::string merge = {});
    void ChangeTable(std::string name, std::size_t table, const std::function<void(DataTable&)>& change,
                     std::string merge = {});
    /// The data stay, and columns that the new kind does not show are kept for the next.
    void SwitchKind(std::string name, const millichart::ChartKind& kind);

    /// Ends a series of changes that would be one.
    void EndMerge() { m_merge.clear(); }

    /// Of a recovered document, before any change: its tables, with what the document itself could not hold.
    void RecoverTables(std::vector<DataTable> tables);

    bool CanUndo() const { return m_history.CanUndo(); }

    bool CanRedo() const { return m_history.CanRedo(); }

    /// Of the change that would be undone or redone; empty without one.
    std::string UndoName() const { return m_history.UndoName(); }

    std::string RedoName() const { return m_history.RedoName(); }

    void Undo();
    void Redo();

    /// Is it as it was last loaded or saved?
    bool IsSaved() const { return m_history.IsSaved(); }

    /// Under this name from now on. Gives the reason of a failure, or an empty text; what was there before is
    /// whole then. In another folder than before the document holds what it had from tables.
    std::string Save(const std::string& file);

    /// Did another program write or remove the file since this one last read or wrote it?
    bool IsFileOthers() const;
    /// The others' version counts as seen: told once.
    void AcceptFile();

private:
    struct State {
        std::shared_ptr<const millichart::ChartDocument> Document;
        std::shared_ptr<const std::vector<DataTable>> Tables;
    };

    static State StateOf(millichart::ChartDocument document);

    void Take(std::string name, State next, const std::string& merge);
    bool HoldsDataIn(const std::string& file) const;
    millichart::ChartDocument DocumentIn(const std::string& file) const;

    History<State> m_history;
    std::string m_file;
    std::string m_merge;
    std::uint64_t m_revision = 0;
    FileMark m_mark;          ///< of the file as it was last read or written
    bool m_holdsData = false; ///< it was saved where the tables that it names are not
};

/// What a table looks like: dates and many rows make lines, few shares of 100 a pie, anything else bars.
const millichart::ChartKind& GuessKind(const millichart::TableInput& table);

} // namespace designer
