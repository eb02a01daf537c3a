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

/// The card manager's Jet file. The separate program `card-reader` reads it, again only after it has changed;
/// statements run on the rows in memory.
class JetCardSource : public platform::CardSource {
  public:
    /// `keep_alive` is called every few milliseconds during a long connection or statement.
    explicit JetCardSource(posix::Paths paths, std::function<void()> keep_alive = {},
                           std::chrono::milliseconds longest_reading = std::chrono::seconds(30));

    std::unique_ptr<platform::CardConnection> connect(const platform::Text& connection_string) override;

  private:
    /// The cards of a file, or what is wrong with it. The file is not read again until it changes.
    struct Reading {
        FileState file;
        bool settled = false;
        JetHeader header;
        std::shared_ptr<CardDatabase> cards{};
        std::optional<platform::RuntimeError> fault{};
    };

    /// Fills the reading. Raises RuntimeError for a failure that may not happen again.
    void read(const CardFile& file, Reading& reading);

    posix::Paths paths_;
    std::shared_ptr<Heartbeat> heartbeat_;
    std::chrono::milliseconds longest_reading_;
    std::optional<Reading> last_;
};

}  // namespace machine::jet
