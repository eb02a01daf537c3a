#include "tests/parts/carrier_client.h"

#include <algorithm>
#include <array>

namespace {

using CarrierOperations = tests::CarrierTest;
using tests::CarrierLibrary;
using tests::Given;
using tests::Int;

TEST_F(CarrierOperations, AcceptOnlyTheHolderOfTheAccount) {
    {
        CarrierLibrary library;
        EXPECT_EQ(bind(library), 2) << "no carrier.ini, no accounts";
    }
    configure();
    CarrierLibrary library;
    Int type = -1;
    const auto money_status = [&] {
        return library.money_status(Given("demo"), Given(""), Given(""), Given(""), nullptr, &type, nullptr,
                                    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                    nullptr);
    };
    EXPECT_EQ(bind(library, "demo", "Demo1234"), 2);
    EXPECT_EQ(bind(library, "nobody", "demo1234"), 2);
    EXPECT_EQ(bind(library, "", ""), 2);
    EXPECT_EQ(submit(library), 2) << "not bound yet";
    EXPECT_EQ(money_status(), 2);
    EXPECT_EQ(type, -1);
    EXPECT_EQ(bind(library), 1);
    EXPECT_EQ(submit(library), 1);
    EXPECT_EQ(money_status(), 1);
    EXPECT_EQ(library.unbind(Given("demo"), Given("wrong")), 2);
    EXPECT_EQ(library.unbind(Given("demo"), Given("demo1234")), 1);
    EXPECT_EQ(submit(library), 2) << "bound no longer";
    EXPECT_EQ(library.unbind(nullptr, nullptr), 2);

    EXPECT_EQ(ledger("SELECT DISTINCT note FROM argument WHERE kind = 'password' ORDER BY note"),
              (Rows{"does not match", "matches", "unknown user"}));
    EXPECT_EQ(ledger("SELECT count(*) FROM argument WHERE text LIKE '%1234%' OR bytes LIKE '%1234%'"),
              Rows{"0"})
        << "passwords stay out of the ledger";
    EXPECT_EQ(ledger("SELECT result FROM registration ORDER BY id"), (Rows{"2", "1", "2"}));
}

TEST_F(CarrierOperations, RefuseMoreThanTheLimitsAndMissingAttachments) {
    configure("[limits]\nrecipients=3\nattachments=2\n");
    std::filesystem::create_directories("drive_c/Temp/내모음");
    std::ofstream("drive_c/Temp/TMP.wav");
    std::ofstream("drive_c/Temp/내모음/A.wav");
    std::string absolute = "z:" + (folder.path() / "drive_c/Temp/TMP.wav").string() + ";";
    std::replace(absolute.begin(), absolute.end(), '/', '\\');
    CarrierLibrary library;
    ASSERT_EQ(bind(library), 1);

    struct Case {
        Int recipients;
        std::string dest_addr;
        Int attachments;
        std::string attach_file;
        Int result;
    };
    const std::vector<Case> cases = {
        {3, "a:1;b:2;c:3;", 0, "", 1},
        {4, "a:1;b:2;c:3;d:4;", 0, "", 8},
        {1, "a:1;b:2;c:3;d:4;", 0, "", 8},
        {4, "a:1;", 0, "", 8},
        {1, "a:1;", 1, "c:\\temp\\tmp.wav;", 1},
        {1, "a:1;", 1, "C:\\Temp\\TMP.wav;", 1},
        {1, "a:1;", 2, "c:\\temp\\tmp.wav;c:\\temp\\\xB3\xBB\xB8\xF0\xC0\xBD\\a.wav;", 1},
        {1, "a:1;", 1, absolute, 1},
        {1, "a:1;", 3, "c:\\temp\\tmp.wav;c:\\temp\\tmp.wav;c:\\temp\\tmp.wav;", 9},
        {1, "a:1;", 2, "c:\\temp\\tmp.wav;c:\\temp\\no.wav;", 16},
        {1, "a:1;", 1, "c:\\temp;", 16},
        {1, "a:1;", 1, "c:\\temp\\tmp.wav\\x;", 16},
        {1, "a:1;", 1, "d:\\temp\\tmp.wav;", 16},
        {1, "a:1;", 1, "", 16},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(library.submit_2(3, 2, 1, Given("demo"), Given(""), Given(""), Given(""), 1, Given(""),
                                   Given(""), Given(""), 0, each.recipients, Given(each.dest_addr), Given(""),
                                   Given(""), each.attachments, Given(each.attach_file)),
                  each.result)
            << each.dest_addr << " with " << each.attach_file;
    }
}

TEST_F(CarrierOperations, FailAtTheCallsThatWereOrdered) {
    configure("[failures]\nfn_x_bind@1=5\nfn_x_submit@2=-7\nfn_x_submit@3-4=6\nfn_x_user_info@*=3\n");
    CarrierLibrary library;
    EXPECT_EQ(bind(library), 5);
    EXPECT_EQ(submit(library), 2) << "an ordered failure does not bind";
    EXPECT_EQ(bind(library), 1);
    std::vector<Int> results;
    for (int i = 0; i < 4; ++i) {
        results.push_back(submit(library));
    }
    EXPECT_EQ(results, (std::vector<Int>{-7, 6, 6, 1}));

    std::array<char, 41> buffer{};
    const auto user_info = [&] {
        return library.user_info(Given("demo"), Given(""), Given(""), Given(""), buffer.data(), buffer.data(),
                                 buffer.data(), buffer.data(), nullptr);
    };
    EXPECT_EQ(user_info(), 3);
    EXPECT_EQ(buffer[0], '\0') << "a failed call writes nothing";

    configure();
    EXPECT_EQ(bind(library), 1) << "a bind takes up the new orders";
    EXPECT_EQ(user_info(), 1);
    EXPECT_EQ(ledger("SELECT nth, result FROM call WHERE operation = 'fn_x_user_info'"),
              (Rows{"1|3", "2|1"}));
}

TEST_F(CarrierOperations, RefuseToRunOnAnOrderTheyDoNotUnderstand) {
    for (const char* line :
         {"fn_x_sumbit@1=5", "fn_x_submit=5", "fn_x_submit@x=5", "fn_x_submit@1=", "nonsense"}) {
        configure(std::string("[failures]\n") + line + "\n");
        CarrierLibrary library;
        EXPECT_EQ(bind(library), 153) << line;
    }
}

}  // namespace
