// The main job through the real windows: what the carrier's ledger has afterwards.

#include "compose/main_form.h"
#include "tests/screen/program_fixture.h"

#include <QTest>

namespace tests {

namespace {

using Strings = std::vector<std::string>;

class WholeJob : public ProgramTest {
  protected:
    const platform::ListView& recipients() { return application.main_form().recipients.ListView1; }

    void write_draft(QWidget& window, int count) {
        type_into(window, "mText1", QStringLiteral("오늘 오후 3시 회의"));
        for (int i = 0; i < count; ++i) {
            type_into(window, "HText1_0", QStringLiteral("김%1").arg(i));
            type_into(window, "HText1_1", QStringLiteral("010-%1-5678").arg(1000 + i));
            press_enter(window, "HText1_1");
        }
    }

    /// How many rows are checked and have the status.
    int checked_with(platform::TextView status) {
        int count = 0;
        for (std::size_t row = 0; row < recipients().row_count(); ++row) {
            const platform::ListItem& item = recipients().row(row);
            if (item.checked() && item.sub_item(compose::RECIPIENT_STATUS) == status) ++count;
        }
        return count;
    }
};

TEST_F(WholeJob, RegistersTwoHundredFiftyInThreeBatchesWithNumberedSubjects) {
    log_in();
    user.in_window("frmZent", [this](QWidget& window) { write_draft(window, 250); });
    send();
    read_report();
    close_program();
    run();

    EXPECT_EQ(ledger("recipient_count"), (Strings{"100", "100", "50"}));
    EXPECT_EQ(ledger("subject"),
              (Strings{"오늘 오후 3시 회의01", "오늘 오후 3시 회의02", "오늘 오후 3시 회의03"}));
    EXPECT_EQ(ledger("sms_content"), Strings(3, "오늘 오후 3시 회의"));
    EXPECT_TRUE(report.contains(QStringLiteral("등록성공: 250건"))) << report.toStdString();
    EXPECT_EQ(recipients().checked_count(), 0U);
}

TEST_F(WholeJob, StopsAfterTheBatchThatIsOnItsWay) {
    log_in();
    user.in_window("frmZent", [this](QWidget& window) { write_draft(window, 250); });
    send();
    user.in_window(
        "frmZentSend",
        [](QWidget& window) {
            press(window, "Command1");
            EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("Command1"))->isEnabled());
        },
        [this] { return ledger("id").size() == 1; });
    user.in_window("messageBox", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); });
    read_report();
    close_program();
    run();

    EXPECT_EQ(ledger("recipient_count"), Strings{"100"});
    EXPECT_TRUE(report.contains(QStringLiteral("등록중지: 150건"))) << report.toStdString();
    EXPECT_EQ(checked_with(u""), 150);
}

TEST_F(WholeJob, SendsARefusedBatchAgainAndNothingElse) {
    order("[failures]\nfn_x_submit@2=5");
    log_in();
    user.in_window("frmZent", [this](QWidget& window) { write_draft(window, 250); });
    send();
    read_report();
    user.in_window("frmZent", [this](QWidget&) {
        EXPECT_EQ(checked_with(u"등록실패X5(Pondira 접속에러)"), 100);
        EXPECT_EQ(recipients().checked_count(), 100U);
    });
    send();
    read_report();
    close_program();
    run();

    EXPECT_EQ(ledger("result"), (Strings{"1", "5", "1", "1"}));
    const Strings addresses = ledger("dest_addr");
    EXPECT_EQ(addresses[3], addresses[1]);
    EXPECT_EQ(recipients().checked_count(), 0U);
}

}  // namespace

}  // namespace tests
