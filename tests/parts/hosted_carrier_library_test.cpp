#include "machine/carrier/hosted_carrier_library.h"

#include "machine/carrier/frame_socket.h"
#include "machine/posix/process.h"
#include "platform/error.h"
#include "tests/parts/carrier_client.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace platform;
using machine::carrier::HostedCarrierLibrary;
namespace fs = std::filesystem;

constexpr const char* LIBRARY = "x_msggate_d.so";

TEST(FrameSocket, TakesAnAnswerThatComesWhileTheUserIsAskedWhetherToWait) {
    int ends[2] = {};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends), 0);
    const std::string_view frame("\2\0\0\0ok", 6);
    machine::carrier::WipedBytes received;
    const auto ask = [&] {
        EXPECT_EQ(write(ends[1], frame.data(), frame.size()), 6);
        return false;
    };
    EXPECT_TRUE(machine::carrier::receive_frame(ends[0], received, ask));
    EXPECT_EQ(machine::carrier::payload_of(received), "ok");
    EXPECT_FALSE(machine::carrier::receive_frame(ends[0], received, [] { return false; }));
    for (const int end : ends) close(end);
}

/// The product's side of the library, with the stand-in's library in the current directory.
class HostedCarrierLibraryTest : public tests::CarrierTest {
  protected:
    std::int32_t bind() {
        return library.fn_x_bind(1, user_id, password, domain, 1, HostedCarrierLibrary::Notify::six, 0);
    }
    std::int32_t user_info() {
        return library.fn_x_user_info(user_id, domain, number, address, info_number, info_user, info_sender,
                                      info_callback);
    }
    /// The error that a call of each export raises.
    std::vector<RuntimeError> errors_of_all() {
        HostedCarrierLibrary::MoneyStatus status;
        HostedCarrierLibrary::Submit submit;
        const std::vector<std::function<void()>> calls = {
            [&] { bind(); },
            [&] { library.fn_x_unbind(user_id, password); },
            [&] { library.fn_x_money_status(user_id, domain, number, address, status); },
            [&] { user_info(); },
            [&] { library.fn_x_submit(submit); },
            [&] { library.fn_x_submit_2(submit); },
        };
        std::vector<RuntimeError> errors;
        for (const auto& call : calls) {
            try {
                call();
            } catch (const RuntimeError& error) {
                errors.push_back(error);
            }
        }
        return errors;
    }
    static std::vector<int> numbers_of(const std::vector<RuntimeError>& errors) {
        std::vector<int> numbers;
        for (const RuntimeError& error : errors) numbers.push_back(error.number());
        return numbers;
    }

    HostedCarrierLibrary library{CARRIER_HOST};
    std::string user_id = "demo";
    std::string password = "demo1234";
    std::string domain = "pondira.example";
    std::string number = "03030xxxxxxx";
    std::string address = "127.0.0.1";
    std::string info_number = std::string(20, ' ');
    std::string info_user = std::string(40, ' ');
    std::string info_sender = std::string(40, ' ');
    std::string info_callback = std::string(20, ' ');
};

TEST_F(HostedCarrierLibraryTest, IsFoundFromWhereverTheProgramWasStarted) {
    fs::copy_file(CARRIER_LIBRARY, folder.path() / LIBRARY, fs::copy_options::overwrite_existing);
    fs::current_path("/");
    machine::posix::enter_application_directory(machine::posix::Paths(folder.path()));
    EXPECT_EQ(fs::current_path(), fs::canonical(folder.path()));
    EXPECT_NO_THROW(bind());
}

