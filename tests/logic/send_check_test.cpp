#include "platform/formats/wav_file.h"
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

const LocalTime MORNING = make_time(2026, 11, 23, 10, 0);
const LocalTime LATE = make_time(2026, 11, 23, 23, 10);

struct Refusal {
    const char* fault;
    std::function<void(Sending&)> make;
    Text words;
    Text focus;
};

TEST(SendCheck, RefusesEachFaultInItsWordsWithTheFocusWhereItIsCorrected) {
    const auto voice = [](Sending& s, int kind, int source) {
        s.form.TabStrip1.select(kind);
        s.form.voice.TabStrip2.select(source);
    };
    const auto fax = [](Sending& s, std::initializer_list<const char16_t*> documents) {
        s.form.TabStrip1.select(4);
        s.form.fax.FAXBttn1.set_enabled(true);
        s.files.files[u"c:\\a.txt"] = "a";
        for (const char16_t* path : documents) s.form.fax.FAX1.add_row(path, {});
    };
    const Refusal refusals[] = {
        {"the sender's name alone", [](Sending& s) { s.type(u" [홍길동] "); }, u"메시지 내용을 입력하십시오!",
         u"mText1"},
        {"no speech", [&](Sending& s) { voice(s, 2, 1), s.form.voice.ttsText.set_text(u" \r\n "); },
         u"음성으로 변환할 TTS내용을 입력하십시오.", u"ttsText"},
        {"a sound file that has gone",
         [&](Sending& s) { voice(s, 3, 3), s.form.voice.TTSFileTxt.set_text(u"c:\\a.wav"); },
         u"첨부할 WAV파일을 선택하여 주십시오.", u"TTSBttn1"},
        {"no document", [&](Sending& s) { fax(s, {}); }, u"보낼문서를 지정하여 주십시오.", u"FAXBttn1"},
        {"a document that has gone",
         [&](Sending& s) {
             fax(s, {u"c:\\a.txt", u"c:\\b.txt"});
         },
         u"c:\\b.txt\r\n\r\n위 파일을 찾을 수 없습니다. 확인하여 주십시오.", u"FAX1"},
        {"no number", [](Sending& s) { s.add(u"b", u" "); },
         u"이름 ' ' 오류입니다.\r\n\r\n(전송할 이름을(를) 입력하여 주십시오.)", u"ListView1"},
        {"a fixed line for a text", [](Sending& s) { s.add(u"b", u"0212345678"); }, MOBILE_ONLY,
         u"ListView1"},
        {"a fixed line for a text with voice",
         [&](Sending& s) {
             voice(s, 2, 1);
             s.form.voice.ttsText.set_text(u"음성");
             s.add(u"b", u"0212345678");
         },
         MOBILE_ONLY, u"ListView1"},
        {"a mobile number for a fax", [&](Sending& s) { fax(s, {u"c:\\a.txt"}); },
         u"팩스보낼 번호 '01011112222' 오류입니다.\r\n\r\n(모바일(휴대폰), 03030, 0502, 0505로 시작되는 "
         u"번호는 팩스메시지 발송이 불가하오니 확인하여 주십시오.)",
         u"ListView1"},
    };
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(refusal.fault);
        Sending s;
        s.add(u"a", u"01011112222");
        refusal.make(s);
        s.form.Command1.set_focus();
        s.desktop.expect_box(tests::refusal(refusal.words));
        s.click();
        EXPECT_EQ(utf8(s.form.focused() ? s.form.focused()->name() : Text()), utf8(refusal.focus));
        EXPECT_FALSE(s.form.recipients.PBar1.visible());
        EXPECT_TRUE(s.desktop.forms.empty());
    }
}

TEST(SendCheck, LeavesNobodyOutWhoIsTypedButNotAdded) {
    const MessageBox question{
        .text =
            u"입력만 하고 추가하지 않은 받는사람이 있습니다.\r\n\r\n남은사람 010-9999-8888"
            u"\r\n\r\n받는사람에 추가하시겠습니까?",
        .icon = BoxIcon::question,
        .buttons = BoxButtons::yes_no_cancel,
        .default_answer = BoxAnswer::yes};
    for (const auto& [answer, sent] :
         {std::pair(BoxAnswer::yes, 2U), std::pair(BoxAnswer::no, 1U), std::pair(BoxAnswer::cancel, 0U)}) {
        Sending s;
        s.add(u"a", u"01011112222");
        s.form.recipients.HText1[0].set_text(u"남은사람");
        s.form.recipients.HText1[1].set_text(u"010-9999-8888");
        s.desktop.expect_box(question, answer);
        sent > 0 ? s.send() : s.click();
        EXPECT_EQ(s.marks(), std::string(sent, '-') + (sent == 0 ? "x" : ""));
        EXPECT_EQ(s.form.recipients.HText1[1].text().empty(), answer == BoxAnswer::yes);
    }
}

