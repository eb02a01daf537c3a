#include "send/report.h"
#include "tests/support/page_reader.h"
#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;
using Lines = std::vector<std::string>;

const MessageBox FAILURE = tests::refusal(
    u"메시지 등록을 실패하였습니다. 원인은 다음과 같습니다.\r\n\r\n원인 1) 인터넷 연결이 안된 경우.\r\n"
    u"원인 2) 폰디라 서버가 응닶이 없는 경우.\r\n원인 3) 폰디라 가입을 해지한 경우.\r\n"
    u"원인 4) 폰디라 사용이 일시 정지된 경우.\r\n\r\n"
    u"인터넷 연결상태를 확인하시고 잠시 후 다시 시작하여 주십시오.");

TEST(SendWindow, StartsOneJobHalfASecondAfterItsActivation) {
    Sending s;
    Lines pages;
    s.files.files[u"z:\\app\\resource\\send.avi"] = "";
    s.add_many(1);
    s.form.Timer1.set_enabled(true);
    s.desktop.in_form<send::frmZentSend>(u"frmZentSend", [&](send::frmZentSend& job) {
        EXPECT_TRUE(s.state.forms.gSendFormOpen);
        EXPECT_FALSE(s.form.Timer1.enabled());
        EXPECT_TRUE(job.Animation1.playing());
        s.clock.run_for(499);
        EXPECT_TRUE(s.carrier.calls.empty());
        s.desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [&](send::frmSendEndBox& box) {
            job.window_activated();
            s.clock.run_for(1000);
            EXPECT_FALSE(job.Animation1.playing());
            EXPECT_EQ(utf8(job.Command1.caption()), "닫기");
            EXPECT_TRUE(job.Command1.enabled());
            tests::read_next_page(s.desktop, pages);
            box.Command1.Click.raise();
            EXPECT_TRUE(box.loaded());
            box.escape_pressed();
        });
    });
    s.confirm();
    s.click();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
    EXPECT_EQ(pages, Lines{"발송결과||code=&userid=&domain="});
    EXPECT_FALSE(s.state.forms.gSendFormOpen);
    EXPECT_TRUE(s.form.Timer1.enabled());
}

TEST(SendWindow, ItsButtonStopsTheJobAndClosingItAsksFirst) {
    const MessageBox stop{.text = u"메시지 등록을 중지하시겠습니까?",
                          .icon = BoxIcon::question,
                          .buttons = BoxButtons::yes_no,
                          .default_answer = BoxAnswer::no};
    const struct {
        std::function<void(send::frmZentSend&)> act;
        bool asks, logs_out;
    } ways[] = {
        {[](send::frmZentSend& job) { job.Command1.Click.raise(); }, false, false},
        {[](send::frmZentSend& job) { job.close_requested(); }, true, false},
        {[](send::frmZentSend& job) { job.escape_pressed(); }, true, false},
        {[](send::frmZentSend& job) { job.close_requested(); }, false, true},
    };
    for (const auto& way : ways) {
        Sending s;
        s.add_many(120);
        s.desktop.logs_out = way.logs_out;
        s.at_pause(1, [&](send::frmZentSend& job) {
            if (way.asks) {
                s.desktop.expect_box(stop, BoxAnswer::no);
                way.act(job);
                EXPECT_TRUE(job.Command1.enabled());
                s.desktop.expect_box(stop, BoxAnswer::yes);
                s.desktop.expect_box(tests::JOB_IS_STOPPED);
            }
            way.act(job);
            job.escape_pressed();
            EXPECT_FALSE(job.Command1.enabled());
            EXPECT_TRUE(job.Label1_1.caption().ends_with(u"중지합니다."));
            EXPECT_TRUE(job.loaded());
        });
        if (!way.asks) s.desktop.expect_box(tests::JOB_IS_STOPPED);
        s.send();
        EXPECT_EQ(s.marks(), std::string(100, '-') + std::string(20, 'x'));
        EXPECT_EQ(s.status(100), "");
        EXPECT_NE(s.report.find("등록대상: 120건\r\n 등록성공: 100건\r\n 등록실패: 0건\r\n 등록중지: 20건"),
                  std::string::npos);
    }
}