TEST_F(HostedCarrierLibraryTest, EveryArgumentArrivesInItsPlace) {
    fs::copy_file(CARRIER_LIBRARY, LIBRARY);
    configure();
    std::ofstream("a.wav");
    ASSERT_EQ(bind(), 1);

    HostedCarrierLibrary::MoneyStatus status;
    EXPECT_EQ(library.fn_x_money_status(user_id, domain, number, address, status), 1);
    EXPECT_EQ(status.service_type, 24);
    EXPECT_EQ(status.service_state, 1);

    HostedCarrierLibrary::Submit submit;
    submit.s_data_type = 11;
    submit.s_data_sub_type = 12;
    submit.user_id = "demo";
    submit.service_domain = "domain";
    submit.service_number = "030312345678";
    submit.client_address = "127.0.0.1";
    submit.submit_sequence = 13;
    submit.s_subject = "\xC7\xD1";
    submit.s_schedule_time = "20261122203900";
    submit.s_callback = "0212345678";
    submit.s_reply_flag = 14;
    submit.s_dest_addr_count = 1;
    submit.s_dest_addr = "kim:0101234;";
    submit.s_sms_content = std::string(100000, 's');
    submit.s_tts_content = "tts";
    submit.s_attach_file_count = 2;
    submit.s_attach_file = "a.wav;A.WAV;";
    EXPECT_EQ(library.fn_x_submit(submit), 1);
    EXPECT_EQ(library.fn_x_submit_2(submit), 1);
    EXPECT_EQ(library.fn_x_unbind(user_id, password), 1);

    const auto arguments = [](const std::string& operation) {
        return ledger(
            ("SELECT coalesce(number, CASE WHEN length(text) > 1000 THEN length(text) ELSE text END) FROM "
             "argument JOIN call ON call.id = call WHERE operation = '" +
             operation + "' ORDER BY position")
                .c_str());
    };
    EXPECT_EQ(arguments("fn_x_bind"),
              (Rows{"1", "demo", "********", "pondira.example", "1", "given", "0", "given", "given"}));
    EXPECT_EQ(arguments("fn_x_unbind"), (Rows{"demo", "********"}));
    Rows money{"demo", "pondira.example", "03030xxxxxxx", "127.0.0.1"};
    money.resize(16, "given");
    EXPECT_EQ(arguments("fn_x_money_status"), money);
    EXPECT_EQ(arguments("fn_x_submit"),
              (Rows{"11", "demo", "domain", "030312345678", "127.0.0.1", "13", "한", "20261122203900",
                    "0212345678", "1", "kim:0101234;", "100000", "2", "a.wav;A.WAV;"}));
    EXPECT_EQ(arguments("fn_x_submit_2"), (Rows{"11", "12", "1", "demo", "domain", "030312345678",
                                                "127.0.0.1", "13", "한", "20261122203900", "0212345678", "14",
                                                "1", "kim:0101234;", "100000", "tts", "2", "a.wav;A.WAV;"}));
    EXPECT_EQ(ledger("SELECT operation, result, user_id, data_type, data_sub_type, submit_sequence, subject,"
                     " schedule_time, callback, reply_flag, dest_addr_count, recipient_count, dest_addr,"
                     " length(sms_content), tts_content, attach_file_count, attach_file"
                     " FROM registration ORDER BY id"),
              (Rows{"fn_x_submit|1|demo|11||13|한|20261122203900|0212345678||1|1|kim:0101234;|100000||2|"
                    "a.wav;A.WAV;",
                    "fn_x_submit_2|1|demo|11|12|13|한|20261122203900|0212345678|14|1|1|kim:0101234;|100000|"
                    "tts|2|a.wav;A.WAV;"}));
}

TEST_F(HostedCarrierLibraryTest, BuffersKeepTheirLengthWhateverTheLibraryWrites) {
    fs::copy_file(CARRIER_LIBRARY, LIBRARY);
    for (const char* faults :
         {"", "[failures]\nno_nul=1\n", "[failures]\noverrun=200\n", "[failures]\nno_nul=1\noverrun=200\n"}) {
        configure(faults);
        ASSERT_EQ(bind(), 1);
        info_user.assign(40, ' ');
        EXPECT_EQ(user_info(), 1);
        EXPECT_EQ(info_user.substr(0, 6), "\xC8\xAB\xB1\xE6\xB5\xBF") << faults;
        EXPECT_EQ(info_number.substr(0, 12), "030312345678") << faults;
        EXPECT_EQ(info_sender.substr(0, 8), "\xB1\xE6\xB5\xBF\xBB\xF3\xBB\xE7") << faults;
        EXPECT_EQ(info_callback.substr(0, 10), "0212345678") << faults;
        for (const std::string* buffer : {&info_user, &info_sender}) EXPECT_EQ(buffer->size(), 40u) << faults;
        for (const std::string* buffer : {&info_number, &info_callback})
            EXPECT_EQ(buffer->size(), 20u) << faults;
        EXPECT_EQ(user_id, "demo");
        EXPECT_EQ(address, "127.0.0.1");
    }
}

TEST_F(HostedCarrierLibraryTest, AFileThatIsNoLibraryGivesTheSameErrorAtEveryCall) {
    EXPECT_EQ(numbers_of(errors_of_all()), std::vector<int>(6, 48)) << "a missing file";
    std::ofstream(LIBRARY) << "no library\n";
    EXPECT_EQ(numbers_of(errors_of_all()), std::vector<int>(6, 48)) << "a text file";
    EXPECT_NE(errors_of_all().at(0).description().find(u"x_msggate_d.so"), Text::npos);
    for (const std::uintmax_t size : {0, 20, 100, 5000, 30000}) {
        fs::remove(LIBRARY);
        fs::copy_file(CARRIER_LIBRARY, LIBRARY);
        ASSERT_GT(fs::file_size(LIBRARY), size);
        fs::resize_file(LIBRARY, size);
        EXPECT_EQ(numbers_of(errors_of_all()), std::vector<int>(6, 48)) << "a copy broken off at " << size;
    }

    fs::remove(LIBRARY);
    fs::copy_file(CARRIER_LIBRARY, LIBRARY);
    configure();
    EXPECT_EQ(bind(), 1) << "the next call finds a library that has come since";
}

TEST_F(HostedCarrierLibraryTest, AMissingExportIsNamed) {
    fs::copy_file(EMPTY_LIBRARY, LIBRARY);
    const std::vector<RuntimeError> errors = errors_of_all();
    EXPECT_EQ(numbers_of(errors), std::vector<int>(6, 453));
    EXPECT_NE(errors.back().description().find(u"fn_x_submit_2"), Text::npos);
}

}  // namespace