TEST(SendCheck, ShowsTheFirstOfSeveralFaults) {
    Sending s;
    s.state.session.gLoggedIn = false;
    s.form.text.mText1.set_text(u"");
    s.form.schedule.Option2.set_chosen(true);
    s.form.schedule.Combo1.set_list_index(9);
    const auto refused = [&](Text words, Text title = {}) {
        s.desktop.expect_box(tests::refusal(std::move(words), std::move(title)));
        s.click();
    };
    s.desktop.in_form(u"frmZentLogin", [](Form& login) { login.escape_pressed(); });
    refused(u"KT 폰디라 Login과정을 거쳐야 합니다.");
    s.state.session.gLoggedIn = true;
    s.files.folders.clear();
    refused(u"메시지 내용을 입력하십시오!");
    EXPECT_TRUE(s.files.folders.contains(u"c:\\temp"));
    s.form.text.mText1.set_text(u"안녕");
    refused(u"받는사람을 입력하여 주십시오!");
    s.add(u"a", u"1", false);
    refused(u"받는사람을 선택하여 주십시오.");
    s.add(u"b", u"01011112222");
    s.add(u"c", u"12345678");
    refused(NO_AREA_CODE);
    s.form.recipients.ListView1.set_checked(2, false);
    refused(u"예약 전송은 현재 시간에서 30분 후부터 가능합니다!", u"시간 확인");
    s.form.schedule.Option1.set_chosen(true);
    s.send();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
}

TEST(SendCheck, ARecordingIsSavedForTheCarrierAndWithoutOneTheClickEndsSilently) {
    for (const int kind : {2, 3}) {
        Sending s;
        s.form.TabStrip1.select(kind);
        s.form.voice.TabStrip2.select(2);
        s.add(u"a", u"01011112222");
        s.form.voice.RFK1.open();
        s.click();
        EXPECT_TRUE(s.files.files.empty());
        s.record(platform::Samples(10, 1));
        s.send();
        EXPECT_FALSE(s.recorder.recording) << "nothing is recorded beside the job";
        EXPECT_EQ(s.files.files.at(u"c:\\temp\\tmp.wav"), platform::wav_file(platform::Samples(10, 1)));
        EXPECT_EQ(utf8(s.carrier.registrations.at(0).s_attach_file), "c:\\temp\\tmp.wav;");
    }
}

TEST(SendCheck, LeavesASemicolonInANameToTheCarrierAndSurvivesAFileInPlaceOfTheSoundFolder) {
    Sending s;
    s.files.files[u"c:\\temp"] = "no folder";
    s.files.files[u"z:\\가 나;'다'.txt"] = "text";
    s.form.TabStrip1.select(4);
    s.form.fax.FAX1.add_row(u"z:\\가 나;'다'.txt", {});
    s.add(u"a", u"025551234");
    s.send();
    EXPECT_EQ(utf8(s.carrier.registrations.at(0).s_attach_file), "z:\\가 나;'다'.txt;");
}

TEST(SendCheck, CompletesSubjectAndSender) {
    Sending s;
    s.form.subject.subjectText.set_text(u"");
    s.form.sender.txtUserName.set_text(u" 홍길동 ");
    s.form.sender.txtCallback.set_text(u"  ");
    s.add(u"a", u"01011112222");
    s.send();
    EXPECT_EQ(utf8(s.form.subject.subjectText.text()), "[홍길동]안녕하세요");
    EXPECT_EQ(utf8(s.form.sender.txtUserName.text()), "홍길동");
    EXPECT_EQ(utf8(s.form.sender.txtCallback.text()), "02-999-0000");
    EXPECT_EQ(utf8(s.carrier.registrations.at(0).s_callback), "029990000");
}

