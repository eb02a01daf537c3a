#pragma once

#include "compose/main_doors.h"
#include "core/app_state.h"
#include "core/settings.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"
#include "platform/controls/sound_recorder.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

#include <array>
#include <deque>

namespace compose {

/// Sub-items of a row of `frmZent::ListView1`.
inline constexpr int RECIPIENT_NAME = 1;
inline constexpr int RECIPIENT_NUMBER = 2;
inline constexpr int RECIPIENT_STATUS = 3;
inline constexpr int RECIPIENT_TITLE = 4;

/// Stands for a recipient without a name.
inline constexpr platform::TextView NO_NAME = u"이름없음";

/// The tabs of `frmZent::TabStrip1`.
enum MessageKind { TEXT_MESSAGE = 1, TEXT_PLUS = 2, VOICE_MESSAGE = 3, FAX_MESSAGE = 4 };

/// The buttons of `frmZent::Toolbar1` behind those of the kinds.
enum PageButton { RESULTS_BUTTON = 7, INBOX_BUTTON = 8, CHARGES_BUTTON = 9 };

/// The most bytes of one text message, in cp949.
inline constexpr std::size_t TEXT_LIMIT = 80;
/// The most bytes of a text to be spoken.
inline constexpr std::size_t TTS_LIMIT = 1000;

/// The main window: one draft at a time, and the draft is these controls. Sending reads them at the moment it
/// runs.
///
/// Its handlers stand by subject: start and stop in main_form_start, session in main_form_session, kinds in
/// main_form_kinds, text entry in main_form_text, saving a text in main_form_my_save, the voice's sources in
/// main_form_voice, fax documents in main_form_fax, recipients in main_form_recipients, schedule and reply in
/// main_form_schedule.
class frmZent : public platform::Form {
  public:
    frmZent(platform::Platform& platform, core::AppState& state, MainDoors doors);

    // Kinds, toolbar, status bar.
    platform::ToolBar Toolbar1{*this,
                               u"Toolbar1",
                               {{},
                                {.caption = u"문자메시지", .in_group = true},
                                {.caption = u"문자플러스", .in_group = true},
                                {.caption = u"음성메시지", .in_group = true},
                                {.caption = u"팩스메시지", .in_group = true},
                                {},
                                {.caption = u"발송결과"},
                                {.caption = u"팩스수신"},
                                {.caption = u"요금조회"}}};
    platform::TabStrip TabStrip1{
        *this, u"TabStrip1", {u"문자메시지", u"문자플러스", u"음성메시지", u"팩스메시지"}};
    platform::StatusBar STBar1{*this, u"STBar1", 4};
    platform::Image TOPLogo{*this, u"TOPLogo"};
    platform::PictureBox Picture1{*this, u"Picture1"};
    platform::PictureBox Picture3{*this, u"Picture3"};
    platform::PictureBox Picture4{*this, u"Picture4"};
    platform::PictureBox Picture5{*this, u"Picture5"};
    platform::PictureBox Picture6{*this, u"Picture6"};
    std::array<platform::Frame, 3> Frame1{platform::Frame{*this, u"Frame1_0"},
                                          platform::Frame{*this, u"Frame1_1"},
                                          platform::Frame{*this, u"Frame1_2"}};

    // Title and sender.
    platform::Label Label3_0{*this, u"Label3_0", u"발송제목:"};
    platform::TextBox subjectText{*this, u"subjectText"};
    platform::Label Label3_1{*this, u"Label3_1", u"발송내역 확인 및 문자 내 모음함에 필요한 제목입니다."};
    platform::Label Label2_0{*this, u"Label2_0", u"보낸사람:"};
    platform::ComboBox txtUserName{*this, u"txtUserName", platform::ComboBox::Style::editable};
    platform::Label Label2_1{*this, u"Label2_1", u"회신번호:"};
    platform::ComboBox txtCallback{*this, u"txtCallback", platform::ComboBox::Style::editable};

