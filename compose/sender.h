#pragma once

#include "compose/room.h"
#include "core/app_state.h"
#include "core/settings.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/ports/platform.h"

namespace compose {

/// The sender: the name that begins a text, and the number that recipients can call back.
class Sender : Room {
  public:
    Sender(platform::Form& form, platform::Platform& platform, core::AppState& state);

    platform::Label Label2_0{form_, u"Label2_0", u"보낸사람:"};
    platform::ComboBox txtUserName{form_, u"txtUserName", platform::ComboBox::Style::editable};
    platform::Label Label2_1{form_, u"Label2_1", u"회신번호:"};
    platform::ComboBox txtCallback{form_, u"txtCallback", platform::ComboBox::Style::editable};

    /// The name in brackets, as texts begin with it.
    platform::Text sender_tag() const;

    void set_visible(bool visible);

    /// Shows the saved sender, whom a user that never logs in keeps.
    void load();

    /// Offers the account's names and numbers and chooses the saved ones.
    void fill_from_account();
    /// Puts the account's number into the field if the user has left it empty.
    void fill_empty_callback();

    /// Writes name and number to the settings if the user has changed them.
    void save();

    /// Raised when the user has changed the name, with the sender tag before and after.
    platform::Event<const platform::Text&, const platform::Text&> Renamed;

  private:
    void name_left();
    void save_name();
    void save_callback(const core::Setting& setting);

    platform::Platform& platform_;
    core::AppState& state_;
};

}  // namespace compose
