#pragma once

#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"

namespace compose {

/// The sending's title. It follows the text that is written until it stands: its tag is "END" then.
class Subject {
  public:
    explicit Subject(platform::Form& form);

    platform::Label Label3_0;
    platform::TextBox subjectText;
    platform::Label Label3_1;

    /// Takes the text's beginning as the subject unless that stands; `limit` counts characters.
    void follow(const platform::Text& body, std::size_t limit = platform::Text::npos);

    /// A subject that is there stands from now on.
    void freeze();

    // While texts are written by the program they must not become the subject.
    void stand() { subjectText.set_tag(u"END"); }
    void follow_again() { subjectText.set_tag(u""); }

    /// Fills an empty subject with the beginning of the text, or with "제목없음".
    void fill_empty(const platform::Text& body);

    /// The length of a subject that a text gives, in characters.
    static constexpr std::size_t LENGTH = 15;

  private:
    void subject_changed();
};

}  // namespace compose
