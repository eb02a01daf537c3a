#include "tests/web/web_fixture.h"

#include <QApplication>
#include <QProgressBar>

namespace tests {

WebForm::~WebForm() {
    form.unload();
    // A page must not outlive the application.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WebForm::open(const QByteArray& address, const std::string& body) {
    form.load();
    form.WebBrowser.Navigate(platform::from_utf8(address.toStdString()), body,
                             u"Content-Type: application/x-www-form-urlencoded\r\n");
    form.set_caption(u"발송결과");
    form.show();
}

QWidget& WebForm::window() const {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QStringLiteral("frmWeb") && window->isVisible()) return *window;
    }
    throw std::logic_error("no form");
}

QWebEngineView& WebForm::view() const {
    auto* view = window().findChild<QWebEngineView*>();
    if (view == nullptr) throw std::logic_error("no page");
    return *view;
}

bool WebForm::loaded() const {
    return comes([this] {
        return window().findChild<QWebEngineView*>() != nullptr &&
               window().findChild<QProgressBar*>()->isHidden();
    });
}

std::string WebForm::text() const {
    std::optional<std::string> text;
    view().page()->toPlainText([&](const QString& shown) { text = shown.toStdString(); });
    EXPECT_TRUE(comes([&] { return text.has_value(); }));
    return text.value_or("");
}

void WebForm::click() const { QTest::mouseClick(view().focusProxy(), Qt::LeftButton); }

void WebForm::press(Qt::Key key) const { QTest::keyClick(view().focusProxy(), key); }

}  // namespace tests
