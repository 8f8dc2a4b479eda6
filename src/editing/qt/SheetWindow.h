#pragma once

#include "editing/qt/TemplateView.h"

#include <QPushButton>
#include <QTabWidget>
#include <memory>
#include <vector>

namespace millichart {

/// Pages behind tabs, each filled when it first comes to the front.
class SheetWindow final : public ModalWindow {
public:
    SheetWindow(Sheet& sheet, QWidget* owner);

    void BringToFront(QWidget& page) override;

private:
    void AddButtons();
    void Open();
    void Fill(int index);
    std::vector<DialogView*> Views() const;
    bool OnOK() override;
    void OnChanged() override;

    Sheet& m_sheet;
    QTabWidget m_tabs;
    QPushButton m_ok{QStringLiteral("确定")};
    QPushButton m_cancel{QStringLiteral("取消")};
    std::vector<std::unique_ptr<TemplateView>> m_views; ///< a page's, null until it is filled
};

} // namespace millichart
