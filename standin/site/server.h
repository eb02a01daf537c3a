#pragma once

#include "standin/site/page.h"

#include <memory>

namespace standin::site {

/// The pages over HTTP, on loopback alone.
class Server {
  public:
    explicit Server(Sources sources);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// Takes the port, 0 for a free one, and returns it. std::runtime_error when it cannot be had.
    int bind(int port);
    /// Answers until the process ends.
    void run();

  private:
    struct Http;
    Sources sources_;
    std::unique_ptr<Http> http_;
};

}  // namespace standin::site
