// The box of saved texts keeps no index: a category is read from its files whenever it is shown. What is
// measured is the refresh of a category in its window, with rows, sorting and painting; the alternative reads
// the same files and does nothing with them. Meanwhile the window must keep painting.

#include "bench/ratio.h"
#include "core/saved_texts_folder.h"
#include "machine/qt/desktop/qt_desktop.h"
#include "platform/text/cp949.h"
#include "saved_texts/frmMyMsgBox.h"
#include "tests/support/files_on_disk.h"
#include "tests/support/test_platform.h"

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <ctime>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
namespace fs = std::filesystem;

constexpr int MESSAGES = 5'000;
constexpr int ROUNDS = 7;

/// Processor time, which other programs disturb least.
double milliseconds_of_work() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Records how long the window waits to be painted.
class WatchedDesktop : public machine::qt::QtDesktop {
  public:
    using QtDesktop::QtDesktop;

    void paint() override {
        // Delivered like a request to paint: not before the desktop lets the windows paint.
        if (!waiting) QCoreApplication::postEvent(&window, new QEvent(QEvent::User));
        waiting = true;
        QtDesktop::paint();
        if (window.delivered) {
            note_gap();
            painted = Clock::now();
            waiting = window.delivered = false;
        }
    }
    void note_gap() { longest_gap = std::max(longest_gap, Milliseconds(Clock::now() - painted)); }

    struct : QObject {
        bool event(QEvent* event) override {
            delivered = true;
            return QObject::event(event);
        }
        bool delivered = false;
    } window;
    bool waiting = false;
    Clock::time_point painted = Clock::now();
    Milliseconds longest_gap{};
};

void write_messages(const fs::path& category) {
    const std::string body = platform::encode_cp949(
        u"안녕하세요. 길동상사입니다.\r\n다음 주 월요일 오후 3시 회의실에서 뵙겠습니다. 문의 02-000-0000");
    for (int i = 0; i < MESSAGES; ++i)
        tests::put(category / ("안내 말씀 " + std::to_string(i) + ".txt"), std::to_string(i) + body);
}

template <class Work>
double shortest(Work work) {
    double best = 1e9;
    for (int round = 0; round < ROUNDS; ++round) {
        const double start = milliseconds_of_work();
        work();
        best = std::min(best, milliseconds_of_work() - start);
    }
    return best;
}

std::size_t read_plainly(const fs::path& category) {
    std::size_t bytes = 0;
    for (const auto& file : fs::directory_iterator(category)) bytes += tests::bytes_of(file.path()).size();
    return bytes;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication qt(argc, argv);
    tests::FilesOnDisk disk;
    tests::TestPlatform machine;
    const auto screens = machine::qt::program_screens();
    WatchedDesktop desktop(screens, disk.files);
    platform::Platform platform = tests::with(machine.platform, {.desktop = &desktop, .files = &disk.files});
    core::make_saved_texts_folders(platform);
    const fs::path category = disk.application / "내모음함/내모음함";
    write_messages(category);

    saved_texts::frmMyMsgBox box(platform, nullptr);
    box.show();
    QApplication::processEvents();

    double longest_pause = 1e9;
    const double ours = shortest([&] {
        desktop.painted = Clock::now();
        desktop.longest_gap = {};
        box.Command10.Click.raise();
        QApplication::processEvents();
        desktop.note_gap();
        longest_pause = std::min(longest_pause, desktop.longest_gap.count());
    });
    std::size_t bytes = 0;
    const double plain = shortest([&] { bytes = read_plainly(category); });
    std::printf("list of %zu messages %.1f ms, plain read of %zu bytes %.1f ms\n", box.ListView2.row_count(),
                ours, bytes, plain);
    const bool quick =
        bench::print_ratio_at_most("saved_texts time", ours / plain, "ours / plain read of the files", 2);
    const bool lives = bench::print_ratio_at_most("saved_texts longest pause", longest_pause / 100,
                                                  "between two paintings / 100 ms", 1);
    box.unload();
    return quick && lives ? 0 : 1;
}
