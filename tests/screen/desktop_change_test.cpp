#include "machine/qt/look/colours.h"
#include "send/report.h"
#include "tests/screen/screen_checks.h"
#include "tests/support/windows_on_doubles.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <gtest/gtest.h>

namespace {

/// What the user changes in the desktop's settings while windows of the program are open.
struct DesktopChange : testing::Test, tests::WindowsOnDoubles {
    compose::frmZent main{platform, state, {}};
    const QPalette palette = QApplication::palette();
    const QFont font = QApplication::font();

    DesktopChange() {
        main.show();
        tests::settle();
    }
    ~DesktopChange() override {
        QApplication::setPalette(palette);
        QApplication::setFont(font);
        main.unload();
        tests::settle();
    }

    template <class Widget>
    static Widget& find(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible()) continue;
            if (auto* found = window->findChild<Widget*>(QLatin1StringView(name))) return *found;
        }
        throw std::logic_error(name);
    }
};

TEST_F(DesktopChange, ToDarkColoursDrawsTextsAndPicturesAnew) {
    send::frmSendEndBox report(platform, main);
    report.load();
    report.show_outcome({.registered = u"r", .failed = u"f", .stopped = u"", .unconfirmed = u""});
    report.show();
    tests::settle();
    const auto& failed = find<QLabel>("Failed");
    const auto colour = [&] { return failed.palette().color(failed.foregroundRole()); };
    const auto picture = [] { return find<QPushButton>("Command1").icon().pixmap(24).toImage(); };
    EXPECT_EQ(colour(), machine::qt::colours_of(palette).failure);
    const QImage light = picture();

    QPalette dark = palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button})
            dark.setColor(group, ground, QColor(0x31, 0x36, 0x3b));
        for (const auto text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            dark.setColor(group, text, Qt::white);
    }
    machine::qt::make_readable(dark);
    QApplication::setPalette(dark);
    tests::settle();
    EXPECT_EQ(colour(), machine::qt::colours_of(dark).failure);
    EXPECT_NE(picture(), light);
    report.unload();
}

TEST_F(DesktopChange, ToALargerFontEnlargesHeadingsColumnsAndFieldsToo) {
    send::frmSendEndBox report(platform, main);
    report.load();
    report.show_outcome({.registered = u"r", .failed = u"", .stopped = u"", .unconfirmed = u""});
    report.show();
    tests::settle();
    const auto size_of_heading = [] { return find<QLabel>("Registered").font().pointSizeF(); };
    const auto width_of_number = [] { return find<QTreeView>("ListView1").columnWidth(2); };
    const auto least_of_text = [] { return find<QWidget>("Text1").minimumWidth(); };
    const double heading = size_of_heading();
    const int text = least_of_text();
    const int number = width_of_number();
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * 1.5);
    QApplication::setFont(larger);
    tests::settle();
    EXPECT_NEAR(size_of_heading(), heading * 1.5, 0.5);
    EXPECT_NEAR(width_of_number(), number * 1.5, 3);
    EXPECT_NEAR(least_of_text(), text * 1.5, 2);
    report.unload();
}

}  // namespace
