#pragma once

#include "platform/error.h"
#include "platform/ports/platform.h"
#include "platform/text/calendar.h"
#include "platform/text/text.h"

#include <functional>
#include <optional>
#include <vector>

namespace saved_texts {

/// A saved text as it lies on the disk.
struct SavedText {
    /// The name of its file in the category. The title alone does not tell: names can differ by case, or by
    /// what the title shows as marks.
    platform::Text file;
    platform::Text title;
    platform::Text body;
    platform::LocalTime saved;
};

struct CategoryContent {
    std::vector<SavedText> texts;
    /// Why a text is missing.
    std::optional<platform::RuntimeError> failure;
};

/// The categories, the default one first, the others in the order of their folders. Raises a RuntimeError
/// when the box cannot be read.
std::vector<platform::Text> categories(const platform::Platform& platform);

/// The texts of the category in the order of their files; `between` is called after each. A text that cannot
/// be read hides no other one. Raises a RuntimeError when the category itself cannot be read.
CategoryContent read_category(const platform::Platform& platform, platform::TextView category,
                              const std::function<void()>& between);

/// The text in one line, as the list of texts shows it.
platform::Text in_one_line(platform::TextView body);

/// What the user typed as a title, without the characters that no file name has and without full stops.
platform::Text clean_title(platform::TextView typed);

/// What the user typed as a category's name, trimmed, without the characters that no folder's name has.
platform::Text clean_category(platform::TextView typed);

}  // namespace saved_texts
