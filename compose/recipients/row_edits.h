#pragma once

#include "compose/recipient_list.h"
#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/ports/platform.h"

namespace compose {

/// Recipients who are corrected where they stand in the list, under the rules for typed ones. A refused text
/// changes nothing.
class RecipientEdits : Room {
  public:
    RecipientEdits(platform::Form& form, platform::Platform& platform, RecipientList& recipients);

    platform::Menu mnuEditRow{form_, u"mnuEditRow", u"고치기(&E)"};

  private:
    void take(const platform::CellEdit& edit);
    void take_number(std::size_t row, const platform::Text& typed);

    platform::Platform& platform_;
    RecipientList& recipients_;
};

}  // namespace compose
