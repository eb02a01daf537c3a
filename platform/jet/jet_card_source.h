#pragma once

#include "platform/error.h"
#include "platform/jet/card_database.h"
#include "platform/jet/card_file.h"
#include "platform/jet/heartbeat.h"
#include "platform/ports/card_source.h"
#include "platform/posix/paths.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace platform::jet {

/// The card manager's Jet file. The program `card-reader` beside ours reads it once as long as it does not
/// change; statements run on what was read, in memory.
class JetCardSource : public CardSource {
  public:
    /// `keep_alive` is called every few milliseconds while a connection or a statement takes its time.
    explicit JetCardSource(posix::Paths paths, std::function<void()> keep_alive = {},
                           std::chrono::milliseconds longest_reading = std::chrono::seconds(30));

    std::unique_ptr<CardConnection> connect(const Text& connection_string) override;

  private:
    /// What a file gave, or what was wrong with it: neither is read again until the file changes.
    struct Reading {
        FileState file;
        bool settled = false;
        JetHeader header;
        std::shared_ptr<CardDatabase> cards{};
        std::optional<RuntimeError> fault{};
    };

    /// Fills the reading. Raises RuntimeError for what may be better the next time.
    void read(const CardFile& file, Reading& reading);

    posix::Paths paths_;
    std::shared_ptr<Heartbeat> heartbeat_;
    std::chrono::milliseconds longest_reading_;
    std::optional<Reading> last_;
};

}  // namespace platform::jet
