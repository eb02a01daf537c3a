#pragma once

#include "platform/text/text.h"

namespace platform {

/// A file that a page hands out upon the user's click.
struct PageFile {
    /// As the page proposes it: any text.
    Text name;
    /// Where it goes, for the handler to fill; an empty path refuses the file.
    Text path;
};

/// How the taking of a file ended.
enum class FileEnd { whole, broken, too_large };

}  // namespace platform
