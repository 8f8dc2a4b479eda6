#pragma once

#include "documents/ChartDocument.h"

#include <QGroupBox>
#include <functional>

namespace designer {

class TextBox;
class TextLine;

/// Title, description and source of a document: what is said of it and not drawn.
class DocumentTexts : public QGroupBox {
    Q_OBJECT

public:
    explicit DocumentTexts(QWidget* parent = nullptr);

    void Show(const millichart::ChartDocument& document);

Q_SIGNALS:
    void ChangeWanted(QString name, std::function<void(millichart::ChartDocument&)> change, QString merge);

private:
    template <class Control>
    Control* AddText(const QString& label, const char* key, const QString& name,
                     std::string millichart::ChartDocument::*text);

    TextLine* m_title;
    TextBox* m_description;
    TextLine* m_source;
};

} // namespace designer
