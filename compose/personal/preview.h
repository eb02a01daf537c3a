#pragma once

#include "compose/recipient_list.h"
#include "compose/room.h"
#include "compose/text_panel.h"

namespace compose {

/// How a personal message reads for the recipient whose row the user stands on.
class PersonalPreview : Room {
  public:
    PersonalPreview(platform::Form& form, TextPanel& text, RecipientList& recipients);

    /// For whom the preview is, and below it how long the message is.
    platform::Label PreviewHead{form_, u"PreviewHead"};
    platform::TextBox Preview{form_, u"Preview"};
    platform::CommandButton Longest{form_, u"Longest", u"가장 긴 메시지"};

    /// Shows the message for the present row, or hides the preview of a message that is the same for all.
    void show();

  private:
    void show_row(std::size_t row);
    /// Goes to the recipient whose message is the longest.
    void go_to_longest();

    TextPanel& text_;
    RecipientList& recipients_;
};

}  // namespace compose
