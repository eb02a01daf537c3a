#pragma once

#include "platform/controls/form.h"
#include "platform/ports/desktop.h"

namespace core {

/// The placement of the given size in the middle of the screen, in twips.
platform::Placement centred(const platform::Screen& screen, int width, int height);

/// Centres a form on the screen unless it is minimised or maximised.
void CENTER_FORM(const platform::Desktop& desktop, platform::Form& form);

}  // namespace core
