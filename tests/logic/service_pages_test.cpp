#include "service/service_pages.h"

#include "app/entry_routine.h"
#include "core/deployment.h"
#include "service/frmAbout.h"
#include "service/frmPondiraReg.h"
#include "tests/support/main_window.h"
#include "tests/support/page_reader.h"

#include <gtest/gtest.h>

namespace {

using platform::Text;
using tests::utf8;
using Lines = std::vector<std::string>;

struct ServicePages : testing::Test, tests::MainWindow {
    Lines seen;

    void SetUp() override {
        app::entry_routine(platform, state, [] {});
        form.load();
    }
    void write_links() {
        files.files[u"z:\\app\\urllink.ini"] =
            "[URL]\r\nIDPASSFIND=http://s/find\r\nKTPONDIRA=http://s/\r\nHOME=http://m/\r\n"
            "RESULT=http://s/result\r\nMEMEDIT=http://s/member\r\nINBOX=http://s/inbox\r\nMONEY=http://s/"
            "money\r\n";
    }
    void log_in_as(platform::TextView user_id) {
        state.session.gLoggedIn = true;
        state.session.gLoginUserId = user_id;
        state.session.gLoginPassword = u"geheim";
        state.session.gServiceDomain = u"pondira.example";
    }
    std::string open(int page) {
        seen.clear();
        tests::read_next_page(desktop, seen);
        form.session.KTSMS_LINK(page);
        return seen.empty() ? "" : seen.front();
    }
};

TEST_F(ServicePages, HaveTwoNumbersEachAndAnyOtherNumberOpensABlankPage) {
    write_links();
    log_in_as(u"demo");
    const std::string body = "|code=07190533026&userid=demo&domain=pondira.example";
    const struct {
        int page;
        const char* caption_and_address;
    } rows[] = {
        {0, "발송결과|http://s/result"},
        {50, "발송결과|http://s/result"},
        {1, "요금조회|http://s/money"},
        {51, "요금조회|http://s/money"},
        {2, "가입자 정보 변경|http://s/member"},
        {53, "가입자 정보 변경|http://s/member"},
        {3, "팩스수신|http://s/inbox"},
        {52, "팩스수신|http://s/inbox"},
        {4, "|"},
        {-1, "|"},
        {49, "|"},
        {54, "|"},
    };
    for (const auto& row : rows) EXPECT_EQ(open(row.page), row.caption_and_address + body) << row.page;
}

TEST_F(ServicePages, GetTheUserPostedInRawCp949AndNeverAPassword) {
    const struct {
        const char16_t* user_id;
        std::string bytes;
    } rows[] = {
        {u"demo", "demo"},
        {u"홍길동", "\xC8\xAB\xB1\xE6\xB5\xBF"},
        {u"a b&c=d+%41", "a b&c=d+%41"},
        {u"", ""},
    };
    for (const auto& row : rows) {
        log_in_as(row.user_id);
        const std::string body = service::post_body(state);
        EXPECT_EQ(body, "code=07190533026&userid=" + row.bytes + "&domain=pondira.example");
        EXPECT_EQ(body.find("geheim"), std::string::npos);
    }
}

TEST_F(ServicePages, GetTheTypeOfTheBodyAndStopHandOversWhileOpen) {
    log_in_as(u"demo");
    desktop.in_form<service::frmWeb>(u"frmWeb", [&](service::frmWeb& web) {
        EXPECT_EQ(utf8(web.WebBrowser.navigation().header),
                  "Content-Type: application/x-www-form-urlencoded\r\n");
        EXPECT_EQ(utf8(web.WebBrowser.navigation().address), "") << "there is no urllink.ini";
        EXPECT_EQ(web.placement(), (platform::Placement{8400, 3600, 12000, 9000}));
        state.forms.gWebFormOpen = false;
        web.window_activated();
        EXPECT_TRUE(state.forms.gWebFormOpen);
        web.Command1.Click.raise();
        EXPECT_FALSE(web.loaded());
    });
    form.session.KTSMS_LINK(0);
    EXPECT_FALSE(state.forms.gWebFormOpen);
}

TEST_F(ServicePages, FollowEachOtherInOneForm) {
    write_links();
    log_in_as(u"demo");
    desktop.in_form<service::frmWeb>(u"frmWeb", [&](service::frmWeb& web) {
        form.session.KTSMS_LINK(service::CARD_MANAGER_INBOX);
        EXPECT_TRUE(web.loaded() && state.forms.gWebFormOpen);
        EXPECT_EQ(utf8(web.caption()), "팩스수신");
        EXPECT_EQ(utf8(web.WebBrowser.navigation().address), "http://s/inbox");
        EXPECT_EQ(web.WebBrowser.navigation().body, service::post_body(state));
        web.escape_pressed();
    });
    form.session.KTSMS_LINK(0);
    EXPECT_EQ(desktop.forms, std::vector<Text>{u"frmWeb"});
    EXPECT_EQ(open(1).substr(0, 12), "요금조회");
}

TEST_F(ServicePages, SaveOnlyHarmlessFilesWhereTheUserWantsThem) {
    const struct {
        const char16_t* proposal;
        const char* asked;
    } rows[] = {
        {u"안내문.wav", "안내문.wav|wav 파일|*.wav"},
        {u"..\\..\\etc/.견적:서*.PDF ", "견적서.PDF|pdf 파일|*.pdf"},
        {u"con.txt", "_con.txt|txt 파일|*.txt"},
        {u"voice\u202Evaw.exe", nullptr},
        {u"voice.wav.desktop", nullptr},
        {u"wav", nullptr},
        {u".wav", nullptr},
        {u"", nullptr},
    };
    const Text place = u"z:\\home\\x.wav";
    log_in_as(u"demo");
    desktop.in_form<service::frmWeb>(u"frmWeb", [&](service::frmWeb& web) {
        const auto said = [&] { return utf8(web.Label1.caption()); };
        for (const auto& row : rows) {
            desktop.file_questions.clear();
            if (row.asked != nullptr) desktop.expect_file_dialog(u"파일 저장", place);
            platform::PageFile file{.name = row.proposal, .path = {}};
            web.WebBrowser.FileOffered.raise(file);
            if (row.asked == nullptr) {
                EXPECT_TRUE(file.path.empty() && desktop.file_questions.empty()) << utf8(row.proposal);
                EXPECT_NE(said().find("받을 수 없는 종류"), std::string::npos);
                continue;
            }
            EXPECT_EQ(file.path, place);
            const auto& question = desktop.file_questions.at(0);
            EXPECT_EQ(utf8(question.file_name + u"|" + question.filter), row.asked);
        }
        files.files[place] = "old";
        desktop.expect_file_dialog(u"파일 저장", place);
        desktop.expect_box(tests::overwrite_question(place), platform::BoxAnswer::cancel);
        platform::PageFile file{.name = u"a.wav", .path = {}};
        web.WebBrowser.FileOffered.raise(file);
        EXPECT_TRUE(file.path.empty());
        web.WebBrowser.FileReceived.raise(50, 200);
        EXPECT_EQ(said(), "파일을 받고 있습니다. x.wav 25%");
        web.WebBrowser.FileEnded.raise(platform::FileEnd::broken);
        EXPECT_EQ(said(), "파일을 저장하지 못하였습니다. 다시 받아 주십시오. x.wav");
        web.escape_pressed();
    });
    form.session.KTSMS_LINK(0);
}

TEST_F(ServicePages, AskTheUserToLogInFirstAndStayClosedOtherwise) {
    write_links();
    in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    form.Toolbar1.ButtonClick.raise(compose::RESULTS_BUTTON);
    EXPECT_EQ(desktop.forms, std::vector<Text>{u"frmZentLogin"});

    log_in(u"hong", u"geheim");
    EXPECT_EQ(open(0), "발송결과|http://s/result|code=07190533026&userid=hong&domain=pondira.example");
}

TEST_F(ServicePages, EachLinkReadsItsAddressAtTheClickAndOpensIt) {
    desktop.in_form<service::frmAbout>(u"frmAbout", [](service::frmAbout& about) {
        EXPECT_EQ(utf8(about.Label1_0.caption() + u" " + about.Label1_1.caption()),
                  "Cardvale 폰디라 통합메시징 서비스 버전:" + utf8(core::deployment::version()));
        about.Label1_3.Click.raise();
        EXPECT_TRUE(about.loaded());
        about.Command1.Click.raise();
    });
    in_login([&](gateway::frmZentLogin& login) {
        tests::read_next_page(desktop, seen);
        login.Command4.Click.raise();
        login.Command5.Click.raise();
        login.escape_pressed();
    });
    form.session.cmdGoPondira.Click.raise();
    form.session.TOPLogo.Click.raise();
    // Without addresses the user's browser opens an empty page, and the shell opens nothing else.
    EXPECT_EQ(shell.pages, (std::vector<Text>{u"about:blank", u"about:blank"}));

    write_links();
    shell.pages.clear();
    form.session.cmdGoPondira.Click.raise();
    form.session.TOPLogo.Click.raise();
    form.mnuAbout.Click.raise();
    form.session.cmdLogin.Click.raise();
    EXPECT_EQ(shell.pages, (std::vector<Text>{u"http://s/", u"http://m/", u"http://m/", u"http://s/"}));
    EXPECT_EQ(seen, Lines{"KT 폰디라 아이디/비밀번호 찾기|http://s/find|"});
    EXPECT_TRUE(shell.opened.empty());
}

TEST_F(ServicePages, TheGuidanceOpensTheApplicationDocumentAndNoPage) {
    const auto guide = [&](service::frmPondiraReg& guidance) {
        EXPECT_EQ(utf8(guidance.caption()), "폰디라-프로(인사이드) 신규회원 가입");
        EXPECT_EQ(utf8(guidance.Label3.caption() + u"/" + guidance.Label6.caption()),
                  utf8(core::deployment::contact_phone() + u"/" + core::deployment::contact_fax()));
        desktop.popups.clear(), shell.pages.clear();
        guidance.Command1.Click.raise();
        guidance.Command1.Click.raise();
        EXPECT_EQ(desktop.popups,
                  (std::vector{&std::as_const(guidance.mnuDownLoad), &std::as_const(guidance.mnuDownLoad)}));
        EXPECT_EQ(desktop.popup_owner, &guidance.Command1);
        EXPECT_TRUE(shell.pages.empty()) << "the button itself fetches nothing";

        guidance.mnuDoc_0.Click.raise();
        guidance.mnuDoc_1.Click.raise();
        guidance.mnuDoc_2.Click.raise();
        guidance.download_doc(3);
        const Text folder = core::deployment::documents_site();
        EXPECT_EQ(shell.pages, (std::vector<Text>{folder + u"/Pondira.doc", folder + u"/Pondira.hwp",
                                                  folder + u"/Pondira.pdf"}));
        EXPECT_TRUE(guidance.loaded());
        guidance.Command2.Click.raise();
    };
    desktop.in_form<service::frmPondiraReg>(u"frmPondiraReg", guide);
    form.session.cmdRegister.Click.raise();
    desktop.in_form<service::frmPondiraReg>(u"frmPondiraReg", guide);
    in_login([](gateway::frmZentLogin& login) {
        login.Command3.Click.raise();
        login.escape_pressed();
    });
    form.session.cmdLogin.Click.raise();
    EXPECT_EQ(desktop.forms, (std::vector<Text>{u"frmPondiraReg", u"frmZentLogin", u"frmPondiraReg"}));
}

}  // namespace
