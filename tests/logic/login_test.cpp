#include "gateway/frmAutoLogin.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using platform::BoxAnswer;
using platform::BoxIcon;
using platform::Text;
using tests::press;
using tests::utf8;
using Calls = std::vector<std::string>;

constexpr platform::TextView FAILURE =
    u"아이디에 해당하는 비밀번호와 입력하신 비밀번호가 일치하지 않습니다.\r\n"
    u"아래내용을 체크해 보시기 바랍니다.\r\n\r\n"
    u"! 인터넷 연결이 안된 경우\r\n"
    u"! 아이디를 잘못 알고 계신 경우\r\n"
    u"! 비밀번호를 잘못 알고 계신 경우\r\n"
    u"! 대소문자 구별없이 비밀번호를 입력하신 경우\r\n"
    u"(비밀번호가 대소문자로 이루어졌다면, 다르게 인식되오니 구별하여 입력하시기 바랍니다.\r\n";
constexpr platform::TextView POP =
    u"폰디라 팝에 가입한 경우에는 폰디라 팝을 해지하고 폰디라 프로 또는 폰디라 파트너로 "
    u"서비스를 전환하셔야 합니다.";
constexpr platform::TextView CHANGE_SERVICE =
    u"Cardvale 폰디라 통합메시징 서비스 연동기능(UMS)을 사용하시려면 폰디라 프로 또는 폰디라 파트너로 "
    u"서비스를 "
    u"전환하셔야 합니다. 지금 신청서를 다운받으시겠습니까?";
constexpr platform::TextView REGISTER =
    u"KT 폰디라 통합 메시징 서비스(UMS) 연동 기능을 이용하기 위해서는 KT 폰디라 회원등록 및 결제방법을 "
    u"'전화요금합산청구'로 신청을 하셔야 합니다.\r\n\r\n지금 KT 폰디라에 등록하시겠습니까?";

struct Session : testing::Test, tests::MainWindow {
    void SetUp() override { form.load(); }

    void expect_exactly(std::size_t box, platform::TextView text, BoxIcon icon, const char* title) const {
        ASSERT_LT(box, desktop.boxes.size());
        EXPECT_EQ(utf8(desktop.boxes[box].text), utf8(text));
        EXPECT_EQ(desktop.boxes[box].icon, icon);
        EXPECT_EQ(utf8(desktop.boxes[box].title), title);
    }
    void expect_logged_out() const {
        EXPECT_FALSE(state.gLoggedIn);
        EXPECT_FALSE(state.gLoginResult);
        EXPECT_EQ(state.gServiceState, 3);
        EXPECT_TRUE(form.cmdLogin.enabled());
        EXPECT_FALSE(form.cmdLogOut.enabled());
        EXPECT_EQ(panel(1), "로그아웃상태");
        EXPECT_EQ(utf8(form.STBar1.panel(1).tool_tip), "로그인하기");
        EXPECT_EQ(panel(2), "가입자");
        EXPECT_EQ(panel(3), "폰디라번호");
    }
    std::string panel(int number) const { return utf8(form.STBar1.panel(number).text); }

    static void enter(gateway::frmZentLogin& login, const Text& user_id, const Text& password) {
        login.Text1.set_text(user_id);
        login.Text2.set_text(password);
        login.Command1.Click.raise();
    }
};

using ManualLogin = Session;
using AutomaticLogin = Session;
using LogOut = Session;

// The manual form.

