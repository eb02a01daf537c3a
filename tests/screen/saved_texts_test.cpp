// The box of saved texts through the real windows: what only typing shows.

#include "platform/text/cp949.h"
#include "tests/screen/program_fixture.h"
#include "tests/support/files_on_disk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QTreeView>

namespace tests {

namespace {

class SavedTextsWindow : public ProgramTest {
  protected:
    SavedTextsWindow() { std::filesystem::create_directories(first); }

    using Act = WindowPlayer::Act;
    void in_main(Act act) { user.in_window("frmZent", std::move(act)); }
    void in_box(Act act) { user.in_window("frmMyMsgBox", std::move(act)); }
    /// Waits until the box takes keys.
    void in_message(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        user.in_window(
            "messageBox", [=](QWidget& window) { QTest::keyClick(window.focusWidget(), key, modifiers); },
            [] { return qobject_cast<QAbstractButton*>(QApplication::focusWidget()) != nullptr; });
    }

    /// Types after the text of the body's field; a carriage return stands for the Enter key.
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

TEST_F(SavedTextsWindow, AnUnfinishedSyllableIsPartOfANewCategorysName) {
    log_in();
    in_main([](QWidget& window) { press(window, "MyMsgBttn"); });
    in_box([](QWidget& window) { press(window, "Command8"); });
    user.in_window("inputBox", [](QWidget& window) {
        QWidget& field = *window.focusWidget();
        type_into(window, "answer", QStringLiteral("거래"));
        QInputMethodEvent event(QStringLiteral("처"), {});
        QCoreApplication::sendEvent(&field, &event);
        QTest::keyClick(&field, Qt::Key_Return);
    });
    in_box([](QWidget& window) {
        // F2 in a field renames no row.
        QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("txtText")), Qt::Key_F2);
        list(window, "ListView1").setFocus();
        QTest::keyClick(window.focusWidget(), Qt::Key_F2);
    });
    user.in_window("inputBox",
                   [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); });
    in_box([this](QWidget& window) {
        EXPECT_EQ(names_in(root), (std::set<std::string>{"내모음함", "거래처"}));
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    in_main([](QWidget& window) { window.close(); });
    run();
}

TEST_F(SavedTextsWindow, PaintsARowAsChosenOnlyWhenItsTextIsInTheFields) {
    put(first / "가.txt", "x");
    log_in();
    in_main([](QWidget& window) { press(window, "MyMsgBttn"); });
    in_box([](QWidget& window) {
        const auto ground = [&] {
            QTreeView& view = list(window, "ListView2");
            EXPECT_EQ(view.columnWidth(0) + view.columnWidth(1), view.viewport()->width()) << "no empty room";
            const QPoint place = view.visualRect(view.model()->index(0, 1)).topRight() - QPoint(8, -4);
            return view.viewport()->grab().toImage().pixelColor(place).lightness();
        };
        constexpr int STRONG = 150;
        list(window, "ListView2").setFocus();
        EXPECT_GT(ground(), STRONG) << "nobody has chosen it";
        click_row(window, "ListView2", 0);
        EXPECT_LT(ground(), STRONG);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    in_main([](QWidget& window) { window.close(); });
    run();
}

TEST_F(SavedTextsWindow, SavingAndApplyingATextKeepsEveryCharacter) {
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
    in_message(Qt::Key_Y, Qt::AltModifier);
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
