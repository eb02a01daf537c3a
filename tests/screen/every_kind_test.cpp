// Every kind of message through the real windows: one registration each, with all that the carrier is told.

#include "tests/screen/kinds_fixture.h"
#include "tests/support/scripted_recorder.h"

namespace tests {

namespace {

const char* const ALL_BUT_TIME =
    "user_id || ' ' || operation || ' ' || data_type || '/' || ifnull(data_sub_type, '-') || ' #' || "
    "submit_sequence || ' ' || subject || ' [' || callback || '] ' || ifnull(reply_flag, '-') || ' ' || "
    "dest_addr_count || ' ' || dest_addr || ' [' || sms_content || '] [' || ifnull(tts_content, '-') || '] ' "
    "|| "
    "attach_file_count || ' ' || attach_file";

/// Stands before the program's end: it is the program that ends the microphone's work.
struct Microphone {
    ScriptedRecorder microphone;
};

class EveryKind : private Microphone, public KindsTest {
  protected:
    EveryKind() : KindsTest(&microphone) {}

    void compose(QWidget& window, int tab, int source) {
        choose_tab(window, "TabStrip1", tab);
        if (source > 0) choose_tab(window, "TabStrip2", source);
        type_into(window, "subjectText", QStringLiteral("안내"));
        if (tab == compose::MessageKind::text) {
            type_into(window, "mText1", QStringLiteral("회의"));
            type_into(window, "txtCallback", QStringLiteral("02-123-4567"));
        }
        if (tab == compose::MessageKind::plus) type_into(window, "mText2", QStringLiteral("전화"));
        if (source == 1) type_into(window, "ttsText", QStringLiteral("음성"));
        if (source == 1 && !form().reply.Check2.checked()) {
            QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("Check2")), Qt::Key_Space);
            QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("Combo4")), Qt::Key_3);
        }
    }

    static void schedule(QWidget& window) {
        press(window, "Option2");
        window.findChild<QDateEdit*>(QStringLiteral("DTP1"))->setDate(QDate(2027, 1, 2));
        QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("Combo1")), Qt::Key_Home);
        QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("Combo2")), Qt::Key_End);
    }

    void record() {
        const auto& control = form().voice.RFK1;
        user.in_window(
            "frmZent", [](QWidget& window) { press(window, "_record"); },
            [&] { return control.can_record(); });
        user.in_window("frmZent", [this](QWidget& window) {
            microphone.speak(platform::Samples(platform::SAMPLES_A_SECOND, 1000));
            press(window, "_stop");
        });
    }

    /// The kind's draft is sent at once and then by schedule, to a recipient of its own each time.
    void send_twice(const QString& number) {
        user.in_window("frmZent", [=](QWidget& window) {
            press(window, "Option1");
            add_recipient(window, number + u'1');
        });
        send();
        read_report();
        user.in_window("frmZent", [=](QWidget& window) {
            schedule(window);
            add_recipient(window, number + u'2');
        });
        send();
        read_report();
    }
};

TEST_F(EveryKind, ReachesTheCarrierWithAllItsArguments) {
    const auto sound = folder.path() / "인사 '말'.WAV";
    const auto report_file = folder.path() / "보고서.hwp";
    const auto picture = folder.path() / "그림 1.JPG";
    // Nobody looks into an attachment before the carrier does.
    for (const auto& file : {sound, report_file, picture}) put(file, "text");
    const std::string waves = "1 " + carrier_path(sound) + ";";
    const std::string recording = "1 c:\\temp\\tmp.wav;";
    const std::string documents = "2 " + carrier_path(report_file) + ";" + carrier_path(picture) + ";";

    const struct {
        int tab, source;
        const char16_t* number;
        std::string before, behind;
    } kinds[] = {
        {1, 0, u"0101111000", "fn_x_submit 1/- #1 안내 [021234567] - 1 ", " [회의] [-] 0 "},
        {2, 1, u"0102222000", "fn_x_submit_2 7/1 #1 안내 [] 3 1 ", " [전화] [음성] 0 "},
        {2, 2, u"0107777000", "fn_x_submit_2 7/2 #1 안내 [] 3 1 ", " [전화] [] " + recording},
        {2, 3, u"0103333000", "fn_x_submit_2 7/2 #1 안내 [] 3 1 ", " [전화] [] " + waves},
        {3, 1, u"0104444000", "fn_x_submit_2 2/1 #1 안내 [021234567] 3 1 ", " [] [음성] 0 "},
        {3, 2, u"0288889000", "fn_x_submit_2 3/2 #1 안내 [021234567] 3 1 ", " [] [] " + recording},
        {3, 3, u"0255556000", "fn_x_submit_2 3/2 #1 안내 [021234567] 3 1 ", " [] [] " + waves},
        {4, 0, u"0266667000", "fn_x_submit_2 5/2 #1 안내 [] 0 1 ", " [] [] " + documents},
    };

    log_in();
    std::vector<std::string> expected, times;
    for (const auto& kind : kinds) {
        user.in_window("frmZent", [this, &kind](QWidget& window) { compose(window, kind.tab, kind.source); });
        if (kind.tab == 2 && kind.source == 2) record();
        if (kind.tab == 2 && kind.source == 3) pick("TTSBttn1", sound);
        if (kind.tab == 4) {
            pick("FAXBttn1", report_file);
            pick("FAXBttn1", picture);
        }
        send_twice(QString::fromUtf16(kind.number));
        for (const char* last : {"1", "2"}) {
            expected.push_back("demo " + kind.before + "김:" + utf8(kind.number) + last + ";" + kind.behind);
        }
        times.insert(times.end(), {"20261123100500", "20270102005900"});
    }
    close_program();
    run();

    EXPECT_EQ(ledger(ALL_BUT_TIME), expected);
    EXPECT_EQ(ledger("schedule_time"), times);
    EXPECT_EQ(ledger("result"), std::vector<std::string>(std::size(kinds) * 2, "1"));
    EXPECT_EQ(form().recipients.ListView1.checked_count(), 0U);
}

TEST_F(EveryKind, AFaxWaitsAQuarterOfAMinuteWithAStopButtonThatAnswers) {
    put(folder.path() / "a.txt", "text");
    log_in();
    user.in_window("frmZent", [](QWidget& window) {
        choose_tab(window, "TabStrip1", compose::MessageKind::fax);
        // More than one fax, so that there is something left to stop.
        for (int i = 0; i < 101; ++i) add_recipient(window, QStringLiteral("02555%1").arg(1000 + i));
    });
    pick("FAXBttn1", folder.path() / "a.txt");
    send();
    user.in_window(
        "frmZentSend",
        [this](QWidget& window) {
            EXPECT_EQ(clock.pauses, std::vector{15'000}) << "pressed within the first wait";
            press(window, "Command1");
            EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("Command1"))->isEnabled());
        },
        [this] { return !clock.pauses.empty(); });
    close_box();
    read_report();
    close_program();
    run();

    EXPECT_EQ(told, QStringLiteral("메시지 등록이 중지되었습니다"));
    EXPECT_EQ(ledger("recipient_count"), std::vector<std::string>{"100"});
    EXPECT_TRUE(report.contains(QStringLiteral("등록중지: 1건"))) << report.toStdString();
}

}  // namespace

}  // namespace tests
