#include "app/entry_routine.h"
#include "core/deployment.h"
#include "gateway/frmAutoLogin.h"
#include "tests/support/main_window.h"
#include "tests/support/page_reader.h"

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

const platform::MessageBox FAILURE = tests::refusal(
    u"아이디에 해당하는 비밀번호와 입력하신 비밀번호가 일치하지 않습니다.\r\n"
    u"아래내용을 체크해 보시기 바랍니다.\r\n\r\n"
    u"! 인터넷 연결이 안된 경우\r\n"
    u"! 아이디를 잘못 알고 계신 경우\r\n"
    u"! 비밀번호를 잘못 알고 계신 경우\r\n"
    u"! 대소문자 구별없이 비밀번호를 입력하신 경우\r\n"
    u"(비밀번호가 대소문자로 이루어졌다면, 다르게 인식되오니 구별하여 입력하시기 바랍니다.\r\n",
    u"로그인 실패");
const platform::MessageBox POP = tests::refusal(
    u"폰디라 팝에 가입한 경우에는 폰디라 팝을 해지하고 폰디라 프로 또는 폰디라 파트너로 "
    u"서비스를 전환하셔야 합니다.");
const platform::MessageBox CHANGE_SERVICE = tests::question(
    u"Cardvale 폰디라 통합메시징 서비스 연동기능(UMS)을 사용하시려면 폰디라 프로 또는 폰디라 파트너로 "
    u"서비스를 전환하셔야 합니다. 지금 신청서를 다운받으시겠습니까?",
    u"KT 폰디라 신규등록 및 서비스 전환 안내", BoxIcon::exclamation);
const platform::MessageBox REGISTER = tests::question(
    u"KT 폰디라 통합 메시징 서비스(UMS) 연동 기능을 이용하기 위해서는 KT 폰디라 회원등록 및 결제방법을 "
    u"'전화요금합산청구'로 신청을 하셔야 합니다.\r\n\r\n지금 KT 폰디라에 등록하시겠습니까?",
    u"KT 폰디라 등록 안내", BoxIcon::exclamation);

const std::string SIGN_UP_PAGE = "KT 폰디라 신규 가입|" + utf8(core::deployment::service_site()) +
                                 "/kelmora/htm/register/default.jsp?code=07190533026|";

struct Session : testing::Test, tests::MainWindow {
    void SetUp() override {
        app::entry_routine(platform, state, [this] { form.load(); });
    }

