#pragma once

#include "model/Editor.h"
#include "model/Recovery.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

namespace designer {

/// The open document of a window: every change of it is told, a copy for recovery is kept while it is not
/// saved, and its file is watched.
class EditSession : public QObject {
    Q_OBJECT

public:
    explicit EditSession(QObject* parent = nullptr);
    ~EditSession() override;

    bool IsOpen() const { return m_editor.has_value(); }

    /// Only while one is open.
    const Editor& Current() const { return *m_editor; }

    /// In the place of one that is open, whose recovery copy is dropped.
    void Start(Editor editor);

    /// As of Editor.
    void Change(const QString& name, const std::function<void(millichart::ChartDocument&)>& change,
                const QString& merge = {});
    void ChangeTable(const QString& name, std::size_t table, const std::function<void(DataTable&)>& change,
                     const QString& merge = {});
    void SwitchKind(const QString& name, const millichart::ChartKind& kind);
    void Undo();
    void Redo();

    /// Shows a document that is not in the history, until the next change or the preview's end.
    void Preview(const millichart::ChartDocument& document);

    void EndPreview() { Q_EMIT Changed(); }

    /// Gives the reason of a failure, or an empty text.
    QString Save(const QString& file);

    /// Another program's version of the file is of no interest from now on.
    void AcceptFile();

    /// Writes the recovery copy now, on this thread. Gives the reason of a failure.
    QString KeepNow();
    /// The document is given up or saved: nothing is to be recovered.
    void DropRecovery();

Q_SIGNALS:
    /// Another document is open; `Changed` follows.
    void Started();
    void Changed();
    void Previewed(std::shared_ptr<const millichart::ChartDocument> document);
    /// Another program wrote or removed the file.
    void FileChangedByOthers();

private:
    void Watch();
    void TellChange();
    void CheckFile();
    void KeepInBackground();

    std::optional<Editor> m_editor;
    std::shared_ptr<RecoveryFile> m_recovery;
    QFileSystemWatcher m_watcher;
    QTimer m_keep;
    QTimer m_check; ///< after a change of the file, which may come in several pieces
    bool m_isKeeping = false;
};

} // namespace designer
