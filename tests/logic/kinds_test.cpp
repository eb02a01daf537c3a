#include "service/frmAbout.h"
#include "tests/support/main_window.h"
#include "tests/support/page_reader.h"

#include <array>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace compose;
using platform::BoxAnswer;
using platform::Text;
using tests::utf8;
using Doors = std::vector<std::string>;

const std::string PLUS_TEXT = "[홍길동]\r\n\r\n\r\n\r\n☎통화를눌러확인하세요";

struct Kinds : testing::Test, tests::MainWindow {
    void SetUp() override { compose_as(u" 홍길동 "); }

    int pressed_button() const {
        int pressed = 0;
        for (int button = 1; button <= form.Toolbar1.count(); ++button) {
            if (form.Toolbar1.button(button).pressed) pressed = pressed * 10 + button;
        }
        return pressed;
    }

    static std::array<const platform::Frame*, 3> panels(const frmZent& form) {
        return {&form.text.Frame1, &form.voice.Frame1, &form.fax.Frame1};
    }
};

using Bars = Kinds;
using StartingAnew = Kinds;
using Emoticons = Kinds;

TEST_F(Kinds, EachShowsItsOwnPanelCaptionsAndControls) {
    const struct {
        compose::MessageKind kind;
        const char *name, *number;
        std::size_t panel;
        bool sender, reply;
    } rows[] = {
        {compose::MessageKind::plus, "문자플러스", "문자보낼번호", 1, false, true},
        {compose::MessageKind::voice, "음성메시지", "음성보낼번호", 1, false, true},
        {compose::MessageKind::fax, "팩스메시지", "팩스보낼번호", 2, false, false},
        {compose::MessageKind::text, "문자메시지", "문자보낼번호", 0, true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        form.voice.TabStrip2.select(3);
        form.choose(row.kind);
        EXPECT_EQ(utf8(form.caption()), std::string("Cardvale 폰디라 통합메시징 서비스[") + row.name + "]");
        EXPECT_EQ(pressed_button(), static_cast<int>(row.kind) + 1);
        for (std::size_t panel = 0; panel < 3; ++panel)
            EXPECT_EQ(panels(form)[panel]->visible(), panel == row.panel) << panel;
        EXPECT_EQ(utf8(form.recipients.Label2_5.caption()), std::string(row.number) + ":");
        EXPECT_EQ(utf8(form.recipients.ListView1.column(3).caption), row.number);
        for (const platform::Control* control : std::initializer_list<const platform::Control*>{
                 &form.sender.Label2_1, &form.sender.txtUserName, &form.sender.txtCallback})
            EXPECT_EQ(control->visible(), row.sender) << utf8(control->name());
        for (const platform::Control* control : std::initializer_list<const platform::Control*>{
                 &form.reply.Check2, &form.reply.Combo4, &form.reply.Command4})
            EXPECT_EQ(control->visible(), row.reply) << utf8(control->name());
        EXPECT_EQ(form.voice.TabStrip2.selected(), row.panel == 1 ? 1 : 3);
        if (row.panel == 1) {
            EXPECT_EQ(form.plus.Picture2.visible(), row.kind == compose::MessageKind::plus);
        }
    }
}

TEST_F(Kinds, ATextThatDisappearsWithItsPanelFreezesNoSubjectLater) {
    form.text.mText1.set_focus();
    form.text.mText1.user_edit(u"회의", 2);
    form.choose(compose::MessageKind::fax);
    EXPECT_FALSE(form.text.mText1.has_focus());
    // The window reports later where the focus has gone, perhaps after boxes and other windows.
    form.recipients.HText1[0].set_focus();
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "회의");
    EXPECT_EQ(utf8(form.subject.subjectText.tag()), "") << "the next text leads the subject again";
}

