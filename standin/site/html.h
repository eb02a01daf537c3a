#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace standin::site {

/// Builds a page. A literal is markup and stays unchanged; everything else is text and is escaped, so that
/// nothing from the ledger can become markup.
class Html {
  public:
    template <std::size_t size>
    Html& operator<<(const char (&markup)[size]) {
        bytes_.append(markup, size - 1);
        return *this;
    }
    Html& operator<<(std::string_view text);
    Html& operator<<(const Html& part);

    const std::string& bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

/// The number with a comma between thousands.
std::string with_commas(std::int64_t number);

}  // namespace standin::site
