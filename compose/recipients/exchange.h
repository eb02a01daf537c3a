#pragma once

#include "compose/recipient_list.h"
#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/ports/platform.h"

namespace compose {

/// Recipients that come from other programs and go to them: pasted, dropped, read from a file, copied.
class RecipientExchange : Room {
  public:
    RecipientExchange(platform::Form& form, platform::Platform& platform, RecipientList& recipients);

    platform::Menu mnuPaste{form_, u"mnuPaste", u"붙여넣기(&V)"};
    platform::Menu mnuCopy{form_, u"mnuCopy", u"복사(&T)"};
    platform::Menu mnuFromFile{form_, u"mnuFromFile", u"파일에서 가져오기(&F)..."};

    /// Takes the people of the lines in, and reports what came of it unless it was one who came in.
    void take_in(const platform::Text& lines);

  private:
    void take_in(const platform::Dropped& dropped);
    void take_in_file(const platform::Text& path);
    void take_in_chosen_file();
    void copy_selected();

    platform::Platform& platform_;
    RecipientList& recipients_;
};

}  // namespace compose
