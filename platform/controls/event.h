#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace platform {

/// An event of a control. Its handlers run in the order in which they were connected.
template <class... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;

    void connect(Handler handler) { handlers_.push_back(std::move(handler)); }

    bool connected() const { return !handlers_.empty(); }

    void raise(Args... args) const {
        for (const Handler& handler : handlers_) handler(args...);
    }

  private:
    std::vector<Handler> handlers_;
};

}  // namespace platform
