#include "machine/qt/desktop/qt_application.h"
#include "machine/qt/look/desk_style.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_ACCESSIBILITY", "1");
    // The servers are on this machine: bypass the user's proxy.
    qputenv("no_proxy", "127.0.0.1");
    machine::qt::QtApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new machine::qt::DeskStyle);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
