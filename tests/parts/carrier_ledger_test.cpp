#include "tests/parts/carrier_client.h"

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using CarrierLedger = CarrierTest;

constexpr const char* hong = "\xC8\xAB\xB1\xE6\xB5\xBF";  // 홍길동
constexpr const char* arguments =
    "SELECT a.name || '=' || CASE WHEN kind = 'number' THEN number ELSE ifnull(text, 'none') END"
    " FROM argument a JOIN call c ON c.id = a.call WHERE c.operation = 'fn_x_submit";

std::array<Int, 11> notified;

Int notify(Int a, Int b, Int c, Int d, Int e, Int f, Int g, Int h, Int i, Int j, Int k) {
    notified = {a, b, c, d, e, f, g, h, i, j, k};
    return 77;
}

TEST_F(CarrierLedger, HoldsEveryArgumentOfEveryOperationInItsPlace) {
    configure();
    CarrierLibrary library;
    std::array<Int, 12> out;
    out.fill(-1);
    std::array<std::string, 4> info = {std::string(20, ' '), std::string(40, ' '), std::string(40, ' '),
                                       std::string(20, ' ')};
    Int ignored = -1;

    EXPECT_EQ(library.bind(1, Given("demo"), Given("demo1234"), Given("pondira.example"), 2, nullptr, 3,
                           notify, &ignored),
              1);
    EXPECT_EQ(library.money_status(Given("demo"), Given("d"), Given("0303"), Given("127.0.0.1"), &out[0],
                                   &out[1], &out[2], &out[3], &out[4], &out[5], &out[6], &out[7], &out[8],
                                   &out[9], nullptr, nullptr),
              1);
    EXPECT_EQ(library.user_info(Given("demo"), Given("d"), Given("0303"), Given("127.0.0.1"), info[0].data(),
                                info[1].data(), info[2].data(), info[3].data(), nullptr),
              1);
    EXPECT_EQ(library.unbind(Given("demo"), Given("demo1234")), 1);

    EXPECT_EQ(notified, (std::array<Int, 11>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    EXPECT_EQ(out, (std::array<Int, 12>{0, 24, 1, 0, 0, 0, 0, 0, 0, 0, -1, -1}));
    EXPECT_STREQ(info[0].c_str(), "030312345678");
    EXPECT_STREQ(info[1].c_str(), hong);
    EXPECT_STREQ(info[3].c_str(), "0212345678");
    EXPECT_EQ(ledger("SELECT c.operation, position, name, ifnull(number, text), answer, note FROM argument a"
                     " JOIN call c ON c.id = a.call ORDER BY call, position"),
              (Rows{"fn_x_bind|1|argument_1|1||",
                    "fn_x_bind|2|user_id|demo||",
                    "fn_x_bind|3|password|********||matches",
                    "fn_x_bind|4|service_domain|pondira.example||",
                    "fn_x_bind|5|argument_5|2||",
                    "fn_x_bind|6|notify|NULL||",
                    "fn_x_bind|7|argument_7|3||",
                    "fn_x_bind|8|notify_11|given|77|",
                    "fn_x_bind|9|argument_9|given|0|",
                    "fn_x_money_status|1|user_id|demo||",
                    "fn_x_money_status|2|service_domain|d||",
                    "fn_x_money_status|3|service_number|0303||",
                    "fn_x_money_status|4|client_address|127.0.0.1||",
                    "fn_x_money_status|5|field_1|given|0|",
                    "fn_x_money_status|6|service_type|given|24|",
                    "fn_x_money_status|7|service_state|given|1|",
                    "fn_x_money_status|8|field_4|given|0|",
                    "fn_x_money_status|9|field_5|given|0|",
                    "fn_x_money_status|10|field_6|given|0|",
                    "fn_x_money_status|11|field_7|given|0|",
                    "fn_x_money_status|12|field_8|given|0|",
                    "fn_x_money_status|13|field_9|given|0|",
                    "fn_x_money_status|14|field_10|given|0|",
                    "fn_x_money_status|15|field_11|NULL||",
                    "fn_x_money_status|16|field_12|NULL||",
                    "fn_x_user_info|1|user_id|demo||",
                    "fn_x_user_info|2|service_domain|d||",
                    "fn_x_user_info|3|service_number|0303||",
                    "fn_x_user_info|4|client_address|127.0.0.1||",
                    "fn_x_user_info|5|info_service_number|" + std::string(20, ' ') + "|030312345678|",
                    "fn_x_user_info|6|info_user_name|" + std::string(40, ' ') + "|홍길동|",
                    "fn_x_user_info|7|info_sender_name|" + std::string(40, ' ') + "|길동상사|",
                    "fn_x_user_info|8|info_callback|" + std::string(20, ' ') + "|0212345678|",
                    "fn_x_user_info|9|argument_9|NULL||",
                    "fn_x_unbind|1|user_id|demo||",
                    "fn_x_unbind|2|password|********||matches"}));
}

TEST_F(CarrierLedger, HoldsASubmitAsArgumentsAndAsARegistration) {
    configure();
    std::ofstream("a.wav");
    CarrierLibrary library;
    ASSERT_EQ(bind(library), 1);
    const std::string dest = std::string(hong) + ":0101;n:0102;";

    EXPECT_EQ(library.submit(1, Given("demo"), Given("dom"), Given("0303"), Given("127"), 2, Given(hong),
                             Given("2026"), Given("0299"), 3, Given(dest), Given("x\r\n\xFFy"), 0, Given("")),
              1);
    EXPECT_EQ(library.submit_2(7, 8, 9, Given("demo"), Given("dom"), Given("0303"), Given("127"), 10,
                               Given("subj"), Given("2027"), Given("0288"), 11, 12, Given("a:1;"),
                               Given("sms"), Given("tts"), 1, Given("A.WAV;")),
              1);

    EXPECT_EQ(ledger((std::string(arguments) + "' ORDER BY position").c_str()),
              (Rows{"data_type=1", "user_id=demo", "service_domain=dom", "service_number=0303",
                    "client_address=127", "submit_sequence=2", "subject=홍길동", "schedule_time=2026",
                    "callback=0299", "dest_addr_count=3", "dest_addr=홍길동:0101;n:0102;",
                    "sms_content=x\r\n?y", "attach_file_count=0", "attach_file="}));
    EXPECT_EQ(
        ledger((std::string(arguments) + "_2' ORDER BY position").c_str()),
        (Rows{"data_type=7", "data_sub_type=8", "argument_3=9", "user_id=demo", "service_domain=dom",
              "service_number=0303", "client_address=127", "submit_sequence=10", "subject=subj",
              "schedule_time=2027", "callback=0288", "reply_flag=11", "dest_addr_count=12", "dest_addr=a:1;",
              "sms_content=sms", "tts_content=tts", "attach_file_count=1", "attach_file=A.WAV;"}));
    EXPECT_EQ(ledger("SELECT hex(bytes) FROM argument WHERE name = 'sms_content' ORDER BY call"),
              (Rows{"780D0AFF79", "736D73"}));
    EXPECT_EQ(
        ledger(
            "SELECT operation, result, user_id, data_type, data_sub_type, submit_sequence, subject,"
            " schedule_time, callback, reply_flag, dest_addr_count, recipient_count, dest_addr, sms_content,"
            " tts_content, attach_file_count, attach_file FROM registration ORDER BY id"),
        (Rows{"fn_x_submit|1|demo|1||2|홍길동|2026|0299||3|2|홍길동:0101;n:0102;|x\r\n?y||0|",
              "fn_x_submit_2|1|demo|7|8|10|subj|2027|0288|11|12|1|a:1;|sms|tts|1|A.WAV;"}));
}

TEST_F(CarrierLedger, FindsADaysRegistrationsOfOneStateThroughAnIndex) {
    configure();
    CarrierLibrary library;
    bind(library);
    for (const char* sql :
         {"EXPLAIN QUERY PLAN SELECT * FROM registration WHERE time >= '2026-01-01' AND time < "
          "'2026-01-02' ORDER BY time",
          "EXPLAIN QUERY PLAN SELECT * FROM registration WHERE result = 8 AND time >= '2026-01-01' "
          "ORDER BY time"}) {
        const Rows plan = ledger(sql);
        ASSERT_EQ(plan.size(), 1U) << "sorted apart from the search";
        EXPECT_NE(plan[0].find("SEARCH registration USING INDEX"), std::string::npos) << plan[0];
    }
}

TEST_F(CarrierLedger, KeepsEveryReturnedCallWhenTheClientIsKilled) {
    configure();
    int returned[2];
    ASSERT_EQ(pipe(returned), 0);
    const pid_t client = fork();
    if (client == 0) {
        CarrierLibrary library;
        bind(library);
        for (;;) {
            submit(library);
            if (write(returned[1], ".", 1) != 1) {
                _exit(1);
            }
        }
    }
    close(returned[1]);
    char dot;
    int submits = 0;
    while (submits < 50 && read(returned[0], &dot, 1) == 1) {
        ++submits;
    }
    kill(client, SIGKILL);
    waitpid(client, nullptr, 0);
    while (read(returned[0], &dot, 1) == 1) {
        ++submits;
    }
    close(returned[0]);

    ASSERT_GE(submits, 50);
    EXPECT_EQ(ledger("PRAGMA integrity_check"), Rows{"ok"});
    const int kept = std::stoi(ledger("SELECT count(*) FROM registration WHERE result = 1").at(0));
    EXPECT_TRUE(kept == submits || kept == submits + 1) << kept << " kept of " << submits;
    EXPECT_EQ(
        ledger(
            "SELECT count(*) FROM call WHERE (SELECT count(*) FROM argument WHERE call = id) NOT IN (9, 14)"),
        Rows{"0"});

    CarrierLibrary next;
    EXPECT_EQ(bind(next), 1) << "the ledger goes on after a kill";
}

TEST_F(CarrierLedger, ThatCannotBeWrittenIsAFailureAndNotASuccess) {
    configure("[carrier]\nledger=no/such/folder/ledger.db\n");
    CarrierLibrary library;
    EXPECT_EQ(bind(library), 153);
}

}  // namespace
