#pragma once

#include "core/app_state.h"
#include "core/settings.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"

namespace compose {

/// Who sends: the name that opens a text, and the number that its recipient can call back.
class Sender {
  public:
    Sender(platform::Form& form, platform::Platform& platform, core::AppState& state);

    platform::Label Label2_0;
    platform::ComboBox txtUserName;
    platform::Label Label2_1;
    platform::ComboBox txtCallback;

    /// "[" and the name and "]", as it stands in front of a text.
    platform::Text sender_tag() const;

    void set_visible(bool visible);

    /// Offers the account's names and numbers; the saved ones are chosen.
    void fill_from_account();
    /// Offers the account's number where the user has left the field empty.
    void fill_empty_callback();

    /// Writes name and number to the settings where the user has changed them.
    void save();

    /// The user has changed the name: the tag that texts begin with, before and after.
    platform::Event<const platform::Text&, const platform::Text&> Renamed;

  private:
    void name_left();
    void save_name();
    void save_callback(const core::Setting& setting);

    platform::Platform& platform_;
    core::AppState& state_;
};

}  // namespace compose