TEST_F(ManualLogin, ShowsWhatIsSavedAndThePasswordWithAutoLoginAlone) {
    const struct {
        const char16_t *auto_login, *user_id, *password;
        const char *shown_password, *focused;
        bool checked;
    } rows[] = {
        {u"0", u"hong", u"secret", "", "Text2", false},
        {u"1", u"hong", u"secret", "secret", "Command1", true},
        {u"1.0", u"hong", u"", "", "Text2", true},
        {u"2", u"hong", u"secret", "", "Text2", false},
        {u"", u"", u"", "", "", false},
    };
    for (const auto& row : rows) {
        save_setting(u"LOGIN", u"AUTOLOGIN", row.auto_login);
        save_login(u"LOGINID", row.user_id);
        save_login(u"LOGINPW", row.password);
        in_login([&](gateway::frmZentLogin& login) {
            EXPECT_EQ(utf8(login.caption()), "Cardvale 폰디라 통합메시징 서비스 로그인");
            EXPECT_EQ(utf8(login.Text1.text()), utf8(row.user_id));
            EXPECT_EQ(utf8(login.Text2.text()), row.shown_password);
            EXPECT_EQ(login.Check1.checked(), row.checked);
            EXPECT_EQ(login.focused() == nullptr ? "" : utf8(login.focused()->name()), row.focused);
            if (login.Text2.has_focus()) login.Text1.set_focus();
            login.window_activated();
            if (*row.focused != '\0') {
                EXPECT_NE(login.focused(), &login.Text2) << "the focus is placed once";
            }
            login.Command2.Click.raise();
        });
        form.cmdLogin.Click.raise();
        EXPECT_EQ(setting(u"LOGIN", u"AUTOLOGIN"), row.checked ? "1" : "0");
        EXPECT_EQ(form.mnuAutoLogin.checked(), row.checked);
    }
}

TEST_F(ManualLogin, IsProvedAppliedAndSavedAndPollingWaitsMeanwhile) {
    files.files[u"z:\\app\\resource\\timer.avi"] = "film";
    save_setting(u"SET", u"ZentUserNickName", u" 홍길동 ");
    save_setting(u"SET", u"ZentUserPhoneID", u"0311234567");
    state.gInfoServiceNumber = u"030399999999";
    form.Timer1.set_enabled(true);
    in_login([&](gateway::frmZentLogin& login) {
        EXPECT_FALSE(form.Timer1.enabled());
        enter(login, u"  hong ", u" secret ");
        EXPECT_TRUE(carrier.calls.empty()) << "the busy picture is painted first";
        EXPECT_TRUE(login.Picture1.visible());
        EXPECT_TRUE(login.Animation1.visible());
        EXPECT_TRUE(login.Animation1.playing());
    });
    form.cmdLogin.Click.raise();
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_TRUE(form.Timer1.enabled());
    EXPECT_EQ(carrier.calls, (Calls{"bind", "money_status", "user_info", "unbind"}));
    EXPECT_EQ(utf8(carrier.bound_user), "hong");
    EXPECT_EQ(utf8(carrier.bound_password), "secret");
    EXPECT_EQ(utf8(state.gServiceNumber), "030399999999") << "the number known before this login";
    EXPECT_EQ(utf8(state.gClientAddress), "127.0.0.1");
    EXPECT_FALSE(state.gServiceDomain.empty());
    EXPECT_EQ(state.gSubmitSequence, 1);
    EXPECT_EQ(state.gLoginAccepted, 1);
    EXPECT_TRUE(state.gLoggedIn);
    EXPECT_TRUE(state.gLoginResult);
    EXPECT_EQ(saved_login(u"LOGINID"), "hong");
    EXPECT_EQ(saved_login(u"LOGINPW"), "secret") << "with auto login off, too";
    EXPECT_EQ(setting(u"LOGIN", u"LOGINID"), "") << "not beside the program";

    EXPECT_FALSE(form.cmdLogin.enabled());
    EXPECT_TRUE(form.cmdLogOut.enabled());
    EXPECT_EQ(panel(1), "로그인상태");
    EXPECT_EQ(utf8(form.STBar1.panel(1).tool_tip), "로그아웃하기");
    EXPECT_EQ(form.STBar1.panel(1).picture, 2);
    EXPECT_EQ(panel(2), "가입자 hong[Hong]  ");
    EXPECT_EQ(panel(3), "폰디라번호 0303-1234-5678  ");
    EXPECT_EQ(form.txtUserName.rows(), (std::vector<Text>{u"Hong", u"Hong Office"}));
    EXPECT_EQ(utf8(form.txtUserName.text()), "홍길동");
    EXPECT_EQ(form.txtCallback.rows(), (std::vector<Text>{u"0212345678", u"030312345678"}));
    EXPECT_EQ(utf8(form.txtCallback.text()), "0311234567");
    EXPECT_EQ(utf8(form.mText1.text()), "[홍길동]");
    EXPECT_EQ(utf8(form.mText2.text()), "[홍길동]\r\n\r\n\r\n\r\n☎통화를눌러확인하세요");
    EXPECT_EQ(utf8(form.subjectText.text()), "") << "what the login writes is no subject";
    EXPECT_EQ(utf8(form.subjectText.tag()), "");
}

