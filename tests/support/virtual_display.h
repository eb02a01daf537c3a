#pragma once

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace tests {

/// An X server without a monitor for as long as this object lives, unless there is a display already.
class VirtualDisplay {
  public:
    VirtualDisplay() {
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        if (std::getenv("DISPLAY") != nullptr) return;
        int ends[2];
        if (pipe(ends) != 0) throw std::runtime_error("no pipe");
        server_ = fork();
        if (server_ == 0) {
            const std::string end = std::to_string(ends[1]);
            execlp("Xvfb", "Xvfb", "-displayfd", end.c_str(), "-screen", "0", "1280x900x24", nullptr);
            _exit(1);
        }
        close(ends[1]);
        // The server writes its number, with a line end, as soon as it accepts clients.
        std::string number = ":";
        for (char digit = 0; read(ends[0], &digit, 1) == 1 && digit != '\n';) number += digit;
        close(ends[0]);
        if (number == ":") throw std::runtime_error("no display, and Xvfb does not start");
        setenv("DISPLAY", number.c_str(), 1);
    }

    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay() {
        if (server_ <= 0) return;
        kill(server_, SIGTERM);
        waitpid(server_, nullptr, 0);
    }

  private:
    pid_t server_ = 0;
};

}  // namespace tests
