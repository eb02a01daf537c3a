#include <QApplication>
#include <QIcon>

#include "app/application.h"
#include "platform/ini/ini_settings.h"
#include "platform/posix/posix_carrier_library.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_shell.h"
#include "platform/qt/desk_style.h"
#include "platform/qt/korean_translator.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/screens.h"

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setStyle(new platform::qt::DeskStyle);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    platform::qt::KoreanTranslator korean;
    QApplication::installTranslator(&korean);

    const platform::posix::Paths paths;
    platform::posix::PosixFiles files(paths);
    platform::IniSettings settings(files);
    platform::posix::PosixShell shell(paths);
    platform::posix::PosixCarrierLibrary carrier;
    platform::qt::QtClock clock;
    const platform::qt::Screens screens = platform::qt::program_screens();
    platform::qt::QtDesktop desktop(screens, files);
    platform::Platform platform{.desktop = desktop,
                                .clock = clock,
                                .files = files,
                                .settings = settings,
                                .shell = shell,
                                .carrier = carrier};

    app::Application application(platform);
    if (application.start()) desktop.run_until_closed(application.main_form());
    return 0;
}