TEST_F(ManualLogin, TakesTheProfilesNamesWhereNothingIsSavedAndLeavesTypedTexts) {
    form.mText1.set_text(u"쓰던 글");
    form.mText2.set_text(u" [] ");
    log_in(u"hong", u"secret");
    form.cmdLogin.Click.raise();
    EXPECT_EQ(utf8(form.txtUserName.text()), "Hong Office");
    EXPECT_EQ(utf8(form.txtCallback.text()), "0212345678");
    EXPECT_EQ(utf8(form.mText1.text()), "쓰던 글");
    EXPECT_EQ(utf8(form.mText2.text()), "[Hong Office]\r\n\r\n\r\n\r\n☎통화를눌러확인하세요");
}

TEST_F(ManualLogin, AsksForWhatIsMissingAfterTheTrim) {
    desktop.expect_box(u"KT 폰디라 아이디를 입력하여 주십시오.");
    desktop.expect_box(u"비밀번호를 입력하여 주십시오.");
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"   ", u"secret");
        EXPECT_EQ(utf8(login.Text1.text()), "");
        EXPECT_TRUE(login.Text1.has_focus());
        enter(login, u"hong", u"  ");
        EXPECT_TRUE(login.Text2.has_focus());
        EXPECT_FALSE(login.Timer1.enabled());
        login.escape_pressed();
    });
    form.cmdLogin.Click.raise();
    for (const std::size_t box : {0, 1}) {
        EXPECT_EQ(desktop.boxes[box].icon, BoxIcon::exclamation);
        EXPECT_EQ(utf8(desktop.boxes[box].title), "로그인 실패");
    }
    EXPECT_TRUE(carrier.calls.empty());
    expect_logged_out();
}

TEST_F(ManualLogin, EnterGoesToThePasswordAndThenLogsIn) {
    in_login([&](gateway::frmZentLogin& login) {
        login.Text1.set_text(u"hong");
        login.Text1.set_focus();
        EXPECT_EQ(login.Text1.selection_length(), 4u) << "a field that gets the focus is selected";
        login.Text2.set_text(u"old");
        login.Text2.set_focus();
        EXPECT_EQ(login.Text2.selection_length(), 3u);
        login.Text2.set_text(u"");
        login.Text1.set_focus();
        press(login.Text1, u'x');
        EXPECT_EQ(utf8(login.Text1.text()), "x");
        platform::KeyPressed enter_key{platform::KEY_ENTER};
        login.Text1.KeyPress.raise(enter_key);
        EXPECT_TRUE(enter_key.swallowed());
        EXPECT_TRUE(login.Text2.has_focus());
        EXPECT_FALSE(login.Timer1.enabled());
        press(login.Text2, u'p');
        press(login.Text2, u'\r');
        EXPECT_EQ(utf8(login.Text2.text()), "p");
        EXPECT_TRUE(login.Timer1.enabled());
        login.Timer1.set_enabled(false);
        press(login.Text1, u'\r');
        EXPECT_TRUE(login.Timer1.enabled()) << "with a password there, Enter in the id logs in";
    });
    form.cmdLogin.Click.raise();
    EXPECT_EQ(utf8(carrier.bound_user), "x");
    EXPECT_EQ(utf8(carrier.bound_password), "p");
}

