#pragma once

#include "machine/jet/file/card_file.h"
#include "machine/jet/heartbeat.h"
#include "machine/jet/sql/card_database.h"
#include "machine/posix/paths.h"
#include "platform/error.h"
#include "platform/ports/card_source.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace machine::jet {

/// The card manager's Jet file. The program `card-reader` beside ours reads it once as long as it does not
/// change; statements run on what was read, in memory.
class JetCardSource : public platform::CardSource {
  public:
    /// `keep_alive` is called every few milliseconds while a connection or a statement takes its time.
    explicit JetCardSource(posix::Paths paths, std::function<void()> keep_alive = {},
                           std::chrono::milliseconds longest_reading = std::chrono::seconds(30));

    std::unique_ptr<platform::CardConnection> connect(const platform::Text& connection_string) override;

  private:
    /// What a file gave, or what was wrong with it: neither is read again until the file changes.
    struct Reading {
        FileState file;
        bool settled = false;
        JetHeader header;
        std::shared_ptr<CardDatabase> cards{};
        std::optional<platform::RuntimeError> fault{};
    };

    /// Fills the reading. Raises RuntimeError for what may be better the next time.
    void read(const CardFile& file, Reading& reading);

    posix::Paths paths_;
    std::shared_ptr<Heartbeat> heartbeat_;
    std::chrono::milliseconds longest_reading_;
    std::optional<Reading> last_;
};

}  // namespace machine::jet
