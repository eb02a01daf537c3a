#pragma once

#include "platform/ports/internet.h"

#include <QtPlugin>
#include <memory>

namespace machine::qt {

/// What one answer may take: nobody should wait for a server that plays for time, or find the memory or the
/// disk full of what it sends.
struct TransferLimits {
    /// Without the whole header, and afterwards without a byte of the body. A proxy or a cellular link may
    /// think for some seconds. The toolkit keeps a header until its end and only then finds one of megabytes
    /// too large, whose fields it drops: what a header may cost in memory is what the line brings in this
    /// time, and it is given back with the connection.
    int silence_milliseconds = 10'000;
    /// For the answer as a whole, or a byte a second would be waited for all day. The slowest line brings the
    /// longest list of an update, some 30 KB, in ten seconds.
    int answer_milliseconds = 60'000;
    /// Four of the longest lists. Each of a list's hundred entries is looked for from its start, and the
    /// window should not stand meanwhile.
    std::size_t body_bytes = 128 * 1024;
};

/// The network of the toolkit. Its library brings a dozen others along, so it is a module of its own that
/// only the first transfer loads, and the program starts without.
class NetworkModule {
  public:
    virtual ~NetworkModule() = default;
    virtual std::unique_ptr<platform::Internet> make_internet(const TransferLimits& limits) const = 0;
};

}  // namespace machine::qt

Q_DECLARE_INTERFACE(machine::qt::NetworkModule, "zent.NetworkModule/1")
