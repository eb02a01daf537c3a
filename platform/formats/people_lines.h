#pragma once

#include "platform/formats/column_captions.h"
#include "platform/text/text.h"

#include <vector>

namespace platform {

/// A person as a line of a table, a text file or a chat names him.
struct ListedPerson {
    Text name;
    /// The telephone numbers of the line, the likeliest first: their digits alone, as they are dialled inside
    /// the country.
    std::vector<Text> numbers;
    Text title;
};

/// Reads people out of lines that some other program has written. Name and number stand in either order, set
/// apart by tabs, semicolons, commas or blanks, perhaps in quotation marks. A first line with the captions of
/// columns tells which of them hold names, titles and numbers.
class PeopleLines {
  public:
    enum class Line { person, blank, captions, not_understood };

    /// Reads the next line; `person` is set for one that names a person.
    Line read(TextView line, ListedPerson& person);

  private:
    bool read_captions(const std::vector<Text>& fields);
    bool knows(Column column) const;
    Text field_under(Column column, const std::vector<Text>& fields) const;
    std::vector<Text> take_numbers_out_of(std::vector<Text>& fields) const;

    /// What the captions have told.
    std::vector<Column> columns_;
    bool begun_ = false;
};

}  // namespace platform
