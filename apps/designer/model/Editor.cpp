#include "model/Editor.h"

#include "documents/NewDocument.h"
#include "model/DataCompare.h"
#include "model/Looks.h"
#include "model/SwitchedKind.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace designer {
namespace {

using millichart::ChartDocument;
using TableList = std::vector<DataTable>;

bool AreInOneFolder(const std::string& a, const std::string& b) {
    const auto folder = [](const std::string& file) {
        std::error_code error;
        const std::filesystem::path path = millichart::PathFromUtf8(file);
        return std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error).parent_path();
    };
    return folder(a) == folder(b);
}

TableList TablesIn(const ChartDocument& document) {
    return designer::TablesOf(document.Content, document.Options.TimeUnit);
}

/// The tables of a document that was changed, with what those of before had beside the same data.
TableList Rebuilt(const ChartDocument& document, const TableList& before, bool isSameKind) {
    TableList tables = TablesIn(document);
    for (std::size_t i = 0; isSameKind && i < std::min(tables.size(), before.size()); ++i) {
        tables[i].KeepFrom(before[i]);
    }
    return tables;
}

/// Do the times only count the rows?
bool AreCounted(const DataTable& table) {
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        std::int64_t time = 0;
        if (table.Time(row, time) && time != static_cast<std::int64_t>(row) &&
            time != static_cast<std::int64_t>(row) + 1) {
            return false;
        }
    }
    return true;
}

/// Who writes texts where no times mattered wants labels.
void SettleHeads(DataTable& table) {
    if (table.Heads() == RowHeads::Names || table.Odd(0).empty()) {
        return;
    }
    const bool isAll = table.Odd(0).size() == table.RowCount();
    if (isAll || (table.Heads() == RowHeads::Times && AreCounted(table))) {
        table.SetHeads(RowHeads::Names);
    }
}

/// Dates and moments have labels of their own, by their unit.
void TakeTimeUnit(ChartDocument& document, const TableList& tables) {
    if (std::holds_alternative<millichart::CurveDocument>(document.Content) && !tables.empty()) {
        document.Options.TimeUnit = TimeUnitOf(tables.front().Heads());
    }
}

void TakeData(ChartDocument& document, const TableList& tables) {
    if (AreColorsMoved(document.Content, tables)) {
        OwnColors(document);
    }
    TakeTables(document.Content, tables);
    TakeTimeUnit(document, tables);
}

} // namespace

Editor::State Editor::StateOf(ChartDocument document) {
    auto tables = std::make_shared<const TableList>(TablesIn(document));
    return {std::make_shared<const ChartDocument>(std::move(document)), std::move(tables)};
}

Editor Editor::New(const millichart::ChartKind& kind) {
    return New(ChartDocument::FromText(std::string(kind.Template)));
}

Editor Editor::New(ChartDocument document) {
    Editor editor(std::move(document));
    editor.m_history.MarkSaved();
    return editor;
}

Editor Editor::Open(const std::string& file) {
    const FileMark stamp = StampOf(file);
    millichart::InputText input = millichart::ReadFile(file);
    const FileMark mark = WithBytes(stamp, input.Text);
    Editor editor(ChartDocument::FromInput(std::move(input)), file);
    editor.m_mark = mark;
    editor.m_history.MarkSaved();
    return editor;
}

Editor Editor::FromTable(const millichart::ChartKind& kind, millichart::TableInput table) {
    return Editor(DocumentOnTable(kind, std::move(table)));
}

Editor::Editor(ChartDocument document, std::string file)
    : m_history(StateOf(std::move(document))), m_file(std::move(file)) {
    m_mark = m_file.empty() ? FileMark() : MarkOf(m_file);
    m_history.MarkUnsaved();
}

std::string Editor::Title() const {
    return millichart::Utf8FromPath(millichart::PathFromUtf8(m_file).filename());
}

