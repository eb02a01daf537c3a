#include "tests/support/boxes.h"

#include "tests/support/utf8.h"

#include <array>

namespace tests {

std::string described(const platform::MessageBox& box) {
    constexpr std::array icons = {"no icon", "information", "question", "exclamation", "critical"};
    constexpr std::array buttons = {"OK", "Yes No", "Yes No Cancel"};
    constexpr std::array answers = {"OK", "Yes", "No", "Cancel"};
    return utf8(box.text) + "\n[" + utf8(box.title) + "] " + icons.at(static_cast<std::size_t>(box.icon)) +
           ", " + buttons.at(static_cast<std::size_t>(box.buttons)) + ", Enter is " +
           answers.at(static_cast<std::size_t>(box.default_answer));
}

std::string described(const platform::InputBox& box) {
    return utf8(box.prompt) + "\n[" + utf8(box.title) + "] " + utf8(box.default_text);
}

}  // namespace tests
