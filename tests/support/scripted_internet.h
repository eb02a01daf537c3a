#pragma once

#include "platform/ports/internet.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tests {

/// The answer of a scripted server.
struct ScriptedAnswer {
    /// The header without the empty line at its end; nothing for a server that cannot be reached.
    std::optional<std::string> header;
    std::string body;
    /// Whether the connection breaks where the body ends.
    bool breaks = false;

    static ScriptedAnswer ok(std::string body) {
        std::string header = "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size());
        return {.header = std::move(header), .body = std::move(body)};
    }
};

/// A network with a few addresses. Nothing else can be reached.
class ScriptedInternet : public platform::Internet {
  public:
    std::unique_ptr<platform::Transfer> make_transfer() override;

    std::map<platform::Text, ScriptedAnswer> answers;
    /// Every address asked for, in order.
    std::vector<platform::Text> asked;
    /// Runs during a wait for a header or for bytes.
    std::function<void()> while_waiting = [] {};

  private:
    class ScriptedTransfer;
};

}  // namespace tests
