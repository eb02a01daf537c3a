// Files that the user saves from a page with a click, and links that ask for another window.

#include "tests/support/files_on_disk.h"
#include "tests/web/web_fixture.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QWebEngineHistory>
#include <memory>
#include <sys/stat.h>

namespace {

using tests::comes;
using tests::PageServer;
using tests::WebForm;

constexpr char HTML[] = "Content-Type: text/html; charset=utf-8\r\n";
constexpr char VOICE_HEAD[] =
    "Content-Type: audio/wav\r\n"
    "Content-Disposition: attachment; filename*=UTF-8''%EC%95%88%EB%82%B4.wav\r\n";

/// A page that is one link.
QByteArray link(const QByteArray& attributes) {
    return "<a id=a style='position:fixed;inset:0' " + attributes + ">x</a>";
}

struct PageFiles : testing::Test {
    PageFiles() {
        QObject::connect(&user, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            auto& field = *dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            proposals.push_back(field.text().toStdString());
            while_asked();
            field.setText(QString::fromStdString(folder.path() / "받은 것.wav"));
            QTest::keyClick(&field, Qt::Key_Return);
        });
        user.start(0);
        server.serve("/voice", "RIFF", VOICE_HEAD);
        ::umask(022);
    }
    void open(const QByteArray& page) {
        server.serve("/", page, HTML);
        web.reset();
        web = std::make_unique<WebForm>();
        web->open("http:" + server.address("/"));
        ASSERT_TRUE(web->loaded());
    }
    std::string said() const {
        return web->window().findChild<QLabel*>(QStringLiteral("Label1"))->text().toStdString();
    }
    bool says(const char* words) const {
        return comes([&] { return said().find(words) != std::string::npos; });
    }
    /// Whether everything that was on its way from the page has arrived by now.
    bool settled() {
        server.serve("/settled", "");
        const auto before = server.requests_of("/settled");
        web->view().page()->runJavaScript(QStringLiteral("fetch('/settled')"));
        return comes([&] { return server.requests_of("/settled") > before; });
    }

    tests::TemporaryFolder folder;
    std::vector<std::string> proposals;
    std::function<void()> while_asked = [] {};
    QTimer user;
    PageServer server;
    std::unique_ptr<WebForm> web;
};

TEST_F(PageFiles, AreSavedWhereTheUserWantsAfterAClickOrAKey) {
    const struct {
        const char* page;
        bool by_key;
        const char* proposal;
    } rows[] = {
        {"href=/voice", false, "안내.wav"},
        {"href=/voice", true, "안내.wav"},
        {"href=/voice target=_blank", false, "안내.wav"},
        {"href=/voice download='../../.b?.wav'", false, "b.wav"},
        {"href=data:text/csv,RIFF download=x.csv", false, "x.csv"},
        {"download=y.txt onclick='this.href=window.URL.createObjectURL(new Blob([\"RIFF\"]))'", false,
         "y.txt"},
        {"href='javascript:location=\"/document.pdf\"'", false, "document.pdf"},
    };
    server.serve("/document.pdf", "RIFF", "Content-Type: application/pdf\r\n");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.page);
        proposals.clear();
        open(link(row.page));
        if (row.by_key) {
            web->press(Qt::Key_Tab);
            web->press(Qt::Key_Return);
        } else {
            web->click();
        }
        ASSERT_TRUE(says("저장하였습니다")) << said();
        EXPECT_EQ(proposals, std::vector<std::string>{row.proposal});
        EXPECT_EQ(tests::names_in(folder.path()), std::set<std::string>{"받은 것.wav"});
        const std::filesystem::path file = folder.path() / "받은 것.wav";
        EXPECT_EQ(tests::bytes_of(file), "RIFF");
        struct stat status {};
        ASSERT_EQ(::stat(file.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0644u);
        std::filesystem::remove(file);
    }
}

TEST_F(PageFiles, NeedAClickEach) {
    const QByteArray two_more =
        "<script>const more = () => { for (const name of ['1.wav', '2.wav'])"
        "Object.assign(document.createElement('a'), {href: '/voice?' + name, download: name}).click(); }";
    open(two_more + "; onload = () => { more(); open('/voice'); location = '/voice'; }</script>" +
         link("onclick='more()'"));
    ASSERT_TRUE(settled());
    EXPECT_TRUE(proposals.empty());

    while_asked = [this] { EXPECT_EQ(proposals.size(), 1u); };
    web->click();
    ASSERT_TRUE(says("저장하였습니다")) << said();
    ASSERT_TRUE(settled());
    EXPECT_EQ(proposals.size(), 1u);
}

TEST_F(PageFiles, AreRefusedWhenNotDataOrEndlessAndThePageContinues) {
    server.serve("/program", "[Desktop Entry]",
                 "Content-Disposition: attachment; filename=a.wav.desktop\r\n");
    open(link("href=/program"));
    web->click();
    EXPECT_TRUE(says("받을 수 없는 종류의 파일입니다. a.wav.desktop")) << said();
    EXPECT_TRUE(proposals.empty());

    server.serve("/endless", qCompress(QByteArray(101 << 20, '\0')).mid(4),
                 QByteArray(VOICE_HEAD) + "Content-Encoding: deflate\r\n");
    open(link("href=/endless"));
    web->click();
    EXPECT_TRUE(says("너무 커서 받을 수 없습니다. (최대 100MB)")) << said();
    EXPECT_TRUE(comes([this] { return tests::names_in(folder.path()).empty(); }));

    server.serve("/half", "RIFF", VOICE_HEAD, "200 OK", 1000);
    open(link("href=/half"));
    web->click();
    ASSERT_TRUE(says("받고 있습니다.")) << said();
    EXPECT_TRUE(says("0%")) << said();
    EXPECT_TRUE(settled());
    web->form.unload();
    EXPECT_TRUE(comes([this] { return tests::names_in(folder.path()).empty(); })) << "half a file stays";
}

TEST_F(PageFiles, WaitForTheUsersAnswerAndThePageContinuesAfterwards) {
    open(link("href=/voice"));
    while_asked = [this] { web->form.WebBrowser.Navigate(u"", {}, {}); };
    web->click();
    ASSERT_TRUE(comes([this] { return web->window().findChild<QWebEngineView*>() == nullptr; }));
    EXPECT_EQ(proposals.size(), 1u);
}

TEST_F(PageFiles, ALinkForANewWindowOpensInTheSameView) {
    server.serve("/popup", "<p>popup", HTML);
    for (const char* page : {"href=/popup target=_blank", "onclick='window.open(\"/popup\", \"name\")'"}) {
        SCOPED_TRACE(page);
        open("<script>onload = () => open('/unasked')</script>" + link(page));
        web->click();
        ASSERT_TRUE(comes([this] { return web->view().url().path() == QStringLiteral("/popup"); }));
        EXPECT_TRUE(web->view().history()->canGoBack());
    }
    EXPECT_FALSE(server.request("/unasked"));

    open(link("href=file:///etc/passwd target=_blank"));
    web->click();
    ASSERT_TRUE(settled());
    EXPECT_EQ(web->view().url().path(), QStringLiteral("/"));
}

}  // namespace
