#pragma once

#include "compose/recipient_list.h"
#include "platform/formats/people_lines.h"

#include <cstddef>
#include <vector>

namespace compose {

/// Lines that the user has pasted, dropped or taken from a file, on their way into the list of recipients.
/// Each is judged as a typed recipient is.
class PastedRecipients {
  public:
    PastedRecipients(RecipientList& recipients, const platform::Text& text);

    std::size_t line_count() const { return lines_.size(); }
    std::size_t lines_read() const { return lines_read_; }
    bool at_end() const { return lines_read_ == lines_.size(); }
    /// Reads at most so many of the lines that follow.
    void read(std::size_t lines);

    std::size_t added() const { return added_; }
    std::size_t listed_before() const { return listed_before_; }
    std::size_t refused() const { return refused_; }
    std::size_t not_understood() const { return not_understood_; }

    /// The lines that nobody came in with, but for those listed before, and those not read yet; under the
    /// captions of their columns, without which they would be read differently.
    platform::Text left_over() const;

  private:
    void read_line(platform::TextView line);
    void take_in(const platform::ListedPerson& person, platform::TextView line);

    RecipientList& recipients_;
    platform::Text text_;
    std::vector<platform::TextView> lines_;
    std::size_t lines_read_ = 0;
    platform::PeopleLines people_;
    platform::Text captions_;
    platform::Text left_over_;
    std::size_t added_ = 0;
    std::size_t listed_before_ = 0;
    std::size_t refused_ = 0;
    std::size_t not_understood_ = 0;
};

}  // namespace compose
