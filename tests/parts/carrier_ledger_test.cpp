#include "tests/parts/carrier_client.h"
#include "tests/support/child_process.h"

namespace {

using CarrierLedger = tests::CarrierTest;
using tests::CarrierLibrary;

TEST_F(CarrierLedger, KeepsEveryReturnedCallWhenTheClientIsKilled) {
    configure();
    tests::Pipe returned;
    tests::ChildProcess client([&] {
        CarrierLibrary library;
        bind(library);
        for (;;) {
            submit(library);
            returned.signal();
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

TEST_F(CarrierLedger, FailsACallThatItCannotRecord) {
    configure("[carrier]\nledger=no/such/folder/ledger.db\n");
    CarrierLibrary library;
    EXPECT_EQ(bind(library), 153);
}

}  // namespace
