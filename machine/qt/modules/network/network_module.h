#pragma once

#include "machine/qt/modules/load_module.h"
#include "platform/ports/internet.h"

#include <cstddef>
#include <memory>

namespace machine::qt {

/// What one answer may take in time and size, so that no server can keep the user waiting or fill the memory
/// or the disk.
struct TransferLimits {
    /// The longest wait for the whole header, and then for each next byte of the body. A proxy or a cellular
    /// link may take some seconds. The time bounds the header's size as well: Qt collects the whole header
    /// before it judges its length.
    int silence_milliseconds = 10'000;
    /// The longest time for the whole answer; otherwise a byte a second would be waited for all day. The
    /// slowest line brings the longest list of an update, some 30 KB, in ten seconds.
    int answer_milliseconds = 60'000;
    /// Four times the longest list. Each of a list's hundred entries is searched for from its start, and the
    /// window must not freeze meanwhile.
    std::size_t body_bytes = std::size_t{128} * 1024;
};

/// Fetches by HTTP for the update check.
class NetworkModule {
  public:
    static constexpr ModuleInfo MODULE{"네트워크", "zent_network", "cardvale-messaging"};

    virtual ~NetworkModule() = default;
    virtual std::unique_ptr<platform::Internet> make_internet(const TransferLimits& limits) const = 0;
};

}  // namespace machine::qt

Q_DECLARE_INTERFACE(machine::qt::NetworkModule, "zent.NetworkModule/1")
