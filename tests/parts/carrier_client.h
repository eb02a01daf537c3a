#pragma once

#include "standin/database.h"
#include "tests/support/temporary_folder.h"

#include <cstdint>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tests {

using Int = std::int32_t;
using Notify11 = Int (*)(Int, Int, Int, Int, Int, Int, Int, Int, Int, Int, Int);

/// The stand-in's library, loaded as a client loads it, until the object is destroyed.
class CarrierLibrary {
  public:
    CarrierLibrary() : handle_(dlopen(CARRIER_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
        EXPECT_NE(handle_, nullptr) << dlerror();
        find(bind, "fn_x_bind");
        find(unbind, "fn_x_unbind");
        find(money_status, "fn_x_money_status");
        find(user_info, "fn_x_user_info");
        find(submit, "fn_x_submit");
        find(submit_2, "fn_x_submit_2");
    }
    ~CarrierLibrary() { dlclose(handle_); }
    CarrierLibrary(const CarrierLibrary&) = delete;
    CarrierLibrary& operator=(const CarrierLibrary&) = delete;

    Int (*bind)(Int, char*, char*, char*, Int, void (*)(), Int, Notify11, Int*);
    Int (*unbind)(char*, char*);
    Int (*money_status)(char*, char*, char*, char*, Int*, Int*, Int*, Int*, Int*, Int*, Int*, Int*, Int*,
                        Int*, Int*, Int*);
    Int (*user_info)(char*, char*, char*, char*, char*, char*, char*, char*, Int*);
    Int (*submit)(Int, char*, char*, char*, char*, Int, char*, char*, char*, Int, char*, char*, Int, char*);
    Int (*submit_2)(Int, Int, Int, char*, char*, char*, char*, Int, char*, char*, char*, Int, Int, char*,
                    char*, char*, Int, char*);

  private:
    template <typename Function>
    void find(Function& function, const char* name) {
        void* address = dlsym(handle_, name);
        EXPECT_NE(address, nullptr) << name;
        std::memcpy(&function, &address, sizeof function);
    }

    void* handle_;
};

/// A text that is passed in a buffer of its own and must come back unchanged.
class Given {
  public:
    explicit Given(std::string_view text) : text_(text), buffer_(text) {}
    ~Given() { EXPECT_EQ(buffer_, text_) << "the carrier wrote into a text that was only given"; }
    Given(const Given&) = delete;
    Given& operator=(const Given&) = delete;
    operator char*() { return buffer_.data(); }

  private:
    std::string text_, buffer_;
};

/// A test with a current directory of its own for the stand-in's files.
class CarrierTest : public testing::Test {
  protected:
    /// Writes carrier.ini with the account demo and `more` lines.
    static void configure(std::string_view more = "") {
        std::ofstream("carrier.ini")
            << "[account demo]\npassword=demo1234\ntype=24\nstate=1\n"
               "service_number=030312345678\nuser_name=홍길동\nsender_name=길동상사\n"
               "callback=0212345678\n"
            << more;
    }

    static Int bind(CarrierLibrary& library, std::string_view user = "demo",
                    std::string_view password = "demo1234") {
        return library.bind(1, Given(user), Given(password), Given("d"), 1, nullptr, 0, nullptr, nullptr);
    }

    /// Submits a plain text message.
    static Int submit(CarrierLibrary& library, Int count = 1, std::string_view dest_addr = "n:1;") {
        return library.submit(1, Given("demo"), Given("d"), Given("0303"), Given("127.0.0.1"), 1, Given("s"),
                              Given("20260102030400"), Given("02"), count, Given(dest_addr), Given("text"), 0,
                              Given(""));
    }

    using Rows = std::vector<std::string>;

    /// The rows of a query on the ledger, their columns joined by "|".
    static Rows ledger(const char* sql) {
        const standin::Database database("carrier-ledger.db", standin::Database::Access::read);
        standin::Statement query = database.prepare(sql);
        Rows rows;
        while (query.step()) {
            std::string row = query.bytes(0);
            for (int column = 1; column < query.columns(); ++column) {
                row += "|" + query.bytes(column);
            }
            rows.push_back(row);
        }
        return rows;
    }

    TemporaryFolder folder;
};

}  // namespace tests
