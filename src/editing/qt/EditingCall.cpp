#include "editing/qt/EditingCall.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QThread>
#include <array>
#include <clocale>
#include <string>

namespace millichart {
namespace {

/// An application for a host without one. It stays to the end of the process: a second one cannot always be
/// made, and destroying it among the static objects crashes. Without a screen it works on none.
void MakeApplication() {
    static char name[] = "millichart";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static std::array<char*, 4> arguments{name, option, platform, nullptr};
    const bool hasScreen =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    static int count = hasScreen || qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? 1 : 3;
    arguments[static_cast<std::size_t>(count)] = nullptr;
    // Qt sets the process's locale to the user's; the host's stays what it was.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    new QApplication(count, arguments.data());
    std::setlocale(LC_ALL, locale.c_str());
}

bool HasWidgetsHere() {
    if (QCoreApplication::instance() == nullptr) {
        MakeApplication();
    }
    const auto* application = dynamic_cast<QApplication*>(QCoreApplication::instance());
    return application != nullptr && application->thread() == QThread::currentThread();
}

} // namespace

EditingCall::EditingCall() : m_canShow(HasWidgetsHere()) {
    if (m_canShow &&
        m_chinese.load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_chinese);
    }
}

QWidget* EditingCall::Owner() const {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr ? active : QApplication::activeModalWidget();
}

} // namespace millichart