    void expect_logged_out() const {
        EXPECT_FALSE(state.session.gLoggedIn);
        EXPECT_FALSE(state.session.gLoginResult);
        EXPECT_EQ(state.session.gServiceState, 3);
        EXPECT_TRUE(form.session.cmdLogin.enabled());
        EXPECT_FALSE(form.session.cmdLogOut.enabled());
        EXPECT_EQ(panels(), (Calls{"로그아웃상태", "가입자", "폰디라번호", "로그인하기"}));
    }
    Calls panels() const {
        Calls texts;
        for (int panel = 1; panel <= 3; ++panel) texts.push_back(utf8(form.session.STBar1.panel(panel).text));
        texts.push_back(utf8(form.session.STBar1.panel(1).tool_tip));
        return texts;
    }
    void save_account(platform::TextView user_id, platform::TextView password) {
        save_login(u"LOGINID", user_id);
        save_login(u"LOGINPW", password);
    }
    void close_guidance() {
        desktop.in_form(u"frmPondiraReg", [](platform::Form& guidance) { guidance.escape_pressed(); });
    }
    void cancel_login() {
        in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    }

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

TEST_F(ManualLogin, ShowsTheSavedIdAndThePasswordOnlyWithAutoLogin) {
    const struct {
        const char16_t *auto_login, *user_id, *password;
        const char *shown_password, *focused;
        bool checked;
    } rows[] = {
        {u"0", u"hong", u"secret", "", "Text2", false},
        {u"1.0", u"hong", u"secret", "secret", "Command1", true},
        {u"1", u"hong", u"", "", "Text2", true},
        {u"2", u"", u"", "", "", false},
    };
    for (const auto& row : rows) {
        save_setting(u"LOGIN", u"AUTOLOGIN", row.auto_login);
        save_account(row.user_id, row.password);
        in_login([&](gateway::frmZentLogin& login) {
            EXPECT_EQ(utf8(login.caption()), "Cardvale 폰디라 통합메시징 서비스 로그인");
            EXPECT_EQ(utf8(login.Text1.text()), utf8(row.user_id));
            EXPECT_EQ(utf8(login.Text2.text()), row.shown_password);
            EXPECT_EQ(login.Check1.checked(), row.checked);
            EXPECT_EQ(login.focused() == nullptr ? "" : utf8(login.focused()->name()), row.focused);
            login.Text1.set_focus();
            login.window_activated();
            EXPECT_TRUE(login.Text1.has_focus()) << "the focus is placed once";
            login.Command2.Click.raise();
        });
        form.session.cmdLogin.Click.raise();
        EXPECT_EQ(setting(u"LOGIN", u"AUTOLOGIN"), row.checked ? "1" : "0");
        EXPECT_EQ(form.session.mnuAutoLogin.checked(), row.checked);
        form.session.mnuAutoLogin.Click.raise();
        EXPECT_EQ(form.session.mnuAutoLogin.checked(), !row.checked);
    }
}

TEST_F(ManualLogin, IsCheckedAppliedAndSavedWhilePollingWaits) {
    save_setting(u"SET", u"ZentUserNickName", u" 홍길동 ");
    save_setting(u"SET", u"ZentUserPhoneID", u"0311234567");
    // Padded, as the login before has left it.
    state.session.gInfoServiceNumber = u"030399999999" + Text(1, u'\0') + Text(7, u' ');
    carrier.scribbles = true;
    form.Timer1.set_enabled(true);
    in_login([&](gateway::frmZentLogin& login) {
        EXPECT_FALSE(form.Timer1.enabled());
        enter(login, u"  hong ", u" secret ");
        EXPECT_TRUE(carrier.calls.empty()) << "the busy picture is painted first";
        EXPECT_TRUE(login.Picture1.visible());
    });
    form.session.cmdLogin.Click.raise();
    EXPECT_TRUE(form.Timer1.enabled());
    EXPECT_EQ(carrier.calls, (Calls{"bind", "money_status", "user_info", "unbind"}));
    const std::string domain = utf8(core::deployment::service_domain()), changed = "#" + domain.substr(1);
    EXPECT_EQ(carrier.arguments,
              (Calls{"hong", "secret", domain,                      // bind
                     "#ong", changed, "030399999999", "127.0.0.1",  // the state of the account
                     "#ong", changed, "#30399999999", "#27.0.0.1",  // the profile, in four buffers
                     std::string(20, ' '), std::string(40, ' '), std::string(40, ' '), std::string(20, ' '),
                     "#ong", "#ecret"}))  // unbind
        << "the number is the one that was known before this login";
    EXPECT_EQ(carrier.notify, platform::CarrierLibrary::Notify::six);
    EXPECT_EQ(state.session.gSubmitSequence, 1);
    EXPECT_TRUE(state.session.gLoggedIn);
    EXPECT_EQ(saved_login(u"LOGINID"), "hong");
    EXPECT_EQ(saved_login(u"LOGINPW"), "secret") << "with auto login off, too";
    EXPECT_EQ(setting(u"LOGIN", u"LOGINID"), "") << "not beside the program";

    EXPECT_FALSE(form.session.cmdLogin.enabled());
    EXPECT_TRUE(form.session.cmdLogOut.enabled());
    EXPECT_EQ(panels(),
              (Calls{"로그인상태", "가입자 hong[Hong]  ", "폰디라번호 0303-1234-5678  ", "로그아웃하기"}));
    EXPECT_EQ(form.sender.txtUserName.rows(), (std::vector<Text>{u"Hong", u"Hong Office"}));
    EXPECT_EQ(utf8(form.sender.txtUserName.text()), "홍길동");
    EXPECT_EQ(form.sender.txtCallback.rows(), (std::vector<Text>{u"0212345678", u"030312345678"}));
    EXPECT_EQ(utf8(form.sender.txtCallback.text()), "0311234567");
    EXPECT_EQ(utf8(form.text.mText1.text()), "[홍길동]");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "") << "what the login writes is no subject";
    EXPECT_EQ(utf8(form.subject.subjectText.tag()), "");
}