TEST_F(Kinds, EnteringAKindDiscardsItsOwnTextAndNothingElse) {
    form.recipients.ListView1.add_row(u"", {u"이름", u"0212345678"}, true);
    const struct {
        compose::MessageKind kind;
        std::string text, plus_text;
    } rows[] = {
        {compose::MessageKind::text, "[홍길동]", "짧은 글"},
        {compose::MessageKind::plus, "본문", PLUS_TEXT},
        {compose::MessageKind::fax, "본문", "짧은 글"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.kind));
        form.subject.subjectText.set_tag(u"END");
        form.text.mText1.set_text(u"본문");
        form.plus.mText2.set_text(u"짧은 글");
        form.voice.ttsText.set_text(u"음성");
        form.subject.subjectText.set_text(u"제목");
        form.subject.subjectText.set_tag(u"");
        form.choose(compose::MessageKind::voice);
        form.voice.TabStrip2.select(2);
        form.voice.RFK1.open();
        form.voice.RFK1.record();
        recorder.speak(platform::Samples(10, 1));
        form.choose(row.kind);
        EXPECT_FALSE(recorder.recording) << "nobody is recorded who does not see it";
        EXPECT_EQ(form.voice.RFK1.recording(), platform::Samples(10, 1));
        form.voice.RFK1.set_kept();
        EXPECT_EQ(utf8(form.text.mText1.text()), row.text);
        EXPECT_EQ(utf8(form.plus.mText2.text()), row.plus_text);
        EXPECT_EQ(utf8(form.voice.ttsText.text()), "음성");
        EXPECT_EQ(utf8(form.subject.subjectText.text()), "제목") << "what a kind writes is no subject";
        EXPECT_EQ(utf8(form.subject.subjectText.tag()), "") << "it follows the text again";
        EXPECT_EQ(form.recipients.ListView1.row_count(), 1u);
    }
}

TEST_F(Kinds, TheFirstPaintShowsOnePanelThoughNoKindIsChosenYet) {
    tests::MainWindow fresh;
    fresh.form.load();
    for (std::size_t panel = 0; panel < 3; ++panel) {
        EXPECT_EQ(panels(fresh.form)[panel]->visible(), panel == 0);
        EXPECT_EQ(fresh.form.voice.TPIC[panel].visible(), panel == 0);
    }
}

TEST_F(Kinds, ASourceOfTheVoiceShowsOnlyItsPanel) {
    for (int tab = 1; tab <= 3; ++tab) {
        form.voice.TabStrip2.select(tab);
        for (std::size_t panel = 0; panel < 3; ++panel)
            EXPECT_EQ(form.voice.TPIC[panel].visible(), panel + 1 == static_cast<std::size_t>(tab));
    }
}

TEST_F(Kinds, TheDraftIsResetWhenNoKindIsPressedAndLeftAloneOtherwise) {
    in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    form.text.mText1.set_text(u"본문");
    form.choose(compose::MessageKind::fax);
    form.show();
    clock.run_for(1);
    EXPECT_EQ(kind_of(form).kind, compose::MessageKind::fax);
    EXPECT_EQ(utf8(form.text.mText1.text()), "본문");

    tests::MainWindow fresh;
    fresh.in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    fresh.form.load();
    fresh.form.text.mText1.set_text(u"본문");
    fresh.form.show();
    fresh.clock.run_for(1);
    EXPECT_EQ(kind_of(fresh.form).kind, compose::MessageKind::text);
    EXPECT_EQ(utf8(fresh.form.text.mText1.text() + fresh.form.plus.mText2.text() +
                   fresh.form.subject.subjectText.text()),
              "");
}

TEST_F(Bars, ToolBarButtonsChooseKindsAndOpenPages) {
    state.session.gLoggedIn = true;
    for (int button = 1; button <= 9; ++button) {
        const int kind_before = form.TabStrip1.selected();
        const Doors page = button == 7   ? Doors{"발송결과||code=&userid=&domain="}
                           : button == 8 ? Doors{"팩스수신||code=&userid=&domain="}
                           : button == 9 ? Doors{"요금조회||code=&userid=&domain="}
                                         : Doors{};
        if (!page.empty()) tests::read_next_page(desktop, opened);
        opened.clear();
        form.Toolbar1.ButtonClick.raise(button);
        EXPECT_EQ(form.TabStrip1.selected(), button >= 2 && button <= 5 ? button - 1 : kind_before);
        EXPECT_EQ(opened, page) << button;
    }
}

