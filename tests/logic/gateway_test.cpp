#include "gateway/gateway.h"

#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace gateway;
using platform::Text;
using tests::utf8;
using Texts = std::vector<std::string>;

struct Wrappers : testing::Test, tests::TestPlatform {
    Wrappers() {
        carrier.scribbles = true;
        carrier.at_call = [this] { pointer_meanwhile = desktop.pointer; };
        state.session.gLoginUserId = u"홍hong";
        state.session.gLoginPassword = u"secret";
        state.session.gServiceDomain = u"pondira.example";
        state.session.gServiceNumber = u"030387654321";
        state.session.gClientAddress = u"127.0.0.1";
    }

    Gateway carrier_gateway{platform, state};
    platform::Pointer pointer_meanwhile = platform::Pointer::normal;

    struct Wrapper {
        std::string operation;
        std::function<bool()> call;
    };
    std::vector<Wrapper> wrappers() {
        return {{"bind", [this] { return carrier_gateway.GATEWAY_BIND(0); }},
                {"unbind", [this] { return carrier_gateway.GATEWAY_UNBIND(); }},
                {"money_status", [this] { return carrier_gateway.GATEWAY_MONEY_STATUS(); }},
                {"user_info", [this] { return carrier_gateway.GATEWAY_USER_INFO(); }}};
    }
};

TEST_F(Wrappers, PassTheSessionInCp949AndKeepWhatTheLibraryWrote) {
    EXPECT_TRUE(carrier_gateway.GATEWAY_BIND(0));
    EXPECT_EQ(carrier.arguments, (Texts{"\xC8\xAB"
                                        "hong",
                                        "secret", "pondira.example"}));
    EXPECT_EQ(carrier.bind_numbers, (std::vector<std::int32_t>{1, 1, 0}));
    EXPECT_EQ(utf8(state.session.gLoginPassword), "#ecret") << "inputs are rewritten too";

    carrier.service_type = 24;
    carrier.service_state = 1;
    EXPECT_TRUE(carrier_gateway.GATEWAY_MONEY_STATUS());
    EXPECT_EQ(
        (std::vector<int>{state.session.gServiceType, state.session.gServiceState, state.session.gMoneyField1,
                          state.session.gMoneyField4, state.session.gMoneyField5}),
        (std::vector<int>{24, 1, 11, 44, 55}));
}

TEST_F(Wrappers, TheModeOfABindChoosesItsCallback) {
    using Notify = platform::CarrierLibrary::Notify;
    for (const int mode : {0, 1, 2}) {
        carrier_gateway.GATEWAY_BIND(mode);
        EXPECT_EQ(carrier.notify, mode == 1 ? Notify::eight : Notify::six) << mode;
    }
}

TEST_F(Wrappers, TheProfileArrivesInPaddedBuffersOfFixedLengths) {
    carrier.info_user_name = "\xC8\xAB\xB1\xE6\xB5\xBF";
    EXPECT_TRUE(carrier_gateway.GATEWAY_USER_INFO());
    EXPECT_EQ(utf8(state.session.gInfoUserName), "홍길동" + std::string(1, '\0') + std::string(33, ' '));
    EXPECT_EQ(utf8(state.session.gInfoServiceNumber),
              "030312345678" + std::string(1, '\0') + std::string(7, ' '));
}

TEST_F(Wrappers, ALibraryThatWritesNothingLeavesBlanks) {
    for (const bool missing : {false, true}) {
        state.session.gInfoServiceNumber = state.session.gInfoUserName = state.session.gInfoSenderName =
            state.session.gInfoCallback = u"old";
        carrier.results[{"user_info", 1}] = 5;
        if (missing) {
            carrier.missing = {"user_info"};
            desktop.expect_box(tests::failure(453, u"지정한 DLL 함수를 찾을 수 없습니다."));
        }
        EXPECT_FALSE(carrier_gateway.GATEWAY_USER_INFO());
        EXPECT_EQ(utf8(state.session.gInfoServiceNumber + state.session.gInfoUserName +
                       state.session.gInfoSenderName + state.session.gInfoCallback),
                  std::string(20 + 40 + 40 + 20, ' '));
    }
}

