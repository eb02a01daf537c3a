#pragma once

#include "machine/posix/file_descriptor.h"

#include <chrono>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace machine::jet {

/// The program that reads a Jet file with a library that a broken file can crash, hang or mislead. It runs as
/// long as this object lives at most.
class ReaderProcess {
  public:
    /// Starts `program` with the open file as its standard input. Raises RuntimeError when it does not start.
    ReaderProcess(const std::string& program, int file);
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;
    ~ReaderProcess();

    enum class News { bytes, nothing, end };
    /// Waits for what the program writes, but no longer than this; `bytes` stay until the next call.
    News wait(std::chrono::milliseconds longest, std::string_view& bytes);

  private:
    posix::FileDescriptor output_;
    pid_t id_ = -1;
    std::string chunk_;
};

}  // namespace machine::jet