TEST(SendBox, ShowsWhatIsAboutToBeSent) {
    const struct {
        std::function<void(Sending&)> draft;
        const char *kind, *text;
    } confirmations[] = {
        {[](Sending&) {}, "문자메시지",
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자메시지\r\n 발송예약시간: 즉시전송\r\n"
         " 회신번호      : 02-123-4567\r\n 발송대상      : a(010-1111-2222)"},
        {[](Sending& s) {
             s.type(Text(81, u'a'));
             s.form.subject.subjectText.set_text(u"인사");
             s.form.schedule.Option2.set_chosen(true);
             s.form.schedule.DTP1.set_value(make_time(2027, 7, 5));
             s.form.schedule.Combo1.set_list_index(9);
             s.form.schedule.Combo2.set_list_index(5);
             s.add(u"b", u"01022223333");
             s.add(u"c", u"01033334444", false);
             s.add(u"d", u"01044445555");
         },
         "문자메시지",
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자메시지(장문)\r\n"
         " 발송예약시간: 예약전송(2027년 7월 5일 09시05분)\r\n 회신번호      : 02-123-4567\r\n"
         " 발송대상      : a(010-1111-2222)외 2건"},
        {[](Sending& s) {
             s.form.TabStrip1.select(2);
             s.form.subject.subjectText.set_text(u"인사");
             s.form.voice.ttsText.set_text(u"음성");
             s.form.reply.Check2.set_checked(true);
         },
         "문자플러스(TTS)",
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 문자플러스(TTS)\r\n 발송예약시간: 즉시전송\r\n"
         " 답변받기      : 아니오\r\n 발송대상      : a(010-1111-2222)"},
        {[](Sending& s) {
             s.form.TabStrip1.select(3);
             s.form.voice.ttsText.set_text(u"음성");
             s.form.text.Check1.set_checked(true);
             s.form.reply.Combo4.set_list_index(2);
         },
         "음성메시지(TTS)",
         "\r\n 메시지제목   : 인사\r\n 메시지구분   : 음성메시지(TTS)\r\n 발송예약시간: 즉시전송\r\n"
         " 회신번호      : 02-123-4567\r\n 답변받기      : 예\r\n 답변개수      : 3\r\n"
         " 발송대상      : a(010-1111-2222)"},
    };
    for (const auto& confirmation : confirmations) {
        Sending s;
        s.add(u"a", u"010-1111-2222");
        confirmation.draft(s);
        s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) {
            EXPECT_EQ(utf8(box.Text1.text()), confirmation.text);
            EXPECT_EQ(utf8(box.Label1.caption()),
                      confirmation.kind + std::string(" 발송을 시작하시겠습니까?"));
            box.Command2.Click.raise();
        });
        s.click();
        EXPECT_EQ(s.desktop.forms.size(), 1u);
    }
}

TEST(SendBox, EveryWayToCloseItExceptTheStartButtonCancels) {
    const std::function<void(send::frmSBox&)> ways_out[] = {
        [](send::frmSBox& box) { box.Command2.Click.raise(); },
        [](send::frmSBox& box) { box.escape_pressed(); },
        [](send::frmSBox& box) { box.close_requested(); },
    };
    for (const auto& way_out : ways_out) {
        Sending s;
        s.add(u"a", u"01011112222");
        s.state.forms.gDialogConfirmed = true;
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

TEST(ScheduleCheck, ComparesTheLeadWithTheDigitsOfDayHourMinuteAndSecond) {
    const struct {
        LocalTime now;
        const char* saved;
        int day, hour, minute;
        /// The lead that the refusal names; none when the draft passes.
        const char* refused_below;
    } rows[] = {
        {LATE, "", 23, 23, 39, "30"},
        {LATE, "", 23, 23, 40, nullptr},
        {LATE, "20", 23, 23, 29, "20"},
        {LATE, "20", 23, 23, 30, nullptr},
        {LATE, "", 24, 0, 0, nullptr},  // 50 minutes, and another day anyway
        {LATE, "", 23, 22, 40, "30"},   // in the past, though by as much as the lead
        {LATE, "", 22, 23, 59, "30"},
        {LATE, "0", 23, 22, 0, nullptr},
        {LATE, "abc", 22, 0, 0, nullptr},
        {LATE, "-5", 23, 23, 9, "-5"},
        {LATE, "-5", 23, 23, 10, nullptr},
        {LATE, "120", 23, 23, 59, "90"},
        {LATE, "120", 24, 0, 0, nullptr},
        {MORNING + std::chrono::seconds(1), "30", 23, 10, 30, "30"},
        {MORNING + std::chrono::seconds(1), "30", 23, 10, 31, nullptr},
        {MORNING, "90", 23, 10, 59, "90"},
        {MORNING, "90", 23, 11, 0, nullptr},  // 60 minutes are 10000, 90 are 9000
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.saved) + " " + std::to_string(row.hour) + ":" +
                     std::to_string(row.minute));
        Sending s;
        s.clock.set(row.now);
        s.files.files[s.app_ini] = std::string("[SET]\r\nP_TIME=") + row.saved + "\r\n";
        s.add(u"a", u"01011112222");
        s.form.schedule.Option2.set_chosen(true);
        s.form.schedule.DTP1.set_value(make_time(2026, 11, row.day, 15));
        s.form.schedule.Combo1.set_list_index(row.hour);
        s.form.schedule.Combo2.set_list_index(row.minute);
        if (row.refused_below == nullptr) {
            s.send();
        } else {
            s.desktop.expect_box(tests::refusal(
                u"예약 전송은 현재 시간에서 " + from_ascii(row.refused_below) + u"분 후부터 가능합니다!",
                u"시간 확인"));
            s.click();
        }
        EXPECT_EQ(s.carrier.registrations.size(), row.refused_below == nullptr ? 1u : 0u);
    }
}

}  // namespace