TEST(SendWindow, TheStopButtonWaitsForTheJobAndIsHeardFromItsBeginOn) {
    Sending s;
    s.add_many(120);
    const auto press = [](send::frmZentSend& job) {
        if (job.Command1.enabled()) job.Command1.Click.raise();
    };
    s.desktop.in_form<send::frmZentSend>(u"frmZentSend", [&](send::frmZentSend& job) {
        press(job);
        EXPECT_FALSE(job.Command1.enabled()) << "there is nothing to stop yet";
        s.clock.during_pause = [&] { press(job); };
    });
    s.desktop.expect_box(tests::JOB_IS_STOPPED);
    s.send();
    EXPECT_EQ(s.marks(), std::string(100, '-') + std::string(20, 'x'));
}

TEST(SendWindow, SaysHowManyAreRegisteredWhichBatchGoesAndHowLongItTakes) {
    Sending s;
    s.add_many(250);
    s.carrier.results[{"submit", 2}] = 6;
    Lines seen;
    s.desktop.in_form<send::frmZentSend>(u"frmZentSend", [&](send::frmZentSend& job) {
        s.clock.during_pause = [&] {
            const Text failed = job.Failed.visible() ? u" | " + job.Failed.caption() : Text();
            const Text line =
                job.caption() + u" | " + job.Registered.caption() + failed + u" | " + job.Remaining.caption();
            if (seen.empty() || seen.back() != utf8(line)) seen.push_back(utf8(line));
        };
    });
    s.send();
    EXPECT_EQ(seen,
              (Lines{"39% · 문자메시지 | 250명 중 0명 등록 | 묶음 1/3 · 남은 시간 약 3초",
                     "39% · 문자메시지 | 250명 중 100명 등록 | 묶음 2/3 · 남은 시간 약 2초",
                     "79% · 문자메시지 | 250명 중 100명 등록 | ⚠ 실패 100명 | 묶음 3/3 · 남은 시간 약 1초",
                     "99% · 문자메시지 | 250명 중 100명 등록 | ⚠ 실패 100명 | 묶음 3/3 · 남은 시간 약 1초",
                     "99% · 문자메시지 | 250명 중 150명 등록 | ⚠ 실패 100명 | 마무리하고 있습니다."}));
}

TEST(SendWindow, ReckonsTheTimeLeftByThePausesAndByWhatTheCarrierHasTaken) {
    using namespace std::chrono_literals;
    using send::time_left;
    EXPECT_EQ(time_left({.done = 0, .all = 30}, 0s, 1000ms), 30s);
    EXPECT_EQ(time_left({.done = 10, .all = 30}, 10s, 1000ms), 20s);
    EXPECT_EQ(time_left({.done = 10, .all = 30}, 60s, 1000ms), 120s) << "a slow carrier";
    EXPECT_EQ(time_left({.done = 10, .all = 30}, -60s, 1000ms), 20s) << "the clock was put back";
    EXPECT_EQ(time_left({.done = 31, .all = 30}, 60s, 1000ms), 0s);
    const std::pair<std::chrono::milliseconds, const char*> lengths[] = {
        {0s, "약 1초"}, {1500ms, "약 2초"}, {89s, "약 1분"}, {1h, "약 1시간"}, {2h + 5min, "약 2시간 5분"},
    };
    for (const auto& [length, words] : lengths) EXPECT_EQ(utf8(send::about(length)), words);
}

TEST(SendWindow, AStopEndsACallThatIsNotAnsweredButNotBeforeTenSeconds) {
    Sending s;
    s.add_many(120);
    s.carrier.silent = {"submit"};
    s.desktop.in_form<send::frmZentSend>(u"frmZentSend", [&](send::frmZentSend& job) {
        s.desktop.during_yield = [&] { job.Command1.Click.raise(); };
    });
    s.desktop.expect_box(tests::JOB_IS_STOPPED);
    s.send();
    EXPECT_EQ(s.carrier.waited, std::chrono::seconds(10));
    EXPECT_EQ(s.status(0), "확인필요");
    EXPECT_EQ(s.carrier.count("submit"), 1);
    EXPECT_THROW(s.carrier.fn_x_submit({}), platform::NoAnswer) << "the job's window is no longer asked";
}

TEST(SendWindow, AStopDuringTheLastBatchGoesUnnoticed) {
    Sending s;
    s.add_many(120);
    s.stop_at_pause(3);
    s.send();
    EXPECT_EQ(s.marks(), std::string(120, '-'));
}

