// The program is asked to end from outside: by a signal, or by the desktop's log-out.

#include "machine/qt/desktop/end_requests.h"

#include "core/settings.h"
#include "tests/screen/program_fixture.h"

#include <QApplication>
#include <csignal>

namespace tests {

namespace {

using compose::frmZent;
using platform::Text;

class EndRequest : public ProgramTest, public testing::WithParamInterface<int> {
  protected:
    Text saved(const core::Setting& setting) const { return core::read_setting(machine.platform, setting); }

    frmZent& form = application.main_form();
    machine::qt::EndRequests requests{[this] { machine.desktop.close_all(); }};
};

/// Stands for the desktop's wish among the signals.
constexpr int QUIT = 0;

TEST_P(EndRequest, IsAnOrderlyExitWhateverStands) {
    log_in();
    user.in_window("frmZent", [this](QWidget& window) {
        EXPECT_EQ(saved(core::settings::LOGIN_PASSWORD), u"demo1234");
        form.sender.txtUserName.set_text(u"홍길동");
        form.text.mText1.set_text(u"오후 3시에 뵙겠습니다.");
        press(window, "Command3");
    });
    user.in_window("messageBox", [](QWidget&) {
        if (GetParam() != QUIT) {
            ::raise(GetParam());
        } else {
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(qApp, &quit);
        }
    });
    run();
    EXPECT_EQ(form.text.mText1.text(), u"오후 3시에 뵙겠습니다.") << "nobody has agreed to a new draft";
    EXPECT_EQ(saved(core::settings::SENDER_NAME), u"홍길동");
    EXPECT_EQ(saved(core::settings::LOGIN_PASSWORD), u"");
}

INSTANTIATE_TEST_SUITE_P(Each, EndRequest, testing::Values(SIGTERM, SIGHUP, SIGINT, QUIT));

TEST_F(EndRequest, StopsAJobAsItsButtonDoes) {
    constexpr std::size_t RECIPIENTS = 20;
    const auto status = [this](std::size_t row) {
        return form.recipients.ListView1.row(row).sub_item(compose::RECIPIENT_STATUS);
    };
    log_in();
    user.in_window("frmZent", [this](QWidget& window) {
        form.text.Check1.set_checked(true);
        form.text.mText1.set_text(u"{이름}님, 오후 3시에 뵙겠습니다.");
        for (std::size_t i = 0; i < RECIPIENTS; ++i)
            form.recipients.add(u"홍길동", u"0101111" + platform::decimal(static_cast<int>(1000 + i)), u"");
        press(window, "Command1");
    });
    user.in_window("frmSBox", [](QWidget& window) { press(window, "Command1"); });
    user.in_window(
        "frmZentSend", [](QWidget&) { ::raise(SIGTERM); }, [&] { return !status(0).empty(); });
    run();
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(status(0), u"등록성공");
    EXPECT_EQ(status(RECIPIENTS - 1), u"");
}

}  // namespace

}  // namespace tests
