// What the user is asked and shown about an update, from the menu and at the start, and the start of the
// installer.

#include "platform/error.h"
#include "tests/support/updates.h"
#include "update/frmUpdateStart.h"
#include "update/update_check.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::utf8;
using update::frmUpdateStart;
using Forms = std::vector<Text>;

constexpr const char16_t* NOTE = u"z:\\app\\i_autorun.ini";
constexpr const char16_t* INSTALLER = u"z:\\app\\i_update.exe";
const MessageBox UP_TO_DATE = tests::notice(u"모든 파일이 최신 버전이므로 업데이트 할 필요가 없습니다.");

MessageBox not_reached(const Text& server) {
    return tests::refusal(server +
                          u" 접속에 실패하여 업데이트 항목을 확인할 수 없습니다.\r\n"
                          u"인터넷 연결상태를 확인하여 주십시오.");
}

struct Offer : tests::Updates {
    Offer() {
        install("1");
        form.load();
        form.Timer1.set_enabled(true);
    }

    /// Lets the server offer a file that is due, with its marker.
    void offer_update(const std::string& marker = "") {
        offer("UPDATE_FILE(1)=a;apppath;missing;2;;;" + marker + "\r\n");
    }
    void user_presses(CommandButton frmUpdateStart::*button) {
        desktop.in_form<frmUpdateStart>(u"frmUpdateStart",
                                        [button](frmUpdateStart& start) { (start.*button).Click.raise(); });
    }
    void check_from_menu() { update::check_from_menu(platform, state, form); }
};

struct UpdateOffer : testing::Test, Offer {};

TEST_F(UpdateOffer, NothingDueIsShownAndPollingContinues) {
    internet.while_waiting = [&] { EXPECT_FALSE(form.Timer1.enabled()) << "no hand-over during the check"; };
    desktop.expect_box(UP_TO_DATE);
    check_from_menu();
    EXPECT_TRUE(form.Timer1.enabled());
    EXPECT_EQ(desktop.forms, Forms{u"frmUpdate"});
}

