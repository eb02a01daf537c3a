// The box of saved texts through the real windows: what lies on the disk afterwards.

#include "platform/text/cp949.h"
#include "tests/screen/program_fixture.h"
#include "tests/support/files_on_disk.h"

#include <QInputMethodEvent>
#include <QTest>
#include <QTreeView>

namespace tests {

namespace {

class MessageBoxWindow : public ProgramTest {
  protected:
    MessageBoxWindow() { std::filesystem::create_directories(first); }

    using Act = WindowPlayer::Act;
    void in_main(Act act) { user.in_window("frmZent", std::move(act)); }
    void in_box(Act act) { user.in_window("frmMyMsgBox", std::move(act)); }
    void in_message(Qt::Key key) {
        user.in_window("messageBox", [key](QWidget& window) { QTest::keyClick(window.focusWidget(), key); });
    }

    static void type_title_and_body(QWidget& window, const char* title, const char* body) {
        type_into(window, "Text1", QString::fromUtf8(title));
        type_into(window, "txtText", QString::fromUtf8(body));
    }
    /// Types behind what the body's field holds; a carriage return is the Enter key.
    static void type_behind(QWidget& window, const QString& text) {
        auto& field = *window.findChild<QWidget*>(QStringLiteral("txtText"));
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_End, Qt::ControlModifier);
        for (const QChar character : text) {
            QInputMethodEvent event;
            event.setCommitString(character);
            if (character == u'\r') {
                QTest::keyClick(&field, Qt::Key_Return);
            } else {
                QCoreApplication::sendEvent(&field, &event);
            }
        }
    }
    static QTreeView& list(QWidget& window, const char* name) {
        return *window.findChild<QTreeView*>(QString::fromLatin1(name));
    }
    static void click_row(QWidget& window, const char* name, int row) {
        QTreeView& view = list(window, name);
        const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    static QString row_text(QWidget& window, const char* name, int row) {
        const QTreeView& view = list(window, name);
        return view.model()->index(row, 0).data().toString();
    }
    static std::string bytes(const char16_t* text) { return platform::encode_cp949(text); }
    std::filesystem::path root = folder.path() / "내모음함";
    std::filesystem::path first = root / "내모음함";
};

TEST_F(MessageBoxWindow, WritesEditsAndRemovesAMessage) {
    log_in();
    in_main([](QWidget& window) { press(window, "MyMsgBttn"); });
    in_box([](QWidget& window) {
        type_title_and_body(window, "새 a/b?글", "첫 줄");
        type_behind(window, QStringLiteral("\r둘"));
        press(window, "Command1");
    });
    in_message(Qt::Key_Return);
    in_box([this](QWidget& window) {
        EXPECT_EQ(bytes_of(first / "새 ab글.txt"), bytes(u"첫 줄\r\n둘"));
        click_row(window, "ListView2", 0);
        EXPECT_EQ(text_of(window, "txtText"), QStringLiteral("첫 줄\n둘"));
        type_title_and_body(window, "고친 글", "셋");
        press(window, "Command2");
    });
    in_message(Qt::Key_Return);
    in_box([this](QWidget& window) {
        EXPECT_EQ(names_in(first), std::set<std::string>{"고친 글.txt"});
        EXPECT_EQ(bytes_of(first / "고친 글.txt"), bytes(u"셋"));
        QTest::keyClick(&list(window, "ListView2"), Qt::Key_Delete);
    });
    in_message(Qt::Key_Y);
    in_box([this](QWidget& window) {
        EXPECT_EQ(names_in(first), std::set<std::string>{});
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    in_main([](QWidget& window) { window.close(); });
    run();
}

TEST_F(MessageBoxWindow, AddsRenamesAndRemovesACategory) {
    log_in();
    in_main([](QWidget& window) { press(window, "MyMsgBttn"); });
    in_box([](QWidget& window) { press(window, "Command8"); });
    user.in_window("inputBox", [](QWidget& window) {
        QWidget& field = *window.focusWidget();
        type_into(window, "answer", QStringLiteral("거래"));
        // A syllable that is unfinished when the button is pressed.
        QInputMethodEvent event(QStringLiteral("처"), {});
        QCoreApplication::sendEvent(&field, &event);
        QTest::keyClick(&field, Qt::Key_Return);
    });
    in_box([this](QWidget& window) {
        EXPECT_EQ(names_in(root), (std::set<std::string>{"내모음함", "거래처"}));
        EXPECT_EQ(row_text(window, "ListView1", 1), QStringLiteral("거래처"));
        type_title_and_body(window, "하나", "글");
        QTest::keyClick(window.focusWidget(), Qt::Key_S, Qt::ControlModifier);
    });
    in_message(Qt::Key_Return);
    in_box([](QWidget& window) {
        // A field is no row to rename.
        QTest::keyClick(window.focusWidget(), Qt::Key_F2);
        list(window, "ListView1").setFocus();
        QTest::keyClick(window.focusWidget(), Qt::Key_F2);
    });
    user.in_window("inputBox", [](QWidget& window) {
        type_into(window, "answer", QStringLiteral("고객"));
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    });
    in_box([this](QWidget& window) {
        EXPECT_EQ(bytes_of(root / "고객/하나.txt"), bytes(u"글"));
        // Off to the other category and back by keys.
        QWidget& categories = list(window, "ListView1");
        categories.setFocus();
        QTest::keyClick(&categories, Qt::Key_Up);
        EXPECT_EQ(list(window, "ListView2").model()->rowCount(), 0);
        QTest::keyClick(&categories, Qt::Key_Down);
        EXPECT_EQ(list(window, "ListView2").model()->rowCount(), 1);
        press(window, "Command7");
    });
    user.in_window("inputBox",
                   [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); });
    in_box([](QWidget& window) { QTest::keyClick(&list(window, "ListView1"), Qt::Key_Delete); });
    in_message(Qt::Key_Y);
    in_box([this](QWidget& window) {
        EXPECT_EQ(names_in(root), std::set<std::string>{"내모음함"});
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    in_main([](QWidget& window) { window.close(); });
    run();
}

TEST_F(MessageBoxWindow, SavesTheDraftAndTakesATextBackAndKeepsEveryCharacter) {
    std::string all;
    for (unsigned unit = 0x20; unit < 0x10000; ++unit) {
        const std::string encoded = platform::encode_cp949(platform::Text(1, static_cast<char16_t>(unit)));
        if (platform::decode_cp949(encoded) == platform::Text(1, static_cast<char16_t>(unit))) all += encoded;
    }
    put(first / "모든 글자.txt", all + "\r\n");
    log_in();
    in_main([](QWidget& window) {
        type_into(window, "mText1", QStringLiteral("저장할 글"));
        type_into(window, "subjectText", QStringLiteral("인사"));
        press(window, "MySave");
    });
    in_message(Qt::Key_Return);
    in_main([this](QWidget& window) {
        EXPECT_EQ(bytes_of(first / "인사.txt"), bytes(u"저장할 글"));
        press(window, "Command3");
    });
    in_message(Qt::Key_Y);
    in_main([](QWidget& window) { press(window, "MyMsgBttn"); });
    in_box([](QWidget& window) {
        click_row(window, "ListView2", row_text(window, "ListView2", 0) == QStringLiteral("인사") ? 1 : 0);
        type_behind(window, QStringLiteral("x"));
        press(window, "Command2");
    });
    in_message(Qt::Key_Return);
    in_box([&](QWidget& window) {
        EXPECT_EQ(bytes_of(first / "모든 글자.txt"), all + "\r\nx");
        click_row(window, "ListView2", row_text(window, "ListView2", 0) == QStringLiteral("인사") ? 0 : 1);
        press(window, "Command6");
    });
    in_main([](QWidget& window) {
        EXPECT_EQ(text_of(window, "mText1"), QStringLiteral("[길동상사]저장할 글"));
        window.close();
    });
    run();
}

}  // namespace

}  // namespace tests
