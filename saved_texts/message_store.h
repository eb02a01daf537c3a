#pragma once

#include "platform/error.h"
#include "platform/ports/platform.h"
#include "platform/text/calendar.h"
#include "platform/text/text.h"

#include <functional>
#include <optional>
#include <vector>

namespace saved_texts {

/// A saved text, as it lies on the disk.
struct Message {
    platform::Text title;
    platform::Text body;
    platform::LocalTime saved;
};

struct CategoryContent {
    std::vector<Message> messages;
    /// Why a message is missing.
    std::optional<platform::RuntimeError> failure;
};

/// The categories, the default one first, the others in the order of their folders. Raises a RuntimeError
/// when the box cannot be read.
std::vector<platform::Text> categories(const platform::Platform& platform);

/// The messages of the category in the order of their files; `between` is called after each. A message that
/// cannot be read hides no other one. Raises a RuntimeError when the category itself cannot be read.
CategoryContent read_category(const platform::Platform& platform, platform::TextView category,
                              const std::function<void()>& between);

}  // namespace saved_texts
