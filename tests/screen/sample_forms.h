#pragma once

#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"

#include <functional>

namespace tests {

/// A main window with one control of each kind.
class frmSample : public platform::Form {
  public:
    explicit frmSample(platform::Desktop& desktop) : Form(desktop, u"frmSample") {
        Picture2.GotFocus.connect([this] { mText1.set_focus(); });
        Check1.set_tool_tip(u"한 사람씩");
        mText1.set_container(Picture2);
    }

    platform::TabStrip TabStrip1{*this, u"TabStrip1", {u"문자", u"팩스"}};
    platform::PictureBox Picture2{*this, u"Picture2_0"};
    platform::TextBox mText1{*this, u"mText1"};
    platform::Label mHLen1{*this, u"mHLen1", u"0Bytes"};
    platform::Label Label1{*this, u"Label1", u"이름(&N)"};
    platform::TextBox HText1{*this, u"HText1_0"};
    platform::ComboBox txtUserName{*this, u"txtUserName", platform::ComboBox::Style::editable};
    platform::ComboBox Combo3{*this, u"Combo3"};
    platform::CheckBox Check1{*this, u"Check1", u"개별메시지"};
    platform::OptionButton Option1{*this, u"Option1", u"즉시전송"};
    platform::OptionButton Option2{*this, u"Option2", u"예약전송"};
    platform::DatePicker DTP1{*this, u"DTP1"};
    platform::ListView ListView1{
        *this,
        u"ListView1",
        {{.caption = u"선택"}, {.caption = u"이름"}, {.caption = u"번호", .signs = true}},
        true};
    platform::ProgressBar PBar1{*this, u"PBar1"};
    platform::CommandButton Command1{*this, u"Command1", u"보내기(&S)"};
    platform::CommandButton Command2{*this, u"Command2", u"종료"};
    platform::Menu mnuFile{*this, u"mnuFile", u"파일(&F)"};
    platform::Menu mnuAuto{*this, u"mnuAuto", u"자동 로그인(&A)"};
    platform::Menu mnuSubPopup{*this, u"mnuSubPopup", u"작업메뉴"};
    platform::Menu mnuDelete{*this, u"mnuDelete", u"삭제(&D)"};
    platform::ToolBar Toolbar1{
        *this,
        u"Toolbar1",
        {{}, {.caption = u"문자메시지", .in_group = true}, {.caption = u"팩스메시지", .in_group = true}}};
    platform::StatusBar STBar1{*this, u"STBar1", 2};

    int activations = 0, escapes = 0, closes = 0;
    bool stays_open = false;

  protected:
    void Form_Activate() override { ++activations; }
    void Form_Escape() override { ++escapes; }
    void Form_Close() override {
        ++closes;
        if (!stays_open) unload();
    }
};

/// A dialog.
class frmAsk : public platform::Form {
  public:
    explicit frmAsk(platform::Desktop& desktop) : Form(desktop, u"frmAsk") {
        Command1.Click.connect([this] { unload(); });
    }

    platform::TextBox Text1{*this, u"Text1"};
    platform::TextBox Text2{*this, u"Text2"};
    platform::CommandButton Command1{*this, u"Command1", u"확인"};

    std::function<void()> on_activate = [] {};
    std::function<void()> on_escape = [] {};

  protected:
    void Form_Activate() override { on_activate(); }
    void Form_Escape() override { on_escape(); }
};

}  // namespace tests
