#pragma once

#include "documents/ChartDocument.h"

#include <QScrollArea>
#include <functional>
#include <vector>

class QCheckBox;
class QFormLayout;
class QLabel;

namespace designer {

class DocumentTexts;
struct OptionRow;
class TextLine;

/// What a document says beyond its record: its own texts and the reading options, of which only those that
/// its kind of chart heeds are seen. Changes nothing itself: a wanted change is told, and whoever owns the
/// document shows the next one.
class OptionsPanel : public QScrollArea {
    Q_OBJECT

public:
    explicit OptionsPanel(QWidget* parent = nullptr);
    ~OptionsPanel() override;

    /// What is being typed stays.
    void Show(const millichart::ChartDocument& document);

Q_SIGNALS:
    /// `name` is for the undo menu; `merge` as in Editor::Change.
    void ChangeWanted(QString name, std::function<void(millichart::ChartDocument&)> change, QString merge);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// A line of the form: what it shows and for which kinds.
    struct Line {
        std::uint32_t Kinds;
        QWidget* Control;
        QLabel* Label; ///< null for a check box
        std::function<void(const millichart::ChartOptions&)> Show;
    };

    using OptionsChange = std::function<void(millichart::ChartOptions&)>;

    void AddMaster();
    void AddFlag(const OptionRow& row);
    void AddChoice(const OptionRow& row);
    void AddDecimals();
    void AddTitle(const QString& label, millichart::CaptionProp millichart::ChartOptions::*title,
                  std::uint32_t kinds);
    void AddLine(const QString& label, QWidget* control, std::uint32_t kinds,
                 std::function<void(const millichart::ChartOptions&)> show);
    void Want(const QString& name, const OptionsChange& change, const QString& merge = {});

    QFormLayout* m_form = nullptr;
    DocumentTexts* m_texts;
    QCheckBox* m_master = nullptr;
    std::vector<Line> m_lines;
};

/// All that makes a chart read well, or nothing of it; what the options say of the document's content, the
/// titles and what its times are, stays.
void SetReadable(millichart::ChartOptions& options, bool isReadable);

} // namespace designer
