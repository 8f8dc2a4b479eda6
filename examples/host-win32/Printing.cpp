#include "Printing.h"

#include "FileDialogs.h"
#include "Metafile.h"
#include "model/PrintedPage.h"
#include "penlode/Units.h"
#include "penlode/gdiplus/GraphicsEngine.h"

#include <commdlg.h>
#include <optional>

namespace host {
namespace {

/// A printer's sheet, in mm from the corner of what it can reach, where it begins to count.
PrintedPage PageOf(HDC printer) {
    const auto across = [printer](int pixels) {
        return static_cast<float>(GetDeviceCaps(printer, pixels) * penlode::kMillimetresPerInch /
                                  GetDeviceCaps(printer, LOGPIXELSX));
    };
    const auto down = [printer](int pixels) {
        return static_cast<float>(GetDeviceCaps(printer, pixels) * penlode::kMillimetresPerInch /
                                  GetDeviceCaps(printer, LOGPIXELSY));
    };
    return {{-across(PHYSICALOFFSETX), -down(PHYSICALOFFSETY), across(PHYSICALWIDTH), down(PHYSICALHEIGHT)},
            {0.0F, 0.0F, across(HORZRES), down(VERTRES)}};
}

bool DrawOnPrinter(HDC printer, const millichart::LaidOutChart& chart) {
    const auto engine = penlode::CGraphicsEngine::ForDeviceContext(printer);
    if (engine != nullptr) {
        DrawOnPage(*engine, chart, PageOf(printer));
    }
    return engine != nullptr;
}

/// Into `file`, if there is one, in place of paper.
Printed PrintOn(HDC printer, const millichart::LaidOutChart& chart, const std::wstring& title,
                const std::optional<std::wstring>& file) {
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = title.c_str();
    document.lpszOutput = file ? file->c_str() : nullptr;
    if (StartDocW(printer, &document) <= 0) {
        return GetLastError() == ERROR_CANCELLED ? Printed::Cancelled : Printed::Failed;
    }
    // The engine is gone when the page ends.
    if (StartPage(printer) <= 0 || !DrawOnPrinter(printer, chart) || EndPage(printer) <= 0) {
        AbortDoc(printer);
        return Printed::Failed;
    }
    return EndDoc(printer) > 0 ? Printed::Yes : Printed::Failed;
}

} // namespace

Printed PrintChart(HWND owner, const millichart::LaidOutChart& chart, const std::wstring& title) {
    PRINTDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.Flags = PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE;
    const bool isChosen = PrintDlgW(&dialog) != FALSE;
    const KeptMemory mode(dialog.hDevMode);
    const KeptMemory names(dialog.hDevNames);
    const KeptContext printer(dialog.hDC);
    if (!isChosen) {
        return Printed::Cancelled; // if the dialog did not come up, the system has told why
    }
    std::optional<std::wstring> file;
    if ((dialog.Flags & PD_PRINTTOFILE) != 0) {
        file = AskPrintName(owner, title + L".prn");
        if (!file) {
            return Printed::Cancelled;
        }
    }
    return printer ? PrintOn(printer.get(), chart, title, file) : Printed::Failed;
}

bool PrintChartToFile(const millichart::LaidOutChart& chart, const std::wstring& file) {
    const auto engine = penlode::CGraphicsEngine::ForMetafile({kA4.Paper.Width, kA4.Paper.Height});
    if (engine == nullptr) {
        return false;
    }
    DrawOnPage(*engine, chart, kA4);
    const KeptMetafile metafile = MetafileOf(engine->FinishMetafile());
    const KeptMetafile written(CopyEnhMetaFileW(metafile.get(), file.c_str()));
    return written != nullptr;
}

} // namespace host
