#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

/// How many columns of a terminal the UTF-8 text takes; a Korean character and other wide ones take two.
std::size_t display_width(std::string_view text);

/// The UTF-8 text, cut to so many columns, with an ellipsis when something is left out.
std::string shortened(std::string_view text, std::size_t columns);

/// The text with its control characters written out, so that a message cannot move the terminal's cursor.
std::string printable(std::string_view text);

/// Rows of cells, printed in aligned columns.
class Table {
  public:
    void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
    void print(std::ostream& out, std::string_view indent = "") const;

  private:
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace standin
