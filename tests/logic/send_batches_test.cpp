#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;
using Lines = std::vector<std::string>;
using Registration = tests::RecordingCarrier::Registration;

Text batch_of(const Registration& r) {
    return r.s_subject + u" " + decimal(r.s_dest_addr_count) + u" " +
           r.s_dest_addr.substr(0, r.s_dest_addr.find(u':'));
}

TEST(SendBatches, HoldAHundredRecipientsUnderNumberedSubjects) {
    Sending s;
    s.add_many(250);
    s.send();
    EXPECT_EQ(s.registered(batch_of), (Lines{"인사01 100 a1", "인사02 100 a101", "인사03 50 a201"}));
    EXPECT_EQ(s.marks(), std::string(250, '-'));
    EXPECT_EQ(s.status(249), "등록성공");
    EXPECT_EQ(s.carrier.calls, (Lines{"bind", "money_status", "submit", "unbind", "bind", "submit", "unbind",
                                      "bind", "submit", "unbind"}));
    EXPECT_EQ(s.clock.pauses, (std::vector<int>{500, 500, 500, 500, 500, 500}));
    EXPECT_EQ(s.carrier.registrations[2].submit_sequence, 3);
    EXPECT_EQ(utf8(s.form.recipients.Label4.caption()), "전체>250>대상>0");

    Sending one_batch;
    one_batch.add_many(100);
    one_batch.send();
    EXPECT_EQ(one_batch.registered(batch_of), Lines{"인사 100 a1"}) << "a single batch has the plain subject";
}

TEST(SendBatches, AddressesAreNameAndDigitsWithoutTheirSeparators) {
    Sending s;
    s.add(u" 김:철;수 ", u"010-1111-2222");
    s.add(u"", u"(010) 2222 3333");
    s.add(u"b", u"01033334444", false);
    s.add(u"이름없음", u"01044445555");
    s.send();
    ASSERT_EQ(s.carrier.registrations.size(), 1u);
    EXPECT_EQ(utf8(s.carrier.registrations[0].s_dest_addr),
              "김철수:01011112222;이름없음:01022223333;이름없음:01044445555;");
    EXPECT_EQ(s.carrier.registrations[0].s_dest_addr_count, 3);
}

/// A name with which a number of 11 digits makes an address of so many bytes.
Text name_of(std::size_t token_bytes) { return Text(token_bytes - 13, u'n'); }

TEST(SendBatches, CloseAtTheByteLimitOfTheAddresses) {
    const struct {
        std::size_t eighth_token;
        Lines batches;
    } rows[] = {
        {256, {"8 2048", "1 300"}},  // exactly full: the row is in it
        {257, {"7 1792", "2 557"}},  // one byte too many: the row begins the next batch
        {255, {"8 2047", "1 300"}},
    };
    for (const auto& row : rows) {
        Sending s;
        for (int i = 0; i < 7; ++i) s.add(name_of(256), u"01011112222");
        s.add(name_of(row.eighth_token), u"01011112222");
        s.add(name_of(300), u"01011112222");
        s.send();
        EXPECT_EQ(s.registered([](const Registration& r) {
            return decimal(r.s_dest_addr_count) + u" " + decimal(r.s_dest_addr.size());
        }),
                  row.batches);
        EXPECT_EQ(s.marks(), "---------");
    }

    Sending hangul;
    hangul.add(Text(1011, u'가'), u"01011112222");  // 2035 bytes
    hangul.add(u"", u"1234567890");                 // 이름없음: 20 bytes
    hangul.send();
    EXPECT_EQ(hangul.carrier.registrations.size(), 2u);
}

TEST(SendBatches, AFirstAddressOfExactlyTheLimitAlsoMarksEarlierFailedRows) {
    Sending s;
    s.add(u"a", u"01011112222");
    s.add(name_of(2048), u"01011112222");
    s.carrier.results[{"submit", 1}] = 5;
    s.send();
    EXPECT_EQ(s.marks(), "--");
    EXPECT_EQ(s.status(0), "등록성공");
    EXPECT_NE(s.report.find("등록실패: 1건"), std::string::npos);
}

TEST(SendBatches, ARecipientTooLongForAnyBatchIsLeftOut) {
    Sending s;
    s.add(name_of(2049), u"01011112222");
    s.add(u"b", u"01011112222");
    s.send();
    EXPECT_EQ(s.registered(batch_of), Lines{"인사 1 b"});
    EXPECT_EQ(s.marks(), "x-");
}

TEST(SendBatches, AnOpenBatchIsSubmittedWhenTheLastRowsAreLeftOut) {
    Sending s;
    s.add_many(2);
    s.add(u"c", u"01011112222", false);
    s.send();
    EXPECT_EQ(s.registered(batch_of), Lines{"인사 2 a1"});
    EXPECT_EQ(s.marks(), "---");
    EXPECT_EQ(s.status(2), "");
}

TEST(SendBatches, ARefusedBatchStaysCheckedAndOnlyItIsSentAgain) {
    Sending s;
    s.add_many(250);
    s.carrier.results[{"submit", 2}] = 5;
    s.send();
    EXPECT_EQ(s.marks(), std::string(100, '-') + std::string(100, 'x') + std::string(50, '-'));
    EXPECT_EQ(s.status(100), "등록실패X5(Pondira 접속에러)");
    EXPECT_EQ(s.report,
              "\r\n KT 폰디라 서버에 메시지 등록이 완료되었습니다.\r\n\r\n 등록대상: 250건\r\n"
              " 등록성공: 150건\r\n 등록실패: 100건\r\n 등록중지: 0건\r\n\r\n 걸린시간: 00:00:03");
    s.carrier.registrations.clear();
    s.send();
    EXPECT_EQ(s.registered(batch_of), Lines{"인사 100 a101"});
    EXPECT_EQ(s.marks(), std::string(250, '-'));
}

