#include "window/FileCommands.h"

#include "documents/Files.h"
#include "model/ChartEdits.h"
#include "window/ExportDialog.h"
#include "window/Printing.h"
#include "window/RecentFiles.h"
#include "window/TableChoice.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

namespace designer {
namespace {

using millichart::ChartDocument;
using millichart::LaidOutChart;

QString DocumentEnding() {
    return QStringLiteral(".chart.json");
}

/// A message with more below it. Gives the index of the button that was pressed, the last one for Escape.
int Ask(QWidget& window, const QString& text, const QString& more, const QStringList& answers) {
    QMessageBox box(QMessageBox::Question, QCoreApplication::applicationName(), text, QMessageBox::NoButton,
                    &window);
    box.setInformativeText(more);
    QList<QPushButton*> buttons;
    for (qsizetype i = 0; i < answers.size(); ++i) {
        const bool isLast = i + 1 == answers.size();
        buttons << box.addButton(answers[i], isLast   ? QMessageBox::RejectRole
                                             : i == 0 ? QMessageBox::AcceptRole
                                                      : QMessageBox::DestructiveRole);
    }
    box.setDefaultButton(buttons.front());
    box.setEscapeButton(buttons.back());
    box.exec();
    return static_cast<int>(
        std::max<qsizetype>(buttons.indexOf(qobject_cast<QPushButton*>(box.clickedButton())), 0));
}

void Tell(QWidget& window, const QString& text, const QString& more) {
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), text, QMessageBox::Ok,
                    &window);
    box.setInformativeText(more);
    box.exec();
}

/// What is wrong, a line each.
QString Problems(const std::vector<penlode::Diagnostic>& diagnostics) {
    constexpr std::size_t kMost = 10;
    QStringList lines;
    std::size_t left = 0;
    for (const penlode::Diagnostic& diagnostic : diagnostics) {
        if (diagnostic.Severity != penlode::Severity::Error) {
            continue;
        }
        if (static_cast<std::size_t>(lines.size()) == kMost) {
            ++left;
            continue;
        }
        const QString line =
            diagnostic.Line > 0 ? FileCommands::tr("第 %1 行：").arg(diagnostic.Line) : QString();
        const QString place =
            diagnostic.Place.empty() ? QString() : QString::fromStdString(diagnostic.Place) + ": ";
        lines << line + place + QString::fromStdString(diagnostic.Text);
    }
    if (left > 0) {
        lines << FileCommands::tr("还有 %n 个", nullptr, static_cast<int>(left));
    }
    return lines.join('\n');
}

} // namespace

FileCommands::FileCommands(EditSession& session, QWidget& window)
    : QObject(&window), m_session(session), m_window(window) {}

bool FileCommands::Open(const QString& file) {
    return IsTableFile(file) ? OpenTable(file) : OpenDocument(file);
}

bool FileCommands::OpenDocument(const QString& file) {
    Editor editor = Editor::Open(file.toStdString());
    if (!editor.Document().IsSound()) {
        Tell(m_window, tr("打不开“%1”。").arg(QFileInfo(file).fileName()),
             Problems(editor.Document().Diagnostics()));
        return false;
    }
    m_session.Start(std::move(editor));
    AddRecentFile(file);
    return true;
}

bool FileCommands::OpenTable(const QString& file) {
    std::optional<millichart::TableInput> table = ChooseTable(file, m_window);
    if (!table) {
        return false;
    }
    const millichart::ChartKind& kind = GuessKind(*table);
    Editor editor = Editor::FromTable(kind, std::move(*table));
    if (!editor.Document().IsSound()) {
        Tell(m_window, tr("“%1”不能画成图表。").arg(QFileInfo(file).fileName()),
             Problems(editor.Document().Diagnostics()));
        return false;
    }
    m_session.Start(std::move(editor));
    AddRecentFile(file);
    return true;
}

QString FileCommands::AskForFile() {
    return QFileDialog::getOpenFileName(
        &m_window, tr("打开"), FolderOfFile(),
        tr("图表和数据表 (*.json *.csv *.tsv *.txt *.xlsx *.ods *.db *.sqlite *.sqlite3)") + ";;" +
            tr("图表 (*.json)") + ";;" + tr("所有文件 (*)"));
}

bool FileCommands::Save() {
    const QString file = QString::fromStdString(m_session.Current().File());
    return file.isEmpty() ? SaveAs() : SaveAt(file);
}

bool FileCommands::SaveAs() {
    const QString file = QFileDialog::getSaveFileName(
        &m_window, tr("另存为"), SuggestedFile(DocumentEnding()), tr("图表 (*.chart.json)"));
    if (file.isEmpty()) {
        return false;
    }
    const bool hasEnding = !QFileInfo(file).suffix().isEmpty();
    return SaveAt(hasEnding ? file : file + DocumentEnding());
}

bool FileCommands::SaveAt(const QString& file) {
    const bool isOwn = file.toStdString() == m_session.Current().File();
    if (!ConfirmOddCells() || (isOwn && !ConfirmOthersFile())) {
        return false;
    }
    const QString fault = m_session.Save(file);
    if (!fault.isEmpty()) {
        Tell(m_window, tr("“%1”没有保存。").arg(QFileInfo(file).fileName()),
             tr("原来的文件没有动，图表仍在窗口里；可以换个地方再存。") + "\n" + fault);
        return false;
    }
    AddRecentFile(file);
    return true;
}

