#include "ChartCanvas.h"

#include "Overlay.h"
#include "Resource.h"
#include "Texts.h"

#include <utility>

namespace host {
namespace {

constexpr COLORREF kDesk = RGB(0xE4, 0xE6, 0xE9);
constexpr COLORREF kSheetEdge = RGB(0xB8, 0xBC, 0xC2);

RECT Converted(const PixelRect& rect) {
    return {rect.Left, rect.Top, rect.Right, rect.Bottom};
}

void Fill(HDC context, const RECT& area, COLORREF colour) {
    const KeptBrush brush(CreateSolidBrush(colour));
    FillRect(context, &area, brush.get());
}

} // namespace

ChartCanvas::ChartCanvas(HWND parent, std::function<void()> onChange) : m_onChange(std::move(onChange)) {
    WNDCLASSEXW windowClass{};
    windowClass.lpszClassName = L"MillichartCanvas";
    windowClass.style = CS_DBLCLKS;
    CREATESTRUCTW what{};
    what.style = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | WS_CLIPCHILDREN;
    what.hwndParent = parent;
    Create(windowClass, what);
    m_view.SetDpi(GetDpiForWindow(parent));
}

void ChartCanvas::Show(ChartModel& model) {
    m_edit.reset();
    m_hovered.reset();
    m_model = &model;
    m_page.Forget();
    m_kind = nullptr;
    Update();
}

/// A part under the mouse may be another one now. A chart of another kind is looked at anew.
void ChartCanvas::Update() {
    const millichart::ChartKind* const kind = millichart::KindOf(m_model->Editor().Document().Content);
    if (kind == m_kind) {
        m_view.UpdateSheet(m_model->Sheet());
    } else {
        m_view.ShowSheet(m_model->Sheet());
    }
    m_kind = kind;
    m_hovered.reset();
    UpdateScrollBars();
    InvalidateRect(Handle(), nullptr, FALSE);
    m_onChange();
}

void ChartCanvas::ZoomBy(int direction) {
    SetZoom(NextZoom(m_view.Zoom(), direction), Middle());
}

void ChartCanvas::ShowTrueSize() {
    SetZoom(1.0, Middle());
}

void ChartCanvas::SetDpi(double dpi) {
    m_view.SetDpi(dpi);
    Update();
}

LRESULT ChartCanvas::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_model == nullptr) {
        return Default(message, wParam, lParam);
    }
    if (const auto result = OnMouse(message, wParam, lParam)) {
        return *result;
    }
    if (const auto result = OnEdit(message, wParam, lParam)) {
        return *result;
    }
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_ERASEBKGND:
        return 1; // OnPaint covers all of it: erasing would flicker
    case WM_SIZE:
        FinishEdit(true);
        m_view.SetWindow(LOWORD(lParam), HIWORD(lParam));
        UpdateScrollBars();
        InvalidateRect(Handle(), nullptr, FALSE);
        return 0;
    case WM_HSCROLL:
        OnScrollBar(SB_HORZ, wParam);
        return 0;
    case WM_VSCROLL:
        OnScrollBar(SB_VERT, wParam);
        return 0;
    case WM_KEYDOWN:
        return OnKey(wParam) ? 0 : Default(message, wParam, lParam);
    case WM_CHAR:
        OnTyped(wParam);
        return 0;
    default:
        return Default(message, wParam, lParam);
    }
}

std::optional<LRESULT> ChartCanvas::OnEdit(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_edit == nullptr || (lParam != reinterpret_cast<LPARAM>(m_edit->Handle()))) {
        return std::nullopt;
    }
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) == EN_CHANGE) {
            m_edit->Grow();
        }
        return 0;
    case WM_CTLCOLOREDIT:
        return reinterpret_cast<LRESULT>(m_edit->PrepareColors(reinterpret_cast<HDC>(wParam)));
    case kEditDone:
        FinishEdit(wParam != FALSE);
        return 0;
    default:
        return std::nullopt;
    }
}

/// Everything is put together in memory and copied at once.
void ChartCanvas::OnPaint() {
    PAINTSTRUCT paint;
    const HDC window = BeginPaint(Handle(), &paint);
    RECT client;
    GetClientRect(Handle(), &client);
    m_frame.Reserve(client.right, client.bottom);
    const HDC frame = m_frame.Context();
    Fill(frame, client, kDesk);
    RECT edge = Converted(m_view.ToWindow(m_view.Sheet()));
    InflateRect(&edge, 1, 1);
    Fill(frame, edge, kSheetEdge);
    m_page.Show(frame, *m_model, m_view);
    DrawOverlay(frame, *m_model, m_hovered, m_view);
    BitBlt(window, 0, 0, client.right, client.bottom, frame, 0, 0, SRCCOPY);
    EndPaint(Handle(), &paint);
}

void ChartCanvas::EditText() {
    const std::optional<std::string> text = m_model->EditableText();
    const auto look = text ? designer::LookOf(m_model->Chart(), m_model->Selected()->Part) : std::nullopt;
    if (look) {
        FinishEdit(true);
        m_view.Reveal(look->Box);
        Update();
        m_edit = std::make_unique<InPlaceEdit>(Handle(), Wide(*text), *look, m_view.PixelsPerMillimetre(),
                                               m_view.ToWindow(look->Box));
    }
}

/// What is typed takes the selected text's place; blanks and control characters are commands.
void ChartCanvas::OnTyped(WPARAM character) {
    if (character > L' ' && character != 0x7F) {
        EditText();
        if (m_edit != nullptr) {
            SendMessageW(m_edit->Handle(), WM_CHAR, character, 1);
        }
    }
}

void ChartCanvas::FinishEdit(bool isKept) {
    if (m_edit != nullptr) {
        const std::unique_ptr<InPlaceEdit> edit =
            std::move(m_edit); // what is told below must not end it again
        const bool hadFocus = GetFocus() == edit->Handle();
        if (isKept) {
            m_model->SetText(Utf8(edit->Text()));
        }
        Update();
        if (hadFocus) {
            SetFocus(Handle());
        }
    }
}

POINT ChartCanvas::MenuPlace() const {
    const auto& part = m_model->Selected();
    const PixelRect box = m_view.ToWindow(part ? part->Box : m_view.Sheet());
    POINT place{(box.Left + box.Right) / 2, (box.Top + box.Bottom) / 2};
    ClientToScreen(Handle(), &place);
    return place;
}

PixelPoint ChartCanvas::Middle() const {
    const PixelRect seen = m_view.VisibleArea();
    return {seen.Width() / 2, seen.Height() / 2};
}

} // namespace host