    // Text message.
    std::array<platform::PictureBox, 2> Picture2{platform::PictureBox{*this, u"Picture2_0"},
                                                 platform::PictureBox{*this, u"Picture2_1"}};
    platform::TextBox mText1{*this, u"mText1"};
    platform::Label mHLen1{*this, u"mHLen1", u"0Bytes"};
    platform::Label mHLen3{*this, u"mHLen3", u"장문"};
    platform::CheckBox Check1{*this, u"Check1", u"개별메시지"};
    platform::ComboBox Combo3{*this, u"Combo3"};
    platform::Label Label1_4{*this, u"Label1_4"};
    /// The emoticons; Index counts down from 27, as they stand on the screen.
    std::deque<platform::CommandButton> mBttn1;
    platform::CommandButton MyMsgBttn{*this, u"MyMsgBttn", u"내 모음함"};
    platform::CommandButton MySave{*this, u"MySave", u"내 모음함에 저장"};

    // Text with voice, and voice.
    platform::TextBox mText2{*this, u"mText2"};
    platform::Label mHLen2{*this, u"mHLen2", u"0/80Byte"};
    platform::TabStrip TabStrip2{*this, u"TabStrip2", {u"TTS", u"마이크녹음", u"파일첨부"}};
    std::array<platform::Frame, 3> TPIC{platform::Frame{*this, u"TPIC_0"}, platform::Frame{*this, u"TPIC_1"},
                                        platform::Frame{*this, u"TPIC_2"}};
    platform::TextBox ttsText{*this, u"ttsText"};
    platform::Label TTSHLen{*this, u"TTSHLen", u"0/1000Byte"};
    platform::Label Label1_0{*this, u"Label1_0"};
    platform::SoundRecorder RFK1;
    platform::Image TTSPic{*this, u"TTSPic"};
    platform::CommandButton TTSBttn0{*this, u"TTSBttn0", u"파일로 저장..."};
    platform::Label Label1_1{*this, u"Label1_1"};
    platform::Label Label3_3{*this, u"Label3_3", u"음성파일:"};
    platform::TextBox TTSFileTxt{*this, u"TTSFileTxt"};
    platform::CommandButton TTSBttn1{*this, u"TTSBttn1", u"찾아보기..."};
    platform::CommandButton TTSBttn2{*this, u"TTSBttn2", u"삭제"};
    platform::CommandButton TTSBttn3{*this, u"TTSBttn3", u"미리듣기"};
    platform::CommandButton TTSBttn4{*this, u"TTSBttn4", u"안내문"};
    platform::Label Label1_2{*this, u"Label1_2"};
    platform::CheckBox Check2{*this, u"Check2", u"답변받기"};
    platform::Label Label3_5{*this, u"Label3_5", u"답변 개수:"};
    platform::ComboBox Combo4{*this, u"Combo4"};
    platform::CommandButton Command4{*this, u"Command4", u"답변받기 설명"};
    platform::Label Label3_4{*this, u"Label3_4"};

    // Fax.
    platform::Label Label3_2{*this, u"Label3_2", u"보낼문서:"};
    platform::ListView FAX1{*this, u"FAX1", {{.caption = u"보낼문서"}}};
    platform::CommandButton FAXBttn1{*this, u"FAXBttn1", u"찾아보기..."};
    platform::CommandButton FAXBttn2{*this, u"FAXBttn2", u"삭제"};
    platform::Label FAXFileSize1{*this, u"FAXFileSize1"};
    platform::Label Label1_3{*this, u"Label1_3"};

