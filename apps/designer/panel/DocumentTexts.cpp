#include "panel/DocumentTexts.h"

#include "panel/BareText.h"
#include "panel/TextBox.h"
#include "panel/TextLine.h"

#include <QFormLayout>

namespace designer {

using millichart::ChartDocument;

template <class Control>
Control* DocumentTexts::AddText(const QString& label, const char* key, const QString& name,
                                std::string ChartDocument::*text) {
    auto* control = new Control(QLatin1String(key), this);
    control->setAccessibleName(BareText(label));
    static_cast<QFormLayout*>(layout())->addRow(label, control);
    connect(control, &Control::Typed, this, [=, this](const QString& typed, const QString& merge) {
        const auto change = [text, utf8 = typed.toStdString()](ChartDocument& document) {
            document.*text = utf8;
        };
        Q_EMIT ChangeWanted(name, change, merge);
    });
    return control;
}

DocumentTexts::DocumentTexts(QWidget* parent) : QGroupBox(tr("文档"), parent) {
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_title = AddText<TextLine>(tr("标题(&I)"), "title", tr("修改文档标题"), &ChartDocument::Title);
    m_description =
        AddText<TextBox>(tr("说明(&D)"), "description", tr("修改文档说明"), &ChartDocument::Description);
    m_source = AddText<TextLine>(tr("来源(&O)"), "source", tr("修改数据来源"), &ChartDocument::Source);
    m_title->setToolTip(tr("随文件保存，不画在图上"));
    m_description->setToolTip(tr("图表说明了什么，读屏软件也会读出"));
    m_source->setToolTip(tr("数据从哪里来"));
}

void DocumentTexts::Show(const ChartDocument& document) {
    m_title->TakeShown(QString::fromStdString(document.Title));
    m_description->TakeShown(QString::fromStdString(document.Description));
    m_source->TakeShown(QString::fromStdString(document.Source));
}

} // namespace designer
