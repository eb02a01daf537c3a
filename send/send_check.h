#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "drafts/draft_keeper.h"
#include "platform/ports/platform.h"

namespace send {

/// What the main window's send button does: checks the draft, asks the user and sends. The first fault ends
/// it with a box, and the focus goes to where the user can mend it.
void check_and_send(platform::Platform& platform, core::AppState& state, compose::frmZent& form,
                    drafts::DraftKeeper& drafts);

/// Whether the draft's schedule lies far enough ahead, with a box when it does not. An immediate message
/// passes.
bool schedule_is_possible(const platform::Platform& platform, compose::frmZent& form);

}  // namespace send
