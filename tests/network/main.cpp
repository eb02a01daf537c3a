#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // The servers are on this machine, whatever the proxy of its user.
    for (const char* name :
         {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"})
        qunsetenv(name);
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
