#pragma once

#include "app/guide.h"
#include "compose/main_form.h"
#include "core/app_state.h"
#include "drafts/draft_keeper.h"
#include "handover/handover.h"
#include "platform/ports/platform.h"

namespace app {

/// The system put together over a machine: the shared variables, the main window, and the doors between the
/// wings.
class Application {
  public:
    explicit Application(platform::Platform& platform);

    /// Shows the main window. Returns false when another instance is running; the process is to end then.
    bool start();

    compose::frmZent& main_form() { return main_; }

  private:
    compose::MainDoors doors();

    platform::Platform& platform_;
    core::AppState state_;
    compose::frmZent main_;
    Guide guide_;
    handover::HandOver hand_over_;
    drafts::DraftKeeper drafts_;
};

}  // namespace app
