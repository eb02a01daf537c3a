#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace core {

/// The category of the box of saved texts that is always there; the main window saves into it.
inline constexpr platform::TextView DEFAULT_CATEGORY = u"내모음함";

/// Behind the title in the name of a message's file.
inline constexpr platform::TextView MESSAGE_EXTENSION = u".txt";

/// The folder of the box below the application directory, with a backslash at its end; its folders are the
/// categories.
platform::Text message_box_root(const platform::Platform& platform);

platform::Text category_folder(const platform::Platform& platform, platform::TextView category);
platform::Text message_path(const platform::Platform& platform, platform::TextView category,
                            platform::TextView title);

/// Makes the box and its default category where they are missing.
void make_message_box_folders(platform::Platform& platform);

/// Raises RuntimeError 75 for a category that is a link: what lies behind it is not the box's.
void check_category(const platform::Platform& platform, platform::TextView category);

/// Raises a RuntimeError when no message can be written under the title there, whatever the disk says: for a
/// title that no file may have and a category that is a link.
void check_message_name(const platform::Platform& platform, platform::TextView category,
                        platform::TextView title);

/// Saves the text in code page 949, whole or not at all. Raises a RuntimeError when that fails.
void write_message(platform::Platform& platform, platform::TextView category, platform::TextView title,
                   platform::TextView body);

}  // namespace core
