#pragma once

#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/ports/platform.h"

#include <deque>
#include <functional>
#include <vector>

namespace compose {

/// The characters that the user has inserted last, in front of all others.
class RecentCharacters : Room {
  public:
    /// `container` is the panel of the text; `insert` puts a character into it.
    RecentCharacters(platform::Form& form, platform::Platform& platform, platform::Control& container,
                     const std::function<void(const platform::Text&)>& insert);

    std::deque<platform::CommandButton> Recent;

    /// Shows those of earlier runs. Not before the window is painted: it reads the settings.
    void load();

    /// Puts the character in front. One that is shown already stays where it is, under the user's hand.
    void add(const platform::Text& character);

  private:
    void show();

    platform::Platform& platform_;
    std::vector<platform::Text> characters_;
    bool loaded_ = false;
};

}  // namespace compose
