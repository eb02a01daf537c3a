#include "tests/support/sending.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using Lines = std::vector<std::string>;
using Registration = tests::RecordingCarrier::Registration;

Text content(const Registration& r) { return r.s_sms_content; }
Text schedule(const Registration& r) { return r.s_schedule_time; }

TEST(SendLongBatches, CutTheTextAtEightyBytesBetweenCharacters) {
    const std::string a80(80, 'a'), a79(79, 'a');
    const struct {
        std::string text;
        Lines pieces;
    } rows[] = {
        {a80 + "b", {a80, "b"}},
        {a79 + "가나", {a79, "가나"}},
        {a80 + "  b  ", {a80, "  b"}},
        {a79 + "\r\nb", {a79 + "\r", "\nb"}},
    };
    for (const auto& row : rows) {
        Sending s;
        s.type(from_utf8(row.text));
        s.add_many(1);
        s.send();
        EXPECT_EQ(s.registered(content), row.pieces) << row.text;
    }
}

TEST(SendLongBatches, KeepTheOrderOfThePiecesWithAMinuteBetweenThem) {
    const LocalTime last_minute = make_time(2026, 12, 31, 23, 59, 30);
    const Lines over_midnight = {"20261231235900", "20270101000000", "20270101000100"};
    Sending immediate;
    immediate.clock.set(last_minute);
    immediate.type(Text(240, u'a'));
    immediate.add_many(1);
    immediate.send();
    EXPECT_EQ(immediate.registered(schedule), over_midnight);

    Sending later;
    later.type(Text(240, u'a'));
    later.add_many(1);
    later.form.schedule.Option2.set_chosen(true);
    later.form.schedule.DTP1.set_value(last_minute);
    later.form.schedule.Combo1.set_list_index(23);
    later.form.schedule.Combo2.set_list_index(59);
    later.send();
    EXPECT_EQ(later.registered(schedule), over_midnight);
}

TEST(SendLongBatches, SendEachPieceToAllRowsAndOnlyTheLastMarksThem) {
    Sending s;
    s.type(Text(81, u'a'));
    s.form.subject.subjectText.set_text(u"긴 글");
    s.add_many(150);
    s.carrier.results[{"submit", 1}] = 5;
    s.carrier.results[{"submit", 4}] = 8;
    std::string marks_before_last;
    s.carrier.at_submit = [&] {
        if (s.carrier.registrations.size() == 2) marks_before_last = s.marks();
    };
    s.send();
    EXPECT_EQ(s.registered([](const Registration& r) {
        return r.s_subject + u" " + decimal(r.s_dest_addr_count) + u" " + decimal(r.submit_sequence);
    }),
              (Lines{"긴 글01 100 1", "긴 글02 50 2", "긴 글01 100 1", "긴 글02 50 2"}));
    EXPECT_EQ(s.carrier.count("money_status"), 2) << "once a piece";
    EXPECT_EQ(marks_before_last, std::string(150, 'x'));
    EXPECT_EQ(s.marks(), std::string(100, '-') + std::string(50, 'x'));
    EXPECT_EQ(s.status(149), "등록실패X8(착신자수초과)");
    EXPECT_NE(s.report.find("등록성공: 100건\r\n 등록실패: 50건\r\n 등록중지: 0건"), std::string::npos);
}

TEST(SendLongBatches, ShowTheirProgressInExpectedPieces) {
    for (const auto& [bytes, after_first] : {std::pair{100, 100}, {120, 50}, {240, 33}}) {
        Sending s;
        s.type(Text(static_cast<std::size_t>(bytes), u'a'));
        s.add_many(1);
        // The third pause is the first of the second piece.
        s.at_pause(3, [after = after_first, bytes = bytes](send::frmZentSend& job) {
            EXPECT_EQ(job.PBar1.value(), after) << bytes;
        });
        s.send();
    }
}

TEST(SendLongBatches, MorePiecesThanTheProgressCanShowEndTheJobWithItsError) {
    Sending s;
    Text text;
    // 43 pieces that are one byte short of full, and one more; 42 are expected.
    for (int i = 0; i < 43; ++i) text += u"가a" + Text(38, u'가');
    s.form.text.Check1.set_checked(true);
    s.form.text.mText1.set_text(text + u"가");
    s.add_many(1);
    s.send_in_vain(
        tests::failure(380,
                       u"속성 값이 잘못되었습니다.\r\n\r\n 44개로 나눈 메시지 중 43개만 등록된 받는사람: "
                       u"1명\r\n 다시 보내면 등록되지 않은 나머지만 이어서 보낼 수 있습니다."));
    EXPECT_EQ(s.carrier.registrations.size(), 43u);
    EXPECT_EQ(s.marks(), "x");
    EXPECT_FALSE(s.state.forms.gSendFormOpen);
    EXPECT_TRUE(s.form.Timer1.enabled());
}

TEST(SendLongBatches, AStopEndsThePassOfEachRemainingPiece) {
    Sending s;
    s.type(Text(240, u'a'));
    s.add_many(120);
    s.stop_at_pause(1);
    for (int piece = 0; piece < 3; ++piece) s.desktop.expect_box(tests::JOB_IS_STOPPED);
    s.send();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
    EXPECT_EQ(s.marks(), std::string(120, 'x'));
    EXPECT_NE(s.report.find("등록성공: 0건\r\n 등록실패: 0건\r\n 등록중지: 120건"), std::string::npos);
}

TEST(SendLongBatches, RecipientsLeftFromAStoppedPieceStillReachTheService) {
    Sending s;
    s.type(Text(240, u'a'));
    for (int row = 0; row < 2; ++row) s.add(Text(1100, u'n'), u"01011112222");
    s.stop_at_pause(1);
    for (int piece = 0; piece < 3; ++piece) s.desktop.expect_box(tests::JOB_IS_STOPPED);
    s.send();
    EXPECT_EQ(s.registered([](const Registration& r) {
        return decimal(r.s_dest_addr_count) + u" of " + decimal(std::ranges::count(r.s_dest_addr, u';'));
    }),
              (Lines{"1 of 1", "1 of 1"}));
}

TEST(SendLongBatches, AStopGoesUnnoticedWithASingleRow) {
    Sending s;
    s.type(Text(240, u'a'));
    s.add_many(1);
    s.stop_at_pause(1);
    s.send();
    EXPECT_EQ(s.carrier.registrations.size(), 3u);
    EXPECT_EQ(s.marks(), "-");
}

}  // namespace
