#include "tests/support/virtual_display.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    unsetenv("DISPLAY");
    const tests::VirtualDisplay display;
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
