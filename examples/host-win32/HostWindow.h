#pragma once

#include "ChartCanvas.h"

#include <memory>
#include <string>

namespace host {

/// The host's window: menu, page, status bar, and the document that is open.
class HostWindow final : public Window {
public:
    /// Opens with a chart to try things on.
    HostWindow();

    /// Tells what is wrong with a file that cannot be shown, and keeps what was open.
    void Open(const std::wstring& file);

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCommand(int command);
    void OnSize();
    void OnDpiChanged(WPARAM wParam, LPARAM lParam);
    void OnDropFiles(HDROP drop);

    void Show(millichart::ChartDocument document, const std::wstring& file);
    void AskAndOpen();
    /// What is on its way, by mouse or keyboard, belongs to what is saved, printed or copied.
    void PutDown();
    /// Shows that nothing is on its way any more.
    void EndMove();
    bool Save();
    bool SaveAs();
    bool SaveTo(const std::wstring& file);
    /// May the document go? Asks when there are changes that are not saved.
    bool MayClose();
    void Print();
    void PrintToFile();
    void Copy();

    std::wstring DocumentName() const;
    void EnableCommands() const;
    /// The title and the status bar.
    void ShowState() const;
    std::wstring SelectionText() const;
    int Tell(const std::wstring& text, UINT style) const;

    std::unique_ptr<ChartModel> m_model;
    std::unique_ptr<ChartCanvas> m_canvas;
    HWND m_status = nullptr;
    std::wstring m_file; ///< empty for a document that was never saved
};

} // namespace host