TEST_F(ManualLogin, TakesTheProfilesNamesIfNoneAreSavedAndLeavesTypedTexts) {
    form.text.mText1.set_text(u"쓰던 글");
    form.plus.mText2.set_text(u" [] ");
    log_in(u"hong", u"secret");
    form.session.cmdLogin.Click.raise();
    EXPECT_EQ(utf8(form.sender.txtUserName.text()), "Hong Office");
    EXPECT_EQ(utf8(form.sender.txtCallback.text()), "0212345678");
    EXPECT_EQ(utf8(form.text.mText1.text()), "쓰던 글");
    EXPECT_EQ(utf8(form.plus.mText2.text()), "[Hong Office]\r\n\r\n\r\n\r\n☎통화를눌러확인하세요");
}

TEST_F(ManualLogin, AsksForAMissingIdOrPassword) {
    desktop.expect_box(tests::refusal(u"KT 폰디라 아이디를 입력하여 주십시오.", u"로그인 실패"));
    desktop.expect_box(tests::refusal(u"비밀번호를 입력하여 주십시오.", u"로그인 실패"));
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"   ", u"secret");
        EXPECT_TRUE(login.Text1.has_focus());
        enter(login, u"hong", u"  ");
        EXPECT_TRUE(login.Text2.has_focus());
        EXPECT_FALSE(login.Timer1.enabled());
        login.escape_pressed();
    });
    form.session.cmdLogin.Click.raise();
    expect_logged_out();
}

TEST_F(ManualLogin, EnterMovesToThePasswordAndThenLogsIn) {
    in_login([&](gateway::frmZentLogin& login) {
        login.Text1.set_text(u"hong");
        login.Text1.set_focus();
        press(login.Text1, u'x');  // the focus selects the old text
        press(login.Text1, u'\r');
        EXPECT_TRUE(login.Text2.has_focus());
        EXPECT_FALSE(login.Timer1.enabled());
        press(login.Text2, u'p');
        press(login.Text1, u'\r');
        EXPECT_TRUE(login.Timer1.enabled()) << "with a password there, Enter in the id logs in";
        login.Timer1.set_enabled(false);
        press(login.Text2, u'\r');
    });
    form.session.cmdLogin.Click.raise();
    EXPECT_EQ(utf8(carrier.bound_user), "x");
    EXPECT_EQ(utf8(carrier.bound_password), "p");
}

TEST_F(ManualLogin, AFailedBindIsExplainedAndTheFormStaysForAnotherTry) {
    carrier.results[{"bind", 1}] = 2;
    desktop.expect_box(FAILURE);
    desktop.during_box = [&] { clock.run_for(20); };
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"hong", u"wrong");
        clock.run_for(10);
        EXPECT_EQ(carrier.calls, (Calls{"bind"})) << "nothing else follows";
        EXPECT_FALSE(login.Picture1.visible());
        EXPECT_TRUE(login.Text2.has_focus());
        EXPECT_EQ(login.Text2.selection_length(), 5u);
        EXPECT_EQ(saved_login(u"LOGINID"), "");
        enter(login, u"hong", u"right");
    });
    form.session.cmdLogin.Click.raise();
    EXPECT_TRUE(state.session.gLoggedIn);
    EXPECT_EQ(saved_login(u"LOGINPW"), "right");
}

