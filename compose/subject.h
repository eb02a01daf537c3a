#pragma once

#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"

namespace compose {

/// The subject of a message. It follows the text until it is fixed, which its tag "END" says.
class Subject {
  public:
    explicit Subject(platform::Form& form);

    platform::Label Label3_0;
    platform::TextBox subjectText;
    platform::Label Label3_1;

    /// Makes the beginning of the text the subject unless the subject is fixed; `limit` counts characters.
    void follow(const platform::Text& body, std::size_t limit = platform::Text::npos);

    /// Fixes a subject that is not empty.
    void freeze();

    // Fixes the subject: texts that the program writes must not change it.
    void fix() { subjectText.set_tag(u"END"); }
    void follow_again() { subjectText.set_tag(u""); }

    /// Fills an empty subject with the beginning of the text, or with "제목없음".
    void fill_empty(const platform::Text& body);

    /// The most characters of a subject that is taken from a text.
    static constexpr std::size_t LENGTH = 15;

  private:
    void subject_changed();
};

}  // namespace compose
