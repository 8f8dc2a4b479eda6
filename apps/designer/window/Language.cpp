#include "window/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace designer {
namespace {

QString g_shown = QStringLiteral("zh_CN");

QString Key() {
    return QStringLiteral("language");
}

QString Preferred() {
    for (const QString& language : QLocale::system().uiLanguages()) {
        if (language.startsWith(QLatin1String("zh"))) {
            return QStringLiteral("zh_CN");
        }
        if (language.startsWith(QLatin1String("en"))) {
            return QStringLiteral("en");
        }
    }
    return QStringLiteral("zh_CN");
}

/// What was installed is found again by its name.
void Install(const QString& file, const QString& folder) {
    auto* const translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(QStringLiteral("language"));
    if (translator->load(file, folder)) {
        QCoreApplication::installTranslator(translator);
    }
}

void RemoveInstalled() {
    for (QTranslator* const installed :
         QCoreApplication::instance()->findChildren<QTranslator*>(QStringLiteral("language"))) {
        QCoreApplication::removeTranslator(installed);
        delete installed;
    }
}

} // namespace

void InstallLanguage(const QString& name) {
    const QString chosen = QSettings().value(Key()).toString();
    g_shown = !name.isEmpty() ? name : !chosen.isEmpty() ? chosen : Preferred();
    RemoveInstalled();
    // What Qt itself says; its own language is English.
    Install(QStringLiteral("qtbase_") + g_shown, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    Install(QStringLiteral("millichart-designer_") + g_shown, QStringLiteral(":/i18n"));
}

QString ShownLanguage() {
    return g_shown;
}

void RememberLanguage(const QString& name) {
    QSettings().setValue(Key(), name);
}

} // namespace designer