TEST_F(ManualLogin, AFailedBindIsExplainedAndTheFormStaysForAnotherTry) {
    carrier.results[{"bind", 1}] = 2;
    files.files[u"z:\\app\\resource\\timer.avi"] = "film";
    desktop.expect_box(Text(FAILURE));
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"hong", u"wrong");
        clock.run_for(10);
        EXPECT_EQ(carrier.calls, (Calls{"bind"})) << "nothing else follows";
        EXPECT_TRUE(login.loaded());
        EXPECT_FALSE(login.Picture1.visible());
        EXPECT_FALSE(login.Animation1.playing());
        EXPECT_EQ(state.gSubmitSequence, 1) << "set before the bind";
        EXPECT_FALSE(state.gLoginResult);
        EXPECT_TRUE(login.Text2.has_focus());
        EXPECT_EQ(login.Text2.selection_start(), 0u);
        EXPECT_EQ(login.Text2.selection_length(), 5u);
        EXPECT_EQ(saved_login(u"LOGINID"), "");
        enter(login, u"hong", u"right");
    });
    form.cmdLogin.Click.raise();
    expect_exactly(0, FAILURE, BoxIcon::exclamation, "로그인 실패");
    EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
    EXPECT_TRUE(state.gLoggedIn);
    EXPECT_EQ(saved_login(u"LOGINPW"), "right");
}

TEST_F(ManualLogin, AMissingLibraryIsShownBeforeTheFailure) {
    carrier.missing = {"bind"};
    desktop.expect_box(u"오류번호:453");
    desktop.expect_box(Text(FAILURE));
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"hong", u"secret");
        clock.run_for(10);
        login.close_requested();
    });
    form.cmdLogin.Click.raise();
    expect_logged_out();
}

TEST(ManualLoginJudges, ByTheKindOfServiceWhateverTheContractsState) {
    const struct {
        int type, state;
        platform::TextView box;
        const char* title;
        BoxAnswer answer = BoxAnswer::ok;
    } rows[] = {
        {23, 0, {}, ""},
        {24, 1, {}, ""},
        {23, 2, {}, ""},
        {24, 9, {}, ""},
        {25, 0, POP, ""},
        {22, 0, CHANGE_SERVICE, "KT 폰디라 신규등록 및 서비스 전환 안내", BoxAnswer::no},
        {26, 0, CHANGE_SERVICE, "KT 폰디라 신규등록 및 서비스 전환 안내", BoxAnswer::yes},
        {0, 0, CHANGE_SERVICE, "KT 폰디라 신규등록 및 서비스 전환 안내", BoxAnswer::yes},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        tests::MainWindow window;
        window.form.load();
        window.carrier.service_type = row.type;
        window.carrier.service_state = row.state;
        const bool accepted = row.box.empty();
        if (!accepted) window.desktop.expect_box(Text(row.box), row.answer);
        window.in_login([&](gateway::frmZentLogin& login) {
            login.Text1.set_text(u"hong");
            login.Text2.set_text(u"secret");
            login.Command1.Click.raise();
            window.clock.run_for(10);
            EXPECT_EQ(login.loaded(), !accepted) << "a refusal leaves the form open";
            EXPECT_FALSE(login.Picture1.visible());
            login.unload();
        });
        window.form.cmdLogin.Click.raise();
        EXPECT_EQ(bool(window.state.gLoggedIn), accepted);
        EXPECT_EQ(bool(window.state.gLoginResult), accepted);
        EXPECT_EQ(window.state.gServiceState, accepted ? row.state : 3);
        EXPECT_EQ(window.form.cmdLogOut.enabled(), accepted);
        EXPECT_EQ(window.saved_login(u"LOGINPW"), accepted ? "secret" : "");
        EXPECT_EQ(window.opened, row.answer == BoxAnswer::yes ? Calls{"sign_up"} : Calls{});
        EXPECT_EQ(window.carrier.count("unbind"), 1);
        if (!accepted) {
            EXPECT_EQ(utf8(window.desktop.boxes[0].text), utf8(row.box));
            EXPECT_EQ(utf8(window.desktop.boxes[0].title), row.title);
            EXPECT_EQ(window.desktop.boxes[0].icon, BoxIcon::exclamation);
        }
    }
}

