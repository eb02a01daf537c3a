#pragma once

#include "core/app_state.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/web_browser.h"
#include "platform/ports/platform.h"

namespace update {

/// Shows what is new and asks whether to update. The answer is in `gDialogConfirmed`; a yes leaves a note for
/// the installer.
class frmUpdateStart : public platform::Form {
  public:
    frmUpdateStart(platform::Platform& platform, core::AppState& state);

    platform::Label Label1{*this, u"Label1", u"최신버전으로 업데이트 하시겠습니까?"};
    platform::WebBrowser WebBrowser{*this, u"WebBrowser"};
    platform::CommandButton Command1{*this, u"Command1", u"업데이트 시작(&S)"};
    platform::CommandButton Command2{*this, u"Command2", u"닫기(&C)"};
    /// The note; its tag names the file.
    platform::TextBox RichTextBox1;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Escape() override { put_off(); }

  private:
    void start_update();
    void put_off();
    platform::Text note_path() const;

    platform::Platform& platform_;
    core::AppState& state_;
};

}  // namespace update
