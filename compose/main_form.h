#pragma once

#include "compose/fax_panel.h"
#include "compose/kept_draft_bar.h"
#include "compose/message_kinds.h"
#include "compose/personal/preview.h"
#include "compose/plus_panel.h"
#include "compose/recipient_list.h"
#include "compose/recipients/exchange.h"
#include "compose/recipients/outcomes.h"
#include "compose/reply_box.h"
#include "compose/schedule_panel.h"
#include "compose/sender.h"
#include "compose/session.h"
#include "compose/subject.h"
#include "compose/text_panel.h"
#include "compose/voice_panel.h"
#include "core/app_state.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

#include <functional>

namespace compose {

/// The buttons of `frmZent::Toolbar1`: a separator, the kinds, another separator, the service's pages.
enum ToolbarButton {
    FIRST_KIND_BUTTON = 2,
    RESULTS_BUTTON = FIRST_KIND_BUTTON + MESSAGE_KINDS + 1,
    INBOX_BUTTON,
    CHARGES_BUTTON
};

/// The functions through which the main window opens what stands above it. `app::Application` fills these
/// doors; a control whose door is empty is disabled.
struct MainDoors {
    /// Checks the draft and sends it.
    std::function<void()> send = {};
    /// Picks recipients out of the card database.
    std::function<void()> pick_recipients = {};
    /// Takes in what the card manager hands over in files.
    std::function<void()> NEW_SENDMAN_LOAD = {};
    /// Opens the box of saved texts.
    std::function<void()> saved_texts = {};
    /// Opens the user's guide at the page about the draft's kind.
    std::function<void()> guide = {};
    /// Checks for an update and offers it.
    std::function<void()> update_check = {};
    /// The same while the program starts; false when the server was not reached.
    std::function<bool()> update_check_at_start = {};
    /// Offers the draft of the last run and begins to keep the present one.
    std::function<void()> keep_draft = {};
    /// Keeps the draft a last time.
    std::function<void()> draft_ends = {};
};

/// The main window. There is one draft at a time, and it consists of these controls: sending reads them while
/// it runs.
///
/// It is the frame around its rooms, each of which owns its controls and their handlers. Here are the choice
/// of the kind, what several rooms do together (main_form.cpp), and the window's start and end
/// (main_form_start.cpp).
class frmZent : public platform::Form {
  public:
    frmZent(platform::Platform& platform, core::AppState& state, MainDoors doors);

    platform::ToolBar Toolbar1;
    platform::TabStrip TabStrip1;
    platform::PictureBox Picture1{*this, u"Picture1"};
    platform::PictureBox Picture3{*this, u"Picture3"};
    platform::PictureBox Picture4{*this, u"Picture4"};
    platform::PictureBox Picture5{*this, u"Picture5"};
    platform::PictureBox Picture6{*this, u"Picture6"};
    platform::CommandButton Command1{*this, u"Command1", u"보내기"};
    platform::CommandButton Command3{*this, u"Command3", u"새로작성"};
    platform::CommandButton Command2{*this, u"Command2", u"종료"};
    platform::CommandButton Command5{*this, u"Command5", u"주의사항"};

    platform::Menu mnufile{*this, u"mnufile", u"파일(&F)"};
    platform::Menu mnuSetup{*this, u"mnuSetup", u"설정(&S)..."};
    platform::Menu mmuEnd{*this, u"mmuEnd", u"종료(&X)"};
    platform::Menu mnuSend{*this, u"mnuSend", u"메시지발송(&B)"};
    platform::Menu sendmenu1_0{*this, u"sendmenu1_0", u"문자 메시지(&S)"};
    platform::Menu sendmenu1_1{*this, u"sendmenu1_1", u"문자 플러스(&P)"};
    platform::Menu sendmenu1_2{*this, u"sendmenu1_2", u"음성 메시지(&D)"};
    platform::Menu sendmenu1_3{*this, u"sendmenu1_3", u"팩스 메시지(&F)"};
    platform::Menu opt5{*this, u"opt5", u"조회(&S)"};
    platform::Menu cmdPonResult{*this, u"cmdPonResult", u"발송결과(&C)..."};
    platform::Menu cmdUserCharge{*this, u"cmdUserCharge", u"요금조회(&M)..."};
    platform::Menu mnuInBox{*this, u"mnuInBox", u"수신하기(&R)..."};
    platform::Menu cmdUserInfo2{*this, u"cmdUserInfo2", u"가입자 정보 변경(&M)..."};
    platform::Menu mnuHelp{*this, u"mnuHelp", u"도움말(&H)"};
    platform::Menu mnuGuide{*this, u"mnuGuide", u"사용 설명서(&G)"};
    platform::Menu mnuUpDate{*this, u"mnuUpDate", u"업데이트 확인(&U)..."};
    platform::Menu mnuStartUpdate{*this, u"mnuStartUpdate", u"시작할 때 마다 업데이트 확인"};
    platform::Menu mnuAbout{*this, u"mnuAbout", u"Cardvale 폰디라 정보(&A)..."};

    /// Asks for sound files and documents.
    platform::CommonDialog Cmd1;
    /// Polls for what the card manager hands over.
    platform::Timer Timer1;
    /// Fires once after the first activation. A hand-over that logs in by itself sets its tag.
    platform::Timer Timer2;

    KeptDraftBar kept_draft;
    Subject subject;
    Sender sender;
    TextPanel text;
    VoicePanel voice;
    PlusPanel plus;
    FaxPanel fax;
    RecipientList recipients;
    RecipientExchange recipient_exchange;
    RecipientOutcomes recipient_outcomes;
    PersonalPreview personal;
    SchedulePanel schedule;
    ReplyBox reply;
    Session session;

    /// Chooses the kind's tab, also when it is chosen already: its text begins anew.
    void choose(MessageKind kind) { TabStrip1.select(static_cast<int>(kind)); }

    /// Gives the focus to where the user goes on writing: the kind's text, or what chooses its content.
    void focus_content();

    /// Fills an empty subject from the text message, or with NO_SUBJECT.
    void subjectText_CHECK();

    /// Takes a saved text as the text message and its title as the subject; in the other kinds the title
    /// alone.
    void apply_saved_text(const platform::Text& text, const platform::Text& title);

    /// Called before the installer takes over; nothing needs to be done.
    void BEFORE_UPDATE_RUN() {}

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override;

  private:
    void connect();
    void disable_without_door();

    void show_kind();
    void show_panel(Panel panel);
    void start_text(MessageKind kind);
    void open_by_button(int index);
    void start_anew();
    void show_caution();
    void DRAFT_RESET_IF_NO_KIND();

    // Start and stop.
    void restore_placement();
    void save_placement();
    void first_tick();
    void start_work();
    /// Returns false when a check ran and the server was not reached.
    bool update_check_at_start();

    platform::Platform& platform_;
    core::AppState& state_;
    MainDoors doors_;
    bool kind_chosen_ = false;
};

/// The kind that the window shows. Everything that depends on the kind asks this function.
const KindOfMessage& kind_of(const frmZent& form);

/// What the draft is made of: the kind's own content, or the source of the voice that the user has chosen.
Content content_of(const frmZent& form);

}  // namespace compose
