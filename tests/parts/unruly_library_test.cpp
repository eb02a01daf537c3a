// What the carrier's library does to itself must not reach the program.

#include "machine/carrier/hosted_carrier_library.h"
#include "platform/error.h"
#include "tests/support/temporary_folder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <thread>

namespace {

using namespace std::chrono_literals;
using machine::carrier::HostedCarrierLibrary;
using std::chrono::steady_clock;
namespace fs = std::filesystem;

/// Whether the submit is answered, and with what.
constexpr std::int32_t UNANSWERED = -1;

struct UnrulyLibrary : testing::Test {
    UnrulyLibrary() { fs::copy_file(UNRULY_LIBRARY, folder.path() / "x_msggate_d.so"); }

    std::int32_t bind() {
        return library.fn_x_bind(1, user_id, password, domain, 1, HostedCarrierLibrary::Notify::six, 0);
    }
    std::int32_t submit(const std::string& order) {
        HostedCarrierLibrary::Submit message;
        message.s_sms_content = order;
        try {
            return library.fn_x_submit(message);
        } catch (const platform::NoAnswer&) {
            return UNANSWERED;
        }
    }

    tests::TemporaryFolder folder;
    int beats = 0;
    std::function<void()> at_beat;
    HostedCarrierLibrary library{CARRIER_HOST, [this] {
                                     ++beats;
                                     if (at_beat) at_beat();
                                 }};
    std::string user_id = "demo", password = "demo1234", domain = "pondira.example";
};

TEST_F(UnrulyLibrary, EndsItsOwnProcessAloneAndTheNextCallStartsAnother) {
    const struct {
        const char* order;
        std::int32_t result;
    } rows[] = {
        {"segv", UNANSWERED},    {"abort", UNANSWERED}, {"exit", UNANSWERED},
        {"throw", UNANSWERED},   {"close", UNANSWERED}, {"child", UNANSWERED},
        {"replace", UNANSWERED}, {"noise", UNANSWERED}, {"fork", 1},
        {"process", 1},          {"core", 1},           {"overrun", UNANSWERED},
#ifndef __SANITIZE_ADDRESS__
        {"memory", UNANSWERED},
#endif
    };
    for (const auto& row : rows) {
        const auto started = steady_clock::now();
        ASSERT_EQ(bind(), 1) << row.order;
        EXPECT_EQ(submit(row.order), row.result) << row.order;
        EXPECT_EQ(library.fn_x_unbind(user_id, password), row.result == 1 ? 1 : 0) << row.order;
        EXPECT_EQ(submit("nothing"), 1) << row.order;
        EXPECT_LT(steady_clock::now() - started, 5s) << row.order;
    }
    EXPECT_EQ(fs::current_path(), folder.path());
    const mode_t mask = ::umask(022);
    ::umask(mask);
    EXPECT_NE(mask, 0777u);
    EXPECT_TRUE(!fs::exists("not_the_socket") || fs::is_empty("not_the_socket"));
}

TEST_F(UnrulyLibrary, ThatEndsBetweenCallsIsStartedAnewForAllButAnUnbind) {
    ASSERT_EQ(submit("late"), 1);
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(library.fn_x_unbind(user_id, password), 0);
    EXPECT_EQ(submit("nothing"), 1);
}

TEST_F(UnrulyLibrary, ThatNeverReturnsIsGivenUpAndLetsNoOtherCallInMeanwhile) {
    std::chrono::milliseconds longest{};
    library.set_patience([&](std::chrono::milliseconds waited) {
        longest = waited;
        return waited < 300ms;
    });
    int refused = 0;
    at_beat = [&] {
        try {
            bind();
        } catch (const platform::RuntimeError& error) {
            refused += error.number() == 5;
        }
    };
    EXPECT_EQ(submit("hang"), UNANSWERED);
    EXPECT_GE(longest, 300ms);
    EXPECT_LT(longest, 2s);
    EXPECT_GE(beats, 2);
    EXPECT_EQ(refused, beats);
    EXPECT_EQ(bind(), 1);
}

TEST_F(UnrulyLibrary, IsNotStartedBeforeTheFirstCallAndNamesAMissingHost) {
    HostedCarrierLibrary homeless((folder.path() / "carrier-host").string());
    try {
        homeless.fn_x_submit({});
        FAIL();
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.number(), 48);
        EXPECT_NE(error.description().find(u"carrier-host"), platform::Text::npos);
    }
}

}  // namespace
