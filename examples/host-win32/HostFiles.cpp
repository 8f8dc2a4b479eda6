// The host's documents: opened, saved, kept against a crash, printed and drawn into files.
#include "Clipboard.h"
#include "FileDialogs.h"
#include "HostWindow.h"
#include "Pictures.h"
#include "Printing.h"
#include "Resource.h"
#include "Texts.h"
#include "documents/Files.h"

#include <algorithm>
#include <array>
#include <cwctype>
#include <shellapi.h>
#include <utility>

namespace host {
namespace {

/// What cannot be shown has its reasons here, one a line; no more than a person reads.
std::wstring Errors(const std::vector<penlode::Diagnostic>& diagnostics) {
    constexpr int kMaxShown = 5;
    std::wstring errors;
    int count = 0;
    for (const penlode::Diagnostic& diagnostic : diagnostics) {
        if (diagnostic.Severity == penlode::Severity::Error && ++count <= kMaxShown) {
            errors +=
                L"\n" + Wide(diagnostic.Place.empty() ? "" : diagnostic.Place + ": ") + Wide(diagnostic.Text);
        }
    }
    return count > kMaxShown ? errors + L"\n……共 " + std::to_wstring(count) + L" 处" : errors;
}

/// What is wrong with a document makes a layout that means nothing.
std::wstring Errors(const millichart::ChartDocument& document) {
    return Errors(document.IsSound() ? document.LayOut().Diagnostics : document.Diagnostics());
}

bool IsTable(const std::wstring& file) {
    constexpr std::array<std::wstring_view, 3> kEndings{L".csv", L".tsv", L".txt"};
    std::wstring name = file;
    std::transform(name.begin(), name.end(), name.begin(), std::towlower);
    return std::any_of(kEndings.begin(), kEndings.end(),
                       [&name](std::wstring_view ending) { return name.ends_with(ending); });
}

designer::Editor Opened(const std::wstring& file) {
    if (!IsTable(file)) {
        return designer::Editor::Open(Utf8(file));
    }
    millichart::TableInput table{millichart::ReadFile(Utf8(file))};
    const millichart::ChartKind& kind = designer::GuessKind(table);
    return designer::Editor::FromTable(kind, std::move(table));
}

} // namespace

bool HostWindow::OnFileCommand(int command) {
    switch (command) {
    case ID_FILE_OPEN:
        AskAndOpen();
        return true;
    case ID_FILE_SAVE:
        Save();
        return true;
    case ID_FILE_SAVE_AS:
        SaveAs();
        return true;
    case ID_FILE_EXPORT_PNG:
    case ID_FILE_EXPORT_SVG:
    case ID_FILE_EXPORT_EMF:
        Export(command);
        return true;
    case ID_FILE_PRINT:
        Print();
        return true;
    case ID_FILE_PRINT_TO_FILE:
        PrintToFile();
        return true;
    case ID_FILE_EXIT:
        SendMessageW(Handle(), WM_CLOSE, 0, 0);
        return true;
    default:
        break;
    }
    const auto kind = static_cast<std::size_t>(command - ID_FILE_NEW_FIRST);
    if (command < ID_FILE_NEW_FIRST || kind >= millichart::ChartKinds().size()) {
        return false;
    }
    if (MayClose()) {
        New(kind);
    }
    return true;
}

void HostWindow::New(std::size_t kind) {
    Show(designer::Editor::New(millichart::ChartKinds()[kind]));
}

void HostWindow::OnDropFiles(HDROP drop) {
    std::wstring file(DragQueryFileW(drop, 0, nullptr, 0), L'\0');
    DragQueryFileW(drop, 0, file.data(), static_cast<UINT>(file.size()) + 1);
    DragFinish(drop);
    if (!file.empty() && MayClose()) {
        Open(file);
    }
}

void HostWindow::Open(const std::wstring& file) {
    designer::Editor editor = Opened(file);
    const std::wstring errors = Errors(editor.Document());
    if (!errors.empty()) {
        Tell(L"不能打开“" + FileNameOf(file) + L"”：\n" + errors, MB_ICONERROR);
        return;
    }
    Show(std::move(editor));
}

void HostWindow::Show(designer::Editor editor) {
    m_recovery.Drop();
    auto model = std::make_unique<ChartModel>(std::move(editor));
    std::swap(m_model, model); // the canvas shows the one before until it is told
    m_canvas->Show(*m_model);
}

void HostWindow::AskAndOpen() {
    if (!MayClose()) {
        return;
    }
    if (const auto file = AskOpenName(Handle())) {
        Open(*file);
    }
}

bool HostWindow::Save() {
    PutDown();
    const std::string& file = m_model->Editor().File();
    return file.empty() ? SaveAs() : MayReplaceFile() && SaveTo(Wide(file));
}

bool HostWindow::SaveAs() {
    PutDown();
    const std::string& file = m_model->Editor().File();
    const auto chosen = AskSaveName(Handle(), file.empty() ? DocumentName() + L".chart.json" : Wide(file));
    return chosen && SaveTo(*chosen);
}

bool HostWindow::SaveTo(const std::wstring& file) {
    if (!MayLoseTexts()) {
        return false;
    }
    const std::string fault = m_model->Save(Utf8(file));
    if (!fault.empty()) {
        Tell(L"不能保存“" + FileNameOf(file) + L"”：\n\n" + Wide(fault), MB_ICONERROR);
        return false;
    }
    m_recovery.Drop();
    ShowState();
    return true;
}

bool HostWindow::MayReplaceFile() {
    return !m_model->Editor().IsFileOthers() ||
           Tell(L"“" + DocumentName() + L"”已被其他程序修改。要用窗口里的图表替换那个文件吗？",
                MB_YESNO | MB_ICONWARNING) == IDYES;
}

bool HostWindow::MayLoseTexts() {
    std::size_t odd = 0;
    for (const designer::DataTable& table : m_model->Editor().Tables()) {
        odd += table.OddCount();
    }
    return odd == 0 ||
           Tell(L"有 " + std::to_wstring(odd) +
                    L" 个格子不是数，图表把它们当作空格，文件里也不会有这些文字。\n\n仍然保存吗？",
                MB_YESNO | MB_ICONWARNING) == IDYES;
}

bool HostWindow::MayClose() {
    PutDown();
    if (!m_model->Editor().IsSaved()) {
        const int answer =
            Tell(L"“" + DocumentName() + L"”已更改。要保存吗？", MB_YESNOCANCEL | MB_ICONQUESTION);
        if (answer == IDCANCEL || (answer == IDYES && !Save())) {
            return false;
        }
    }
    return true;
}

bool HostWindow::OfferRecovered() {
    for (const designer::Recovered& lost : designer::FindRecovered(designer::RecoveryFolder())) {
        const std::wstring name = lost.File.empty() ? L"未命名" : FileNameOf(Wide(lost.File));
        const int answer = Tell(L"上次没有正常结束，“" + name + L"”还有没保存的更改，最后记于 " +
                                    Wide(lost.Time) + L"。\n\n要恢复吗？选“否”就丢弃，选“取消”以后再说。",
                                MB_YESNOCANCEL | MB_ICONQUESTION);
        if (answer == IDYES) {
            Show(designer::Recover(lost));
            m_recovery.Keep(m_model->Editor()); // takes the old copy's place
            designer::Forget(lost);
            return true;
        }
        if (answer == IDNO) {
            designer::Forget(lost);
        }
    }
    return false;
}

void HostWindow::CheckFile() {
    if (m_isAsking || GetCapture() != nullptr || IsWindowEnabled(Handle()) == FALSE ||
        !m_model->Editor().IsFileOthers()) {
        return;
    }
    m_isAsking = true;
    const std::wstring file = Wide(m_model->Editor().File());
    const bool isThere = GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES;
    const std::wstring loss = m_model->Editor().IsSaved() ? L"" : L"没有保存的更改会丢失。";
    const bool isReload = isThere && Tell(L"“" + DocumentName() + L"”已被其他程序修改。要重新读入吗？" + loss,
                                          MB_YESNO | MB_ICONQUESTION) == IDYES;
    if (!isThere) {
        Tell(L"“" + DocumentName() + L"”的文件已被删除或移走。图表仍在窗口里，可以再保存。", MB_ICONWARNING);
    }
    m_model->AcceptFile();
    if (isReload) {
        m_canvas->FinishEdit(false);
        Open(file);
    }
    ShowState();
    m_isAsking = false;
}

void HostWindow::Export(int command) {
    constexpr float kMargin = 5.0F; // mm
    PutDown();
    const std::wstring ending = command == ID_FILE_EXPORT_PNG   ? L"png"
                                : command == ID_FILE_EXPORT_SVG ? L"svg"
                                                                : L"emf";
    const auto file = AskPictureName(Handle(), DocumentName() + L"." + ending, ending);
    if (!file) {
        return;
    }
    const std::string bytes = command == ID_FILE_EXPORT_PNG ? PngOf(m_model->Chart(), kMargin)
                              : command == ID_FILE_EXPORT_SVG
                                  ? SvgOf(m_model->Editor().Document(), m_model->Chart(), kMargin)
                                  : EmfOf(m_model->Chart(), kMargin);
    const std::wstring fault =
        bytes.empty() ? L"图表太大。" : Wide(millichart::WriteFile(Utf8(*file), bytes));
    if (!fault.empty()) {
        Tell(L"不能写入“" + FileNameOf(*file) + L"”：\n\n" + fault, MB_ICONERROR);
    }
}

void HostWindow::Print() {
    PutDown();
    if (PrintChart(Handle(), m_model->Chart(), DocumentName()) == Printed::Failed) {
        Tell(L"打印没有成功。请检查打印机。", MB_ICONERROR);
    }
}

void HostWindow::PrintToFile() {
    PutDown();
    const auto file = AskPageName(Handle(), DocumentName() + L".emf");
    if (file && !PrintChartToFile(m_model->Chart(), *file)) {
        Tell(L"不能写入“" + FileNameOf(*file) + L"”。", MB_ICONERROR);
    }
}

void HostWindow::Copy() {
    PutDown();
    if (!CopyChart(Handle(), m_model->Chart())) {
        Tell(L"剪贴板正被其他程序使用，请稍后再试。", MB_ICONWARNING);
    }
}

} // namespace host
