#pragma once

#include "core/app_state.h"
#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"
#include "update/download.h"

#include <memory>

namespace update {

/// Asks for patience and looks whether a file of the installation is out of date. What it found is in
/// `gUpdateServerReached`, `gUpdateAvailable` and the variables beside them. It closes by itself; closing it
/// earlier ends the check.
class frmUpdate : public platform::Form {
  public:
    frmUpdate(platform::Platform& platform, core::AppState& state);

    platform::PictureBox Picture1{*this, u"Picture1"};
    platform::Label Label1_0{*this, u"Label1_0", u"잠시만 기다려 주십시오..."};
    platform::Label Label1_1{*this, u"Label1_1", u"프로그램 업데이트 목록을 확인하는 중입니다."};
    /// The files that the server lists.
    platform::ListView ListView2;
    Download DownLoad1;
    std::unique_ptr<platform::Transfer> Inet1;
    platform::Timer Timer1;

    /// Fetches the server's list. True when a listed file is missing or older than the list says.
    platform::BooleanWord DOWN_UPDATE_INI();
    /// Reads the fetched list into `ListView2`.
    void DOWN_UPDATE_INI_LOAD();
    void TEMP_ALL_DEL();

    /// Whether the user gave the check up.
    bool given_up() const { return given_up_; }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { Form_Close(); }
    void Form_Close() override;

  private:
    void check_and_close();
    void check();
    platform::Text fetched_ini() const;
    void fetch_ini(const platform::Text& address);
    bool is_up_to_date(const platform::ListItem& file, const platform::Text& installed_version) const;

    platform::Platform& platform_;
    core::AppState& state_;
    bool running_ = false;
    bool given_up_ = false;
};

}  // namespace update
