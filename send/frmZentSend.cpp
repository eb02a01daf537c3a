#include "send/frmZentSend.h"

#include "core/boxes.h"
#include "core/busy.h"
#include "core/centring.h"
#include "core/personal_text.h"
#include "platform/text/format.h"

namespace send {

using platform::Text;

namespace {

/// The carrier usually answers sooner, and a registration that is given up leaves recipients to be looked up.
constexpr std::chrono::seconds STOP_IS_HEARD_AFTER{10};

}  // namespace

frmZentSend::frmZentSend(platform::Platform& platform, core::AppState& state, compose::frmZent& main_form,
                         drafts::DraftKeeper& drafts)
    : Form(platform.desktop, u"frmZentSend"),
      Timer1(platform.clock, 500),
      RecipientRows(main_form.recipients.ListView1),
      platform_(platform),
      state_(state),
      main_form_(main_form),
      drafts_(drafts),
      gateway_(platform, state) {
    Failed.hide();
    set_caption(u"폰디라 서버에 메시지 등록...");
    Command1.set_tool_tip(u"메시지 등록을 중지합니다.");
    // Until the job begins there is nothing to stop, and a second Enter on the confirmation lands here.
    Command1.set_enabled(false);
    Command1.Click.connect([this] { stop_or_close(); });
    Timer1.Tick.connect([this] { run_routine_of_draft(); });
}

void frmZentSend::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    state_.forms.gSendFormOpen = true;
    main_form_.Timer1.set_enabled(false);
    SendAnimationPath = core::send_film(platform_);
    core::play_film(platform_, Animation1, SendAnimationPath);
    compose::fill_hours_and_minutes({DTP1, Combo1, Combo2});
    take_schedule();
}

void frmZentSend::Form_Activate() {
    state_.forms.gSendFormOpen = true;
    // The window becomes active again when a box over it closes; that must not start a second job.
    if (!Timer1.tag().empty()) return;
    Timer1.set_tag(u"OK");
    Timer1.set_enabled(true);
}

void frmZentSend::Form_Unload() {
    Timer1.set_enabled(false);
    normal_cursor();
    state_.forms.gSendFormOpen = false;
    main_form_.Timer1.set_enabled(true);
}

/// A running job never ends unseen. What is registered cannot be taken back, nor a stop, and Escape is
/// pressed for many reasons: so it asks first.
void frmZentSend::Form_Close() {
    if (!job_started_) return unload();
    if (StopRequested) return;
    const bool agreed =
        platform_.desktop.closes_all() || core::ask(platform_.desktop, u"메시지 등록을 중지하시겠습니까?", {},
                                                    platform::BoxIcon::question, platform::BoxAnswer::no);
    if (agreed) stop_or_close();
}

void frmZentSend::stop_or_close() {
    // Deliberately not the caption that a finished job gives the button: a late click must not close the
    // window under the report.
    if (Command1.caption() == u"닫기(&C)") {
        unload();
        return;
    }
    StopRequested = true;
    Command1.set_enabled(false);
    Label1_1.set_caption(Label1_1.caption() + Text(platform::CRLF) +
                         u"지금 등록 중인 메시지까지만 보내고 중지합니다.");
}

/// Whether the job waits on for the carrier.
bool frmZentSend::waits_for_answer(std::chrono::milliseconds waited) {
    if (waited < STOP_IS_HEARD_AFTER) return true;
    platform_.desktop.yield();
    return !StopRequested;
}

bool frmZentSend::is_personal() const {
    return kind_of(main_form_).kind == compose::MessageKind::text && main_form_.text.Check1.checked();
}

void frmZentSend::run_routine_of_draft() {
    Timer1.set_enabled(false);
    if (is_personal() && core::has_placeholder(main_form_.text.mText1.text())) {
        SEND_PERSONAL();
    } else {
        SEND_BATCHES(caption());
    }
}

}  // namespace send
