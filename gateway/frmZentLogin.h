#pragma once

#include "core/app_state.h"
#include "gateway/login.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

namespace gateway {

/// The manual login. It accepts an account by its kind of service (`gServiceType`), whatever the contract's
/// state: the automatic login looks at the state alone, and both stay so.
class frmZentLogin : public platform::Form {
  public:
    /// `polling` is the main window's timer, off while this form is open.
    frmZentLogin(platform::Platform& platform, core::AppState& state, platform::Timer& polling);

    platform::Image Image1{*this, u"Image1"};
    platform::Label Label1_0{*this, u"Label1_0", u"사용자 아이디"};
    platform::TextBox Text1{*this, u"Text1"};
    platform::Label Label1_1{*this, u"Label1_1", u"비밀번호"};
    platform::TextBox Text2{*this, u"Text2"};
    platform::CheckBox Check1{*this, u"Check1", u"자동로그인"};
    platform::CommandButton Command1{*this, u"Command1", u"로그인"};
    platform::CommandButton Command2{*this, u"Command2", u"취소"};
    platform::Label Label1_2{*this, u"Label1_2",
                             u"사용자 아이디가 없으신 분은 아래\r\n신규회원 가입을 클릭하세요."};
    platform::CommandButton Command3{*this, u"Command3", u"신규회원 가입"};
    platform::CommandButton Command4{*this, u"Command4", u"개인정보 분실"};
    platform::CommandButton Command5{*this, u"Command5", u"서비스 이용안내"};
    platform::PictureBox Picture1{*this, u"Picture1"};
    platform::Animation Animation1{*this, u"Animation1"};
    platform::Timer Timer1;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { unload(); }
    void Form_Close() override;

  private:
    void go_on_at_enter(platform::KeyPressed& key);
    void log_in_at_enter(platform::KeyPressed& key);
    void start_login();
    void show_guidance();
    void log_in();

    void hide_busy_picture();
    void accept();
    void refuse_by_service_type();

    platform::Platform& platform_;
    core::AppState& state_;
    platform::Timer& polling_;
    Login login_;
};

}  // namespace gateway
