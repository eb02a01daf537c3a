#include "platform/qt/screens.h"

#include <stdexcept>

namespace platform::qt {

std::unique_ptr<QWidget> Screens::build(const Text& form) const {
    const auto builder = builders_.find(form);
    if (builder == builders_.end()) throw std::logic_error("no screen for the form " + to_utf8(form));
    return builder->second();
}

Screens program_screens() {
    Screens screens;
    return screens;
}

}  // namespace platform::qt
