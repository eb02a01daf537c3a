#include "app/application.h"
#include "app/machine.h"
#include "core/boxes.h"
#include "machine/qt/desktop/qt_clock.h"
#include "machine/qt/look/desk_style.h"
#include "machine/qt/look/korean_font.h"
#include "machine/qt/look/korean_translator.h"
#include "machine/qt/look/late_icon.h"
#include "platform/error.h"

#include <QApplication>
#include <QLocale>

namespace {

/// A QApplication that shows an uncaught RuntimeError in a box instead of ending, so that the draft
/// survives.
class Toolkit : public QApplication {
  public:
    using QApplication::QApplication;

    void show_errors_on(platform::Desktop& desktop) { desktop_ = &desktop; }

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const platform::RuntimeError& error) {
            if (desktop_ == nullptr) throw;
            core::show_error(*desktop_, error, platform::BoxIcon::critical);
            return true;
        }
    }

  private:
    platform::Desktop* desktop_ = nullptr;
};

}  // namespace

int main(int argc, char** argv) {
    Toolkit qt(argc, argv);
    QApplication::setStyle(new machine::qt::DeskStyle);
    machine::qt::use_font_with_hangul();
    QApplication::setWindowIcon(machine::qt::late_icon(QStringLiteral("app")));
    QApplication::setQuitOnLastWindowClosed(false);
    // Days and months in the language of everything else, whatever the machine's is.
    QLocale::setDefault(QLocale(QLocale::Korean, QLocale::SouthKorea));
    machine::qt::KoreanTranslator korean;
    QApplication::installTranslator(&korean);

    const machine::posix::Paths paths;
    machine::qt::QtClock clock;
    app::Machine machine(paths, machine::posix::PosixFiles(paths), clock);
    qt.show_errors_on(machine.desktop);

    app::Application application(machine.platform);
    if (application.start()) machine.desktop.run_until_closed(application.main_form());
    return 0;
}