TEST_F(Bars, StatusBarPanelsReactToTheLeftButtonAccordingToTheLogin) {
    const auto click = [&](int panel, platform::MouseButton button = platform::MouseButton::left) {
        opened.clear();
        form.session.STBar1.MouseDown.raise(button);
        form.session.STBar1.PanelClick.raise(panel);
        return opened;
    };
    for (int panel = 1; panel <= 4; ++panel) click(panel, platform::MouseButton::right);
    EXPECT_TRUE(desktop.forms.empty());
    EXPECT_EQ(click(2), Doors{}) << "nobody is logged in";
    EXPECT_EQ(click(3), Doors{});

    log_in(u"hong", u"secret");
    click(1);
    EXPECT_EQ(desktop.forms, std::vector<Text>{u"frmZentLogin"});
    tests::read_next_page(desktop, opened);
    EXPECT_EQ(click(2), Doors{"가입자 정보 변경||code=&userid=hong&domain=pondira.example"});
    tests::read_next_page(desktop, opened);
    EXPECT_EQ(click(3), Doors{"팩스수신||code=&userid=hong&domain=pondira.example"});
    desktop.expect_box(tests::LOG_OUT, BoxAnswer::yes);
    click(1);
    EXPECT_FALSE(state.session.gLoggedIn);

    desktop.in_form<service::frmAbout>(u"frmAbout", [](service::frmAbout& about) { about.escape_pressed(); });
    click(4);
    EXPECT_EQ(desktop.forms.back(), u"frmAbout");
}

TEST_F(Bars, ButtonsAndMenusOpenTheirDoors) {
    form.Command1.Click.raise();
    form.text.MyMsgBttn.Click.raise();
    form.mnuUpDate.Click.raise();
    EXPECT_EQ(opened, (Doors{"send", "saved_texts", "update_check"}));
    platform::MessageBox caution = tests::notice(
        u"폰디라 메시지 발송 등록 시 여러사용자의 발송부하를 방지하기위해 100건씩 나누어 등록되므로 발송이 "
        u"지연될 수 있습니다.\r\n"
        u"너무 많은 메시지를 보내실 경우 1,000~2,000건씩 나누어 등록하시기 바랍니다.");
    caution.title = u"주의사항";
    desktop.expect_box(caution);
    form.Command5.Click.raise();
}

TEST_F(StartingAnew, NoKeepsTheDraftAndYesEmptiesAllButItsKindAndSchedule) {
    form.choose(compose::MessageKind::plus);
    form.subject.subjectText.set_tag(u"END");
    form.text.mText1.set_text(u"본문");
    form.plus.mText2.set_text(u"짧은 글");
    form.voice.ttsText.set_text(u"음성");
    form.voice.TTSFileTxt.set_text(u"c:\\a.wav");
    form.subject.subjectText.set_text(u"제목");
    form.recipients.ListView1.add_row(u"", {u"이름", u"0212345678"}, true);
    form.fax.FAX1.add_row(u"c:\\a.hwp", {});
    form.fax.FAXFileSize1.set_caption(u"12KB");
    form.schedule.Option2.set_chosen(true);
    form.recipients.RECIPIENT_COUNT_CAPTION();

    desktop.expect_box(tests::START_ANEW, BoxAnswer::no);
    form.Command3.Click.raise();
    EXPECT_EQ(utf8(form.text.mText1.text()), "본문");
    EXPECT_EQ(form.recipients.ListView1.row_count(), 1u);

    desktop.expect_box(tests::START_ANEW, BoxAnswer::yes);
    form.Command3.Click.raise();
    EXPECT_EQ(utf8(form.text.mText1.text()), "[홍길동]");
    EXPECT_EQ(utf8(form.plus.mText2.text()), PLUS_TEXT);
    EXPECT_EQ(utf8(form.voice.ttsText.text()), "");
    EXPECT_EQ(utf8(form.voice.TTSFileTxt.text()), "");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "");
    EXPECT_EQ(form.recipients.ListView1.row_count(), 0u);
    EXPECT_EQ(form.fax.FAX1.row_count(), 0u);
    EXPECT_EQ(utf8(form.fax.FAXFileSize1.caption()), "12KB") << "until the next document";
    EXPECT_EQ(utf8(form.recipients.Label4.caption()), "전체>0>대상>0");
    EXPECT_EQ(kind_of(form).kind, compose::MessageKind::plus);
    EXPECT_TRUE(form.schedule.Option2.chosen());
}

TEST_F(Emoticons, AreInsertedAtTheCaretInPlaceOfTheSelectionThroughTheClipboard) {
    desktop.clipboard = u"what the user copied";
    form.text.mText1.set_text(u"가나다라");
    form.text.mText1.select(1, 2);
    form.text.mBttn1[18].Click.raise();
    EXPECT_EQ(utf8(form.text.mText1.text()), "가☎라");
    EXPECT_EQ(form.text.mText1.selection_start(), 2u);
    EXPECT_EQ(utf8(desktop.clipboard), "☎");
}

}  // namespace
