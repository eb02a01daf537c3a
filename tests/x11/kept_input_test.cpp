// What the user types while the program is busy, on an X server of its own.

#include "machine/qt/desktop/long_work.h"

#include <QCursor>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

TEST(KeptInput, ArrivesAfterTheWorkWithoutFurtherInput) {
    // A button has no blinking caret, which would make the server send events.
    QPushButton button;
    bool clicked = false;
    QObject::connect(&button, &QPushButton::clicked, [&] { clicked = true; });
    button.show();
    button.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&button));

    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("space")}),
              0);
    for (int step = 0; step < 5000; ++step) {
        // A question to the server: when its answer has come, so has the key.
        QCursor::pos();
        machine::qt::keep_painted();
    }
    EXPECT_FALSE(clicked) << "it waits for the end of the work";
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicked; }));
}

}  // namespace
