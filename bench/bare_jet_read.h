#pragma once

#include <string>

namespace bench {

/// Reads both card tables with libmdb alone, with every column bound, as the library's own tools do. Returns
/// the number of cards.
int bare_jet_read(const std::string& path);

}  // namespace bench
