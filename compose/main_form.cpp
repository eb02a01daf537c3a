#include "compose/main_form.h"

#include "core/boxes.h"
#include "service/frmAbout.h"
#include "service/service_pages.h"

#include <algorithm>

namespace compose {

using platform::Text;

namespace {

std::vector<platform::ToolBar::Button> toolbar_buttons() {
    std::vector<platform::ToolBar::Button> buttons{{}};
    for (const KindOfMessage& kind : kinds_of_message())
        buttons.push_back({.caption = Text(kind.caption), .in_group = true});
    buttons.push_back({});
    for (const auto* page : {u"발송결과", u"팩스수신", u"요금조회"}) buttons.push_back({.caption = page});
    return buttons;
}

std::vector<Text> tab_captions() {
    std::vector<Text> captions;
    for (const KindOfMessage& kind : kinds_of_message()) captions.emplace_back(kind.caption);
    return captions;
}

}  // namespace

frmZent::frmZent(platform::Platform& platform, core::AppState& state, MainDoors doors)
    : Form(platform.desktop, u"frmZent"),
      Toolbar1(*this, u"Toolbar1", toolbar_buttons()),
      TabStrip1(*this, u"TabStrip1", tab_captions()),
      Cmd1(platform.desktop),
      Timer1(platform.clock, 500),
      Timer2(platform.clock, 1),
      kept_draft(*this),
      subject(*this),
      sender(*this, platform, state),
      text(*this, platform, subject, sender),
      voice(*this, platform, Cmd1),
      plus(*this, platform.desktop, voice.Frame1, subject, sender),
      fax(*this, platform, Cmd1),
      recipients(*this, platform, state, doors.pick_recipients),
      recipient_exchange(*this, platform, recipients),
      recipient_outcomes(*this, platform, recipients),
      personal(*this, text, recipients),
      schedule(*this, platform),
      reply(*this, platform, voice.Frame1),
      session(*this, platform, state, Timer1),
      platform_(platform),
      state_(state),
      doors_(std::move(doors)) {
    connect();
    disable_without_door();
    // The window is painted before its first tick chooses a kind: until then it shows only the panel of that
    // kind.
    show_panel(Panel::text);
}

void frmZent::connect() {
    TabStrip1.Click.connect([this] { show_kind(); });
    Toolbar1.ButtonClick.connect([this](int index) { open_by_button(index); });
    Command1.Click.connect([this] { voice.RFK1.stop(); });
    if (doors_.send) Command1.Click.connect(doors_.send);
    Command2.Click.connect([this] { unload(); });
    Command3.Click.connect([this] { start_anew(); });
    Command5.Click.connect([this] { show_caution(); });
    if (doors_.saved_texts) {
        text.MyMsgBttn.Click.connect([this] {
            doors_.saved_texts();
            focus_content();
        });
    }

    mnuSetup.Click.connect([this] { schedule.show_settings(); });
    mmuEnd.Click.connect([this] { unload(); });
    if (doors_.guide) mnuGuide.Click.connect(doors_.guide);
    if (doors_.update_check) mnuUpDate.Click.connect(doors_.update_check);
    mnuStartUpdate.Click.connect([this] { mnuStartUpdate.set_checked(!mnuStartUpdate.checked()); });
    mnuAbout.Click.connect([this] { service::frmAbout(platform_).show_modal(); });

    Timer1.Tick.connect([this] {
        if (doors_.NEW_SENDMAN_LOAD) doors_.NEW_SENDMAN_LOAD();
    });
    Timer2.Tick.connect([this] { first_tick(); });

    sender.Renamed.connect([this](const Text& before, const Text& now) {
        if (kind_of(*this).kind == MessageKind::text) text.rename_sender(before, now);
    });
    session.LoggedIn.connect([this] {
        sender.fill_from_account();
        session.show_logged_in();
        subject.fix();
        text.start_if_empty();
        plus.start_if_empty();
        subject.follow_again();
        focus_content();
    });
}

/// Disables every control that would do nothing when pressed.
void frmZent::disable_without_door() {
    text.MyMsgBttn.set_enabled(doors_.saved_texts != nullptr);
    mnuGuide.set_enabled(doors_.guide != nullptr);
    mnuUpDate.set_enabled(doors_.update_check != nullptr);
    // These entries have no action and never had one; the tabs and the toolbar do the same.
    for (platform::Menu* entry : {&sendmenu1_0, &sendmenu1_1, &sendmenu1_2, &sendmenu1_3, &cmdPonResult,
                                  &cmdUserCharge, &mnuInBox, &cmdUserInfo2})
        entry->set_enabled(false);
}

const KindOfMessage& kind_of(const frmZent& form) {
    return kind_of(static_cast<MessageKind>(form.TabStrip1.selected()));
}

Content content_of(const frmZent& form) {
    const KindOfMessage& kind = kind_of(form);
    return kind.panel == Panel::voice ? voice_source_of(form.voice) : kind.contents.front().content;
}

void frmZent::show_kind() {
    const KindOfMessage& kind = kind_of(*this);
    kind_chosen_ = true;
    set_caption(Text(core::APPLICATION_TITLE) + u"[" + Text(kind.caption) + u"]");
    reply.set_visible(false);
    sender.set_visible(false);
    // Otherwise the texts that are written below would become the subject.
    subject.fix();
    Toolbar1.press(FIRST_KIND_BUTTON + TabStrip1.selected() - 1);
    show_panel(kind.panel);
    recipients.set_kind(kind);
    if (kind.panel == Panel::voice) {
        voice.TabStrip2.select(1);
        plus.Picture2.set_visible(kind.with_text);
    }
    reply.set_visible(kind.reply_fields);
    sender.set_visible(kind.sender_fields);
    start_text(kind.kind);
    subject.follow_again();
    voice.stop_hidden_recording();
    // Who goes through the tabs with the arrow keys stays there.
    if (!TabStrip1.has_focus()) focus_content();
}

void frmZent::focus_content() {
    subject.await_text();
    const KindOfMessage& kind = kind_of(*this);
    if (kind.with_text) return plus.mText2.set_focus();
    switch (kind.panel) {
        case Panel::text:
            return text.mText1.set_focus();
        case Panel::voice:
            return voice.focus_source();
        case Panel::fax:
            return fax.FAXBttn1.set_focus();
    }
}

void frmZent::show_panel(Panel panel) {
    text.Frame1.set_visible(panel == Panel::text);
    voice.Frame1.set_visible(panel == Panel::voice);
    fax.Frame1.set_visible(panel == Panel::fax);
    personal.show();
}

/// Entering a kind discards what its text field held, even if that equals a new text.
void frmZent::start_text(MessageKind kind) {
    switch (kind) {
        case MessageKind::text:
            text.mText1.set_text(u"");
            return text.start();
        case MessageKind::plus:
            plus.mText2.set_text(u"");
            return plus.start();
        case MessageKind::voice:
        case MessageKind::fax:
        case MessageKind::end:
            return;
    }
}

void frmZent::Form_Escape() {
    if (std::ranges::any_of(recipients.HText1, &platform::TextBox::has_focus)) recipients.empty_fields();
}

void frmZent::open_by_button(int index) {
    if (index >= FIRST_KIND_BUTTON && index < RESULTS_BUTTON - 1) {
        // Not the chosen kind again: a key pressed by mistake would empty the text.
        const int kind = index - FIRST_KIND_BUTTON + 1;
        if (kind == TabStrip1.selected()) return focus_content();
        TabStrip1.select(kind);
    } else if (index == RESULTS_BUTTON) {
        session.KTSMS_LINK(service::PAGE_RESULTS);
    } else if (index == INBOX_BUTTON) {
        session.KTSMS_LINK(service::PAGE_INBOX);
    } else if (index == CHARGES_BUTTON) {
        session.KTSMS_LINK(service::PAGE_CHARGES);
    }
}

void frmZent::DRAFT_RESET_IF_NO_KIND() {
    if (kind_chosen_) return;
    choose(MessageKind::text);
    text.mText1.set_text(u"");
    plus.mText2.set_text(u"");
    subject.subjectText.set_text(u"");
}

void frmZent::start_anew() {
    if (!core::ask(platform_.desktop, u"모든 내용을 삭제하고 새로 작성하시겠습니까?", {},
                   platform::BoxIcon::question, platform::BoxAnswer::no)) {
        return;
    }
    text.start();
    plus.start();
    voice.ttsText.set_text(u"");
    voice.ttsText_Change();
    recipients.leave_draft();
    recipients.ListView1.clear();
    // FAXFileSize1 keeps the old list's size until the next document is added or deleted.
    fax.FAX1.clear();
    voice.TTSFileTxt.set_text(u"");
    subject.subjectText.set_text(u"");
    recipients.RECIPIENT_COUNT_CAPTION();
    focus_content();
}

void frmZent::show_caution() {
    platform_.desktop.message_box(
        {.text = u"폰디라 메시지 발송 등록 시 여러사용자의 발송부하를 방지하기위해 100건씩 나누어 등록되므로 "
                 u"발송이 지연될 수 "
                 u"있습니다.\r\n너무 많은 메시지를 보내실 경우 1,000~2,000건씩 나누어 등록하시기 바랍니다.",
         .icon = platform::BoxIcon::information,
         .title = u"주의사항"});
}

void frmZent::subjectText_CHECK() {
    subject.fill_empty(kind_of(*this).kind == MessageKind::text ? text.mText1.text() : Text());
}

void frmZent::apply_saved_text(const Text& saved, const Text& title) {
    if (kind_of(*this).kind == MessageKind::text) {
        const bool has_sender = !platform::trim(sender.txtUserName.text()).empty();
        text.apply((has_sender ? sender.sender_tag() : Text()) + platform::right_trim(saved));
    }
    // Deliberately for every kind. Those without a text message take the title alone, as the job's subject.
    subject.fix();
    subject.subjectText.set_text(title);
}

}  // namespace compose
