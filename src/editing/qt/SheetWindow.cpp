#include "editing/qt/SheetWindow.h"

#include "editing/qt/DialogUnits.h"
#include "editing/qt/QtValues.h"

#include <QVBoxLayout>

namespace millichart {

SheetWindow::SheetWindow(Sheet& sheet, QWidget* owner)
    : ModalWindow(owner, sheet.Title()), m_sheet(sheet), m_views(sheet.Pages().size()) {
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(&m_tabs);
    const DialogUnits units(font());
    for (const SheetPage& page : sheet.Pages()) {
        auto* panel = new QWidget;
        panel->setMinimumSize(units.SizeOf(page.Page->Template()));
        m_tabs.addTab(panel, ToQString(page.Title));
    }
    AddButtons();
    Open();
    connect(&m_tabs, &QTabWidget::currentChanged, this,
            [this](int index) { Guard([this, index] { Fill(index); }); });
}

void SheetWindow::AddButtons() {
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(&m_ok);
    row->addWidget(&m_cancel);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    m_ok.setDefault(true);
    connect(&m_ok, &QPushButton::clicked, this, &SheetWindow::accept);
    connect(&m_cancel, &QPushButton::clicked, this, &SheetWindow::reject);
}

/// What has the focus before the window shows keeps it.
void SheetWindow::Open() {
    const SheetStart& start = m_sheet.Start();
    m_tabs.setCurrentIndex(static_cast<int>(start.Page));
    Fill(m_tabs.currentIndex());
    if (const auto& page = m_views[static_cast<std::size_t>(m_tabs.currentIndex())]) {
        GoTo(*page, start);
    }
}

void SheetWindow::Fill(int index) {
    const auto page = static_cast<std::size_t>(index);
    if (index >= 0 && !m_views[page]) {
        m_views[page] =
            std::make_unique<TemplateView>(*m_sheet.Pages()[page].Page, *m_tabs.widget(index), *this);
        // A control joins the end of the order when it is made: the buttons come behind the page again.
        if (const auto controls = m_tabs.widget(index)->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
            !controls.isEmpty()) {
            setTabOrder(controls.last(), &m_ok);
            setTabOrder(&m_ok, &m_cancel);
        }
    }
}

void SheetWindow::BringToFront(QWidget& page) {
    m_tabs.setCurrentWidget(&page);
}

std::vector<DialogView*> SheetWindow::Views() const {
    std::vector<DialogView*> views;
    for (const auto& view : m_views) {
        views.push_back(view.get());
    }
    return views;
}

bool SheetWindow::OnOK() {
    return m_sheet.OnOK(Views());
}

void SheetWindow::OnChanged() {
    m_sheet.OnChanged(Views());
}

} // namespace millichart
