// What the host's user does to the chart beyond dragging its parts, and what the menus tell of it.
#include "DataDialog.h"
#include "HostWindow.h"
#include "Resource.h"
#include "Texts.h"
#include "model/PartNames.h"
#include "window/PropertySheets.h"

#include <algorithm>
#include <array>
#include <commdlg.h>
#include <utility>

namespace host {
namespace {

using millichart::ChartDocument;

constexpr wchar_t kKeys[] = L"鼠标\n"
                            L"　单击：选择图表的一部分；拖动标签或图例：移动\n"
                            L"　双击：修改属性；双击图例色块：改颜色\n"
                            L"　右键：能做的事\n"
                            L"　Ctrl+滚轮：缩放；滚轮、Shift+滚轮：滚动\n"
                            L"　把图表文档或数据表拖进窗口：打开\n\n"
                            L"键盘\n"
                            L"　Tab、Shift+Tab：逐个选择\n"
                            L"　方向键：移动 0.1 毫米；加 Shift：1 毫米；Delete：复位\n"
                            L"　F2 或直接打字：编辑文字；Enter 确定，Shift+Enter 换行，Esc 放弃\n"
                            L"　Enter：修改属性；空格：改颜色；Ctrl+D：修改数据\n"
                            L"　Esc：放弃移动，取消选择\n"
                            L"　Ctrl+Z、Ctrl+Y：撤销、重做\n"
                            L"　Ctrl++、Ctrl+-：放大、缩小；Ctrl+0：实际大小";

void Enable(HMENU menu, UINT command, bool isEnabled) {
    EnableMenuItem(menu, command, MF_BYCOMMAND | (isEnabled ? MF_ENABLED : MF_GRAYED));
}

/// "撤销 移动图例(&U)\tCtrl+Z"
void ShowStep(HMENU menu, UINT command, const wchar_t* what, const std::string& step, const wchar_t* key) {
    const std::wstring name = step.empty() ? L"" : L" " + Wide(step);
    ModifyMenuW(menu, command, MF_BYCOMMAND | MF_STRING, command, (what + name + key).c_str());
    Enable(menu, command, !step.empty());
}

} // namespace

bool HostWindow::OnChartCommand(int command) {
    switch (command) {
    case ID_CHART_PROPERTIES:
        EditProperties();
        return true;
    case ID_CHART_TEXT:
        m_canvas->EditText();
        return true;
    case ID_CHART_COLOR:
        PickColor();
        return true;
    case ID_CHART_RESET:
        m_model->Reset();
        m_canvas->Update();
        return true;
    case ID_CHART_DATA:
        EditData();
        return true;
    case ID_HELP_KEYS:
        Tell(kKeys, MB_OK);
        return true;
    default:
        break;
    }
    const auto kind = static_cast<std::size_t>(command - ID_CHART_KIND_FIRST);
    if (command < ID_CHART_KIND_FIRST || kind >= millichart::ChartKinds().size()) {
        return false;
    }
    SwitchKind(kind);
    return true;
}

/// The chart shows what the sheet has, while it is open.
void HostWindow::EditProperties() {
    PutDown();
    const auto& selected = m_model->Selected();
    const auto at = selected ? std::optional(selected->Part) : std::nullopt;
    ChartDocument edited = m_model->Editor().Document();
    const bool isAccepted = designer::EditRecord(edited, at, [this](const ChartDocument& trial) {
        m_model->Try(trial);
        m_canvas->Update();
    });
    if (isAccepted) {
        m_model->Change("修改属性", [&](ChartDocument& document) { document = std::move(edited); });
    } else {
        m_model->EndTrial();
    }
    m_canvas->Update();
}

void HostWindow::PickColor() {
    PutDown();
    const auto color = m_model->Color();
    if (!color) {
        return;
    }
    static std::array<COLORREF, 16> kept{}; // the user's own, as long as the program runs
    CHOOSECOLORW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = Handle();
    dialog.rgbResult = penlode::ToColorRef(*color);
    dialog.lpCustColors = kept.data();
    dialog.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (ChooseColorW(&dialog) != FALSE) {
        m_model->SetColor(penlode::FromColorRef(dialog.rgbResult));
        m_canvas->Update();
    }
}

void HostWindow::EditData() {
    PutDown();
    std::vector<TableCells> tables;
    for (const designer::DataTable& table : m_model->Editor().Tables()) {
        tables.push_back(CellsOf(table));
    }
    if (tables.empty() || !EditCells(Handle(), tables)) {
        return;
    }
    for (std::size_t i = 0; i < tables.size(); ++i) {
        m_model->ChangeTable("修改数据", i, [&](designer::DataTable& table) { TakeCells(table, tables[i]); });
    }
    m_canvas->Update();
}

void HostWindow::SwitchKind(std::size_t kind) {
    PutDown();
    m_model->SwitchKind(millichart::ChartKinds()[kind]);
    m_canvas->Update();
}

void HostWindow::PrepareMenu(HMENU menu) const {
    const designer::Editor& editor = m_model->Editor();
    ShowStep(menu, ID_EDIT_UNDO, L"撤销", editor.UndoName(), L"(&U)\tCtrl+Z");
    ShowStep(menu, ID_EDIT_REDO, L"重做", editor.RedoName(), L"(&R)\tCtrl+Y");
    const auto& selected = m_model->Selected();
    const bool isMovable = selected && m_model->MobilityOf(selected->Part) != designer::Mobility::None;
    Enable(menu, ID_CHART_TEXT, m_model->EditableText().has_value());
    Enable(menu, ID_CHART_COLOR, m_model->Color().has_value());
    Enable(menu, ID_CHART_RESET, isMovable);
    Enable(menu, ID_CHART_DATA, !editor.Tables().empty());
    const millichart::ChartKind* const kind = millichart::KindOf(editor.Document().Content);
    const auto kinds = millichart::ChartKinds();
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        CheckMenuItem(menu, static_cast<UINT>(ID_CHART_KIND_FIRST + i),
                      MF_BYCOMMAND | (&kinds[i] == kind ? MF_CHECKED : MF_UNCHECKED));
    }
}

} // namespace host
