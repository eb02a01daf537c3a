// Downloads a file of 100 MB with the download control in chunks of 1024 bytes, with a handler on each of its
// events. The alternative is `curl` to the same folder; both run as processes of their own and use one server
// on the loopback device. Also compares the memory with that for a file a tenth as long.

#include "bench/ratio.h"
#include "machine/posix/posix_files.h"
#include "machine/qt/desktop/qt_clock.h"
#include "machine/qt/modules/network/qt_internet.h"
#include "tests/support/http_server.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_platform.h"
#include "update/download.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t MEGABYTE = 1024 * 1024;
constexpr std::size_t LARGE = 100 * MEGABYTE;
constexpr std::size_t SMALL = 10 * MEGABYTE;
constexpr int RUNS = 7;

/// The download as a process of its own. Its arguments are the address and the folder for the file.
int download(int argc, char** argv) {
    QCoreApplication qt(argc, argv);
    machine::posix::PosixFiles files{machine::posix::Paths(argv[2])};
    machine::qt::QtClock clock;
    machine::qt::QtInternet internet(
        {.silence_milliseconds = 60'000, .answer_milliseconds = 600'000, .body_bytes = LARGE});
    tests::TestPlatform doubles;
    platform::Platform machine =
        tests::with(doubles.platform, {.clock = &clock, .files = &files, .internet = &internet});
    update::Download control(machine);
    bool complete = false;
    std::size_t heard = 0;
    const auto listen = [&](auto&&...) { ++heard; };
    control.RecievedBytes.connect(listen);
    control.Percent.connect(listen);
    control.StatusChange.connect(listen);
    control.Rate.connect(listen);
    control.TimeLeft.connect(listen);
    control.DLComplete.connect([&] { complete = true; });
    control.set_url(platform::from_utf8(argv[1]));
    control.set_save_location(u"file");
    control.GetFileInformation();
    control.download();
    return complete && heard > 5 * SMALL / 1024 ? 0 : 1;
}

struct Cost {
    double milliseconds;
    /// The largest resident memory.
    double kilobytes;
};

/// Runs a program to its end; afterwards the folder's file must have the size.
Cost run(std::vector<std::string> arguments, const std::filesystem::path& folder, std::size_t size) {
    std::filesystem::remove(folder / "file");
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = 0;
    rusage usage{};
    if (posix_spawnp(&process, pointers[0], nullptr, nullptr, pointers.data(), environ) != 0 ||
        wait4(process, &status, 0, &usage) != process || status != 0 ||
        std::filesystem::file_size(folder / "file") != size) {
        throw std::runtime_error(arguments[0] + " did not fetch the file");
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {.milliseconds = time.count(), .kilobytes = static_cast<double>(usage.ru_maxrss)};
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool measure() {
    const std::string body(LARGE, 'x');
    tests::HttpServer server([&](tests::HttpClient& client) {
        const std::size_t size = client.request.starts_with("GET /large") ? LARGE : SMALL;
        client.send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(size) + "\r\n\r\n");
        client.send(std::string_view(body).substr(0, size));
    });
    const tests::TemporaryFolder folder;
    const std::string large = platform::to_utf8(server.url(u"/large"));
    const std::string small = platform::to_utf8(server.url(u"/small"));
    const std::string file = folder.path() / "file";

    std::vector<double> ours, curls, ratios, memory;
    for (int round = 0; round < RUNS; ++round) {
        const Cost our = run({"/proc/self/exe", large, folder.path()}, folder.path(), LARGE);
        const Cost curl = run({"curl", "-s", "-o", file, large}, folder.path(), LARGE);
        const Cost tenth = run({"/proc/self/exe", small, folder.path()}, folder.path(), SMALL);
        ours.push_back(our.milliseconds);
        curls.push_back(curl.milliseconds);
        ratios.push_back(our.milliseconds / curl.milliseconds);
        memory.push_back(our.kilobytes / tenth.kilobytes);
    }
    std::printf("100 MB: %.0f ms, curl %.0f ms\n", median(ours), median(curls));
    const bool quick = bench::print_ratio_at_most("download", median(ratios), "ours / curl, 100 MB", 2);
    const bool small_enough =
        bench::print_ratio_at_most("download_memory", median(memory), "100 MB / 10 MB", 1.1);
    return quick && small_enough;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3) return download(argc, argv);
    try {
        return measure() ? 0 : 1;
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "download_bench: %s\n", error.what());
        return 1;
    }
}