void Editor::Take(std::string name, State next, const std::string& merge) {
    const State& before = m_history.Current();
    std::size_t bytes = next.Document == before.Document ? 0 : BytesOf(next.Document->Content);
    if (next.Tables != before.Tables) {
        for (const DataTable& table : *next.Tables) {
            bytes += BytesOf(table);
        }
    }
    ++m_revision;
    const bool goesOn = !merge.empty() && merge == m_merge && m_history.CanUndo();
    if (goesOn && AreSame(*next.Document, *m_history.Before().Document) &&
        *next.Tables == *m_history.Before().Tables) {
        m_history.Withdraw();
        m_merge.clear();
        return;
    }
    if (goesOn) {
        m_history.Continue(std::move(next), bytes);
    } else {
        m_history.Change(std::move(name), std::move(next), bytes);
    }
    m_merge = merge;
}

void Editor::Change(std::string name, const std::function<void(ChartDocument&)>& change, std::string merge) {
    ChartDocument next = Document();
    change(next);
    if (AreSame(next, Document())) {
        return;
    }
    State state = m_history.Current();
    if (!HaveSameData(next, Document())) {
        const bool isSameKind = next.Content.index() == Document().Content.index();
        state.Tables = std::make_shared<const TableList>(Rebuilt(next, Tables(), isSameKind));
    }
    state.Document = std::make_shared<const ChartDocument>(std::move(next));
    Take(std::move(name), std::move(state), merge);
}

void Editor::ChangeTable(std::string name, std::size_t table, const std::function<void(DataTable&)>& change,
                         std::string merge) {
    if (table >= Tables().size()) {
        return;
    }
    TableList tables = Tables();
    change(tables[table]);
    SettleHeads(tables[table]);
    if (tables[table] == Tables()[table] && !AreColorsMoved(Document().Content, tables)) {
        return;
    }
    State state = m_history.Current();
    ChartDocument next = Document();
    TakeData(next, tables);
    if (!AreSame(next, Document())) {
        state.Document = std::make_shared<const ChartDocument>(std::move(next));
    }
    for (DataTable& each : tables) {
        each.ForgetOrigins();
    }
    state.Tables = std::make_shared<const TableList>(std::move(tables));
    Take(std::move(name), std::move(state), merge);
}

void Editor::RecoverTables(std::vector<DataTable> tables) {
    if (tables.size() == Tables().size()) {
        State state = m_history.Current();
        state.Tables = std::make_shared<const TableList>(std::move(tables));
        m_history.Continue(std::move(state));
        ++m_revision;
    }
}

void Editor::SwitchKind(std::string name, const millichart::ChartKind& kind) {
    if (millichart::KindOf(Document().Content) == &kind) {
        return;
    }
    Switched switched = SwitchedTo(kind, Document(), Tables());
    State state{std::make_shared<const ChartDocument>(std::move(switched.Document)),
                std::make_shared<const TableList>(std::move(switched.Tables))};
    Take(std::move(name), std::move(state), {});
}

void Editor::Undo() {
    m_merge.clear();
    if (CanUndo()) {
        m_history.Undo();
        ++m_revision;
    }
}

void Editor::Redo() {
    m_merge.clear();
    if (CanRedo()) {
        m_history.Redo();
        ++m_revision;
    }
}

/// A table is looked for beside the document.
bool Editor::HoldsDataIn(const std::string& file) const {
    const bool namesTables = !Document().DataFiles().empty();
    return m_holdsData || (namesTables && (m_file.empty() || !AreInOneFolder(m_file, file)));
}

ChartDocument Editor::DocumentIn(const std::string& file) const {
    ChartDocument document = Document();
    if (HoldsDataIn(file)) {
        document.HoldData();
    }
    return document;
}

std::string Editor::Text() const {
    return (m_file.empty() ? Document() : DocumentIn(m_file)).Text();
}

std::string Editor::Save(const std::string& file) {
    m_merge.clear();
    const std::string fault = DocumentIn(file).Save(file);
    if (!fault.empty()) {
        return fault;
    }
    m_holdsData = HoldsDataIn(file);
    m_file = file;
    m_mark = MarkOf(file);
    m_history.MarkSaved();
    return {};
}

bool Editor::IsFileOthers() const {
    return !m_file.empty() && HasChanged(m_file, m_mark);
}

void Editor::AcceptFile() {
    m_mark = MarkOf(m_file);
    m_history.MarkUnsaved();
}

} // namespace designer
