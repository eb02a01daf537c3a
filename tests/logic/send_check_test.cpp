#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;

constexpr const char16_t* MOBILE_ONLY =
    u"이름 '0212345678' 오류입니다.\r\n\r\n(문자, 문자플러스 메시지 전송은 모바일(휴대폰)번호만 발송이 "
    u"가능합니다.)";
constexpr const char16_t* NO_AREA_CODE =
    u"이름 '12345678' 오류입니다.\r\n\r\n(동일 통화지역도 만드시 지역번호(DDD)를 입력하여 주십시오.)";

struct Refusal {
    const char* fault;
    std::function<void(Sending&)> make;
    Text words;
    Text focus;
};

TEST(SendCheck, RefusesEachFaultInItsWordsWithTheFocusWhereItIsMended) {
    const auto voice = [](int kind, int source) {
        return [=](Sending& s) {
            s.form.TabStrip1.select(kind);
            s.form.TabStrip2.select(source);
        };
    };
    const Refusal refusals[] = {
        {"the sender's name alone", [](Sending& s) { s.type(u" [홍길동] "); }, u"메시지 내용을 입력하십시오!",
         u"mText1"},
        {"no speech", [&](Sending& s) { voice(2, 1)(s), s.form.ttsText.set_text(u" \r\n "); },
         u"음성으로 변환할 TTS내용을 입력하십시오.", u"ttsText"},
        {"no speech", voice(3, 1), u"음성으로 변환할 TTS내용을 입력하십시오.", u"ttsText"},
        {"no sound file", voice(2, 3), u"첨부할 WAV파일을 선택하여 주십시오.", u""},
        {"a sound file that has gone",
         [&](Sending& s) { voice(3, 3)(s), s.form.TTSFileTxt.set_text(u"c:\\a.wav"); },
         u"첨부할 WAV파일을 선택하여 주십시오.", u""},
        {"no document", [&](Sending& s) { s.form.TabStrip1.select(4), s.form.FAXBttn1.set_enabled(true); },
         u"보낼문서를 지정하여 주십시오.", u"FAXBttn1"},
        {"a document that has gone",
         [&](Sending& s) {
             s.form.TabStrip1.select(4);
             s.files.files[u"c:\\a.txt"] = "a";
             s.form.FAX1.add_row(u"c:\\a.txt", {});
             s.form.FAX1.add_row(u"c:\\b.txt", {});
         },
         u"c:\\b.txt\r\n\r\n위 파일을 찾을 수 없습니다. 확인하여 주십시오.", u""},
        {"no rows", [](Sending& s) { s.form.ListView1.clear(); }, u"받는사람을 입력하여 주십시오!", u""},
        {"no checked rows", [](Sending& s) { s.form.ListView1.set_checked(0, false); },
         u"받는사람을 선택하여 주십시오.", u""},
        {"no number", [](Sending& s) { s.add(u"b", u" "); },
         u"이름 ' ' 오류입니다.\r\n\r\n(전송할 이름을(를) 입력하여 주십시오.)", u"ListView1"},
        {"eight digits", [](Sending& s) { s.add(u"b", u"12345678"); }, NO_AREA_CODE, u"ListView1"},
        {"a fixed line for a text", [](Sending& s) { s.add(u"b", u"0212345678"); }, MOBILE_ONLY,
         u"ListView1"},
        {"a fixed line for a text with voice",
         [&](Sending& s) {
             voice(2, 1)(s);
             s.form.ttsText.set_text(u"음성");
             s.add(u"b", u"0212345678");
         },
         MOBILE_ONLY, u"ListView1"},
        {"a mobile number for a fax",
         [](Sending& s) {
             s.form.TabStrip1.select(4);
             s.files.files[u"c:\\a.txt"] = "a";
             s.form.FAX1.add_row(u"c:\\a.txt", {});
         },
         u"팩스보낼 번호 '01011112222' 오류입니다.\r\n\r\n(모바일(휴대폰), 03030, 0502, 0505로 시작되는 "
         u"번호는 "
         u"팩스메시지 발송이 불가하오니 확인하여 주십시오.)",
         u"ListView1"},
    };
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(refusal.fault + (": " + utf8(refusal.words)));
        Sending s;
        s.add(u"a", u"01011112222");
        refusal.make(s);
        s.desktop.boxes.clear();
        s.desktop.expect_box(refusal.words);
        s.click();
        ASSERT_EQ(s.desktop.boxes.size(), 1u);
        EXPECT_EQ(utf8(s.desktop.boxes[0].text), utf8(refusal.words));
        EXPECT_EQ(s.desktop.boxes[0].icon, BoxIcon::exclamation);
        EXPECT_EQ(utf8(s.form.focused() ? s.form.focused()->name() : Text()), utf8(refusal.focus));
        EXPECT_FALSE(s.form.PBar1.visible());
        EXPECT_TRUE(s.desktop.forms.empty());
    }
}

