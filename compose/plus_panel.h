#pragma once

#include "compose/room.h"
#include "compose/sender.h"
#include "compose/subject.h"
#include "core/byte_gauge.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/panels.h"
#include "platform/ports/desktop.h"

namespace compose {

/// The text that goes with a voice: at most 80 bytes of cp949, never sent in pieces.
class PlusPanel : Room {
  public:
    /// `container` is the panel of the voice.
    PlusPanel(platform::Form& form, platform::Desktop& desktop, platform::Control& container,
              Subject& subject, const Sender& sender);

    platform::PictureBox Picture2{form_, u"Picture2_1"};
    platform::TextBox mText2{form_, u"mText2"};
    platform::Label mHLen2{form_, u"mHLen2", u"0/80Byte"};
    core::ByteGauge gauge{form_, u"mFill2", u"mNote2"};

    void mText2_Change();

    /// Begins a new text with the sender's name and a line about the voice.
    void start();
    /// The same, unless the user has written a text.
    void start_if_empty();

    /// What the user has written: the text without what every text begins and ends with, trimmed.
    platform::Text body() const;

  private:
    void refuse_excess();

    platform::Desktop& desktop_;
    Subject& subject_;
    const Sender& sender_;
};

}  // namespace compose
