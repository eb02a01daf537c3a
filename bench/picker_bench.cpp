// Opens the picker over 50,000 cards in 200 folders and measures until its list is full and the folders are
// counted; the alternative is a bare read of the same tables with libmdb, with every column bound. Then opens
// it again with the file unchanged. Also measures the longest time without a painting: while the picker
// opens, while all its cards become recipients, and while 100,000 recipients are handed over.

#include "addressbook/frmSendMan.h"
#include "app/desktop_machine.h"
#include "bench/bare_jet_read.h"
#include "bench/ratio.h"
#include "core/app_state.h"
#include "handover/handover.h"
#include "machine/qt/desktop/qt_clock.h"
#include "machine/qt/look/desk_style.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int RUNS = 5;

double milliseconds_since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// An application directory with the cards and the program that reads them.
class Folder {
  public:
    Folder() {
        char name[] = "/tmp/picker_bench.XXXXXX";
        if (mkdtemp(name) == nullptr) throw std::runtime_error("no folder");
        path_ = name;
        fs::copy_file(BIG_CARDS, cards());
        // A file written just now may still be changing, so it would be read again.
        fs::last_write_time(cards(), fs::file_time_type::clock::now() - std::chrono::hours(1));
        fs::copy_file(CARD_READER, path_ / "card-reader");
    }
    ~Folder() { fs::remove_all(path_); }

    std::string path() const { return path_; }
    std::string cards() const { return path_ / "CardvaleDB.vdb"; }

  private:
    fs::path path_;
};

double read_barely(const std::string& cards) {
    const auto start = Clock::now();
    if (bench::bare_jet_read(cards) < 50'000) throw std::runtime_error("the bare read fails");
    return milliseconds_since(start);
}

/// A window that always has something to paint, like a film.
class Busy : public QWidget {
  public:
    Busy() {
        constexpr int OFTEN = 5;
        QObject::connect(&timer_, &QTimer::timeout, this, [this] { update(); });
        timer_.start(OFTEN);
        show();
    }

    /// The longest time without a painting since the last call.
    double longest_stretch() {
        const double longest = std::max(longest_, milliseconds_since(painted_));
        longest_ = 0;
        painted_ = Clock::now();
        return longest;
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        longest_ = std::max(longest_, milliseconds_since(painted_));
        painted_ = Clock::now();
    }

  private:
    QTimer timer_;
    Clock::time_point painted_ = Clock::now();
    double longest_ = 0;
};

/// The shortest time of all runs, which other programs disturbed least; of the times without a painting the
/// longest of any run.
struct Times {
    double bare = 1e9, first = 1e9, second = 1e9;
    double opening_stretch = 0, sorting_stretch = 0, picking_stretch = 0, hand_over_stretch = 0;
};

/// The program with its main window shown and without a login form.
struct Program {
    Program(const Folder& folder, platform::Clock& clock) : paths(folder.path()), machine(paths, clock) {
        main.set_tag(u"OK");
        main.show();
    }
    ~Program() { main.unload(); }

    machine::posix::Paths paths;
    app::DesktopMachine machine;
    core::AppState state;
    compose::frmZent main{machine.platform, state, {}};
};

/// Opens the picker, runs `act` and closes it. Returns how long it took to open.
template <class Act>
double open_picker(Program& program, Act act) {
    addressbook::frmSendMan picker(program.machine.platform, program.state, program.main.recipients,
                                   program.main.Timer1);
    double opened = 0;
    QTimer look;
    const auto start = Clock::now();
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (picker.ListView2.row_count() == 0 || picker.PBar1.visible()) return;
        opened = milliseconds_since(start);
        look.stop();
        act(picker);
        picker.unload();
    });
    look.start(0);
    picker.ShowEnter(u"문자메시지");
    return opened;
}

void hand_over(Program& program) {
    std::string lines;
    for (int line = 0; line < 100'000; ++line)
        lines += "0\tname\t02" + std::to_string(10'000'000 + line) + "\ttitle\r\n";
    platform::Files& files = program.machine.files;
    files.make_folder(files.application_directory() + u"\\temp");
    files.write(files.application_directory() + u"\\temp\\tmpman.txt", lines);
    files.write(files.application_directory() + u"\\temp\\isend.text", "1");
    handover::HandOver(program.machine.platform, program.state, program.main).NEW_SENDMAN_LOAD();
    QCoreApplication::processEvents();
}

void keep_least(double& least, double time) { least = std::min(least, time); }
void keep_longest(double& longest, double time) { longest = std::max(longest, time); }

Times measure(const Folder& folder) {
    machine::qt::QtClock clock;
    Busy busy;
    Times times;
    for (int run = 0; run < RUNS; ++run) {
        Program program(folder, clock);
        keep_least(times.bare, read_barely(folder.cards()));
        busy.longest_stretch();
        keep_least(times.first, open_picker(program, [&](addressbook::frmSendMan& picker) {
                       keep_longest(times.opening_stretch, busy.longest_stretch());
                       if (picker.ListView2.row_count() < 49'000)
                           throw std::logic_error("the list is not full");
                   }));
        keep_least(times.second, open_picker(program, [&](addressbook::frmSendMan& picker) {
                       busy.longest_stretch();
                       picker.ListView2.ColumnClick.raise(2);
                       QCoreApplication::processEvents();
                       keep_longest(times.sorting_stretch, busy.longest_stretch());
                       picker.ListView2.select_all();
                       busy.longest_stretch();
                       picker.SENDLIST_ADD();
                       QCoreApplication::processEvents();
                       keep_longest(times.picking_stretch, busy.longest_stretch());
                   }));
        const std::size_t picked = program.main.recipients.ListView1.row_count();
        busy.longest_stretch();
        hand_over(program);
        keep_longest(times.hand_over_stretch, busy.longest_stretch());
        if (program.main.recipients.ListView1.row_count() < 100'000 + picked)
            throw std::logic_error("recipients are missing");
    }
    return times;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication qt(argc, argv);
    QApplication::setStyle(new machine::qt::DeskStyle);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        const Folder folder;
        const Times times = measure(folder);
        std::printf("bare read %.1f ms, first opening %.1f ms, second %.1f ms\n", times.bare, times.first,
                    times.second);
        const bool quick = bench::print_ratio_at_most("picker", times.first / times.bare,
                                                      "opening the picker / bare libmdb read", 3);
        const bool quick_again = bench::print_ratio_at_most("picker again", times.second / times.first,
                                                            "second / first opening", 0.25);
        std::printf(
            "longest without a paint: opening %.1f ms, sorting %.1f ms, picking %.1f ms, hand-over %.1f ms\n",
            times.opening_stretch, times.sorting_stretch, times.picking_stretch, times.hand_over_stretch);
        const double longest = std::max(
            {times.opening_stretch, times.sorting_stretch, times.picking_stretch, times.hand_over_stretch});
        const bool alive = bench::print_ratio_at_most("picker painted", longest / 100,
                                                      "longest time without a paint / 100 ms", 1);
        return quick && quick_again && alive ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "picker_bench: %s\n", error.what());
        return 1;
    }
}