TEST(SendCheck, TellsTheFirstOfSeveralFaults) {
    Sending s;
    s.state.gLoggedIn = false;
    s.form.mText1.set_text(u"");
    s.form.Option2.set_chosen(true);
    s.form.Combo1.set_list_index(9);
    const auto told = [&](Text words) {
        s.desktop.expect_box(std::move(words));
        s.click();
    };
    s.desktop.in_form(u"frmZentLogin", [](Form& login) { login.escape_pressed(); });
    told(u"KT 폰디라 Login과정을 거쳐야 합니다.");
    s.state.gLoggedIn = true;
    s.files.folders.clear();
    told(u"메시지 내용을 입력하십시오!");
    EXPECT_TRUE(s.files.folders.contains(u"c:\\temp"));
    s.form.mText1.set_text(u"안녕");
    told(u"받는사람을 입력하여 주십시오!");
    s.add(u"a", u"1", false);
    told(u"받는사람을 선택하여 주십시오.");
    s.add(u"b", u"01011112222");
    s.add(u"c", u"12345678");
    told(NO_AREA_CODE);
    s.form.ListView1.set_checked(2, false);
    told(u"예약 전송은 현재 시간에서 30분 후부터 가능합니다!");
    EXPECT_EQ(utf8(s.desktop.boxes.back().title), "시간 확인");
    s.form.Option1.set_chosen(true);
    s.send();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
}

TEST(SendCheck, LetsNineDigitsPassForVoiceAndAsksNothingAboutThemElse) {
    Sending s;
    s.form.TabStrip1.select(3);
    s.form.ttsText.set_text(u"음성");
    s.add(u"a", u"021234567");
    s.send();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
}

TEST(SendCheck, ARecordingIsSavedForTheCarrierAndWithoutOneTheClickEndsSilently) {
    for (const int kind : {2, 3}) {
        Sending s;
        s.form.TabStrip1.select(kind);
        s.form.TabStrip2.select(2);
        s.add(u"a", u"01011112222");
        s.nothing_recorded = true;
        s.click();
        EXPECT_TRUE(s.desktop.boxes.empty());
        s.nothing_recorded = false;
        s.send();
        EXPECT_EQ(s.saved_waves, (std::vector<Text>{u"c:\\temp\\tmp.wav", u"c:\\temp\\tmp.wav"}));
        EXPECT_EQ(utf8(s.carrier.registrations.at(0).s_attach_file), "c:\\temp\\tmp.wav;");
    }
}

TEST(SendCheck, CompletesSubjectAndSender) {
    Sending s;
    s.form.subjectText.set_text(u"");
    s.form.txtUserName.set_text(u" 홍길동 ");
    s.form.txtCallback.set_text(u"  ");
    s.add(u"a", u"01011112222");
    s.send();
    EXPECT_EQ(utf8(s.form.subjectText.text()), "[홍길동]안녕하세요");
    EXPECT_EQ(utf8(s.form.txtUserName.text()), "홍길동");
    EXPECT_EQ(utf8(s.form.txtCallback.text()), "02-999-0000");
    EXPECT_EQ(utf8(s.carrier.registrations.at(0).s_callback), "029990000");
}

