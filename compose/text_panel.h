#pragma once

#include "compose/characters/recent.h"
#include "compose/room.h"
#include "compose/sender.h"
#include "compose/subject.h"
#include "core/byte_gauge.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/panels.h"
#include "platform/error.h"
#include "platform/ports/platform.h"

#include <array>
#include <deque>

namespace compose {

/// The panel of the text message. Above 80 bytes of cp949 it asks whether the text is to go in pieces: the
/// field's tag is "LONG" after a yes.
class TextPanel : Room {
  public:
    TextPanel(platform::Form& form, platform::Platform& platform, Subject& subject, Sender& sender);

    platform::Frame Frame1{form_, u"Frame1_0"};
    platform::PictureBox Picture2{form_, u"Picture2_0"};
    platform::TextBox mText1{form_, u"mText1"};
    platform::Label mHLen1{form_, u"mHLen1", u"0Bytes"};
    platform::Label mHLen3{form_, u"mHLen3", u"장문"};
    core::ByteGauge gauge{form_, u"mFill1", u"mNote1"};
    platform::CheckBox Check1{form_, u"Check1", u"개별메시지"};
    platform::ComboBox Combo3{form_, u"Combo3"};
    platform::Label Label1_4;
    /// The emoticons, numbered downwards from 27 in the order of the screen.
    std::deque<platform::CommandButton> mBttn1;
    RecentCharacters recent;
    platform::CommandButton MyMsgBttn{form_, u"MyMsgBttn", u"내 모음함"};
    platform::CommandButton MySave{form_, u"MySave", u"내 모음함에 저장"};

    void mText1_Change();

    /// Begins a new text with the sender's name alone.
    void start();
    /// The same, unless the user has written a text.
    void start_if_empty();

    /// Puts the sender's new name where the old one stands.
    void rename_sender(const platform::Text& before, const platform::Text& now);

    /// The text without the sender's name, trimmed.
    platform::Text body() const;

    /// Makes a saved text the message. Asks first when it is too long.
    void apply(platform::Text text);

    /// Shows a kept text whole, without a question. `agreed` says that it may be long; otherwise the next
    /// edit asks.
    void show_kept(const platform::Text& text, bool agreed);

  private:
    void refuse_excess();
    void mText1_KeyPress(platform::KeyPressed& key);
    void switch_personal();
    /// Inserts by way of the clipboard and so overwrites its content.
    void insert(const platform::Text& text);
    void save();
    void show_not_saved(const platform::RuntimeError& error);

    platform::Platform& platform_;
    Subject& subject_;
    Sender& sender_;
    /// Whether the text is a long saved one, applied after a yes and not edited since.
    bool applied_long_ = false;
};

}  // namespace compose
