#include "compose/main_form.h"

namespace compose {

using platform::Text;

namespace {

struct Emoticon {
    int index;
    platform::TextView caption;
};

/// Caption and inserted text in one, in the order of the screen. The heart stands twice.
constexpr std::array EMOTICONS = {
    Emoticon{27, u"(*_*)"},      Emoticon{26, u"(=_=;)"},
    Emoticon{25, u"(-.-)Zzz.."}, Emoticon{24, u"(^0^) (~0~)"},
    Emoticon{23, u"■"},          Emoticon{22, u"↓"},
    Emoticon{21, u"<@_@>"},      Emoticon{20, u"!(^_^)!(^_^)V"},
    Emoticon{19, u"♡"},          Emoticon{18, u"▶"},
    Emoticon{17, u"◀"},          Emoticon{16, u"♤"},
    Emoticon{15, u"♠"},          Emoticon{14, u"♣"},
    Emoticon{13, u"♩"},          Emoticon{12, u"♬"},
    Emoticon{11, u"♪"},          Emoticon{10, u"♨"},
    Emoticon{9, u"☎"},           Emoticon{8, u"☏"},
    Emoticon{7, u"◎"},           Emoticon{6, u"●"},
    Emoticon{5, u"○"},           Emoticon{4, u"☞"},
    Emoticon{3, u"☜"},           Emoticon{2, u"☆"},
    Emoticon{1, u"★"},           Emoticon{0, u"♡"},
};

}  // namespace

frmZent::frmZent(platform::Platform& platform, core::AppState& state, MainDoors doors)
    : Form(platform.desktop, u"frmZent"),
      RFK1(*this, u"RFK1", platform.recorder, platform.files),
      Cmd1(platform.desktop),
      Timer1(platform.clock, 500),
      Timer2(platform.clock, 1),
      platform_(platform),
      state_(state),
      doors_(std::move(doors)) {
    for (const Emoticon& emoticon : EMOTICONS) {
        mBttn1.emplace_back(*this, u"mBttn1_" + platform::decimal(emoticon.index), Text(emoticon.caption));
    }
    Label1_4.set_caption(
        u"수신인의 이름 또는 선택필드가 비워있는 경우 발송되지 않으니 반드시 확인하시기 바랍니다.(수신인 "
        u"이름+선택필드+메시지내용이 "
        u"80Byte가 넘으면 입력된 전체 메시지를 80Byte씩 나누어 전송하게 됩니다)");
    Label1_0.set_caption(
        u"* TTS-입력하신 문자를 음성으로 변환하여 전달해 드립니다.\r\n"
        u"* 내용을 입력하세요.(최대 1,000Byte까지 가능합니다.)");
    Label1_1.set_caption(
        u"* 빨간색 녹음버튼을 누르고 녹음하세요.(최대6분)\r\n"
        u"* 녹음이 끝나면 정지버튼을 누르세요.\r\n"
        u"* 재생버튼을 누르고 녹음한 음성을 확인하세요.\r\n"
        u"* 보내기버튼을 누르시면 메시지가 전송됩니다.");
    Label1_2.set_caption(
        u"* 전화기로 녹음한 파일을 첨부하는 기능입니다.\r\n"
        u"* 우측 하단에 있는 폰디라통신 번호(0303-0XXX-XXXX)로 전화를 걸어 1번을 누른 후, 음성녹음을 하고 "
        u"전송을 하세요.\r\n"
        u"* 우측 상단의 [수신하기] 버튼을 눌러 녹음된 파일을 자신의 PC에 다운 받으신후 그 파일을 첨부하면 "
        u"됩니다.\r\n"
        u"* 안내문: 첨부될 음성파일은 iPondira의 '마이크 녹음' 이나, 0303 번호로 녹음한 안내문구를 추가하여 "
        u"수신된 파일만 "
        u"가능합니다.");
    Label1_3.set_caption(
        u"1. 문서형태:doc, xls, ppt, hwp, gul, txt, bmp, gif, jpg\r\n\r\n"
        u"2. 이미지를 A4한장으로 보내려면 파일크기가 544*810을\r\n"
        u"    초과하지 않도록 다음과 같이 처리하십시오.\r\n"
        u"   * 포토샵에서 이미지 크기를 544*세로 810으로 축소.\r\n"
        u"   * 워드, 파워포인트, 한글 등에서 이미지파일을 불러와서 저장후에 파일을 추가함.\r\n\r\n"
        u"3. 보낼 문서는 한번에 5개까지 첨부가 가능합니다.");
    Label3_4.set_caption(u"작성한 메시지에서 지정한 번호를 수신자가 눌러 답변을 받으실 수 있습니다.");
    Command6.set_tool_tip(u"최소 예약전송 시간 설정");

    connect_start();
    connect_session();
    connect_kinds();
    connect_text();
    connect_voice();
    connect_fax();
    connect_recipients();
    connect_schedule();
    disable_without_door();
}

/// A button that leads nowhere would be a false promise; it is grey until somebody has built what it opens.
void frmZent::disable_without_door() {
    Command7.set_enabled(doors_.pick_recipients != nullptr);
    mnusubpopup1.set_enabled(doors_.pick_recipients != nullptr);
    MyMsgBttn.set_enabled(doors_.saved_texts != nullptr);
    mnuUpDate.set_enabled(doors_.update_check != nullptr);
}

Text frmZent::sender_tag() const { return u"[" + platform::trim(txtUserName.text()) + u"]"; }

}  // namespace compose