struct Confirmation {
    std::function<void(Sending&)> draft;
    const char* text;
    const char* question;
};

TEST(SendBox, ShowsWhatIsAboutToGo) {
    const Confirmation confirmations[] = {
        {[](Sending& s) { s.form.txtCallback.set_text(u" "); },
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자메시지\r\n 발송예약시간: 즉시전송\r\n"
         " 회신번호      : 02-999-0000\r\n 발송대상      : a(010-1111-2222)",
         "문자메시지 발송을 시작하시겠습니까?"},
        {[](Sending&) {},
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자메시지\r\n 발송예약시간: 즉시전송\r\n"
         " 회신번호      : 02-123-4567\r\n 발송대상      : a(010-1111-2222)",
         "문자메시지 발송을 시작하시겠습니까?"},
        {[](Sending& s) {
             s.type(Text(81, u'a'));
             s.form.subjectText.set_text(u"인사");
             s.form.Option2.set_chosen(true);
             s.form.DTP1.set_value(make_time(2027, 7, 5));
             s.form.Combo1.set_list_index(9);
             s.form.Combo2.set_list_index(5);
             s.add(u"b", u"01022223333");
             s.add(u"c", u"01033334444", false);
             s.add(u"d", u"01044445555");
         },
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자메시지(장문)\r\n"
         " 발송예약시간: 예약전송(2027년 7월 5일 09시05분)\r\n 회신번호      : 02-123-4567\r\n"
         " 발송대상      : a(010-1111-2222)외 2건",
         "문자메시지 발송을 시작하시겠습니까?"},
        {[](Sending& s) {
             s.form.TabStrip1.select(2);
             s.form.subjectText.set_text(u"인사");
             s.form.ttsText.set_text(u"음성");
             s.form.Check2.set_checked(true);
         },
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자플러스(TTS)\r\n 발송예약시간: 즉시전송\r\n"
         " 답변받기      : 아니오\r\n 발송대상      : a(010-1111-2222)",
         "문자플러스(TTS) 발송을 시작하시겠습니까?"},
        {[](Sending& s) {
             s.form.TabStrip1.select(3);
             s.form.ttsText.set_text(u"음성");
             s.form.Check1.set_checked(true);
             s.form.Combo4.set_list_index(2);
         },
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 음성메시지(TTS)\r\n 발송예약시간: 즉시전송\r\n"
         " 회신번호      : 02-123-4567\r\n 답변받기      : 예\r\n 답변개수      : 3\r\n"
         " 발송대상      : a(010-1111-2222)",
         "음성메시지(TTS) 발송을 시작하시겠습니까?"},
        {[](Sending& s) {
             s.form.TabStrip1.select(4);
             s.files.files[u"c:\\a.txt"] = "a";
             s.form.FAX1.add_row(u"c:\\a.txt", {});
             s.form.ListView1.clear();
             s.add(u"a", u"0212345678");
         },
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 팩스메시지\r\n 발송예약시간: 즉시전송\r\n"
         " 발송대상      : a(0212345678)",
         "팩스메시지 발송을 시작하시겠습니까?"},
    };
    for (const Confirmation& confirmation : confirmations) {
        Sending s;
        s.add(u"a", u"010-1111-2222");
        confirmation.draft(s);
        std::string text, question;
        s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) {
            text = utf8(box.Text1.text());
            question = utf8(box.Label1.caption());
            EXPECT_EQ(utf8(box.caption()), "메시지 발송확인");
            box.Command2.Click.raise();
        });
        s.click();
        EXPECT_EQ(text, confirmation.text);
        EXPECT_EQ(question, confirmation.question);
    }
}

