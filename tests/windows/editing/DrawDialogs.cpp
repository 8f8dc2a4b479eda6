// draw-dialogs FOLDER [ENDING]: pictures of the dialogs as FOLDER/NAMEENDING.png, by what the screen shows.
#include "editing/Edit.h"
#include "foundation/TextProperty.h"
#include "penlode/GraphicsEngine.h"
#include "penlode/Pen.h"
#include "support/SomeRecords.h"
#include "windows/editing/Driver.h"

#include <fstream>
#include <iostream>

namespace {

std::string g_folder;
std::string g_ending;
bool g_failed = false;

penlode::Image PictureOf(const RECT& part) {
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;
    BITMAPINFO form{};
    form.bmiHeader = {sizeof form.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &form, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, part.left, part.top, SRCCOPY);
    GdiFlush();
    penlode::Image picture;
    picture.Width = width;
    picture.Height = height;
    const auto* const pixels = static_cast<const std::uint32_t*>(bits);
    for (int i = 0; i < width * height; ++i) {
        picture.Pixels.push_back(penlode::Color{pixels[i] | 0xFF000000U});
    }
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return picture;
}

void Save(const char* name, const RECT& part) {
    const penlode::Image picture = PictureOf(part);
    constexpr float kPixel = 25.4F / 96.0F;
    const penlode::SizeF size{static_cast<float>(picture.Width), static_cast<float>(picture.Height)};
    const auto engine = penlode::CGraphicsEngine::ForRaster({size.Width * kPixel, size.Height * kPixel}, 96.0,
                                                            penlode::kWhite);
    engine->SetPageUnit(penlode::Unit::Pixel);
    engine->DrawImage(&picture, {0.0F, 0.0F, size.Width, size.Height});
    std::ofstream(g_folder + "/" + name + g_ending + ".png", std::ios::binary) << engine->EncodePng();
}

RECT PlaceOf(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    return place;
}

/// The picture is taken a while after a window came, when all of it is drawn.
void Take(Driver& user, const char* name, std::function<HWND()> window) {
    user.Then(
        name,
        [window, left = 12]() mutable {
            const HWND shown = window();
            return shown != nullptr && SetForegroundWindow(shown) != FALSE && --left < 0;
        },
        [name, window] { Save(name, PlaceOf(window())); });
}

std::function<HWND()> Titled(const wchar_t* title) {
    return [title] { return DialogTitled(title); };
}

/// A dialog of the system's, which stands on the titled one.
std::function<HWND()> On(const wchar_t* title) {
    return [title] { return DialogOn(title); };
}

template <class Edit> void Show(Driver& user, Edit edit) {
    edit();
    if (!user.Failure().empty()) {
        std::cerr << user.Failure() << '\n';
        g_failed = true;
    }
}

void DrawPen() {
    Driver user;
    const wchar_t* const title = L"线条属性";
    penlode::Pen pen(penlode::Color{0xFF2060C0U}, 0.25F);
    Take(user, "pen", Titled(title));
    user.In(title, [](HWND dialog) {
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, 18402)), TRUE);
        SendDlgItemMessageW(dialog, 18402, CB_SHOWDROPDOWN, TRUE, 0);
        SendDlgItemMessageW(dialog, 18402, WM_KEYDOWN, VK_DOWN, 0);
    });
    user.Then(
        "pen-styles", [left = 12]() mutable { return --left < 0; },
        [title] {
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            GetComboBoxInfo(GetDlgItem(DialogTitled(title), 18402), &info);
            const RECT dialog = PlaceOf(DialogTitled(title));
            const RECT list = PlaceOf(info.hwndList);
            RECT both;
            UnionRect(&both, &dialog, &list);
            Save("pen-styles", both);
            SendDlgItemMessageW(DialogTitled(title), 18402, CB_SHOWDROPDOWN, FALSE, 0);
        });
    user.In(title, [](HWND dialog) {
        Type(dialog, 18400, L"20.5");
        Press(dialog, IDOK);
    });
    Take(user, "message", On(title));
    user.On(title, [](HWND message) { PostMessageW(message, WM_COMMAND, IDOK, 0); });
    user.In(title, [](HWND dialog) { Press(dialog, 18403); });
    Take(user, "colour", On(title));
    user.On(title, [](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    user.In(title, [](HWND dialog) { Press(dialog, IDCANCEL); });
    Show(user, [&] { EditPen(&pen); });
}

void DrawText() {
    Driver user;
    const wchar_t* const title = L"文本框属性";
    millichart::TextProperty text;
    text.DrawEdge = 1;
    text.EdgeColor = penlode::Color{0xFF2060C0U};
    text.BkColor = penlode::Color{0xFFFFF2CCU};
    Take(user, "text", Titled(title));
    user.In(title, [](HWND dialog) { Press(dialog, 18408); });
    Take(user, "font", On(title));
    user.On(title, [](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    user.In(title, [](HWND dialog) { Press(dialog, IDCANCEL); });
    Show(user, [&] { EditTextProperty(&text); });
}

void DrawRanges() {
    Driver user;
    double minimum = 0.0;
    double maximum = 100.0;
    double major = 10.0;
    double minor = 2.5;
    Take(user, "natural-range", Titled(L"自然坐标设置"));
    user.In(L"自然坐标设置", [](HWND dialog) { Press(dialog, IDCANCEL); });
    Show(user, [&] { EditNaturalValueRange(&minimum, &maximum, &major, &minor); });
    minimum = 0.01;
    maximum = 1000.0;
    Take(user, "logarithm-range", Titled(L"对数坐标设置"));
    user.In(L"对数坐标设置", [](HWND dialog) { Press(dialog, IDCANCEL); });
    Show(user, [&] { EditLogarithmValueRange(&minimum, &maximum); });
}

/// The pages of the sheet that `edit` opens, one after the other.
template <class Prop>
void DrawSheet(const wchar_t* title, const std::vector<const char*>& names, Prop prop, bool (*edit)(Prop*)) {
    Driver user;
    for (const char* const name : names) {
        Take(user, name, Titled(title));
        user.In(title, [](HWND) { Strike(VK_TAB, VK_CONTROL); });
    }
    user.In(title, [](HWND sheet) { Press(sheet, IDCANCEL); });
    Show(user, [&] { edit(&prop); });
}

void DrawSheets() {
    using namespace millichart;
    DrawSheet(L"直方图属性",
              {"histogram-plot", "histogram-vertical", "histogram-horizontal", "caption", "legend"},
              SomeHistogram(), &EditHistogramProp);
    DrawSheet(L"曲线属性", {"curve-plot", "curve-vertical", "curve-horizontal"}, SomeCurves(),
              &EditCurveProp);
    DrawSheet(L"饼图属性", {"pie", "pie-label"}, SomePie(), &EditPieProp);
    DrawSheet(L"半饼图属性", {"half-pie"}, SomeHalf(), &EditHalfPieProp);
    DrawSheet(L"半饼_半饼图属性", {"two-halves"}, HalfPieHalfPieProp{SomeHalf(), SomeHalf()},
              &EditHalfPieHalfPieProp);
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::cerr << "draw-dialogs FOLDER [ENDING]\n";
        return 2;
    }
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    SetCursorPos(0, 0);
    const HWND host = CreateWindowExW(0, L"Static", L"host", WS_POPUP | WS_VISIBLE, 0, 0, 1, 1, nullptr,
                                      nullptr, nullptr, nullptr);
    SetForegroundWindow(host);
    g_folder = arguments[1];
    g_ending = count > 2 ? arguments[2] : "";
    DrawPen();
    DrawText();
    DrawRanges();
    DrawSheets();
    return g_failed ? 1 : 0;
}