bool FileCommands::ConfirmOddCells() {
    std::size_t odd = 0;
    for (const DataTable& table : m_session.Current().Tables()) {
        odd += table.OddCount();
    }
    return odd == 0 || Ask(m_window, tr("有 %n 个格子不是数。", nullptr, static_cast<int>(odd)),
                           tr("图表把它们当作空格；文件里只存数，这些文字不会存下来。"),
                           {tr("仍然保存(&S)"), tr("取消")}) == 0;
}

bool FileCommands::ConfirmOthersFile() {
    return !m_session.Current().IsFileOthers() ||
           Ask(m_window, tr("“%1”已被其他程序修改。").arg(ShownName()),
               tr("保存会用窗口里的图表替换那个文件。"), {tr("替换(&R)"), tr("取消")}) == 0;
}

bool FileCommands::MayClose() {
    if (!m_session.IsOpen() || m_session.Current().IsSaved()) {
        m_session.DropRecovery();
        return true;
    }
    const int answer = Ask(m_window, tr("保存对“%1”的更改吗？").arg(ShownName()), QString(),
                           {tr("保存(&S)"), tr("不保存(&N)"), tr("取消")});
    if (answer == 0) {
        return Save();
    }
    if (answer == 1) {
        m_session.DropRecovery();
        return true;
    }
    return false;
}

void FileCommands::Export() {
    const ChartDocument& document = m_session.Current().Document();
    const LaidOutChart chart = document.LayOut();
    ExportDialog dialog(PageSizeOf(chart), &m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    QString file = QFileDialog::getSaveFileName(&m_window, tr("导出图片"), SuggestedFile(dialog.Ending()),
                                                QStringLiteral("*") + dialog.Ending());
    if (file.isEmpty()) {
        return;
    }
    file += QFileInfo(file).suffix().isEmpty() ? dialog.Ending() : QString();
    const std::string bytes = PictureOf(document, chart, dialog.Wish());
    const std::string fault = bytes.empty() ? tr("图片太大，请减少点数。").toStdString()
                                            : millichart::WriteFile(file.toStdString(), bytes);
    if (!fault.empty()) {
        Tell(m_window, tr("“%1”没有写成。").arg(QFileInfo(file).fileName()), QString::fromStdString(fault));
    }
}

void FileCommands::CopyPicture() {
    const ChartDocument& document = m_session.Current().Document();
    const LaidOutChart chart = document.LayOut();
    std::string data;
    for (const DataTable& table : m_session.Current().Tables()) {
        data += table.Copy({0, 0, table.RowCount(), table.ColumnCount()});
    }
    QGuiApplication::clipboard()->setMimeData(MimeDataOf(document, chart, data).release());
}

void FileCommands::Print() {
    designer::Print(m_session.Current().Document().LayOut(), ShownName(), &m_window);
}

void FileCommands::PreviewPrint() {
    designer::PreviewPrint(m_session.Current().Document().LayOut(), ShownName(), &m_window);
}

bool FileCommands::OfferRecovered() {
    for (const Recovered& lost : FindRecovered(RecoveryFolder())) {
        const QString name =
            lost.File.empty() ? tr("未命名") : QFileInfo(QString::fromStdString(lost.File)).fileName();
        const int answer = Ask(m_window, tr("上次没有正常结束，“%1”还有没保存的更改。").arg(name),
                               tr("最后记下的时间是 %1。").arg(QString::fromStdString(lost.Time)),
                               {tr("恢复(&R)"), tr("丢弃(&D)"), tr("以后再说")});
        if (answer == 0) {
            m_session.Start(Recover(lost));
            m_session.KeepNow(); // the new copy takes the old one's place
            Forget(lost);
            return true;
        }
        if (answer == 1) {
            Forget(lost);
        }
    }
    return false;
}

QString FileCommands::ShownName() const {
    const QString file = m_session.IsOpen() ? QString::fromStdString(m_session.Current().File()) : QString();
    return file.isEmpty() ? tr("未命名") : QFileInfo(file).fileName();
}

QString FileCommands::FolderOfFile() const {
    const QString file = m_session.IsOpen() ? QString::fromStdString(m_session.Current().File()) : QString();
    return file.isEmpty() ? QDir::currentPath() : QFileInfo(file).absolutePath();
}

QString FileCommands::SuggestedFile(const QString& ending) const {
    QString name = m_session.Current().File().empty()
                       ? QString::fromStdString(m_session.Current().Document().Title).simplified()
                       : ShownName();
    name.remove(QRegularExpression(QStringLiteral("[\\\\/:*?\"<>|]")));
    for (const QString& known : {DocumentEnding(), QStringLiteral(".json")}) {
        if (name.endsWith(known, Qt::CaseInsensitive)) {
            name.chop(known.size());
            break;
        }
    }
    return QDir(FolderOfFile()).filePath((name.isEmpty() ? tr("图表") : name) + ending);
}

} // namespace designer
