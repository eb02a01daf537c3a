// What the user sees while the carrier is asked, on a screen with a window manager.

#include "compose/main_form.h"
#include "core/settings.h"
#include "machine/qt/desktop/qt_clock.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/windows_on_doubles.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace tests {
namespace {

/// A window manager makes windows appear later than the program has asked for.
class WindowManager {
  public:
    explicit WindowManager(const QString& sign) {
        manager_.start(
            QStringLiteral("openbox"),
            {QStringLiteral("--sm-disable"), QStringLiteral("--startup"), QStringLiteral("touch ") + sign});
        if (!QTest::qWaitFor([&] { return QFile::exists(sign); }))
            throw std::runtime_error("openbox does not start");
    }
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;
    ~WindowManager() {
        manager_.terminate();
        manager_.waitForFinished();
    }

  private:
    QProcess manager_;
};

/// The screen as another program sees it: what this one has not sent to the server yet is not there.
QImage picture_of_screen(const QString& file) {
    QProcess::execute(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), file});
    return QImage(file).convertToFormat(QImage::Format_RGB32);
}

bool contains(const QImage& screen, const QImage& part) {
    const auto line = [](const QImage& image, int x, int y) {
        return reinterpret_cast<const QRgb*>(image.constScanLine(y)) + x;
    };
    for (int top = 0; top + part.height() <= screen.height(); ++top) {
        for (int left = 0; left + part.width() <= screen.width(); ++left) {
            int same = 0;
            while (same < part.height() && std::equal(line(part, 0, same), line(part, part.width(), same),
                                                      line(screen, left, top + same)))
                ++same;
            if (same == part.height()) return true;
        }
    }
    return false;
}

/// Looked for everywhere: where a window stands, the program may learn later.
bool shows(const QImage& screen, const char* form, const char* label) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != QLatin1String(form) || !window->isVisible()) continue;
        const auto* widget = window->findChild<QWidget*>(QLatin1String(label));
        const QPixmap drawn = window->grab({widget->mapTo(window, QPoint()), widget->size()});
        return contains(screen, drawn.toImage().convertToFormat(screen.format()));
    }
    return false;
}

/// The start with an automatic login.
class FirstPaint : public testing::Test {
  protected:
    FirstPaint() {
        core::write_setting(platform, core::settings::AUTO_LOGIN, u"1");
        core::write_setting(platform, core::settings::LOGIN_ID, u"hong");
        core::write_setting(platform, core::settings::LOGIN_PASSWORD, u"secret");
        main.load();
    }
    ~FirstPaint() override { main.unload(); }

    bool logs_in() {
        constexpr int PATIENCE = 20'000;
        return QTest::qWaitFor([&] { return bool(windows.state.session.gLoggedIn); }, PATIENCE);
    }

    TemporaryFolder folder;
    WindowManager manager{QString::fromStdString(folder.path() / "ready")};
    WindowsOnDoubles windows;
    machine::qt::QtClock clock;
    platform::Platform platform = with(windows.platform, {.clock = &clock});
    compose::frmZent main{platform, windows.state, {}};
};

TEST_F(FirstPaint, IsOnTheScreenBeforeTheCarrierIsAsked) {
    bool main_painted = false;
    bool login_painted = false;
    windows.machine.carrier.at_call = [&] {
        if (!windows.machine.carrier.calls.empty()) return;
        const QImage screen = picture_of_screen(QString::fromStdString(folder.path() / "screen.png"));
        main_painted = shows(screen, "frmZent", "Label3_0");
        login_painted = shows(screen, "frmAutoLogin", "Label1");
    };
    main.show();
    ASSERT_TRUE(logs_in());
    EXPECT_TRUE(main_painted);
    EXPECT_TRUE(login_painted);
}

TEST_F(FirstPaint, IsNotWaitedForWhenTheWindowIsOutOfSight) {
    main.set_window_state(platform::WindowState::minimised);
    main.show();
    EXPECT_TRUE(logs_in());
}

}  // namespace
}  // namespace tests
