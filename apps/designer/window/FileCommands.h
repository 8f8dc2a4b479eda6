#pragma once

#include "window/EditSession.h"

#include <QString>
#include <functional>

class QWidget;

namespace designer {

/// What a person does with files, with the questions and messages that this takes. `Chart` gives the present
/// chart.
class FileCommands : public QObject {
    Q_OBJECT

public:
    FileCommands(EditSession& session, QWidget& window);

    /// Opens a document, or a table as a new chart. False, and a person was told, when that cannot be.
    bool Open(const QString& file);
    /// Asks for the file.
    QString AskForFile();

    /// Under its name, or asks for one. False when it is not saved.
    bool Save();
    bool SaveAs();
    /// Asks what shall become of what is not saved. False to stay.
    bool MayClose();

    void Export();
    void CopyPicture();
    void Print();
    void PreviewPrint();

    /// Offers what programs that ended suddenly left. True when one was opened.
    bool OfferRecovered();

    /// The file's own name, or that of a new one.
    QString ShownName() const;

private:
    bool SaveAt(const QString& file);
    bool ConfirmOddCells();
    bool ConfirmOthersFile();
    QString FolderOfFile() const;
    QString SuggestedFile(const QString& ending) const;
    bool OpenDocument(const QString& file);
    bool OpenTable(const QString& file);

    EditSession& m_session;
    QWidget& m_window;
};

} // namespace designer
