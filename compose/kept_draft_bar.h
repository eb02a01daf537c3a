#pragma once

#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/panels.h"

namespace compose {

/// A line above the draft that tells of a kept one and offers it, without standing in the way.
class KeptDraftBar : Room {
  public:
    explicit KeptDraftBar(platform::Form& form);

    platform::Frame KeptDraft{form_, u"KeptDraft"};
    platform::Label KeptDraftText{form_, u"KeptDraftText"};
    platform::CommandButton KeptDraftTakeUp{form_, u"KeptDraftTakeUp", u"되살리기"};
    platform::CommandButton KeptDraftClose{form_, u"KeptDraftClose", u"닫기"};

    /// Offers the draft that the text describes.
    void offer(platform::Text text) { show(std::move(text), true); }
    /// Tells something that needs no answer.
    void tell(platform::Text text) { show(std::move(text), false); }
    void close() { KeptDraft.hide(); }

  private:
    void show(platform::Text text, bool with_offer);
};

}  // namespace compose
