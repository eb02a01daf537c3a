#pragma once

#include "service/frmWeb.h"
#include "tests/support/windows_on_doubles.h"
#include "tests/web/page_server.h"

#include <QTest>
#include <QWebEngineView>
#include <gtest/gtest.h>

namespace tests {

/// Waits until the engine's processes make the condition true; fails the test if they never do.
template <class Condition>
[[nodiscard]] bool comes(Condition condition) {
    constexpr int FOREVER = 30'000;
    return QTest::qWaitFor(condition, FOREVER);
}

/// The program's browser form with the real engine.
struct WebForm : WindowsOnDoubles {
    service::frmWeb form{platform, state};

    ~WebForm();

    /// Opens the form with the page as the program does.
    void open(const QByteArray& address, const std::string& body = {});

    QWidget& window() const;
    QWebEngineView& view() const;
    /// Waits for the end of the page's load, successful or not.
    bool loaded() const;
    /// The text that the user can read, in UTF-8.
    std::string text() const;

    void click() const;
    void press(Qt::Key key) const;
};

}  // namespace tests
