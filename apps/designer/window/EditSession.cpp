#include "window/EditSession.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>
#include <utility>

namespace designer {
namespace {

constexpr int kKeepAfter = 4000; ///< ms; a crash loses what is younger, and the writing of it
constexpr int kCheckAfter = 300; ///< ms; others write a file in several steps

} // namespace

EditSession::EditSession(QObject* parent)
    : QObject(parent), m_recovery(std::make_shared<RecoveryFile>(RecoveryFolder())) {
    m_keep.setSingleShot(true);
    m_keep.setInterval(kKeepAfter);
    m_check.setSingleShot(true);
    m_check.setInterval(kCheckAfter);
    connect(&m_keep, &QTimer::timeout, this, &EditSession::KeepInBackground);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_check, qOverload<>(&QTimer::start));
    connect(&m_check, &QTimer::timeout, this, &EditSession::CheckFile);
}

EditSession::~EditSession() {
    QThreadPool::globalInstance()->waitForDone();
}

void EditSession::Start(Editor editor) {
    DropRecovery();
    m_editor.emplace(std::move(editor));
    Watch();
    Q_EMIT Started();
    TellChange();
}

void EditSession::Change(const QString& name, const std::function<void(millichart::ChartDocument&)>& change,
                         const QString& merge) {
    m_editor->Change(name.toStdString(), change, merge.toStdString());
    TellChange();
}

void EditSession::ChangeTable(const QString& name, std::size_t table,
                              const std::function<void(DataTable&)>& change, const QString& merge) {
    m_editor->ChangeTable(name.toStdString(), table, change, merge.toStdString());
    TellChange();
}

void EditSession::SwitchKind(const QString& name, const millichart::ChartKind& kind) {
    m_editor->SwitchKind(name.toStdString(), kind);
    TellChange();
}

void EditSession::Undo() {
    m_editor->Undo();
    TellChange();
}

void EditSession::Redo() {
    m_editor->Redo();
    TellChange();
}

void EditSession::Preview(const millichart::ChartDocument& document) {
    Q_EMIT Previewed(std::make_shared<const millichart::ChartDocument>(document));
}

QString EditSession::Save(const QString& file) {
    const std::string fault = m_editor->Save(file.toStdString());
    if (fault.empty()) {
        DropRecovery();
        Watch();
    }
    Q_EMIT Changed();
    return QString::fromStdString(fault);
}

void EditSession::AcceptFile() {
    m_editor->AcceptFile();
    Watch();
}

QString EditSession::KeepNow() {
    QThreadPool::globalInstance()->waitForDone();
    return QString::fromStdString(m_recovery->Keep(*m_editor));
}

void EditSession::DropRecovery() {
    m_keep.stop();
    QThreadPool::globalInstance()->waitForDone(); // what is being written must not come after
    m_recovery->Drop();
}

void EditSession::Watch() {
    if (!m_watcher.files().isEmpty()) {
        m_watcher.removePaths(m_watcher.files());
    }
    const QString file = QString::fromStdString(m_editor->File());
    if (!file.isEmpty() && QFileInfo::exists(file)) {
        m_watcher.addPath(file);
    }
}

void EditSession::TellChange() {
    if (!m_keep.isActive()) {
        m_keep.start();
    }
    Q_EMIT Changed();
}

void EditSession::CheckFile() {
    if (IsOpen() && m_editor->IsFileOthers()) {
        Q_EMIT FileChangedByOthers();
    }
    if (IsOpen()) {
        Watch(); // a file that was renamed into its place is another one
    }
}

/// The states are shared and never change, so a copy of the editor is cheap.
void EditSession::KeepInBackground() {
    if (!IsOpen()) {
        return;
    }
    if (m_isKeeping) {
        m_keep.start();
        return;
    }
    m_isKeeping = true;
    QThreadPool::globalInstance()->start([recovery = m_recovery, editor = *m_editor, self = QPointer(this)] {
        recovery->Keep(editor);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self] {
                if (self) {
                    self->m_isKeeping = false;
                }
            },
            Qt::QueuedConnection);
    });
}

} // namespace designer
