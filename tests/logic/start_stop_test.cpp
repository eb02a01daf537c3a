#include "app/entry_routine.h"
#include "core/deployment.h"
#include "platform/error.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace platform;
using tests::utf8;
using Forms = std::vector<Text>;

struct Entry : testing::Test, tests::TestPlatform {
    bool enter() {
        return app::entry_routine(platform, state, [this] {
            shown_with_folders = files.folders;
            ++shown;
        });
    }
    int shown = 0;
    tests::MemoryFiles::Paths shown_with_folders;
};

TEST_F(Entry, TheFirstInstancePreparesFoldersAndStateAndShowsTheMainWindow) {
    files.files[app_ini] = "[SET]\r\nZentUserNickName=Hong\r\nZENTUserPhoneID=0212345678\r\n";
    EXPECT_TRUE(enter());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(shown_with_folders,
              (tests::MemoryFiles::Paths{u"c:\\temp", u"z:\\app\\내모음함", u"z:\\app\\내모음함\\내모음함"}));
    EXPECT_EQ(utf8(state.session.gInfoServiceNumber), "03030xxxxxxx") << "what the first bind goes out with";
    EXPECT_EQ(state.session.gServiceState, 3);
    EXPECT_EQ(utf8(state.sender.gSavedSenderName), "Hong");
    EXPECT_EQ(utf8(state.sender.gSavedCallback), "0212345678");
}

TEST_F(Entry, ASecondInstanceEndsWithoutATrace) {
    shell.another_instance = true;
    EXPECT_FALSE(enter());
    EXPECT_EQ(shown, 0);
    EXPECT_TRUE(files.folders.empty());
}

TEST_F(Entry, TheWindowShowsEvenOnAReadOnlyDisk) {
    files.failure = ErrorNumber::path_access;
    EXPECT_TRUE(enter());
    EXPECT_EQ(shown, 1);
}

struct MainWindowLife : testing::Test, tests::MainWindow {
    /// Shows the window and waits for the first tick; a manual login is cancelled.
    void first_tick() {
        form.show();
        clock.run_for(1);
    }
    void cancel_login() {
        in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    }
    void TearDown() override { form.unload(); }
};

TEST(MainWindowPlacement, IsRestoredWithinTheScreenOrTheDefaultSizeIsCentred) {
    constexpr Placement DEFAULT{.left = 8400, .top = 3600, .width = 12000, .height = 9000};
    const struct {
        const char* settings;
        Placement placement;
        WindowState state = WindowState::normal;
    } rows[] = {
        {"", DEFAULT},
        {"M_LEFT=1\r\nM_TOP=2\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n", DEFAULT},
        {"M_MAX=0\r\nM_LEFT=1\r\nM_TOP=2\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n", {1, 2, 13000, 8000}},
        {"M_MAX=0\r\nM_LEFT=-1\r\nM_TOP=-2\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n", {0, 0, 13000, 8000}},
        {"M_MAX=0\r\nM_LEFT=99999\r\nM_TOP=99999\r\nM_WIDTH=99999\r\nM_HEIGHT=99999\r\n",
         {27800, 15600, 28800, 16200}},
        {"M_MAX=0\r\nM_LEFT=99999999999999999999\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n",
         {27800, 0, 13000, 8000}},
        {"M_MAX=0\r\nM_LEFT=5\r\nM_WIDTH=-3\r\nM_HEIGHT=8000\r\n", DEFAULT},  // it would be invisible
        {"M_MAX=2\r\nM_LEFT=1\r\nM_TOP=2\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n", DEFAULT,
         WindowState::maximised},
        {"M_MAX=Max\r\nM_WIDTH=13000\r\n", DEFAULT, WindowState::maximised},
        {"M_MAX=2\r\n", DEFAULT},  // never placed, so not maximised either
    };
    for (const auto& row : rows) {
        tests::MainWindow window;
        window.files.files[window.app_ini] = std::string("[WINDOW SIZE]\r\n") + row.settings;
        window.form.load();
        EXPECT_EQ(window.form.placement(), row.placement) << row.settings;
        EXPECT_EQ(window.form.window_state(), row.state) << row.settings;
    }
}

