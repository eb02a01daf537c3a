#pragma once

#include "compose/room.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"

namespace compose {

/// Stands for a subject that nobody has written.
inline constexpr platform::TextView NO_SUBJECT = u"제목없음";

/// The subject of a message. It follows the text until it is fixed, which its tag "END" says.
class Subject : Room {
  public:
    explicit Subject(platform::Form& form);

    platform::Label Label3_0{form_, u"Label3_0", u"발송제목:"};
    platform::TextBox subjectText{form_, u"subjectText"};
    platform::Label Label3_1{form_, u"Label3_1", u"발송내역 확인 및 문자 내 모음함에 필요한 제목입니다."};

    /// Makes the beginning of the text the subject unless the subject is fixed; `limit` counts characters.
    void follow(const platform::Text& body, std::size_t limit = platform::Text::npos);

    /// Fixes a subject that is not empty.
    void freeze();
    /// The same when the user leaves the text, unless he was only led there and has written nothing.
    void freeze_behind_text();
    /// The user is led into the text.
    void await_text() { text_awaited_ = true; }

    // Fixes the subject: texts that the program writes must not change it.
    void fix() { subjectText.set_tag(u"END"); }
    void follow_again() { subjectText.set_tag(u""); }

    /// Fills an empty subject with the beginning of the text, or with NO_SUBJECT.
    void fill_empty(const platform::Text& body);

    /// The most characters of a subject that is taken from a text.
    static constexpr std::size_t LENGTH = 15;

  private:
    void subject_changed();

    bool text_awaited_ = false;
};

}  // namespace compose