TEST_F(UpdateOffer, AnUnreachableServerIsNamedOnlyFromTheOtherFile) {
    internet.answers.clear();
    desktop.expect_box(not_reached(u"웹서버"));
    check_from_menu();
    files.files[u"z:\\app\\i_verision.ini"] = "[SERVER_1]\r\nHTTPSERVER=www.other.example\r\n";
    desktop.expect_box(not_reached(u"웹서버(www.other.example)"));
    check_from_menu();
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(UpdateOffer, ACheckThatTheUserCancelsShowsNothing) {
    internet.while_waiting = [&] { desktop.forms.clear(); };
    desktop.in_form(u"frmUpdate", [](Form& check) { check.escape_pressed(); });
    check_from_menu();
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(UpdateOffer, ANoRemovesTheNoteAndPollingStaysOff) {
    const std::function<void(frmUpdateStart&)> refusals[] = {
        [](frmUpdateStart& start) { start.Command2.Click.raise(); },
        [](frmUpdateStart& start) { start.close_requested(); },
        [](frmUpdateStart& start) { start.escape_pressed(); },
    };
    offer_update();
    files.files[INSTALLER] = "program";
    for (const auto& refuse : refusals) {
        files.files[NOTE] = "old";
        state.forms.gDialogConfirmed = true;
        form.Timer1.set_enabled(true);
        desktop.in_form<frmUpdateStart>(u"frmUpdateStart", refuse);
        check_from_menu();
        EXPECT_FALSE(state.forms.gDialogConfirmed);
        EXPECT_FALSE(files.files.contains(NOTE));
        EXPECT_TRUE(shell.opened.empty());
        EXPECT_FALSE(form.Timer1.enabled());
    }
}

TEST_F(UpdateOffer, AYesLeavesTheNoteStartsTheInstallerAndEndsTheProcessAtOnce) {
    offer_update("i");
    files.files[INSTALLER] = "program";
    files.files[NOTE] = "an old and longer note that has to go whole";
    files.files.erase(app_ini);
    user_presses(&frmUpdateStart::Command1);
    EXPECT_THROW(check_from_menu(), tests::ProcessEnded);
    EXPECT_EQ(files.files[NOTE], "[UPDATE]\r\nAUTORUN=OK\r\n");
    EXPECT_EQ(shell.opened, std::vector<Text>{INSTALLER});
    EXPECT_FALSE(files.files.contains(app_ini)) << "none of the main window's exit steps has run";
    EXPECT_TRUE(form.loaded());
    EXPECT_EQ(desktop.forms, (Forms{u"frmUpdate", u"frmUpdateStart"}));
}

TEST_F(UpdateOffer, WithoutAnInstallerTheUserReadsThatAllIsUpToDateAndTheNoteStays) {
    offer_update();
    for (int round = 0; round < 2; ++round) {
        user_presses(&frmUpdateStart::Command1);
        desktop.expect_box(UP_TO_DATE);
        check_from_menu();
        EXPECT_EQ(files.files[NOTE], "[UPDATE]\r\nAUTORUN=OK\r\n");
        EXPECT_TRUE(form.Timer1.enabled());
    }
}

TEST_F(UpdateOffer, TheUpdateContinuesWhenTheNoteCannotBeWritten) {
    files.failure = ErrorNumber::permission_denied;
    state.forms.gDialogConfirmed = false;
    frmUpdateStart start(platform, state);
    start.load();
    start.Command1.Click.raise();
    EXPECT_TRUE(state.forms.gDialogConfirmed);
    EXPECT_FALSE(start.loaded());
}

TEST_F(UpdateOffer, TheNotePageIsTheOneThatTheListNames) {
    internet.answers[tests::LIST] = tests::ScriptedAnswer::ok(
        "[MESSAGEFILE]\r\nUPDATNOTEFILE=http://server/note.html\r\n[UPDATE_FILE_LIST]\r\n"
        "UPDATE_FILE(1)=a;apppath;missing;2\r\n");
    desktop.in_form<frmUpdateStart>(u"frmUpdateStart", [](frmUpdateStart& start) {
        EXPECT_EQ(utf8(start.WebBrowser.navigation().address), "http://server/note.html");
        start.Command2.Click.raise();
    });
    check_from_menu();
}

/// The check while the program starts, which only a test can switch on.
struct Start : Offer {
    Start() {
        form.Timer1.set_enabled(false);
        form.mnuStartUpdate.set_tag(u"1");
        update_check_at_start = [this] { return update::check_at_start(platform, state, form); };
        hand_over = [this] { opened.emplace_back("hand_over"); };
    }
    void start() {
        form.show();
        clock.run_for(1);
    }
    void cancel_login() {
        in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    }
};

struct UpdateAtStart : testing::Test, Start {};

TEST_F(UpdateAtStart, NeedsTheLocalFacts) {
    files.files.erase(tests::VERSION_INI);
    cancel_login();
    start();
    EXPECT_EQ(desktop.forms, (Forms{u"frmZent", u"frmZentLogin"}));
}

TEST(UpdateStart, ShowsNothingWhenAllIsUpToDateOrTheUserRefuses) {
    for (const bool due : {false, true}) {
        Start window;
        if (due) {
            window.offer_update();
            window.user_presses(&frmUpdateStart::Command2);
        }
        window.cancel_login();
        window.start();
        EXPECT_EQ(window.opened, std::vector<std::string>{"hand_over"});
        EXPECT_TRUE(window.form.Timer1.enabled());
    }
}

TEST_F(UpdateAtStart, AnUnreachableServerIsShownTwiceAndTheUserLogsInByHand) {
    internet.answers.clear();
    save_setting(u"LOGIN", u"AUTOLOGIN", u"1");
    save_login(u"LOGINID", u"hong");
    save_login(u"LOGINPW", u"secret");
    desktop.expect_box(not_reached(u"웹서버"));
    desktop.expect_box(not_reached(u"웹서버(http://server/)"));
    cancel_login();
    start();
    EXPECT_EQ(desktop.forms, (Forms{u"frmZent", u"frmUpdate", u"frmZentLogin"}));
    EXPECT_EQ(opened, std::vector<std::string>{"hand_over"});
    EXPECT_TRUE(form.Toolbar1.button(2).pressed);
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(UpdateAtStart, AYesStartsTheInstaller) {
    offer_update("ums");
    files.files[INSTALLER] = "program";
    user_presses(&frmUpdateStart::Command1);
    EXPECT_THROW(start(), tests::ProcessEnded);
    EXPECT_EQ(shell.opened, std::vector<Text>{INSTALLER});
    EXPECT_TRUE(opened.empty());
}

}  // namespace