TEST_F(ManualLogin, ChecksTheTypeOfServiceButNotItsState) {
    const struct {
        int type, state;
        const platform::MessageBox* box = nullptr;
        BoxAnswer answer = BoxAnswer::ok;
    } rows[] = {
        {23, 2},
        {24, 9},
        {25, 0, &POP},
        {22, 0, &CHANGE_SERVICE, BoxAnswer::no},
        {26, 0, &CHANGE_SERVICE, BoxAnswer::yes},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        const bool accepted = !row.box;
        carrier.calls.clear();
        save_account(u"", u"");
        carrier.service_type = row.type;
        carrier.service_state = row.state;
        if (!accepted) desktop.expect_box(*row.box, row.answer);
        if (row.answer == BoxAnswer::yes) close_guidance();
        desktop.forms.clear();
        in_login([&](gateway::frmZentLogin& login) {
            enter(login, u"hong", u"secret");
            clock.run_for(10);
            EXPECT_EQ(login.loaded(), !accepted) << "a refusal leaves the form open";
            EXPECT_FALSE(login.Picture1.visible());
            login.unload();
        });
        form.session.cmdLogin.Click.raise();
        EXPECT_EQ(saved_login(u"LOGINPW"), accepted ? "secret" : "");
        EXPECT_EQ(desktop.forms.back(), row.answer == BoxAnswer::yes ? u"frmPondiraReg" : u"frmZentLogin");
        EXPECT_EQ(carrier.count("unbind"), 1);
        if (accepted) {
            EXPECT_TRUE(state.session.gLoggedIn && state.session.gLoginResult &&
                        form.session.cmdLogOut.enabled());
            EXPECT_EQ(state.session.gServiceState, row.state);
        } else {
            expect_logged_out();
        }
    }
}

TEST_F(ManualLogin, SucceedsWithoutAProfileAndAsksForNoneWithoutAMoneyStatus) {
    carrier.results[{"user_info", 1}] = 7;
    log_in(u"hong", u"secret");
    form.session.cmdLogin.Click.raise();
    EXPECT_TRUE(state.session.gLoggedIn);
    EXPECT_EQ(panels(), (Calls{"로그인상태", "가입자 hong[]  ", "폰디라번호   ", "로그아웃하기"}));

    // Then the type of service that was known before counts.
    state.session.gServiceType = 22;
    carrier.calls.clear();
    carrier.results[{"money_status", 1}] = 7;
    desktop.expect_box(CHANGE_SERVICE, BoxAnswer::no);
    in_login([&](gateway::frmZentLogin& login) {
        enter(login, u"hong", u"secret");
        clock.run_for(10);
        login.escape_pressed();
    });
    form.session.cmdLogin.Click.raise();
    EXPECT_EQ(carrier.calls, (Calls{"bind", "money_status", "unbind"}));
    expect_logged_out();
}

// The automatic form.

TEST_F(AutomaticLogin, ChecksTheStateOfTheServiceButNotItsType) {
    const struct {
        int type, state;
        BoxAnswer answer = BoxAnswer::ok;
    } rows[] = {{25, 1}, {22, 0}, {23, 2, BoxAnswer::no}, {24, 3, BoxAnswer::yes}};
    save_account(u"hong", u"secret");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.state);
        const bool accepted = row.state < 2, usable = row.type != 22;
        carrier.calls.clear();
        carrier.service_type = row.type;
        carrier.service_state = row.state;
        Calls pages;
        if (!accepted) {
            desktop.expect_box(REGISTER, row.answer);
            cancel_login();
        }
        if (row.answer == BoxAnswer::yes) tests::read_next_page(desktop, pages);
        form.session.AUTO_LOGIN_START();
        EXPECT_EQ(pages, row.answer == BoxAnswer::yes ? Calls{SIGN_UP_PAGE} : Calls{});
        EXPECT_EQ(carrier.calls, (Calls{"bind", "money_status", "user_info", "unbind"}));
        if (accepted) {
            EXPECT_TRUE(state.session.gLoggedIn);
            EXPECT_EQ(form.session.cmdLogOut.enabled(), usable)
                << "the buttons alone say that it is of no use";
        } else {
            expect_logged_out();
        }
    }
}

TEST_F(AutomaticLogin, WritesNothingAndDoesNotStopThePolling) {
    save_account(u"hong", u"secret");
    carrier.scribbles = true;
    form.Timer1.set_enabled(true);
    const auto before = files.files;
    desktop.in_form<gateway::frmAutoLogin>(u"frmAutoLogin", [&](gateway::frmAutoLogin& login) {
        EXPECT_TRUE(form.Timer1.enabled());
        EXPECT_EQ(utf8(login.caption()), "자동로그인...");
        login.close_requested();
        login.escape_pressed();
        EXPECT_TRUE(login.loaded()) << "it closes by itself";
    });
    form.session.AUTO_LOGIN_START();
    EXPECT_EQ(files.files, before);
    EXPECT_EQ(panels()[0], "로그인상태");
    EXPECT_EQ(utf8(state.session.gLoginUserId + u" " + state.session.gLoginPassword), "hong secret");
}

