// The four kinds of message and what shows for each; toolbar, status bar, starting anew.

#include "compose/main_form.h"
#include "compose/recipient_number.h"
#include "core/app_state.h"
#include "core/boxes.h"
#include "service/frmAbout.h"
#include "service/service_pages.h"

namespace compose {

using platform::Text;

namespace {

/// Toolbar buttons of the kinds; they follow each other.
constexpr int FIRST_KIND_BUTTON = TEXT_MESSAGE + 1;
constexpr int LAST_KIND_BUTTON = FAX_MESSAGE + 1;

}  // namespace

void frmZent::connect_kinds() {
    fill_panels();
    for (platform::CommandButton& button : mBttn1) {
        button.Click.connect([this, &button] { insert_text(button.caption()); });
    }
    TabStrip1.Click.connect([this] { TabStrip1_Click(); });
    TabStrip2.Click.connect([this] { TabStrip2_Click(); });
    Toolbar1.ButtonClick.connect([this](int index) { Toolbar1_ButtonClick(index); });
    STBar1.MouseDown.connect([this](platform::MouseButton button) { status_bar_button_ = button; });
    STBar1.PanelClick.connect([this](int panel) { STBar1_PanelClick(panel); });
    // The panels are blank until the first log-in, and say later what they show, not what they do.
    STBar1.set_panel_tool_tip(1, u"로그인하기");
    STBar1.set_panel_tool_tip(2, u"가입자 정보변경");
    STBar1.set_panel_tool_tip(3, u"팩스수신");
    STBar1.set_panel_tool_tip(4, Text(core::APPLICATION_TITLE) + u" 정보");
    Command3.Click.connect([this] { Command3_Click(); });
    Command5.Click.connect([this] { Command5_Click(); });
    // What is said from now on is not meant for the message.
    Command1.Click.connect([this] { RFK1.stop(); });
    if (doors_.send) Command1.Click.connect(doors_.send);
    if (doors_.saved_texts) MyMsgBttn.Click.connect(doors_.saved_texts);
    if (doors_.update_check) mnuUpDate.Click.connect(doors_.update_check);
    mnuAbout.Click.connect([this] { mnuAbout_Click(); });

    // The window is painted before its first tick chooses a kind: it shows the panel of that kind alone.
    show_panel(0);
    TabStrip2_Click();
}

/// Which panel holds what: a control is on the screen, and can have the focus, only with its panel.
void frmZent::fill_panels() {
    const auto fill = [](platform::Control& panel, std::initializer_list<platform::Control*> controls) {
        for (platform::Control* control : controls) control->set_container(panel);
    };
    fill(Frame1[0], {&Picture2[0], &MyMsgBttn, &MySave, &Check1, &Combo3});
    fill(Picture2[0], {&mText1});
    for (platform::CommandButton& button : mBttn1) button.set_container(Frame1[0]);
    fill(Frame1[1], {&Picture2[1], &TabStrip2, &TPIC[0], &TPIC[1], &TPIC[2], &Check2, &Combo4, &Command4});
    fill(Picture2[1], {&mText2});
    fill(TPIC[0], {&ttsText});
    fill(TPIC[1], {&RFK1, &TTSBttn0});
    fill(TPIC[2], {&TTSFileTxt, &TTSBttn1, &TTSBttn2, &TTSBttn3, &TTSBttn4});
    fill(Frame1[2], {&FAX1, &FAXBttn1, &FAXBttn2});
}

void frmZent::TabStrip1_Click() {
    const Text kind = TabStrip1.selected_caption();
    set_caption(Text(core::APPLICATION_TITLE) + u"[" + kind + u"]");
    show_reply_controls(false);
    show_sender_controls(false);
    // The texts that are written below must not become the subject.
    subjectText.set_tag(u"END");
    Toolbar1.press(TabStrip1.selected() + 1);
    if (kind == u"문자메시지") {
        show_text_kind();
    } else if (kind == u"문자플러스") {
        show_voice_kind(true);
    } else if (kind == u"음성메시지") {
        show_voice_kind(false);
    } else if (kind == u"팩스메시지") {
        show_panel(2);
        set_number_captions(FAX_NUMBER);
    }
    subjectText.set_tag(u"");
    stop_hidden_recording();
}

void frmZent::show_text_kind() {
    show_panel(0);
    set_number_captions(TEXT_NUMBER);
    show_sender_controls(true);
    mText1.set_text(u"");
    start_text_message();
}

void frmZent::show_voice_kind(bool with_text) {
    show_panel(1);
    set_number_captions(with_text ? TEXT_NUMBER : VOICE_NUMBER);
    TabStrip2.select(1);
    Picture2[1].set_visible(with_text);
    show_reply_controls(true);
    if (!with_text) return;
    mText2.set_text(u"");
    start_plus_message();
}

void frmZent::show_panel(std::size_t panel) {
    for (std::size_t i = 0; i < Frame1.size(); ++i) Frame1[i].set_visible(i == panel);
}

void frmZent::set_number_captions(platform::TextView caption) {
    ListView1.set_column_caption(RECIPIENT_NUMBER + 1, Text(caption));
    Label2_5.set_caption(Text(caption) + u":");
}

void frmZent::show_sender_controls(bool visible) {
    Label2_0.set_visible(visible);
    Label2_1.set_visible(visible);
    txtUserName.set_visible(visible);
    txtCallback.set_visible(visible);
}

void frmZent::show_reply_controls(bool visible) {
    Check2.set_visible(visible);
    Combo4.set_visible(visible);
    Label3_4.set_visible(visible);
    Label3_5.set_visible(visible);
    Command4.set_visible(visible);
}

void frmZent::TabStrip2_Click() {
    for (platform::Frame& panel : TPIC) panel.hide();
    TPIC[static_cast<std::size_t>(TabStrip2.selected() - 1)].show();
    stop_hidden_recording();
}

void frmZent::Toolbar1_ButtonClick(int index) {
    if (index >= FIRST_KIND_BUTTON && index <= LAST_KIND_BUTTON) {
        TabStrip1.select(index - 1);
    } else if (index == RESULTS_BUTTON) {
        KTSMS_LINK(service::PAGE_RESULTS);
    } else if (index == INBOX_BUTTON) {
        KTSMS_LINK(service::PAGE_INBOX);
    } else if (index == CHARGES_BUTTON) {
        KTSMS_LINK(service::PAGE_CHARGES);
    }
}

void frmZent::STBar1_PanelClick(int panel) {
    if (status_bar_button_ != platform::MouseButton::left) return;
    if (panel == 1) {
        state_.session.gLoggedIn ? cmdLogOut_Click() : cmdLogin_Click();
    } else if (panel == 2 && state_.session.gLoggedIn) {
        KTSMS_LINK(service::PAGE_MEMBER_DATA);
    } else if (panel == 3 && state_.session.gLoggedIn) {
        KTSMS_LINK(service::PAGE_INBOX);
    } else if (panel == 4) {
        mnuAbout_Click();
    }
}

void frmZent::mnuAbout_Click() {
    service::frmAbout about(platform_);
    about.show_modal();
}

void frmZent::DRAFT_RESET_IF_NO_KIND() {
    for (int button = FIRST_KIND_BUTTON; button <= LAST_KIND_BUTTON; ++button) {
        if (Toolbar1.button(button).pressed) return;
    }
    TabStrip1.select(TEXT_MESSAGE);
    mText1.set_text(u"");
    mText2.set_text(u"");
    subjectText.set_text(u"");
}

void frmZent::Command3_Click() {
    if (!core::ask(platform_.desktop, u"모든 내용을 삭제하고 새로 작성하시겠습니까?", {},
                   platform::BoxIcon::question, platform::BoxAnswer::no)) {
        return;
    }
    start_text_message();
    start_plus_message();
    ttsText.set_text(u"");
    ttsText_Change();
    ListView1.clear();
    // FAXFileSize1 keeps the old list's size until the next document is added or deleted.
    FAX1.clear();
    TTSFileTxt.set_text(u"");
    subjectText.set_text(u"");
    RECIPIENT_COUNT_CAPTION();
}

void frmZent::Command5_Click() {
    platform_.desktop.message_box(
        {.text = u"폰디라 메시지 발송 등록 시 여러사용자의 발송부하를 방지하기위해 100건씩 나누어 등록되므로 "
                 u"발송이 지연될 수 "
                 u"있습니다.\r\n너무 많은 메시지를 보내실 경우 1,000~2,000건씩 나누어 등록하시기 바랍니다.",
         .icon = platform::BoxIcon::information,
         .title = u"주의사항"});
}

}  // namespace compose
