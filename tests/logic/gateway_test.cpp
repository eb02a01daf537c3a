#include "gateway/gateway.h"

#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace gateway;
using platform::CarrierCallback;
using platform::Text;
using tests::utf8;
using Texts = std::vector<std::string>;

/// A library that writes down its arguments and scribbles into the texts that it gets, as it may.
struct ScribblingCarrier : RecordingCarrier {
    Texts arguments;
    std::vector<std::int32_t> constants;
    CarrierCallback notify = nullptr;
    platform::Pointer pointer_meanwhile = platform::Pointer::normal;
    const ScriptedDesktop* desktop = nullptr;

    void note(std::initializer_list<std::string*> texts) {
        pointer_meanwhile = desktop->pointer;
        for (std::string* text : texts) {
            arguments.push_back(*text);
            if (!text->empty()) text->front() = '#';
        }
    }

    std::int32_t fn_x_bind(std::int32_t one, std::string& user_id, std::string& password, std::string& domain,
                           std::int32_t five, CarrierCallback six, std::int32_t seven,
                           CarrierCallback eight) override {
        note({&user_id, &password, &domain});
        constants = {one, five, seven};
        notify = six;
        return RecordingCarrier::fn_x_bind(one, user_id, password, domain, five, six, seven, eight);
    }
    std::int32_t fn_x_unbind(std::string& user_id, std::string& password) override {
        note({&user_id, &password});
        return RecordingCarrier::fn_x_unbind(user_id, password);
    }
    std::int32_t fn_x_money_status(std::string& user_id, std::string& domain, std::string& number,
                                   std::string& address, MoneyStatus& status) override {
        note({&user_id, &domain, &number, &address});
        status.field1 = 11;
        status.field4 = 44;
        status.field5 = 55;
        return RecordingCarrier::fn_x_money_status(user_id, domain, number, address, status);
    }
    std::int32_t fn_x_user_info(std::string& user_id, std::string& domain, std::string& number,
                                std::string& address, std::string& info_number, std::string& info_name,
                                std::string& info_sender, std::string& info_callback) override {
        note({&user_id, &domain, &number, &address});
        for (const std::string* buffer : {&info_number, &info_name, &info_sender, &info_callback})
            arguments.push_back(*buffer);
        return RecordingCarrier::fn_x_user_info(user_id, domain, number, address, info_number, info_name,
                                                info_sender, info_callback);
    }
};

struct Wrappers : testing::Test, TestPlatform {
    Wrappers() {
        library.desktop = &desktop;
        state.session.gLoginUserId = u"홍hong";
        state.session.gLoginPassword = u"secret";
        state.session.gServiceDomain = u"pondira.example";
        state.session.gServiceNumber = u"03030xxxxxxx";
        state.session.gClientAddress = u"127.0.0.1";
    }

