#pragma once

#include "core/app_state.h"
#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/web_browser.h"
#include "platform/ports/platform.h"

namespace service {

/// A page of the service. The caller loads the form, navigates its browser, sets the caption and shows it.
/// The shared state knows the form while it is loaded.
class frmWeb : public platform::Form {
  public:
    frmWeb(platform::Platform& platform, core::AppState& state);
    ~frmWeb() override;

    platform::WebBrowser WebBrowser{*this, u"WebBrowser"};
    /// How the download of a file from the page goes.
    platform::Label Label1{*this, u"Label1"};
    platform::CommandButton Command1{*this, u"Command1", u"닫기(&C)"};

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { unload(); }

  private:
    void save_offered_file(platform::PageFile& file);
    void show_received(std::int64_t bytes, std::int64_t size);
    void show_end(platform::FileEnd end);

    platform::Platform& platform_;
    core::AppState& state_;
    platform::CommonDialog Cmd1;
    /// The file that is being downloaded, by its name on the disk.
    platform::Text file_name_;
};

}  // namespace service
