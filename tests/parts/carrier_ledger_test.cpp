#include "tests/parts/carrier_client.h"
#include "tests/support/child_process.h"

namespace {

using CarrierLedger = tests::CarrierTest;
using tests::CarrierLibrary;

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
    tests::Pipe returned;
    tests::ChildProcess client([&] {
        CarrierLibrary library;
        bind(library);
        for (;;) {
            submit(library);
            returned.tell();
        }
        return 0;
    });
    int submits = 0;
    while (submits < 50 && returned.wait()) ++submits;
    client.kill();
    while (returned.wait()) ++submits;

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
