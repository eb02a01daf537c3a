#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;
using Lines = std::vector<std::string>;
using Registration = tests::RecordingCarrier::Registration;

struct Personal : Sending {
    explicit Personal(const Text& text) {
        form.text.Check1.set_checked(true);
        form.text.mText1.set_text(text);
    }
};

Text to_and_content(const Registration& r) { return r.s_dest_addr + u" " + r.s_sms_content; }

TEST(SendPersonal, FillsInNameAndTitleAndFailsOnlyForAMissingName) {
    Personal s(u"{이름}{직위}님, {이름}{직위}!");
    s.add(u"김철수", u"01011112222", true, u"과장");
    s.add(u"이름없음", u"01022223333", true, u"부장");
    s.add(u"", u"01033334444");
    s.add(u"박:영희", u"01044445555");
    s.add(u"최", u"01055556666", false);
    s.add_many(1);
    s.send();
    EXPECT_EQ(s.registered(to_and_content),
              (Lines{"김철수:01011112222; 김철수과장님, 김철수과장!",
                     "박영희:01044445555; 박:영희님, 박:영희!", "a1:01010000001; a1님, a1!"}));
    EXPECT_EQ(s.marks(), "-xx---");
    EXPECT_EQ(s.status(1), "등록실패(이름없음)");
    EXPECT_EQ(s.status(2), "등록실패(이름없음)");
    EXPECT_EQ(s.status(4), "");
    EXPECT_EQ(s.carrier.count("money_status"), 1);
    EXPECT_EQ(s.clock.pauses, (std::vector<int>{250, 250, 250, 250, 250, 250}));
    EXPECT_NE(s.report.find("등록대상: 5건\r\n 등록성공: 3건\r\n 등록실패: 2건\r\n 등록중지: 0건"),
              std::string::npos);
}

TEST(SendPersonal, NeedsTheTickAPlaceholderAndATextMessage) {
    const struct {
        bool ticked;
        const char16_t* text;
        std::size_t submits;
        const char* first;
        compose::MessageKind kind = compose::MessageKind::text;
    } rows[] = {
        {true, u"{직위}님", 2, "님"},
        {true, u"안녕", 1, "안녕"},
        {false, u"{이름}님", 1, "{이름}님"},
        {true, u"{이름}", 1, "", compose::MessageKind::voice},
    };
    for (const auto& row : rows) {
        Sending s;
        s.form.text.Check1.set_checked(row.ticked);
        s.form.text.mText1.set_text(row.text);
        s.form.voice.ttsText.set_text(row.text);
        if (row.kind != compose::MessageKind::text) s.form.choose(row.kind);
        s.add(u"이름없음", u"01011112222");
        s.add_many(1);
        s.send();
        EXPECT_EQ(s.carrier.registrations.size(), row.submits) << utf8(row.text);
        EXPECT_EQ(utf8(s.carrier.registrations.at(0).s_sms_content), row.first);
    }
}

TEST(SendPersonal, CutsEachRecipientsOwnTextAndRestartsTheSchedule) {
    Personal s(u"{이름}" + Text(70, u'a'));
    s.form.schedule.Option2.set_chosen(true);
    s.form.schedule.DTP1.set_value(make_time(2027, 7, 5));
    s.form.schedule.Combo1.set_list_index(23);
    s.form.schedule.Combo2.set_list_index(59);
    s.add(Text(20, u'n'), u"01011112222");
    s.add(Text(10, u'm'), u"01022223333");
    s.send();
    EXPECT_EQ(s.registered([](const Registration& r) { return r.s_schedule_time + u" " + r.s_sms_content; }),
              (Lines{"20270705235900 " + std::string(20, 'n') + std::string(60, 'a'),
                     "20270706000000 " + std::string(10, 'a'),
                     "20270705235900 " + std::string(10, 'm') + std::string(70, 'a')}));
}

TEST(SendPersonal, OnlyTheLastPieceDecides) {
    for (const int refused_submit : {1, 2}) {
        Personal s(u"{이름}" + Text(90, u'a'));
        s.add_many(1);
        s.carrier.results[{"submit", refused_submit}] = 6;
        s.send();
        EXPECT_EQ(s.carrier.registrations.size(), 2u);
        EXPECT_EQ(s.marks(), refused_submit == 1 ? "-" : "x");
        EXPECT_EQ(s.status(0), refused_submit == 1 ? "등록성공" : "등록실패X6(Pondira 응답 없음)");
        EXPECT_NE(s.report.find(refused_submit == 1 ? "등록성공: 1건\r\n 등록실패: 0건"
                                                    : "등록성공: 0건\r\n 등록실패: 1건"),
                  std::string::npos);
        EXPECT_EQ(s.clock.pauses, (std::vector<int>{250, 250, 250}));
    }
}

TEST(SendPersonal, ARowWhoseTextBecomesEmptyIsNoSuccess) {
    Personal s(u"{직위}");
    s.add(u"a", u"01011112222", true, u"과장");
    s.add(u"b", u"01022223333");
    s.send();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
    EXPECT_EQ(s.marks(), "-x");
    EXPECT_EQ(s.status(1), "등록실패");
}

TEST(SendPersonal, AStopIsShownAfterTheRowBeingSentEvenTheLast) {
    for (const std::size_t pause : {std::size_t{1}, std::size_t{5}}) {
        Personal s(u"{이름}님");
        s.add_many(3);
        s.stop_at_pause(pause);
        s.desktop.expect_box(tests::JOB_IS_STOPPED);
        s.send();
        EXPECT_EQ(s.marks(), pause == 1 ? "-xx" : "---");
    }
}

/// The routine that no button runs.
TEST(SendSingles, FailATextThatIsTooLongInsteadOfCuttingIt) {
    Personal s(u"{이름}" + Text(70, u'a'));
    s.add(Text(11, u'n'), u"01011112222");
    s.add(Text(10, u'n'), u"01022223333");
    s.add(u"이름없음", u"01033334444");
    s.add(u"b", u" ");
    s.add(u"c", u"01055556666");
    s.carrier.results[{"submit", 2}] = 5;
    s.expect_report();
    send::frmZentSend job(s.platform, s.state, s.form, s.keeper);
    job.load();
    job.MSGSendCount = static_cast<int>(s.form.recipients.ListView1.checked_count());
    job.SEND_SINGLES(u"문자메시지");
    const Lines statuses = {s.status(0), s.status(1), s.status(2), s.status(3), s.status(4)};
    EXPECT_EQ(statuses, (Lines{"등록실패(문자초과)", "등록성공", "등록실패(이름없음)", "",
                               "등록실패X5(Pondira 접속에러)"}));
    EXPECT_EQ(s.marks(), "x-xxx");
    EXPECT_EQ(s.clock.pauses, (std::vector<int>{500, 500, 500}));
    EXPECT_NE(s.report.find("등록성공: 1건\r\n 등록실패: 3건\r\n 등록중지: 1건"), std::string::npos);
}

}  // namespace