    // Recipients.
    std::array<platform::TextBox, 2> HText1{platform::TextBox{*this, u"HText1_0"},
                                            platform::TextBox{*this, u"HText1_1"}};
    platform::Label Label2_5{*this, u"Label2_5"};
    platform::CommandButton HBttn1{*this, u"HBttn1", u"추가"};
    platform::CommandButton HBttn2{*this, u"HBttn2", u"삭제"};
    platform::CommandButton Command7{*this, u"Command7", u"명함DB 불러오기..."};
    platform::ListView ListView1{*this,
                                 u"ListView1",
                                 {{.caption = u"선택"},
                                  {.caption = u"이름"},
                                  {.caption = u"문자보낼번호"},
                                  {.caption = u"상태"},
                                  {.caption = u"직위"}},
                                 true};
    platform::ProgressBar PBar1{*this, u"PBar1"};
    platform::Label Label4{*this, u"Label4", u"전체> 대상>"};

    // Schedule.
    platform::OptionButton Option1{*this, u"Option1", u"즉시전송"};
    platform::OptionButton Option2{*this, u"Option2", u"예약전송(권장)"};
    platform::Label Label2_2{*this, u"Label2_2", u"발송예약 시간:"};
    platform::DatePicker DTP1{*this, u"DTP1"};
    platform::ComboBox Combo1{*this, u"Combo1"};
    platform::ComboBox Combo2{*this, u"Combo2"};
    platform::Label Label2_3{*this, u"Label2_3", u"시           분"};
    platform::ComboBox Combo6{*this, u"Combo6"};
    platform::CommandButton Command6{*this, u"Command6", u"설정"};
    /// Asks for sound files and documents.
    platform::CommonDialog Cmd1;
    /// Scratch values of the schedule check.
    std::array<platform::DatePicker, 2> DT1;

    platform::CommandButton Command1{*this, u"Command1", u"보내기"};
    platform::CommandButton Command3{*this, u"Command3", u"새로작성"};
    platform::CommandButton Command2{*this, u"Command2", u"종료"};
    platform::CommandButton Command5{*this, u"Command5", u"주의사항"};

    // Menus.
    platform::Menu mnufile{*this, u"mnufile", u"파일(&F)"};
    platform::Menu cmdLogin{*this, u"cmdLogin", u"로그인 하기(&L)..."};
    platform::Menu cmdLogOut{*this, u"cmdLogOut", u"로그아웃 하기(&O)"};
    platform::Menu mnuAutoLogin{*this, u"mnuAutoLogin", u"자동 로그인(&A)"};
    platform::Menu cmdGoPondira{*this, u"cmdGoPondira", u"KT Pondira 홈페이지 연결(&H)..."};
    platform::Menu cmdRegister{*this, u"cmdRegister", u"KT Pondira 신규가입(&N)..."};
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
    platform::Menu mnuUpDate{*this, u"mnuUpDate", u"업데이트 확인(&U)..."};
    platform::Menu mnuStartUpdate{*this, u"mnuStartUpdate", u"시작할 때 마다 업데이트 확인"};
    platform::Menu mnuAbout{*this, u"mnuAbout", u"Cardvale 폰디라 정보(&A)..."};
    platform::Menu mnuSubPopup{*this, u"mnuSubPopup", u"작업메뉴"};
    platform::Menu mnusubpopup1{*this, u"mnusubpopup1", u"명함DB 불러오기(&M)..."};
    platform::Menu mnusubpopup7{*this, u"mnusubpopup7", u"전체선택(&A)"};
    platform::Menu mnusubpopup4{*this, u"mnusubpopup4", u"선택(&S)"};
    platform::Menu mnusubpopup5{*this, u"mnusubpopup5", u"선택취소(&C)"};
    platform::Menu mnusubpopup9{*this, u"mnusubpopup9", u"삭제(&D)"};

    /// Polls for what the card manager hands over.
    platform::Timer Timer1;
    /// One shot after the first activation. Its tag is set by a hand-over that logs in by itself.
    platform::Timer Timer2;

    // Session.
    void cmdLogin_Click();
    void cmdLogOut_Click();
    void AUTO_LOGIN_START();
    void SET_LOGIN_BUTTONS(bool logged_in);
    /// Shows a service::ServicePage; who is not logged in logs in first or sees none.
    void KTSMS_LINK(int index);

