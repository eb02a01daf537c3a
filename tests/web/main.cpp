#include "machine/qt/look/desk_style.h"
#include "tests/support/temporary_folder.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Whatever a page manages to write, it writes here.
    const tests::TemporaryFolder home;
    qputenv("HOME", home.path().c_str());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A microphone to ask for.
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--use-fake-device-for-media-stream");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new machine::qt::DeskStyle);
    QCoreApplication::addLibraryPath(QStringLiteral(WEB_MODULE_FOLDER));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
