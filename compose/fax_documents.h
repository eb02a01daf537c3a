#pragma once

#include "platform/text/text.h"

#include <cstddef>

namespace compose {

/// The most documents that one fax takes.
inline constexpr std::size_t DOCUMENT_LIMIT = 5;

/// Whether the service can fax the file, by the ending of its name.
bool is_fax_document(platform::TextView path);

/// Number of the picture for the document's type, 1 to 10; 10 stands for every ending without a picture of
/// its own.
int FAX_FILE_NUMBER(platform::TextView path);

/// The size in the form "1,024KB": whole KB, at least one.
platform::Text size_in_kb(std::size_t bytes);

}  // namespace compose
