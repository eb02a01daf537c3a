#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // The servers are on this machine: bypass the user's proxy.
    qputenv("no_proxy", "127.0.0.1");
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
