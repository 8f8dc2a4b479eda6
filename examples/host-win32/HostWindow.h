#pragma once

#include "ChartCanvas.h"
#include "model/Recovery.h"

#include <memory>
#include <string>

namespace host {

/// The host's window: menu, page, status bar, and the document that is open. Its files are in HostFiles.cpp,
/// what is done to the chart in HostEdits.cpp.
class HostWindow final : public Window {
public:
    /// Opens with a chart to try things on.
    HostWindow();

    /// A document, or a table as a chart of the kind that suits it. Tells what is wrong with a file that
    /// cannot be shown, and keeps what was open.
    void Open(const std::wstring& file);

    /// Asks about what was lost with a program that did not end as it should; true when it is open now.
    bool OfferRecovered();

    /// Then keys that a text needs are not the menu's.
    bool IsEditingText() const { return m_canvas->IsEditingText(); }

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCommand(int command);
    bool OnFileCommand(int command);
    bool OnChartCommand(int command);
    void OnContextMenu(LPARAM lParam);
    void OnSize();
    void OnDpiChanged(WPARAM wParam, LPARAM lParam);
    void OnDropFiles(HDROP drop);

    void New(std::size_t kind);
    void Show(designer::Editor editor);
    void AskAndOpen();
    /// What is on its way or being typed belongs to what is saved, printed or copied.
    void PutDown();
    /// Shows that nothing is on its way any more.
    void EndMove();
    bool Save();
    bool SaveAs();
    bool SaveTo(const std::wstring& file);
    bool MayReplaceFile();
    bool MayLoseTexts();
    /// May the document go? Asks when there are changes that are not saved.
    bool MayClose();
    /// Asks what to do when another program has changed the file.
    void CheckFile();
    void Export(int command);
    void Print();
    void PrintToFile();
    void Copy();

    void EditProperties();
    void PickColor();
    void EditData();
    void SwitchKind(std::size_t kind);

    std::wstring DocumentName() const;
    void PrepareMenu(HMENU menu) const;
    /// The title and the status bar.
    void ShowState() const;
    std::wstring StatusText() const;
    int Tell(const std::wstring& text, UINT style) const;

    std::unique_ptr<ChartModel> m_model;
    std::unique_ptr<ChartCanvas> m_canvas;
    designer::RecoveryFile m_recovery;
    HWND m_status = nullptr;
    bool m_isAsking = false; ///< about the file; the question takes the front, and gives it back
};

} // namespace host