    ScribblingCarrier library;
    platform::Platform machine = tests::with(platform, {.carrier = &library});
    Gateway carrier_gateway{machine, state};

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

TEST_F(Wrappers, HandOverTheSessionInCp949AndTakeBackWhatTheLibraryLeft) {
    EXPECT_TRUE(carrier_gateway.GATEWAY_BIND(0));
    EXPECT_EQ(library.arguments, (Texts{"\xC8\xAB"
                                        "hong",
                                        "secret", "pondira.example"}));
    EXPECT_EQ(library.constants, (std::vector<std::int32_t>{1, 1, 0}));
    EXPECT_EQ(utf8(state.session.gLoginPassword), "#ecret") << "inputs are rewritten too";
    EXPECT_EQ(utf8(state.session.gServiceDomain), "#ondira.example");

    library.arguments.clear();
    state.session.gLoginUserId = u"hong";
    EXPECT_TRUE(carrier_gateway.GATEWAY_UNBIND());
    EXPECT_EQ(library.arguments, (Texts{"hong", "#ecret"}));
    EXPECT_EQ(utf8(state.session.gLoginUserId), "#ong");

    library.arguments.clear();
    library.service_type = 24;
    library.service_state = 1;
    EXPECT_TRUE(carrier_gateway.GATEWAY_MONEY_STATUS());
    EXPECT_EQ(library.arguments, (Texts{"#ong", "#ondira.example", "03030xxxxxxx", "127.0.0.1"}));
    EXPECT_EQ(utf8(state.session.gServiceNumber), "#3030xxxxxxx");
    EXPECT_EQ(utf8(state.session.gClientAddress), "#27.0.0.1");
    EXPECT_EQ(
        (std::vector<int>{state.session.gServiceType, state.session.gServiceState, state.session.gMoneyField1,
                          state.session.gMoneyField4, state.session.gMoneyField5}),
        (std::vector<int>{24, 1, 11, 44, 55}));
}

TEST_F(Wrappers, TheModeOfABindChoosesTheFirstCallbackAndEveryCallbackAnswersOne) {
    carrier_gateway.GATEWAY_BIND(0);
    const CarrierCallback six = library.notify;
    EXPECT_EQ(reinterpret_cast<int (*)(int, int, int, int, int, int)>(six)(1, 2, 3, 4, 5, 6), 1);
    carrier_gateway.GATEWAY_BIND(2);
    EXPECT_EQ(library.notify, six) << "only 1 is the other mode";
    carrier_gateway.GATEWAY_BIND(1);
    EXPECT_NE(library.notify, six);
}

TEST_F(Wrappers, TheProfileComesBackInPaddedBuffersOfTheirLengths) {
    library.info_user_name = "\xC8\xAB\xB1\xE6\xB5\xBF";
    EXPECT_TRUE(carrier_gateway.GATEWAY_USER_INFO());
    EXPECT_EQ(library.arguments, (Texts{"\xC8\xAB"
                                        "hong",
                                        "pondira.example", "03030xxxxxxx", "127.0.0.1", std::string(20, ' '),
                                        std::string(40, ' '), std::string(40, ' '), std::string(20, ' ')}));
    EXPECT_EQ(utf8(state.session.gInfoUserName), "홍길동" + std::string(1, '\0') + std::string(33, ' '));
    EXPECT_EQ(utf8(state.session.gInfoServiceNumber),
              "030312345678" + std::string(1, '\0') + std::string(7, ' '));
}

TEST_F(Wrappers, ALibraryThatWritesNothingLeavesBlanks) {
    for (const bool missing : {false, true}) {
        state.session.gInfoServiceNumber = state.session.gInfoUserName = state.session.gInfoSenderName =
            state.session.gInfoCallback = u"old";
        library.results[{"user_info", 1}] = 5;
        if (missing) {
            library.missing = {"user_info"};
            desktop.expect_box(u"오류번호:453");
        }
        EXPECT_FALSE(carrier_gateway.GATEWAY_USER_INFO());
        EXPECT_EQ(utf8(state.session.gInfoServiceNumber + state.session.gInfoUserName +
                       state.session.gInfoSenderName + state.session.gInfoCallback),
                  std::string(20 + 40 + 40 + 20, ' '));
    }
}

TEST_F(Wrappers, AreTrueForOneAndSayNothingAboutAnythingElse) {
    for (const std::int32_t result : {1, 0, 2, -1}) {
        for (const Wrapper& wrapper : wrappers()) {
            library.calls.clear();
            library.results[{wrapper.operation, 1}] = result;
            EXPECT_EQ(wrapper.call(), result == 1) << wrapper.operation << " " << result;
            EXPECT_EQ(library.pointer_meanwhile, platform::Pointer::hourglass);
            EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
        }
    }
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Wrappers, AMissingExportIsShownInABoxWithThePointerRestored) {
    for (const Wrapper& wrapper : wrappers()) {
        library.missing = {wrapper.operation};
        desktop.expect_box(u"오류번호:453\r\n\r\n지정한 DLL 함수를 찾을 수 없습니다.");
        EXPECT_FALSE(wrapper.call()) << wrapper.operation;
        EXPECT_EQ(desktop.boxes.back().icon, platform::BoxIcon::critical);
        EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
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

TEST_F(Registrations, OnlyAnIndexOfOneGoesThroughTheSecondSubmit) {
    state.session.gSubmitSequence = 7;
    for (const int index : {0, 1, 2}) {
        message.SMSIndex = index;
        EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "등록성공");
        EXPECT_EQ(library.registrations.back().submit_2, index == 1);
    }
    const auto& arrived = library.registrations.front();
    EXPECT_EQ(
        (std::vector<int>{arrived.s_data_type, arrived.s_data_sub_type, arrived.submit_sequence,
                          arrived.s_reply_flag, arrived.s_dest_addr_count, arrived.s_attach_file_count}),
        (std::vector<int>{4, 2, 7, 3, 2, 1}));
    EXPECT_EQ((std::vector<Text>{arrived.s_subject, arrived.s_schedule_time, arrived.s_callback,
                                 arrived.s_dest_addr, arrived.s_sms_content, arrived.s_tts_content,
                                 arrived.s_attach_file}),
              (std::vector<Text>{u"제목", u"20261123100000", u"0212345678", u"홍길동:01012345678;", u"본문",
                                 u"음성", u"c:\\temp\\문서 a.wav;"}));
    const auto& second = library.registrations[1];
    EXPECT_EQ((std::vector<Text>{second.user_id, second.service_domain, second.client_address}),
              (std::vector<Text>{u"홍hong", u"pondira.example", u"127.0.0.1"}));
}

TEST_F(Registrations, ARefusalIsATextAndAnErrorIsOneTooWithoutABox) {
    library.results[{"submit", 1}] = 8;
    EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "등록실패X8(착신자수초과)");
    library.missing = {"submit"};
    EXPECT_EQ(utf8(carrier_gateway.UMS_SEND_START(message)), "등록실패-453");
    EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
}

TEST(ResultText, NamesTheCodeAndWhatItMeans) {
    const struct {
        std::int32_t code;
        const char* text;
    } rows[] = {
        {1, "등록성공"},
        {2, "등록실패X2(Pondira에 인증실패)"},
        {3, "등록실패X3(폰디라 데이터 전송에러)"},
        {4, "등록실패X4(아직 지원되지 않는 함수)"},
        {5, "등록실패X5(Pondira 접속에러)"},
        {6, "등록실패X6(Pondira 응답 없음)"},
        {7, "등록실패X7(FTP/HTTP 전송에러)"},
        {8, "등록실패X8(착신자수초과)"},
        {9, "등록실패X9(첨부파일갯수초과)"},
        {10, "등록실패X10(알수없는에러)"},
        {16, "등록실패X16(첨부파일없음)"},
        {153, "등록실패X153(기타에러)"},
        {0, "등록실패X0(알수없는에러)"},
        {-1, "등록실패X-1(알수없는에러)"},
    };
    for (const auto& row : rows) EXPECT_EQ(utf8(GATEWAY_RESULT_TEXT(row.code)), row.text);
}

}  // namespace
