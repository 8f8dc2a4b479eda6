#include "window/TableChoice.h"

#include "documents/tables/OpenTable.h"
#include "documents/tables/QuerySource.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QStringList>

namespace designer {
namespace {

using millichart::TableInput;

QString Translated(const char* text) {
    return QCoreApplication::translate("TableChoice", text);
}

bool IsDataBase(const QString& file) {
    return QStringList{QStringLiteral("db"), QStringLiteral("sqlite"), QStringLiteral("sqlite3")}.contains(
        QFileInfo(file).suffix().toLower());
}

TableInput Ask(const QString& file, const std::string& query) {
    millichart::TableOptions options;
    options.Query = query;
    return millichart::QueryInput("sqlite:" + file.toStdString(), std::move(options));
}

/// Tables and views; `fault` takes why there are none.
QStringList TablesIn(const QString& file, QString& fault) {
    const TableInput asked = Ask(file, "SELECT name FROM sqlite_master WHERE type IN ('table', 'view') "
                                       "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY name");
    const auto rows = millichart::documents::OpenTable(asked);
    QStringList names;
    millichart::documents::TableRow row;
    for (bool isHeading = true; rows->Next(row); isHeading = false) {
        if (!isHeading && !row.Cells.empty()) {
            names << QString::fromStdString(row.Cells.front());
        }
    }
    fault = QString::fromStdString(rows->Fault());
    return names;
}

std::optional<TableInput> ChooseFromDataBase(const QString& file, QWidget& window) {
    QString fault;
    const QStringList names = TablesIn(file, fault);
    if (names.isEmpty()) {
        QMessageBox::warning(&window, Translated(QT_TRANSLATE_NOOP("TableChoice", "打开数据库")),
                             Translated(QT_TRANSLATE_NOOP("TableChoice", "“%1”里没有可用的表。"))
                                     .arg(QFileInfo(file).fileName()) +
                                 (fault.isEmpty() ? QString() : QStringLiteral("\n") + fault));
        return std::nullopt;
    }
    bool isChosen = false;
    const QString asked = QInputDialog::getItem(
        &window, Translated(QT_TRANSLATE_NOOP("TableChoice", "打开数据库")),
        Translated(QT_TRANSLATE_NOOP("TableChoice", "选一张表，或输入一条 SELECT 查询：")), names, 0, true,
        &isChosen);
    if (!isChosen || asked.trimmed().isEmpty()) {
        return std::nullopt;
    }
    QString name = asked;
    const QString query =
        names.contains(asked) ? QStringLiteral("SELECT * FROM \"%1\"").arg(name.replace('"', "\"\"")) : asked;
    return Ask(file, query.toStdString());
}

} // namespace

bool IsTableFile(const QString& file) {
    return IsDataBase(file) ||
           QStringList{QStringLiteral("csv"), QStringLiteral("tsv"), QStringLiteral("txt"),
                       QStringLiteral("xlsx"), QStringLiteral("ods")}
               .contains(QFileInfo(file).suffix().toLower());
}

std::optional<TableInput> ChooseTable(const QString& file, QWidget& window) {
    if (IsDataBase(file)) {
        return ChooseFromDataBase(file, window);
    }
    return TableInput{millichart::ReadFile(file.toStdString())};
}

} // namespace designer
