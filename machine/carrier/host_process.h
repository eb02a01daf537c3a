#pragma once

#include "machine/posix/file_descriptor.h"

#include <string>
#include <sys/types.h>

namespace machine::carrier {

/// The running `carrier-host`, with the program's current directory as its own.
class HostProcess {
  public:
    /// Raises RuntimeError 48 when the program does not start.
    explicit HostProcess(const std::string& program);
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;
    /// Lets the host unload the library; kills it when that takes long.
    ~HostProcess();

    /// The connection with it. Sending and receiving return after a slice of time if nothing has moved.
    int socket() const { return socket_.number(); }

    /// Whether the host waits for a call: one that has ended or says something unasked is of no use.
    bool is_ready() const;
    bool has_ended() const;

    /// Ends the host, with whatever the library has started, where it is.
    void kill() const;

  private:
    posix::FileDescriptor socket_;
    pid_t id_ = -1;
};

}  // namespace machine::carrier
