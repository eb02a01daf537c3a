#include "app/application.h"
#include "app/desktop_machine.h"
#include "core/boxes.h"
#include "machine/posix/process.h"
#include "machine/qt/desktop/end_requests.h"
#include "machine/qt/desktop/qt_application.h"
#include "machine/qt/desktop/qt_clock.h"
#include "machine/qt/look/desk_style.h"
#include "machine/qt/look/desktop_settings.h"
#include "machine/qt/look/korean.h"
#include "machine/qt/look/late_icon.h"
#include "platform/error.h"

#include <QDBusConnection>
#include <QLocale>

int main(int argc, char** argv) {
    machine::posix::forbid_core();
    machine::posix::take_file_size_limit_as_full_disk();
    machine::qt::QtApplication qt(argc, argv);
    QApplication::setStyle(new machine::qt::DeskStyle);
    machine::qt::use_font_with_hangul(QApplication::font());
    const machine::qt::DesktopSettings desktop_settings(QDBusConnection::sessionBus());
    QApplication::setWindowIcon(machine::qt::late_icon(QStringLiteral("app")));
    QApplication::setQuitOnLastWindowClosed(false);
    // Days and months are Korean like everything else, whatever the machine's language is.
    QLocale::setDefault(QLocale(QLocale::Korean, QLocale::SouthKorea));
    machine::qt::KoreanTranslator korean;
    QApplication::installTranslator(&korean);

    const machine::posix::Paths paths(machine::posix::this_installation());
    machine::posix::enter_application_directory(paths);
    machine::qt::QtClock clock;
    app::DesktopMachine machine(paths, clock);
    qt.show_errors_with([&machine](const platform::RuntimeError& error) {
        core::show_error(machine.desktop, error, platform::BoxIcon::critical);
    });

    app::Application application(machine.platform);
    const machine::qt::EndRequests requests([&machine] { machine.desktop.close_all(); });
    if (application.start()) machine.desktop.run_until_closed(application.main_form());
    return 0;
}
