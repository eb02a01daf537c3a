#include "core/app_state.h"

#include "core/settings.h"

namespace core {

void read_saved_sender(const platform::Platform& platform, AppState& state) {
    state.sender.gSavedSenderName = read_setting(platform, settings::SENDER_NAME);
    state.sender.gSavedCallback = read_setting(platform, settings::SENDER_NUMBER);
}

}  // namespace core