TEST(SendBox, EveryWayOutButTheStartButtonCancels) {
    const std::function<void(send::frmSBox&)> ways_out[] = {
        [](send::frmSBox& box) { box.Command2.Click.raise(); },
        [](send::frmSBox& box) { box.escape_pressed(); },
        [](send::frmSBox& box) { box.close_requested(); },
    };
    for (const auto& way_out : ways_out) {
        Sending s;
        s.add(u"a", u"01011112222");
        s.state.gDialogConfirmed = true;
        s.form.Timer1.set_enabled(true);
        s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) {
            EXPECT_FALSE(s.form.Timer1.enabled()) << "no hand-over while the box stands";
            way_out(box);
        });
        s.click();
        EXPECT_EQ(s.desktop.forms, std::vector<Text>{u"frmSBox"});
        EXPECT_TRUE(s.form.Timer1.enabled());
    }
}

struct Schedule {
    const char* saved;
    int day, hour, minute;
    /// The lead that the refusal names; none when the draft passes.
    const char* refused_below;
};

TEST(ScheduleCheck, AsksForTheLeadByTheDigitsOfDayHourAndMinute) {
    // Now is 23 November, 23:10:00.
    const Schedule schedules[] = {
        {"", 23, 23, 39, "30"},     {"", 23, 23, 40, nullptr},
        {"30", 23, 23, 39, "30"},   {"20", 23, 23, 30, nullptr},
        {"20", 23, 23, 29, "20"},   {"", 24, 0, 0, nullptr},  // 50 minutes, and another day in any case
        {"", 23, 22, 40, "30"},                               // past, though as far away as the lead
        {"", 22, 23, 59, "30"},     {"0", 23, 22, 0, nullptr},
        {"-5", 23, 23, 9, "-5"},    {"-5", 23, 23, 10, nullptr},
        {"120", 23, 23, 59, "90"},  {"120", 24, 0, 0, nullptr},
        {"abc", 22, 0, 0, nullptr},
    };
    for (const Schedule& schedule : schedules) {
        SCOPED_TRACE(std::string(schedule.saved) + " " + std::to_string(schedule.day) + ". " +
                     std::to_string(schedule.hour) + ":" + std::to_string(schedule.minute));
        Sending s;
        s.clock.set(make_time(2026, 11, 23, 23, 10, 0));
        s.files.files[s.app_ini] = std::string("[SET]\r\nP_TIME=") + schedule.saved + "\r\n";
        s.add(u"a", u"01011112222");
        s.form.Option2.set_chosen(true);
        s.form.DTP1.set_value(make_time(2026, 11, schedule.day, 15));
        s.form.Combo1.set_list_index(schedule.hour);
        s.form.Combo2.set_list_index(schedule.minute);
        if (schedule.refused_below == nullptr) {
            s.send();
            continue;
        }
        const Text words =
            u"예약 전송은 현재 시간에서 " + from_ascii(schedule.refused_below) + u"분 후부터 가능합니다!";
        s.desktop.expect_box(words);
        s.click();
    }
}

TEST(ScheduleCheck, SecondsThatHavePassedCountAgainstTheLeadAndAnHourCountsAsAHundredMinutes) {
    const struct {
        int second, hour, minute;
        const char16_t* lead;
        bool passes;
    } rows[] = {
        {1, 10, 30, u"30", false}, {1, 10, 31, u"30", true},
        {0, 10, 59, u"60", false}, {0, 11, 0, u"60", true},
        {0, 10, 59, u"90", false}, {0, 11, 0, u"90", true},  // 60 minutes are 10000, 90 are 9000
    };
    for (const auto& row : rows) {
        Sending s;
        s.clock.set(make_time(2026, 11, 23, 10, 0, row.second));
        s.files.files[s.app_ini] = "[SET]\r\nP_TIME=" + utf8(row.lead) + "\r\n";
        s.add(u"a", u"01011112222");
        s.form.Option2.set_chosen(true);
        s.form.Combo1.set_list_index(row.hour);
        s.form.Combo2.set_list_index(row.minute);
        if (row.passes) {
            s.send();
        } else {
            s.desktop.expect_box(Text(row.lead) + u"분 후부터 가능합니다!");
            s.click();
        }
    }
}

}  // namespace
