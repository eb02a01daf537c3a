#pragma once

#include "machine/posix/file_descriptor.h"

#include <chrono>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace machine::jet {

/// The running `card-reader`. It is killed with this object at the latest.
class ReaderProcess {
  public:
    /// Starts `program` with the open file as its standard input. Raises RuntimeError when it does not start.
    ReaderProcess(const std::string& program, int file);
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;
    ~ReaderProcess();

    enum class News { bytes, nothing, end };
    /// Waits for output of the program, at most as long as `longest`. `bytes` are valid until the next call.
    News wait(std::chrono::milliseconds longest, std::string_view& bytes);

  private:
    posix::FileDescriptor output_;
    pid_t id_ = -1;
    std::string chunk_;
};

}  // namespace machine::jet
