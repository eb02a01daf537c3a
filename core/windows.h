#pragma once

#include "platform/controls/form.h"
#include "platform/error.h"
#include "platform/ports/desktop.h"

namespace core {

/// The placement of the given size in the middle of the screen, in twips.
platform::Placement centred(const platform::Screen& screen, int width, int height);

/// Centres a form on the screen unless it is minimised or maximised.
void CENTER_FORM(const platform::Desktop& desktop, platform::Form& form);

/// The box that a handler shows for an error of its own: number and description.
void show_error(platform::Desktop& desktop, const platform::RuntimeError& error, platform::BoxIcon icon);

/// A refusal of what the user entered: an exclamation mark and an OK button.
void warn(platform::Desktop& desktop, platform::Text text, platform::Text title = {});

/// Whether the user said yes.
bool ask(platform::Desktop& desktop, platform::Text text, platform::Text title, platform::BoxIcon icon,
         platform::BoxAnswer default_answer = platform::BoxAnswer::yes);

/// The hourglass for as long as this object lives. The pointer is a state and no count: an exchange inside
/// another ends both.
class BusyPointer {
  public:
    explicit BusyPointer(platform::Desktop& desktop) : desktop_(desktop) {
        desktop_.set_pointer(platform::Pointer::hourglass);
    }
    ~BusyPointer() { desktop_.set_pointer(platform::Pointer::normal); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    platform::Desktop& desktop_;
};

}  // namespace core