TEST(SendBatches, EveryBatchOfAnImmediateJobHasTheMinuteOfItsStart) {
    Sending s;
    s.clock.set(make_time(2026, 12, 31, 23, 59, 58));
    s.add_many(300);
    s.send();
    EXPECT_EQ(s.registered([](const Registration& r) { return r.s_schedule_time; }),
              (Lines{"20261231235900", "20261231235900", "20261231235900"}));
    EXPECT_NE(s.report.find("걸린시간: 23:59:57"), std::string::npos) << "midnight lies between";
}

/// Every argument of a submit except those of the session.
Text arguments(const Registration& r) {
    return Text(r.submit_2 ? u"2 " : u"1 ") + decimal(r.s_data_type) + u" " + decimal(r.s_data_sub_type) +
           u" [" + r.s_callback + u"] " + decimal(r.s_reply_flag) + u" [" + r.s_sms_content + u"] [" +
           r.s_tts_content + u"] " + decimal(r.s_attach_file_count) + u" [" + r.s_attach_file + u"] " +
           r.s_schedule_time;
}

TEST(SendKinds, GiveTheCarrierTheirCodesAndOnlyTheirFields) {
    const struct {
        int tab, source;
        const char* arguments;
        std::vector<int> pauses;
        bool takes_answers = true;
    } kinds[] = {
        {1, 1, "1 1 1 [021234567] 0 [안녕] [] 0 []", {500, 500}},
        {2, 1, "2 7 1 [] 3 [플러스] [음성] 0 []", {500, 500}},
        {2, 2, "2 7 2 [] 3 [플러스] [] 1 [c:\\temp\\tmp.wav;]", {500, 500}},
        {2, 3, "2 7 2 [] 3 [플러스] [] 1 [c:\\a b.wav;]", {500, 500}},
        {3, 1, "2 2 1 [021234567] 3 [] [음성] 0 []", {500, 500}},
        {3, 2, "2 3 2 [021234567] 3 [] [] 1 [c:\\temp\\tmp.wav;]", {500, 500}},
        {3, 1, "2 2 1 [021234567] 0 [] [음성] 0 []", {500, 500}, false},
        {3, 3, "2 3 2 [021234567] 3 [] [] 1 [c:\\a b.wav;]", {500, 500}},
        {4, 1, "2 5 2 [] 0 [] [] 2 [c:\\1.txt;c:\\2.doc;]", {15000, 500}},
    };
    for (const auto& kind : kinds) {
        Sending s;
        for (const char16_t* path : {u"c:\\A b.WAV", u"c:\\1.TXT", u"c:\\2.doc"}) s.files.write(path, "");
        s.form.schedule.Option2.set_chosen(true);
        s.form.schedule.DTP1.set_value(make_time(2027, 7, 5));
        s.form.schedule.Combo1.set_list_index(9);
        s.form.schedule.Combo2.set_list_index(5);
        s.form.reply.Check2.set_checked(kind.takes_answers);
        s.form.reply.Combo4.set_list_index(2);
        s.form.TabStrip1.select(kind.tab);
        s.form.voice.TabStrip2.select(kind.source);
        s.record({1});
        s.form.text.mText1.set_text(u"안녕");
        s.form.plus.mText2.set_text(u"플러스");
        s.form.voice.ttsText.set_text(u"음성");
        s.form.voice.TTSFileTxt.set_text(u"c:\\A b.WAV");
        s.form.fax.FAX1.add_row(u"c:\\1.TXT", {});
        s.form.fax.FAX1.add_row(u"c:\\2.doc", {});
        s.add(u"a", kind.tab == 4 ? u"021112222" : u"01011112222");
        s.send();
        EXPECT_EQ(s.registered(arguments), Lines{kind.arguments + std::string(" 20270705090500")});
        EXPECT_EQ(s.clock.pauses, kind.pauses);
    }
}

TEST(SendKinds, ForAnUnknownKindNothingIsSubmittedAndTheRowsFail) {
    Sending s;
    s.add_many(2);
    s.expect_report();
    send::frmZentSend job(s.platform, s.state, s.form, s.keeper);
    job.load();
    job.MSGSendCount = 2;
    job.SEND_BATCHES(u"편지");
    EXPECT_EQ(s.carrier.calls, (Lines{"bind", "money_status", "unbind"}));
    EXPECT_EQ(s.status(1), "등록실패");
    EXPECT_EQ(s.marks(), "xx");
}

TEST(SendSubject, IsOneLineAndNeverEmpty) {
    Sending s;
    s.add_many(1);
    s.form.subject.subjectText.set_text(u" 여러\r\n줄 ");
    s.send();
    s.form.recipients.ListView1.set_checked(0, true);
    s.form.subject.subjectText.set_text(u"\r\n");
    s.send();
    EXPECT_EQ(s.registered([](const Registration& r) { return r.s_subject; }), (Lines{"여러줄", "제목없음"}));
}

}  // namespace
