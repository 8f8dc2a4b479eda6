// What the line below the chart says.
#include "window/MainWindow.h"
#include "window/PartNames.h"

#include <QLabel>
#include <QSlider>
#include <QStatusBar>

namespace designer {

void MainWindow::MakeStatusBar() {
    m_hovered = new QLabel;
    m_hovered->setObjectName(QStringLiteral("hovered"));
    m_numbers = new QLabel;
    m_size = new QLabel;
    m_percent = new QLabel;
    m_percent->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000%")));
    m_percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_zoom = new QSlider(Qt::Horizontal);
    m_zoom->setObjectName(QStringLiteral("zoom"));
    m_zoom->setAccessibleName(tr("缩放"));
    constexpr int kLeastPercent = 25;
    constexpr int kMostPercent = 800;
    constexpr int kSliderWidth = 140;
    m_zoom->setRange(kLeastPercent, kMostPercent);
    m_zoom->setFixedWidth(kSliderWidth);
    statusBar()->addWidget(m_hovered, 1);
    statusBar()->addPermanentWidget(m_numbers);
    statusBar()->addPermanentWidget(m_size);
    statusBar()->addPermanentWidget(m_zoom);
    statusBar()->addPermanentWidget(m_percent);
}

void MainWindow::TellHovered(const std::optional<millichart::ChartPart>& part) {
    const auto shown = m_canvas->Shown();
    m_hovered->setText(part && shown ? Described(*part, FactsOf(*shown->Document, shown->Chart, *part))
                                     : QString());
}

/// One number is in its cell to read.
void MainWindow::TellNumbers(const SelectionFacts& facts) {
    constexpr int kDigits = 10;
    m_numbers->setText(facts.Numbers < 2 ? QString()
                                         : tr("%1 个数，和 %2，平均 %3")
                                               .arg(facts.Numbers)
                                               .arg(facts.Sum, 0, 'g', kDigits)
                                               .arg(facts.Mean, 0, 'g', kDigits));
}

} // namespace designer
