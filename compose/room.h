#pragma once

#include "platform/controls/form.h"

#include <initializer_list>

namespace compose {

/// A part of the main window: controls of the window's form, what they do, and the state they share.
class Room {
  protected:
    explicit Room(platform::Form& form) : form_(form) {}
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;
    ~Room() = default;

    /// A control is on the screen, and can have the focus, only with the panel that holds it.
    static void put_into(platform::Control& panel, std::initializer_list<platform::Control*> controls) {
        for (platform::Control* control : controls) control->set_container(panel);
    }

    static void show_all(std::initializer_list<platform::Control*> controls, bool visible) {
        for (platform::Control* control : controls) control->set_visible(visible);
    }

    platform::Form& form_;
};

}  // namespace compose
