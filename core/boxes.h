#pragma once

#include "platform/error.h"
#include "platform/ports/desktop.h"
#include "platform/text/text.h"

namespace core {

/// The box that a handler shows for an error of its own: number and description.
void show_error(platform::Desktop& desktop, const platform::RuntimeError& error, platform::BoxIcon icon);

/// A refusal of what the user entered: an exclamation mark and an OK button.
void warn(platform::Desktop& desktop, platform::Text text, platform::Text title = {});

/// Whether the user said yes.
bool ask(platform::Desktop& desktop, platform::Text text, platform::Text title, platform::BoxIcon icon,
         platform::BoxAnswer default_answer = platform::BoxAnswer::yes);

}  // namespace core
