// What can be wrong with the files of a draft: each fault is told, or passes silently, and the draft stands.

#include "tests/screen/kinds_fixture.h"

#include <filesystem>

namespace tests {

namespace {

class BadDraft : public KindsTest {
  protected:
    void SetUp() override {
        log_in();
        user.in_window("frmZent", [](QWidget& window) {
            choose_tab(window, "TabStrip1", compose::MessageKind::fax);
            add_recipient(window, QStringLiteral("025551234"));
        });
    }

    std::string documents() {
        std::string paths;
        for (std::size_t row = 0; row < form().fax.FAX1.row_count(); ++row)
            paths += utf8(form().fax.FAX1.row(row).text()) + "\n";
        return paths;
    }
    std::string status() {
        return utf8(form().recipients.ListView1.row(0).sub_item(compose::RECIPIENT_STATUS));
    }
};

TEST_F(BadDraft, ADocumentOfTwoGigabytesIsMeasuredAndNotRead) {
    const auto big = folder.path() / "큰 그림.tif";
    put(big, "");
    std::filesystem::resize_file(big, std::uintmax_t{1} << 31);
    pick("FAXBttn1", big);
    send();
    read_report();
    close_program();
    run();
    EXPECT_EQ(utf8(form().fax.FAXFileSize1.caption()), "2,097,152KB");
    EXPECT_EQ(ledger("attach_file"), std::vector{carrier_path(big) + ";"});
}

TEST_F(BadDraft, ADocumentThatHasGoneIsNamedBeforeAndRefusedByTheCarrierAfterTheCheck) {
    const auto gone = folder.path() / "곧 없음.doc";
    put(gone, "text");
    pick("FAXBttn1", gone);
    user.in_window("frmZent", [](QWidget& window) { press(window, "Command1"); });
    user.in_window("frmSBox", [=](QWidget& window) {
        std::filesystem::remove(gone);
        press(window, "Command1");
    });
    read_report();
    user.in_window("frmZent", [](QWidget& window) { press(window, "Command1"); });
    close_box();
    close_program();
    run();
    EXPECT_TRUE(status().starts_with("등록실패X")) << status();
    EXPECT_TRUE(form().recipients.ListView1.row(0).checked());
    EXPECT_EQ(told.toStdString(), program_path(gone) + "\n\n위 파일을 찾을 수 없습니다. 확인하여 주십시오.");
    EXPECT_EQ(documents(), program_path(gone) + "\n");
}

TEST_F(BadDraft, ASemicolonInANameIsTheCarriersToRefuse) {
    const auto odd = folder.path() / "가 나;'다'.txt";
    put(odd, "text");
    pick("FAXBttn1", odd);
    send();
    read_report();
    close_program();
    run();
    EXPECT_EQ(ledger("attach_file"), std::vector{carrier_path(odd) + ";"});
    EXPECT_NE(ledger("result"), std::vector<std::string>{"1"});
    EXPECT_TRUE(status().starts_with("등록실패X")) << status();
    EXPECT_EQ(documents(), program_path(odd) + "\n");
}

TEST_F(BadDraft, ACancelledDialogChangesNothing) {
    const auto document = folder.path() / "a.doc";
    put(document, "text");
    pick("FAXBttn1", document);
    for (const char* button : {"FAXBttn1", "TTSBttn1"}) {
        user.in_window("frmZent", [button](QWidget& window) {
            if (button == std::string("TTSBttn1")) {
                choose_tab(window, "TabStrip1", compose::MessageKind::voice);
                choose_tab(window, "TabStrip2", 3);
                type_into(window, "TTSFileTxt", QStringLiteral("a.wav"));
            }
            press(window, button);
        });
        user.in_window("fileDialog", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    }
    close_program();
    run();
    EXPECT_EQ(documents(), program_path(document) + "\n");
    EXPECT_EQ(utf8(form().voice.TTSFileTxt.text()), "a.wav");
}

TEST_F(BadDraft, AFileInThePlaceOfTheSoundFolderStandsInNobodysWay) {
    std::filesystem::create_directory(folder.path() / "drive_c");
    put(folder.path() / "drive_c/temp", "no folder");
    put(folder.path() / "a.doc", "text");
    pick("FAXBttn1", folder.path() / "a.doc");
    send();
    read_report();
    close_program();
    run();
    EXPECT_EQ(ledger("result"), std::vector<std::string>{"1"});
}

}  // namespace

}  // namespace tests