TEST(SendWindow, ClosedBeforeTheJobStartsItSendsNothing) {
    Sending s;
    s.add_many(1);
    s.confirm();
    s.desktop.in_form<send::frmZentSend>(u"frmZentSend",
                                         [](send::frmZentSend& job) { job.close_requested(); });
    s.click();
    s.clock.run_for(5000);
    EXPECT_TRUE(s.carrier.calls.empty());
    EXPECT_TRUE(s.form.Timer1.enabled());
}

TEST(SendSession, AJobWithoutTheCarrierOrAnAccountEndsWithABoxAndNoReport) {
    const struct {
        std::pair<std::string, int> failing_call;
        int service_state;
        Lines calls;
        std::size_t sent;
    } rows[] = {
        {{"bind", 1}, 0, {"bind", "unbind"}, 0},
        {{"money_status", 1}, 0, {"bind", "money_status", "unbind"}, 0},
        {{}, 2, {"bind", "money_status", "unbind"}, 0},
        {{"bind", 3},
         1,
         {"bind", "money_status", "submit", "unbind", "bind", "submit", "unbind", "bind", "unbind"},
         200},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.failing_call.first);
        Sending s;
        s.add_many(250);
        s.carrier.results[row.failing_call] = 6;
        s.carrier.service_state = row.service_state;
        s.send_in_vain(FAILURE);
        EXPECT_EQ(s.desktop.notifications, std::vector<Text>{u"메시지 등록을 실패하였습니다."});
        EXPECT_EQ(s.carrier.calls, row.calls);
        EXPECT_EQ(s.marks(), std::string(row.sent, '-') + std::string(250 - row.sent, 'x'));
        EXPECT_FALSE(s.state.forms.gSendFormOpen);
        EXPECT_EQ(s.desktop.pointer, Pointer::normal);
    }
}

TEST(SendSession, ALibraryThatLacksTheSubmitFailsTheRowsAndTheJobGoesOn) {
    Sending s;
    s.add_many(150);
    s.carrier.missing.insert("submit");
    s.send();
    EXPECT_EQ(s.status(149), "등록실패-453");
    EXPECT_EQ(s.clock.pauses, (std::vector<int>{500, 500}));
    EXPECT_FALSE(s.results_offered);
    EXPECT_NE(s.report.find("등록이 완료되었습니다."), std::string::npos);
}

TEST(SendReport, SeparatesThousandsAndCountsTheRestAsStopped) {
    send::SendJob job{.kind = nullptr,
                      .pauses = {},
                      .started = make_time(2026, 11, 23, 9, 59, 58),
                      .message = {},
                      .subject = {}};
    job.success = 12345;
    job.failure = 1000;
    EXPECT_EQ(utf8(send::report_text(job, 1234567, make_time(2026, 11, 23, 11, 0, 0))),
              " KT 폰디라 서버에 메시지 등록이 완료되었습니다.\r\n\r\n 등록대상: 1,234,567건\r\n"
              " 등록성공: 12,345건\r\n 등록실패: 1,000건\r\n 등록중지: 1,221,222건\r\n\r\n"
              " 걸린시간: 01:00:02");
}

TEST(SendReport, SaysFirstWhomTheUserHasToLookAfter) {
    Sending s;
    s.add_many(250);
    s.carrier.results[{"submit", 1}] = 6;
    s.carrier.at_submit = [submits = 0]() mutable {
        if (++submits == 2) throw NoAnswer();
    };
    s.desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [&](send::frmSendEndBox& box) {
        EXPECT_EQ(utf8(box.Registered.caption()), "250명 중 50명을 등록했습니다.");
        EXPECT_EQ(utf8(box.Failed.caption()), "⚠ 실패 100명: 목록에 선택된 채로 남아 있습니다.");
        EXPECT_EQ(utf8(box.Unconfirmed.caption()), "⚠ 확인필요 100명: 발송결과에서 확인하여 주십시오.");
        EXPECT_FALSE(box.Stopped.visible());
        box.escape_pressed();
    });
    s.confirm();
    s.click();
    EXPECT_EQ(tests::utf8(s.desktop.notifications.at(0)),
              "250명 중 50명을 등록했습니다.\n⚠ 실패 100명: 목록에 선택된 채로 남아 있습니다.\n"
              "⚠ 확인필요 100명: 발송결과에서 확인하여 주십시오.");
}

}  // namespace
