#include "window/Language.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <clocale>
#include <csignal>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("millichart"));
    QApplication::setApplicationName(QStringLiteral("Millichart"));
    QApplication::setApplicationVersion(QStringLiteral(MILLICHART_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("millichart-designer"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/millichart-designer.png")));
    std::setlocale(LC_NUMERIC, "C");
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is a failed save, not the program's end
#endif

    QCommandLineParser parser;
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("zh_CN, en"),
                                      QStringLiteral("NAME"));
    parser.addOption(language);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("chart documents or tables"));
    parser.process(application);
    designer::InstallLanguage(parser.value(language));

    std::vector<std::unique_ptr<designer::MainWindow>> windows;
    const QStringList files = parser.positionalArguments();
    for (qsizetype i = 0; i < std::max<qsizetype>(files.size(), 1); ++i) {
        windows.push_back(std::make_unique<designer::MainWindow>());
        windows.back()->show();
        if (i < files.size()) {
            windows.back()->Open(files[i]);
        } else {
            windows.back()->OfferRecovered();
        }
    }
    return QApplication::exec();
}