TEST(MainWindowPlacement, KeepsOutOfPanelsAtTheLeftAndAtTheTop) {
    const struct {
        const char* settings;
        Placement placement;
    } rows[] = {
        {"", {9400, 3900, 12000, 9000}},
        {"M_MAX=0\r\nM_LEFT=-1\r\nM_TOP=-2\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n", {2000, 600, 13000, 8000}},
        {"M_MAX=0\r\nM_LEFT=99999\r\nM_TOP=99999\r\nM_WIDTH=99999\r\nM_HEIGHT=99999\r\n",
         {27800, 15600, 26800, 15600}},
    };
    for (const auto& row : rows) {
        tests::MainWindow window;
        window.desktop.screen_size = {.left = 2000, .top = 600, .width = 26800, .height = 15600};
        window.files.files[window.app_ini] = std::string("[WINDOW SIZE]\r\n") + row.settings;
        window.form.load();
        EXPECT_EQ(window.form.placement(), row.placement) << row.settings;
    }
}

TEST(MainWindowPlacement, TheDefaultSizeGrowsWithTheDesktopsTextAsFarAsThereIsRoom) {
    tests::MainWindow window;
    window.desktop.screen_size = {.width = 28800, .height = 12000, .text_size = 1.5};
    window.form.load();
    EXPECT_EQ(window.form.placement(), (Placement{5400, 0, 18000, 12000}));
}

TEST_F(MainWindowLife, LoadingFillsTheControlsFromTheClock) {
    desktop.screen_size.twips_per_pixel_x = 16;
    clock.set(make_time(2026, 12, 31, 23, 5, 59));
    form.load();
    EXPECT_EQ(state.window.gMinTrackX, 698) << "697.5 pixels";
    EXPECT_EQ(utf8(form.session.STBar1.panel(4).text), "버전:" + utf8(core::deployment::version()));
    EXPECT_EQ(form.schedule.DTP1.value(), make_time(2026, 12, 31));
    EXPECT_EQ(utf8(form.schedule.Combo1.text() + u":" + form.schedule.Combo2.text()), "23:05");
    EXPECT_EQ(form.schedule.Combo1.rows().size(), 24u);
    EXPECT_EQ(form.schedule.Combo2.rows().size(), 60u);
    EXPECT_TRUE(desktop.clipboard.empty()) << "filling a list inserts nothing";
}

TEST(MainWindowLoad, TheAutoLoginMarkIsOnOnlyForOne) {
    for (const char16_t* value : {u"1", u"0", u"1abc", u"1.0"}) {
        tests::MainWindow window;
        window.save_setting(u"LOGIN", u"AUTOLOGIN", value);
        window.form.load();
        EXPECT_EQ(window.form.session.mnuAutoLogin.checked(), Text(value) == u"1") << utf8(value);
    }
}

TEST(MainWindowLoad, APasswordThatAKilledRunLeftIsBlankedUnlessTheLoginIsAutomatic) {
    for (const char16_t* value : {u"0", u"", u"1", u"1abc"}) {
        tests::MainWindow window;
        window.save_setting(u"LOGIN", u"AUTOLOGIN", value);
        window.save_login(u"LOGINID", u"hong");
        window.save_login(u"LOGINPW", u"secret");
        window.form.load();
        EXPECT_EQ(window.saved_login(u"LOGINPW"), Text(value).starts_with(u'1') ? "secret" : "");
        EXPECT_EQ(window.saved_login(u"LOGINID"), "hong");
    }
    tests::MainWindow window;
    window.form.load();
    EXPECT_FALSE(window.files.files.contains(window.login_ini)) << "there is nothing to blank";
}

TEST(FirstTick, LogsInByItselfOnlyWithAutoLoginAndASavedIdAndPassword) {
    const struct {
        const char16_t *auto_login, *user_id, *password;
        const char16_t* form;
    } rows[] = {
        {u"1abc", u"hong", u"secret", u"frmAutoLogin"},
        {u"2", u"hong", u"secret", u"frmZentLogin"},
        {u"1", u"", u"secret", u"frmZentLogin"},
        {u"1", u"hong", u"", u"frmZentLogin"},
    };
    for (const auto& row : rows) {
        tests::MainWindow window;
        window.save_setting(u"LOGIN", u"AUTOLOGIN", row.auto_login);
        window.save_login(u"LOGINID", row.user_id);
        window.save_login(u"LOGINPW", row.password);
        if (Text(row.form) == u"frmZentLogin") {
            window.in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
        }
        window.form.show();
        window.clock.run_for(1);
        EXPECT_EQ(window.desktop.forms, (Forms{u"frmZent", row.form}));
    }
}

