#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace platform {

/// A person as a line of a table, a text file or a chat names him.
struct ListedPerson {
    Text name;
    /// All telephone numbers of the line, their digits alone, as they are dialled inside the country.
    std::vector<Text> numbers;
    Text title;
};

/// Reads people out of lines that some other program has written. Name and number stand in either order, set
/// apart by tabs, semicolons, commas or blanks, perhaps in quotation marks. A first line with the captions of
/// columns tells which of them hold names and titles.
class PeopleLines {
  public:
    enum class Line {
        person,
        /// Blank, or the captions of the columns.
        nobody,
        not_understood
    };

    /// Reads the next line; `person` is set for one that names a person.
    Line read(TextView line, ListedPerson& person);

  private:
    struct Columns {
        std::optional<std::size_t> name, title;
    };

    bool read_captions(const std::vector<Text>& fields);

    /// What the captions have told.
    Columns columns_;
    bool begun_ = false;
};

}  // namespace platform
