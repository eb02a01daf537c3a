#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace core {

/// The category of the box of saved texts that is always there; the main window saves into it.
inline constexpr platform::TextView DEFAULT_CATEGORY = u"내모음함";

/// Behind the title in the name of a saved text's file.
inline constexpr platform::TextView SAVED_TEXT_EXTENSION = u".txt";

/// The folder of the box below the application directory, with a backslash at its end; its folders are the
/// categories.
platform::Text saved_texts_root(const platform::Platform& platform);

platform::Text category_folder(const platform::Platform& platform, platform::TextView category);
platform::Text saved_text_path(const platform::Platform& platform, platform::TextView category,
                               platform::TextView title);

/// Makes the box and its default category where they are missing.
void make_saved_texts_folders(platform::Platform& platform);

/// Raises RuntimeError 75 for a category that is a link: what lies behind it is not the box's.
void check_category(const platform::Platform& platform, platform::TextView category);

/// Raises a RuntimeError when no text can be saved under the title there, whatever the disk says: for a title
/// that no file may have and a category that is a link.
void check_saved_text_name(const platform::Platform& platform, platform::TextView category,
                           platform::TextView title);

/// Saves the text in code page 949, whole or not at all. Raises a RuntimeError when that fails.
void write_saved_text(platform::Platform& platform, platform::TextView category, platform::TextView title,
                      platform::TextView body);

}  // namespace core