    // Text entry, for everyone who writes the fields.
    void mText1_Change();
    void mText2_Change();
    void ttsText_Change();
    /// Fills an empty subject from the text, or with "제목없음".
    void subjectText_CHECK();

    /// A sound file's path as the machine writes it, pasted perhaps, becomes the program's.
    void take_machine_path();

    /// Writes how large the documents of a fax are together.
    void FAX_SIZE_CAPTION();

    /// Writes how many rows there are and how many are checked.
    void RECIPIENT_COUNT_CAPTION();

    /// Moves the schedule shown forward by minutes, with one hour's carry only.
    void RESERVE_TIME_ADD(int minutes);

    /// Removes the folder of fetched update files.
    void TEMP_ALL_DEL();
    /// What is to be done before the installer takes over: nothing.
    void BEFORE_UPDATE_RUN() {}

    /// "[" and the sender's name and "]", as it stands in front of a text.
    platform::Text sender_tag() const;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void connect_start();
    void connect_session();
    void connect_kinds();
    void connect_text();
    void connect_voice();
    void connect_fax();
    void connect_recipients();
    void connect_schedule();
    void disable_without_door();

    // Start and stop.
    void restore_placement();
    void save_placement();
    void Timer2_Timer();
    void first_tick();
    /// False when a check ran and the server was not reached.
    bool update_check_at_start();
    void save_sender_name();
    void save_callback(const core::Setting& setting);

    // Session.
    void read_auto_login_mark();
    void go_on_after_login();
    void apply_login();
    void show_logged_out();
    void cmdRegister_Click();
    void open_in_browser(const core::Setting& link);

    // Kinds.
    void fill_panels();
    void TabStrip1_Click();
    void show_text_kind();
    void show_voice_kind(bool with_text);
    void TabStrip2_Click();
    void Toolbar1_ButtonClick(int index);
    void STBar1_PanelClick(int panel);
    void mnuAbout_Click();
    void Command3_Click();
    void Command5_Click();
    void DRAFT_RESET_IF_NO_KIND();
    void show_panel(std::size_t panel);
    void set_number_captions(platform::TextView caption);
    void show_sender_controls(bool visible);
    void show_reply_controls(bool visible);

    // Text entry.
    /// The sender's name alone, as a new text begins.
    void start_text_message();
    void start_plus_message();
    /// As a paste does, with the clipboard's earlier content lost.
    void insert_text(const platform::Text& text);
    void follow_subject(const platform::Text& body, std::size_t limit);
    void refuse_excess(platform::TextBox& field, platform::PictureBox& box);
    void mText1_KeyPress(platform::KeyPressed& key);
    void mText2_KeyPress();
    void ttsText_KeyPress(platform::KeyPressed& key);
    void refuse_tts_excess();
    void freeze_subject();
    void subjectText_Change();
    void Check1_Click();
    void Combo3_Click();
    void txtUserName_LostFocus();
    void MySave_Click();

    // The voice's sources.
    void RFK1_Replacing(bool& may);
    void stop_hidden_recording();
    void TTSBttn0_Click();
    void TTSBttn1_Click();

    // Fax documents.
    void FAXBttn1_Click();
    void FAXBttn2_Click();

    // Recipients.
    void HText1_KeyPress(std::size_t index, platform::KeyPressed& key);
    void HBttn1_Click();
    void HBttn2_Click();
    void Command7_Click();
    void CHECK_SELECTED_ITEMS(bool checked);
    void ListView1_ItemCheck(std::size_t row);
    void ListView1_ColumnClick(int column);
    void refuse_number(platform::Text text);
    bool point_at_duplicate(const platform::Text& number);
    void add_typed_recipient(const platform::Text& name, const platform::Text& number);

    // Schedule.
    void Option1_Click();
    void Option2_Click();
    void Command6_Click();
    void show_present_time();

    platform::Platform& platform_;
    core::AppState& state_;
    MainDoors doors_;
    platform::MouseButton status_bar_button_ = platform::MouseButton::left;
};

}  // namespace compose
