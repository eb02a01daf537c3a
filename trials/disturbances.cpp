#include "trials/disturbances.h"

#include "trials/moments.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace trials {

namespace {

namespace fs = std::filesystem;

/// Runs it in a process of its own, since it may be killed. Returns what it returned, -1 without its end.
template <class Act>
int in_child(Act act) {
    const pid_t child = ::fork();
    if (child == 0) {
        std::ofstream("returned") << act();
        std::_Exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    int returned = -1;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) std::ifstream("returned") >> returned;
    return returned;
}

/// The program dies, is started again and takes the draft up.
class Killed : public Disturbance {
  public:
    Killed() : Disturbance("killed") {}
    int run(const Job& job, int point) const override {
        const int moments = in_child([&] {
            // The program's end has moments, too.
            {
                Program program;
                program.write(job);
                killer = {.moments = 0, .deadly = point};
                program.send_all();
            }
            return killer.moments;
        });
        if (point > 0 && moments >= 0) std::abort();
        in_child([] {
            Program program;
            program.send_all();
            program.leave_rows();
            return 0;
        });
        return moments;
    }
    bool explains(const Job& job, const Numbers& unconfirmed) const override {
        return unconfirmed.size() <= (job.personal ? 1 : 100);
    }
};

/// The carrier's library goes wrong in a call, before its work or behind it.
class LibraryGoesWrong : public Disturbance {
  public:
    explicit LibraryGoesWrong(const std::string& misdeed)
        : Disturbance("library: " + misdeed), misdeed_(misdeed) {}
    int run(const Job& job, int point) const override {
        fs::rename("x_msggate_d.so", "carrier.so");
        fs::copy_file(UNRULY_CARRIER, "x_msggate_d.so");
        std::ofstream("misdeed") << (point + 1) / 2 << (point % 2 == 1 ? " before " : " behind ") << misdeed_;
        in_child([&] {
            Program program;
            program.write(job);
            program.send_all();
            program.leave_rows();
            return 0;
        });
        int calls = 0;
        std::ifstream("calls") >> calls;
        return 2 * calls;
    }
    bool explains(const Job&, const Numbers& unconfirmed) const override {
        std::string addresses;
        std::getline(std::ifstream("spoilt_submit"), addresses);
        return unconfirmed == numbers_of(addresses);
    }

  private:
    std::string misdeed_;
};

/// The carrier refuses a session.
class SessionRefused : public Disturbance {
  public:
    SessionRefused() : Disturbance("session refused") {}
    int run(const Job& job, int point) const override {
        std::ofstream("carrier.ini", std::ios::app) << "[failures]\nfn_x_bind@" << point << "=5\n";
        return in_child([&] {
            Program program;
            program.write(job);
            program.send_all();
            program.leave_rows();
            return program.host.binds;
        });
    }
};

/// The user presses the stop button in a pause.
class Stopped : public Disturbance {
  public:
    Stopped() : Disturbance("stopped") {}
    int run(const Job& job, int point) const override {
        return in_child([&] {
            Program program;
            program.write(job);
            program.stop_at_pause(static_cast<std::size_t>(point));
            program.send_all();
            program.leave_rows();
            return static_cast<int>(program.clock.pauses.size());
        });
    }
};

}  // namespace

std::vector<std::unique_ptr<Disturbance>> disturbances() {
    std::vector<std::unique_ptr<Disturbance>> all;
    all.push_back(std::make_unique<Killed>());
    for (const char* misdeed : {"abort", "exit", "hang"})
        all.push_back(std::make_unique<LibraryGoesWrong>(misdeed));
    all.push_back(std::make_unique<SessionRefused>());
    all.push_back(std::make_unique<Stopped>());
    return all;
}

}  // namespace trials
