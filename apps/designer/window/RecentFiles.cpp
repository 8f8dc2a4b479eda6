#include "window/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace designer {
namespace {

constexpr qsizetype kMost = 10;

QString Key() {
    return QStringLiteral("recentFiles");
}

} // namespace

QStringList RecentFiles() {
    QStringList files = QSettings().value(Key()).toStringList();
    files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
    return files;
}

void AddRecentFile(const QString& file) {
    QSettings settings;
    QStringList files = settings.value(Key()).toStringList();
    const QString path = QFileInfo(file).absoluteFilePath();
    files.removeAll(path);
    files.prepend(path);
    settings.setValue(Key(), files.mid(0, kMost));
}

} // namespace designer