TEST_F(ManualLogin, FailuresBehindTheBindAreNotTold) {
    carrier.results[{"user_info", 1}] = 7;
    log_in(u"hong", u"secret");
    form.cmdLogin.Click.raise();
    EXPECT_TRUE(state.gLoggedIn);
    EXPECT_EQ(panel(2), "가입자 hong[]  ");
    EXPECT_EQ(panel(3), "폰디라번호   ");
    EXPECT_EQ(utf8(form.mText1.text()), "[]");
    EXPECT_EQ(carrier.count("unbind"), 1);
}

TEST_F(ManualLogin, WithoutAMoneyStatusNoProfileIsAskedAndTheOldKindOfServiceCounts) {
    carrier.results[{"money_status", 1}] = 7;
    desktop.expect_box(Text(CHANGE_SERVICE), BoxAnswer::no);
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"hong", u"secret");
        clock.run_for(10);
        login.escape_pressed();
    });
    form.cmdLogin.Click.raise();
    EXPECT_EQ(carrier.calls, (Calls{"bind", "money_status", "unbind"}));
    expect_logged_out();
}

TEST_F(ManualLogin, ItsOtherButtonsLeadToTheServicesPages) {
    in_login([&](gateway::frmZentLogin& login) {
        login.Command3.Click.raise();
        login.Command4.Click.raise();
        login.Command5.Click.raise();
        login.unload();
    });
    form.cmdLogin.Click.raise();
    EXPECT_EQ(opened, (Calls{"sign_up", "find_id_or_password", "service_guide"}));
}

// The automatic form.

TEST(AutomaticLoginJudges, ByTheContractsStateWhateverTheKindOfService) {
    const struct {
        int type, state;
        BoxAnswer answer = BoxAnswer::ok;
    } rows[] = {{23, 0}, {25, 1}, {23, 2, BoxAnswer::no}, {24, 3, BoxAnswer::yes}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.state);
        tests::MainWindow window;
        window.form.load();
        window.save_login(u"LOGINID", u"hong");
        window.save_login(u"LOGINPW", u"secret");
        window.carrier.service_type = row.type;
        window.carrier.service_state = row.state;
        const bool accepted = row.state < 2;
        if (!accepted) {
            window.desktop.expect_box(Text(REGISTER), row.answer);
            window.in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
        }
        window.form.AUTO_LOGIN_START();
        EXPECT_EQ(bool(window.state.gLoggedIn), accepted);
        EXPECT_EQ(bool(window.state.gLoginResult), accepted);
        EXPECT_EQ(window.state.gServiceState, accepted ? row.state : 3);
        EXPECT_EQ(window.state.gLoginAccepted, accepted ? 1 : 0);
        EXPECT_EQ(window.form.cmdLogOut.enabled(), accepted);
        EXPECT_EQ(window.opened, row.answer == BoxAnswer::yes ? Calls{"new_member"} : Calls{});
        EXPECT_EQ(window.carrier.calls, (Calls{"bind", "money_status", "user_info", "unbind"}));
        if (!accepted) {
            EXPECT_EQ(utf8(window.desktop.boxes[0].text), utf8(REGISTER));
            EXPECT_EQ(utf8(window.desktop.boxes[0].title), "KT 폰디라 등록 안내");
            EXPECT_EQ(window.desktop.boxes[0].icon, BoxIcon::exclamation);
        }
    }
}

TEST_F(AutomaticLogin, WritesNothingAndDoesNotStopThePolling) {
    save_login(u"LOGINID", u"hong");
    save_login(u"LOGINPW", u"secret");
    form.Timer1.set_enabled(true);
    const auto before = files.files;
    desktop.in_form<gateway::frmAutoLogin>(u"frmAutoLogin", [&](gateway::frmAutoLogin& login) {
        EXPECT_TRUE(form.Timer1.enabled());
        login.close_requested();
        login.escape_pressed();
        EXPECT_TRUE(login.loaded()) << "it closes by itself";
    });
    form.AUTO_LOGIN_START();
    EXPECT_EQ(files.files, before);
    EXPECT_EQ(panel(1), "로그인상태");
    EXPECT_EQ(utf8(carrier.bound_user), "hong");
}

