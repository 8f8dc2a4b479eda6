#include "editing/qt/SheetWindow.h"

#include "editing/qt/DialogUnits.h"
#include "editing/qt/QtValues.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace millichart {

SheetWindow::SheetWindow(Sheet& sheet, QWidget* owner)
    : ModalWindow(owner, sheet.Title()), m_sheet(sheet), m_views(sheet.Pages().size()) {
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(&m_tabs);
    const DialogUnits units(font());
    for (Dialog* page : sheet.Pages()) {
        auto* panel = new QWidget;
        panel->setMinimumSize(units.SizeOf(page->Template()));
        m_tabs.addTab(panel, ToQString(page->Template().Title));
    }
    AddButtons();
    Fill(m_tabs.currentIndex());
    connect(&m_tabs, &QTabWidget::currentChanged, this,
            [this](int index) { Guard([this, index] { Fill(index); }); });
}

void SheetWindow::AddButtons() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("确定"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("取消"));
    connect(buttons, &QDialogButtonBox::accepted, this, &SheetWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SheetWindow::reject);
    layout()->addWidget(buttons);
}

void SheetWindow::Fill(int index) {
    const auto page = static_cast<std::size_t>(index);
    if (index >= 0 && !m_views[page]) {
        m_views[page] = std::make_unique<TemplateView>(*m_sheet.Pages()[page], *m_tabs.widget(index), *this);
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