TEST_F(MainWindowLife, TheFirstTickComesOnceAndPollsAfterwards) {
    cancel_login();
    int hand_overs = 0;
    hand_over = [&] {
        EXPECT_TRUE(++hand_overs > 1 || !form.Toolbar1.button(2).pressed) << "before a kind is chosen";
    };
    first_tick();
    form.window_activated();
    clock.run_for(499);
    EXPECT_EQ(hand_overs, 1);
    EXPECT_TRUE(form.Toolbar1.button(2).pressed);
    clock.run_for(1);
    EXPECT_EQ(hand_overs, 2);
    EXPECT_EQ(desktop.forms, (Forms{u"frmZent", u"frmZentLogin"}));
}

TEST_F(MainWindowLife, TheFirstTickLeavesTheLoginToAHandOverThatLogsIn) {
    for (const bool logged_in : {false, true}) {
        tests::MainWindow window;
        window.hand_over = [&] {
            window.state.session.gLoggedIn = logged_in;
            window.form.Timer2.set_tag(logged_in ? u"" : u"OK");
        };
        window.form.show();
        window.clock.run_for(1);
        EXPECT_EQ(window.desktop.forms, Forms{u"frmZent"});
        EXPECT_TRUE(window.form.Timer1.enabled());
    }
}

TEST_F(MainWindowLife, PollingStartsEvenAfterAnErrorInTheFirstTick) {
    hand_over = [&] {
        hand_over = [] {};
        throw RuntimeError(ErrorNumber::permission_denied);
    };
    platform::MessageBox warning = tests::failure(70, u"사용 권한이 없습니다.");
    warning.icon = platform::BoxIcon::exclamation;
    desktop.expect_box(warning);
    first_tick();
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(MainWindowLife, NoCheckForUpdatesRunsAtTheStartWhateverTheMenuShows) {
    save_setting(u"SET", u"STARTUPDATECHECK", u"1");
    cancel_login();
    form.mnuStartUpdate.set_checked(true);
    first_tick();
    EXPECT_TRUE(opened.empty());
}

TEST(Stop, FromMenuButtonOrFrameCallsNoCarrier) {
    const std::function<void(compose::frmZent&)> ways[] = {
        [](compose::frmZent& form) { form.mmuEnd.Click.raise(); },
        [](compose::frmZent& form) { form.Command2.Click.raise(); },
        [](compose::frmZent& form) { form.close_requested(); },
    };
    for (const auto& way : ways) {
        tests::MainWindow window;
        window.form.load();
        way(window.form);
        EXPECT_FALSE(window.form.loaded());
        EXPECT_TRUE(window.carrier.calls.empty());
    }
}

TEST(Stop, AutoLoginOffBlanksThePasswordAndKeepsTheId) {
    for (const bool auto_login : {true, false}) {
        tests::MainWindow window;
        window.save_login(u"LOGINID", u"hong");
        window.save_login(u"LOGINPW", u"secret");
        window.save_setting(u"LOGIN", u"AUTOLOGIN", u"1");
        window.form.load();
        EXPECT_EQ(window.saved_login(u"LOGINPW"), "secret");
        window.form.session.mnuAutoLogin.set_checked(auto_login);
        window.form.mnuStartUpdate.set_checked(!auto_login);
        window.form.unload();
        EXPECT_EQ(window.saved_login(u"LOGINID"), "hong");
        EXPECT_EQ(window.saved_login(u"LOGINPW"), auto_login ? "secret" : "");
        EXPECT_EQ(window.setting(u"LOGIN", u"AUTOLOGIN"), auto_login ? "1" : "0");
        EXPECT_EQ(window.setting(u"SET", u"STARTUPDATECHECK"), auto_login ? "0" : "1");
    }
}

TEST(Stop, SenderAndReplyNumberAreSavedWhenTheyDifferFromWhatWasRead) {
    const struct {
        const char16_t *field, *read;
        const char* saved;
    } rows[] = {
        {u" 홍길동 ", u"", "홍길동"},
        {u"", u"이순신", ""},
        {u" 이순신", u"이순신 ", "untouched"},
    };
    for (const auto& row : rows) {
        tests::MainWindow window;
        window.form.load();
        for (const char16_t* key : {u"ZentUserNickName", u"ZentUserPhoneID"})
            window.save_setting(u"SET", key, u"untouched");
        window.state.sender.gSavedSenderName = window.state.sender.gSavedCallback = row.read;
        window.form.sender.txtUserName.set_text(row.field);
        window.form.sender.txtCallback.set_text(row.field);
        window.form.unload();
        EXPECT_EQ(window.setting(u"SET", u"ZentUserNickName"), row.saved);
        EXPECT_EQ(window.setting(u"SET", u"ZentUserPhoneID"), row.saved);
    }
}

TEST(Stop, WithoutALoginTheSavedSenderIsShownAndKept) {
    tests::MainWindow window;
    window.save_setting(u"SET", u"ZentUserNickName", u" 길동");
    window.save_setting(u"SET", u"ZentUserPhoneID", u"021112222");
    core::read_saved_sender(window.platform, window.state);
    window.form.load();
    window.form.choose(compose::MessageKind::text);
    EXPECT_EQ(utf8(window.form.sender.txtUserName.text()), "길동");
    EXPECT_EQ(utf8(window.form.sender.txtCallback.text()), "021112222");
    window.form.sender.txtUserName.set_focus();
    window.form.sender.txtCallback.set_focus();
    window.form.Command1.set_focus();
    EXPECT_EQ(utf8(window.form.text.mText1.text()), "[길동]");
    window.form.unload();
    EXPECT_EQ(window.setting(u"SET", u"ZentUserNickName"), "길동");
    EXPECT_EQ(window.setting(u"SET", u"ZentUserPhoneID"), "021112222");
}

TEST(Stop, ANormalWindowSavesItsPlacementAndAnyOtherOnlyItsState) {
    const struct {
        WindowState state;
        const char* saved;
    } rows[] = {
        {WindowState::normal, "0 -30 45 12345 9876"},
        {WindowState::minimised, "1 10 20 13000 8000"},
        {WindowState::maximised, "2 10 20 13000 8000"},
    };
    for (const auto& row : rows) {
        tests::MainWindow window;
        window.files.files[window.app_ini] =
            "[WINDOW SIZE]\r\nM_MAX=0\r\nM_LEFT=10\r\nM_TOP=20\r\nM_WIDTH=13000\r\nM_HEIGHT=8000\r\n";
        window.form.load();
        window.form.window_placed({.left = -30, .top = 45, .width = 12345, .height = 9876}, row.state);
        window.form.unload();
        std::string saved = window.setting(u"WINDOW SIZE", u"M_MAX");
        for (const char16_t* key : {u"M_LEFT", u"M_TOP", u"M_WIDTH", u"M_HEIGHT"})
            saved += " " + window.setting(u"WINDOW SIZE", key);
        EXPECT_EQ(saved, row.saved);
    }
}

TEST_F(MainWindowLife, StoppingRemovesTheTemporaryFilesAndNothingElse) {
    for (const char16_t* name : {u"temp\\isend.text", u"temp\\tmpman.txt", u"temp\\other.txt",
                                 u"update_temp\\setup\\a.exe", u"내모음함\\a.txt"}) {
        files.files[u"z:\\app\\" + Text(name)] = "x";
    }
    files.folders = {u"z:\\app\\update_temp", u"z:\\app\\update_temp\\setup", u"z:\\app\\temp"};
    form.load();
    form.unload();
    files.files.erase(app_ini);
    files.files.erase(login_ini);
    EXPECT_EQ(files.files, (tests::MemoryFiles::Contents{{u"z:\\app\\temp\\other.txt", "x"},
                                                         {u"z:\\app\\내모음함\\a.txt", "x"}}));
    EXPECT_FALSE(files.folders.contains(u"z:\\app\\update_temp"));
}

TEST_F(MainWindowLife, AReadOnlyDiskLosesPreferencesSilently) {
    files.files[u"z:\\app\\temp\\isend.text"] = "x";
    files.folders = {u"z:\\app\\update_temp"};
    files.failure = ErrorNumber::permission_denied;
    log_in(u"hong", u"secret");
    first_tick();
    EXPECT_TRUE(state.session.gLoggedIn);
    form.unload();
    EXPECT_FALSE(form.loaded());
}

}  // namespace
