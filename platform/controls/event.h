#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace platform {

/// Something that happens to a control, with the handlers that wait for it, called in the order of
/// connection.
template <class... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;

    void connect(Handler handler) { handlers_.push_back(std::move(handler)); }

    void raise(Args... args) const {
        for (const Handler& handler : handlers_) handler(args...);
    }

  private:
    std::vector<Handler> handlers_;
};

}  // namespace platform
