// A program of tests with an application that shows its windows nowhere.
#include "window/Language.h"

#include <QApplication>
#include <QStandardPaths>
#include <clocale>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("millichart-tests"));
    QApplication::setApplicationName(QStringLiteral("Millichart"));
    std::setlocale(LC_NUMERIC, "C");
    designer::InstallLanguage(QStringLiteral("zh_CN"));
    return RUN_ALL_TESTS();
}