TEST_F(Wrappers, AreTrueOnlyForResultOneAndShowNoBox) {
    for (const std::int32_t result : {1, 0, 2, -1}) {
        for (const Wrapper& wrapper : wrappers()) {
            carrier.calls.clear();
            carrier.results[{wrapper.operation, 1}] = result;
            EXPECT_EQ(wrapper.call(), result == 1) << wrapper.operation << " " << result;
            EXPECT_EQ(pointer_meanwhile, platform::Pointer::hourglass);
            EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
        }
    }
}

TEST_F(Wrappers, AMissingExportIsShownInABoxWithThePointerRestored) {
    for (const Wrapper& wrapper : wrappers()) {
        carrier.missing = {wrapper.operation};
        desktop.expect_box(tests::failure(453, u"지정한 DLL 함수를 찾을 수 없습니다."));
        EXPECT_FALSE(wrapper.call()) << wrapper.operation;
        EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
    }
}

TEST_F(Wrappers, ACallThatIsNeverAnsweredIsShownLikeAMissingExport) {
    for (const Wrapper& wrapper : wrappers()) {
        carrier.silent = {wrapper.operation};
        desktop.expect_box(
            tests::failure(462, u"x_msggate_d.so에서 응답이 없어 처리 결과를 알 수 없습니다."));
        EXPECT_FALSE(wrapper.call()) << wrapper.operation;
    }
}

struct Registrations : Wrappers {
    UmsMessage message{.s_data_type = 4,
                       .s_data_sub_type = 2,
                       .s_subject = u"제목",
                       .s_schedule_time = u"20261123100000",
                       .s_callback = u"0212345678",
                       .s_reply_flag = 3,
                       .s_dest_addr_count = 2,
                       .s_dest_addr = u"홍길동:01012345678;",
                       .s_sms_content = u"본문",
                       .s_tts_content = u"음성",
                       .s_attach_file_count = 1,
                       .s_attach_file = u"C:\\Temp\\문서 A.WAV;"};
};

TEST_F(Registrations, OnlyKindsWithIndexOneUseTheSecondSubmit) {
    state.session.gSubmitSequence = 7;
    for (const int index : {0, 1, 2}) {
        message.SMSIndex = index;
        EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "등록성공");
        EXPECT_EQ(carrier.registrations.back().submit_2, index == 1);
    }
    const auto& arrived = carrier.registrations.front();
    EXPECT_EQ(
        (std::vector<int>{arrived.s_data_type, arrived.s_data_sub_type, arrived.submit_sequence,
                          arrived.s_reply_flag, arrived.s_dest_addr_count, arrived.s_attach_file_count}),
        (std::vector<int>{4, 2, 7, 3, 2, 1}));
    EXPECT_EQ((std::vector<Text>{arrived.s_subject, arrived.s_schedule_time, arrived.s_callback,
                                 arrived.s_dest_addr, arrived.s_sms_content, arrived.s_tts_content,
                                 arrived.s_attach_file}),
              (std::vector<Text>{u"제목", u"20261123100000", u"0212345678", u"홍길동:01012345678;", u"본문",
                                 u"음성", u"c:\\temp\\문서 a.wav;"}));
    const auto& second = carrier.registrations[1];
    EXPECT_EQ((std::vector<Text>{second.user_id, second.service_domain, second.service_number,
                                 second.client_address}),
              (std::vector<Text>{u"홍hong", u"pondira.example", u"030387654321", u"127.0.0.1"}));
}

TEST_F(Registrations, ARefusalAndAnErrorAreTextsForTheRowsWithoutABox) {
    carrier.results[{"submit", 1}] = 8;
    EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "등록실패X8(착신자수초과)");
    carrier.missing = {"submit"};
    EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "등록실패-453");
    carrier.silent = {"submit_2"};
    message.SMSIndex = 1;
    EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "확인필요");
    EXPECT_EQ(carrier.waited, platform::CarrierLibrary::LONGEST_WAIT);
    EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
}

TEST(ResultText, NamesTheCodeAndWhatItMeans) {
    const struct {
        std::int32_t code;
        const char* text;
    } rows[] = {
        {1, "등록성공"},
        {2, "등록실패X2(Pondira에 인증실패)"},
        {10, "등록실패X10(알수없는에러)"},
        {153, "등록실패X153(기타에러)"},
        {-1, "등록실패X-1(알수없는에러)"},
    };
    for (const auto& row : rows) EXPECT_EQ(utf8(GATEWAY_RESULT_TEXT(row.code)), row.text);
}

}  // namespace
