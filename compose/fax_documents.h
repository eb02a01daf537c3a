#pragma once

#include "platform/text/text.h"

#include <cstddef>

namespace compose {

/// The most documents of one fax.
inline constexpr std::size_t DOCUMENT_LIMIT = 5;

/// Whether the service can fax the file, by the ending of its name.
bool is_fax_document(platform::TextView path);

/// The number of the picture for the document's kind, 1 to 10; 10 stands for every ending without one of its
/// own.
int FAX_FILE_NUMBER(platform::TextView path);

/// "1,024KB" of a number of bytes; whole KB, and never less than one.
platform::Text size_in_kb(std::size_t bytes);

}  // namespace compose
