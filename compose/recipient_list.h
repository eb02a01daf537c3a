#pragma once

#include "compose/message_kinds.h"
#include "core/app_state.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/ports/platform.h"

#include <array>
#include <functional>

namespace compose {

/// Sub-items of a row of `RecipientList::ListView1`.
inline constexpr int RECIPIENT_NAME = 1;
inline constexpr int RECIPIENT_NUMBER = 2;
inline constexpr int RECIPIENT_STATUS = 3;
inline constexpr int RECIPIENT_TITLE = 4;

/// Stands for a recipient without a name.
inline constexpr platform::TextView NO_NAME = u"이름없음";

/// The recipients: typed, picked from the cards, or handed over by the card manager.
class RecipientList {
  public:
    /// `pick` opens the picker; without one its button and its menu entry are grey.
    RecipientList(platform::Form& form, platform::Platform& platform, core::AppState& state,
                  std::function<void()> pick);

    std::array<platform::TextBox, 2> HText1;
    platform::Label Label2_5;
    platform::CommandButton HBttn1;
    platform::CommandButton HBttn2;
    platform::CommandButton Command7;
    platform::ListView ListView1;
    platform::ProgressBar PBar1;
    platform::Label Label4;

    platform::Menu mnuSubPopup;
    platform::Menu mnusubpopup1;
    platform::Menu mnusubpopup7;
    platform::Menu mnusubpopup4;
    platform::Menu mnusubpopup5;
    platform::Menu mnusubpopup9;

    /// Sets the kind of message whose numbers are typed from now on.
    void set_kind(const KindOfMessage& kind);

    /// Adds a checked row at the end, selected and in view. Returns false and adds nothing when a listed
    /// number begins with this one: it counts as a duplicate. An empty name becomes NO_NAME.
    bool add(platform::Text name, const platform::Text& number, platform::Text title);

    /// Shows how many rows there are and how many are checked.
    void RECIPIENT_COUNT_CAPTION();

  private:
    void connect();
    void HText1_KeyPress(std::size_t index, platform::KeyPressed& key);
    void add_typed();
    void refuse_number(platform::Text text);
    bool point_at_duplicate(const platform::Text& number);
    void remove_selected();
    void pick_recipients();
    void CHECK_SELECTED_ITEMS(bool checked);
    void row_checked(std::size_t row);
    void sort_by(int column);

    platform::Form& form_;
    platform::Platform& platform_;
    core::AppState& state_;
    std::function<void()> pick_;
    const KindOfMessage* kind_;
};

}  // namespace compose