TEST_F(AutomaticLogin, AKindOfServiceThatIsNoneLeavesTheUserLoggedInWithLogOutOff) {
    save_login(u"LOGINID", u"hong");
    save_login(u"LOGINPW", u"secret");
    carrier.service_type = 22;
    form.AUTO_LOGIN_START();
    EXPECT_TRUE(state.gLoggedIn);
    EXPECT_TRUE(state.gLoginResult);
    EXPECT_FALSE(form.cmdLogOut.enabled());
    EXPECT_TRUE(form.cmdLogin.enabled());
    EXPECT_NE(panel(1), "로그인상태");
}

TEST_F(AutomaticLogin, FallsBackToTheManualFormWithoutAsking) {
    const struct { const char16_t *user_id, *password; } rows[] = {{u"", u"secret"}, {u"hong", u""}};
    for (const auto& row : rows) {
        save_login(u"LOGINID", row.user_id);
        save_login(u"LOGINPW", row.password);
        in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
        form.AUTO_LOGIN_START();
        EXPECT_TRUE(carrier.calls.empty());
        expect_logged_out();
    }
}

TEST_F(AutomaticLogin, AFailedBindIsExplainedAndTheManualFormMayStillSucceed) {
    save_login(u"LOGINID", u"hong");
    save_login(u"LOGINPW", u"old");
    carrier.results[{"bind", 1}] = 2;
    desktop.expect_box(Text(FAILURE));
    log_in(u"hong", u"new");
    form.AUTO_LOGIN_START();
    expect_exactly(0, FAILURE, BoxIcon::exclamation, "로그인 실패");
    EXPECT_EQ(desktop.forms, (std::vector<Text>{u"frmAutoLogin", u"frmZentLogin"}));
    EXPECT_TRUE(state.gLoggedIn);
    EXPECT_EQ(saved_login(u"LOGINPW"), "new");
    EXPECT_EQ(panel(1), "로그인상태");
}

// Log-out.

TEST_F(LogOut, AsksAndThenForgetsThatAnybodyIsLoggedIn) {
    form.cmdLogOut.Click.raise();
    EXPECT_TRUE(desktop.boxes.empty()) << "nobody is logged in";

    log_in(u"hong", u"secret");
    form.cmdLogin.Click.raise();
    carrier.calls.clear();
    desktop.expect_box(u"로그아웃 하시겠습니까?", BoxAnswer::no);
    form.cmdLogOut.Click.raise();
    EXPECT_TRUE(state.gLoggedIn);
    expect_exactly(0, u"Cardvale 폰디라 통합메시징 서비스 로그아웃 하시겠습니까?", BoxIcon::question, "");

    desktop.expect_box(u"로그아웃 하시겠습니까?", BoxAnswer::yes);
    form.cmdLogOut.Click.raise();
    expect_logged_out();
    EXPECT_EQ(form.STBar1.panel(1).picture, 1);
    EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
    EXPECT_TRUE(carrier.calls.empty()) << "nothing is bound";
    EXPECT_EQ(utf8(state.gLoginUserId), "hong");

    log_in(u"hong", u"secret");
    form.cmdLogin.Click.raise();
    EXPECT_EQ(utf8(state.gServiceNumber.substr(0, 12)), "030312345678") << "the last known number goes along";
}

TEST_F(LogOut, TheAutoLoginMenuOnlyTurnsItsMark) {
    const auto before = files.files;
    for (const bool on : {true, false}) {
        form.mnuAutoLogin.Click.raise();
        EXPECT_EQ(form.mnuAutoLogin.checked(), on);
    }
    EXPECT_EQ(files.files, before);
}

}  // namespace