TEST_F(AutomaticLogin, AFailedBindIsExplainedOnceAndOnlyTheManualFormMayStillLogIn) {
    save_account(u"hong", u"old");
    carrier.results[{"bind", 1}] = 2;
    for (const bool cancelled : {true, false}) {
        carrier.calls.clear(), desktop.forms.clear();
        // Whatever stood there before, a failed login leaves nobody logged in.
        state.session.gLoggedIn = state.session.gLoginResult = cancelled;
        desktop.expect_box(FAILURE);
        desktop.in_form(u"frmAutoLogin", [&](platform::Form& login) {
            desktop.during_box = [&] {
                login.window_activated();
                clock.run_for(20);
            };
        });
        cancelled ? cancel_login() : log_in(u"hong", u"new");
        form.session.AUTO_LOGIN_START();
        EXPECT_EQ(desktop.forms, (std::vector<Text>{u"frmAutoLogin", u"frmZentLogin"}));
        EXPECT_EQ(carrier.count("bind"), cancelled ? 1 : 2);
        if (cancelled) expect_logged_out();
    }
    EXPECT_TRUE(state.session.gLoggedIn);
    EXPECT_EQ(saved_login(u"LOGINPW"), "new");
}

TEST_F(AutomaticLogin, SendsAPasswordInQuotationMarksAsItWasTyped) {
    for (const char16_t* password : {u"\"ab\"", u"'ab'", u"\"\"", u"\"", u"\"ab'", u"a\"b"}) {
        log_in(u"hong", password);
        form.session.cmdLogin.Click.raise();
        carrier.bound_password.clear();
        form.session.AUTO_LOGIN_START();
        EXPECT_EQ(utf8(carrier.bound_password), utf8(password));
    }
}

TEST_F(AutomaticLogin, AsksForWhatIsMissingInTheManualForm) {
    for (const auto& [user_id, password] : {std::pair{u"hong", u""}, {u"", u"secret"}}) {
        save_account(user_id, password);
        cancel_login();
        form.session.AUTO_LOGIN_START();
        EXPECT_TRUE(carrier.calls.empty());
    }
    expect_logged_out();
}

// Log-out.

TEST_F(LogOut, AsksAndThenForgetsTheLogin) {
    EXPECT_FALSE(form.session.cmdLogOut.enabled());
    form.session.cmdLogOut.Click.raise();  // nobody is logged in, nobody is asked

    log_in(u"hong", u"secret");
    form.session.cmdLogin.Click.raise();
    carrier.calls.clear();
    desktop.expect_box(tests::LOG_OUT, BoxAnswer::no);
    form.session.cmdLogOut.Click.raise();
    EXPECT_TRUE(state.session.gLoggedIn);

    desktop.expect_box(tests::LOG_OUT, BoxAnswer::yes);
    form.session.cmdLogOut.Click.raise();
    expect_logged_out();
    EXPECT_EQ(form.session.STBar1.panel(1).picture, 1);
    EXPECT_TRUE(carrier.calls.empty()) << "nothing is bound";
    EXPECT_EQ(saved_login(u"LOGINPW"), "");
    EXPECT_EQ(saved_login(u"LOGINID"), "hong");
    EXPECT_TRUE(state.session.gLoginPassword.empty());

    log_in(u"hong", u"secret");
    form.session.cmdLogin.Click.raise();
    EXPECT_EQ(utf8(state.session.gServiceNumber), "030312345678") << "the last known number goes along";
    EXPECT_EQ(form.session.STBar1.panel(1).picture, 2);
    EXPECT_EQ(form.sender.txtUserName.rows().size() + form.sender.txtCallback.rows().size(), 4u);
}

}  // namespace
