// Pages that try everything a page must not do; the form closes all the same.

#include "tests/support/secure_server.h"
#include "tests/web/web_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDirIterator>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

namespace {

using tests::comes;
using tests::PageServer;
using tests::WebForm;

constexpr char HTML[] = "Content-Type: text/html; charset=utf-8\r\n";

QByteArray bytes_of(const char* file) {
    QFile in(QStringLiteral(WEB_FIXTURES "/") + QString::fromLatin1(file));
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file;
    return in.readAll();
}

/// All files that appeared in the user's home, except caches and the certificates' library.
std::string files_at_home() {
    std::string files;
    QDirIterator entries(QDir::homePath(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        if (!file.contains(QStringLiteral("/.cache/")) && !file.contains(QStringLiteral("/.pki/")))
            files += file.toStdString() + "\n";
    }
    return files;
}

int windows_shown() {
    int shown = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) shown += window->isVisible();
    return shown;
}

struct Attempt {
    const char* what;
    const char* outcome;
};
/// In the order in which the page tries them.
constexpr Attempt ATTEMPTS[] = {
    {"a download by a link", "clicked"},
    {"a download of its own making", "clicked"},
    {"a download by going there", "gone"},
    {"the microphone", "NotAllowedError"},
    {"the camera", "NotAllowedError"},
    {"the screen", "NotAllowedError"},
    {"the place", "code 1"},
    {"notices", "denied"},
    {"instruments", "SecurityError"},
    {"the clipboard", "NotAllowedError"},
    {"the clipboard by a command", "false"},
    {"the whole screen", "TypeError"},
    {"the pointer", "pointerlockerror"},
    {"printing", "asked"},
    {"a file of the user", "0"},
    {"a file by a picker", "AbortError"},
    {"a folder by a picker", "AbortError"},
    {"a file by its address", "TypeError"},
    {"a file in a frame", "gone"},
    {"a socket", "error"},
    {"a protocol", "undefined"},
    {"a name and password", "401"},
    {"another certificate", "TypeError"},
    {"going to a file", "gone"},
    {"going to data", "gone"},
    {"going to a blob", "gone"},
    {"going to the engine", "gone"},
    {"going to a mail", "gone"},
    {"going to a call", "clicked"},
    {"going elsewhere by the server", "gone"},
    {"what the frame shows", "about:blank"},
};

TEST(HostilePage, IsRefusedWhateverItTries) {
    const tests::SecureServer closed;
    PageServer server;
    server.serve("/",
                 bytes_of("hostile.html")
                     .replace("https:HTTPS", QByteArray::fromStdString(platform::to_utf8(closed.url()))),
                 HTML);
    server.serve("/attachment", "evil", "Content-Disposition: attachment; filename=evil.desktop\r\n");
    server.serve("/locked", "", "WWW-Authenticate: Basic realm=\"x\"\r\n", "401 Unauthorized");
    server.serve("/redirect", "", "Location: mailto:a@b.example\r\n", "302 Found");
    server.serve("/did", "");
    QGuiApplication::clipboard()->setText(QStringLiteral("secret"));

    WebForm web;
    web.open("http:" + server.address("/"));
    ASSERT_TRUE(web.loaded());
    for (const Attempt& attempt : ATTEMPTS) {
        const auto before = server.requests_of("/did");
        web.click();
        ASSERT_TRUE(comes([&] { return server.requests_of("/did") > before; })) << attempt.what;
        EXPECT_EQ(server.request("/did")->body.toStdString(),
                  std::string(attempt.what) + " = " + attempt.outcome);
        EXPECT_EQ(windows_shown(), 1) << attempt.what;
    }
    EXPECT_FALSE(server.request("/socket"));
    EXPECT_EQ(closed.requests, 0);
    EXPECT_EQ(files_at_home(), "");
    EXPECT_EQ(web.view().url().toEncoded(), "http:" + server.address("/"));
    web.press(Qt::Key_Escape);
    EXPECT_FALSE(web.form.loaded());
}

TEST(HostilePage, IsNotShownWithAnUntrustedCertificate) {
    const tests::SecureServer server;
    WebForm web;
    web.open(QByteArray::fromStdString(platform::to_utf8(server.url())), "code=1");
    ASSERT_TRUE(web.loaded());
    EXPECT_NE(web.text().find("ERR_CERT"), std::string::npos) << web.text();
    EXPECT_EQ(server.requests, 0);
}

TEST(HostilePage, IsNotOpenedOutsideTheWeb) {
    for (const char* address :
         {"file:///etc/passwd", "/etc/passwd", "chrome://version", "data:text/html,evil",
          "javascript:document.write('evil')", "mailto:a@b.example"}) {
        WebForm web;
        web.open(address);
        ASSERT_TRUE(web.loaded()) << address;
        EXPECT_EQ(web.text(), "") << address;
        web.form.unload();
    }
}

TEST(HostilePage, DoesNotKeepTheFormOpenByAskingEndlessly) {
    PageServer server;
    server.serve("/",
                 "<script>let asked = 0; onbeforeunload = (e) => e.preventDefault();"
                 "setTimeout(() => { for (;;) { alert(`<b>${++asked}</b>`); confirm('?'); } })</script>",
                 HTML);
    std::vector<std::string> asked;
    // The user, who answers each box as it opens.
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        asked.push_back(box->text().toStdString());
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        if (box->checkBox() != nullptr) box->checkBox()->setChecked(true);
        box->reject();
    });
    user.start(0);
    WebForm web;
    web.open("http:" + server.address("/"));
    ASSERT_TRUE(comes([&] { return asked.size() == 2; }));
    const std::vector<std::string> expected{"127.0.0.1의 메시지:\n\n<b>1</b>", "127.0.0.1의 메시지:\n\n?"};
    EXPECT_EQ(asked, expected);
    web.window().findChild<QAbstractButton*>(QStringLiteral("Command1"))->click();
    EXPECT_FALSE(web.form.loaded());
    EXPECT_EQ(asked, expected);
}

}  // namespace
