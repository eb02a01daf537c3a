#pragma once

#include "platform/ports/internet.h"

#include <QtPlugin>
#include <memory>

namespace platform::qt {

/// What one answer may take: nobody should wait for a server that plays for time, or find the disk full of
/// what it sends. The longest list of an update has some 30 KB, which the slowest line brings in ten seconds;
/// a proxy or a cellular link may think half a minute before the first byte. The time counts for the answer
/// as a whole and not from byte to byte, or a byte a second would be waited for all day.
struct TransferLimits {
    int header_milliseconds = 30'000;
    int answer_milliseconds = 60'000;
    std::size_t body_bytes = 1024 * 1024;
};

/// The network of the toolkit. Its library brings a dozen others along, so it is a module of its own that
/// only the first transfer loads, and the program starts without.
class NetworkModule {
  public:
    virtual ~NetworkModule() = default;
    virtual std::unique_ptr<Internet> make_internet(const TransferLimits& limits) const = 0;
};

}  // namespace platform::qt

Q_DECLARE_INTERFACE(platform::qt::NetworkModule, "zent.NetworkModule/1")
