#pragma once

#include "standin/site/page.h"

#include <memory>

namespace standin::site {

/// Serves the pages over HTTP, on the loopback device only.
class Server {
  public:
    explicit Server(Sources sources);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// Binds the port, any free one for 0, and returns it. Raises std::runtime_error when that fails.
    int bind(int port);
    /// Answers until the process ends.
    void run();

  private:
    struct Http;
    Sources sources_;
    std::unique_ptr<Http> http_;
};

}  // namespace standin::site
