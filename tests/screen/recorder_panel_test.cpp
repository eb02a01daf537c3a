// The recorder's panel in the main window, used with keys and a screen reader.

#include "compose/main_form.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/windows_on_doubles.h"

#include <QAccessible>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

using platform::Samples;
using platform::SAMPLES_A_SECOND;

struct RecorderPanel : tests::DeskTest, tests::WindowsOnDoubles {
    RecorderPanel() {
        form.show();
        settle();
        form.choose(compose::MessageKind::voice);
    }
    ~RecorderPanel() override {
        form.unload();
        settle();
    }

    /// Waits until the panel has been painted and the event loop is idle.
    static void paint() {
        ASSERT_TRUE(QTest::qWaitFor([] { return message() != ""; }));
    }
    static QPushButton& button(const char* name) { return find<QPushButton>(name); }
    static std::string message() { return find<QLabel>("_recordMessage").text().toStdString(); }
    void press_key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    compose::frmZent form{platform, state, {}};
};

TEST_F(RecorderPanel, LooksForTheMicrophoneOnceTheUserSeesIt) {
    settle();
    EXPECT_EQ(message(), "");
    form.voice.TabStrip2.select(2);
    paint();
    EXPECT_TRUE(button("_record").isEnabled());
    EXPECT_FALSE(find("_recordWarning").isVisible());
    machine.recorder.plug_in(false);
    EXPECT_FALSE(button("_record").isEnabled());
    EXPECT_NE(message().find("마이크를 찾을 수 없습니다"), std::string::npos);
    EXPECT_TRUE(find("_recordWarning").isVisible());
}

TEST_F(RecorderPanel, RecordsStopsAndPlaysWithOneKey) {
    form.voice.TabStrip2.select(2);
    paint();
    form.voice.RFK1.set_focus();
    ASSERT_EQ(QApplication::focusWidget(), &button("_record"));
    press_key(Qt::Key_Space);
    machine.recorder.speak(Samples(3 * SAMPLES_A_SECOND, 20000));
    EXPECT_EQ(find<QLabel>("_recordTime").text(), QStringLiteral("00:03 / 06:00"));
    EXPECT_GT(find<QProgressBar>("_recordLevel").value(), 90);
    press_key(Qt::Key_Space);
    EXPECT_FALSE(machine.recorder.recording);
    press_key(Qt::Key_Space);
    EXPECT_TRUE(machine.recorder.playing);
    EXPECT_EQ(QApplication::focusWidget(), &button("_stop"));
    EXPECT_TRUE(form.voice.RFK1.has_focus());

    form.subject.subjectText.set_focus();
    machine.recorder.end_playing();
    EXPECT_TRUE(form.subject.subjectText.has_focus()) << "only the panel's own focus goes on";
    form.voice.RFK1.set_kept();
    press_key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return machine.recorder.recording; }));
    EXPECT_TRUE(form.voice.RFK1.has_focus()) << "the field has seen its loss";
}

TEST_F(RecorderPanel, ShowsEveryMessageWholeInTheSmallestWindow) {
    machine.recorder.installed = false;
    form.choose(compose::MessageKind::plus);
    form.voice.TabStrip2.select(2);
    QWidget& window = *find("RFK1").window();
    window.resize(window.minimumSize());
    paint();
    const QLabel& label = find<QLabel>("_recordMessage");
    const auto expect_whole = [&](const char* words) {
        settle();
        EXPECT_NE(message().find(words), std::string::npos) << message();
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << message();
        EXPECT_TRUE(label.parentWidget()->rect().contains(label.geometry())) << message();
    };
    expect_whole("설치");
    machine.recorder.installed = true;
    form.voice.RFK1.open();
    machine.recorder.busy = true;
    form.voice.RFK1.record();
    expect_whole("다른 프로그램");
    machine.recorder.busy = false;
    form.voice.RFK1.record();
    machine.recorder.speak(Samples(6 * 60 * SAMPLES_A_SECOND));
    expect_whole("6분");
    machine.recorder.busy = true;
    form.voice.RFK1.play();
    expect_whole("스피커");
    machine.files.failure = platform::ErrorNumber::path_not_found;
    form.voice.RFK1.SaveWave(u"c:\\temp\\", u"tmp.wav");
    expect_whole("경로를 찾을 수 없습니다");
    machine.recorder.plug_in(false);
    expect_whole("마이크를 찾을 수 없습니다");
    machine.recorder.plug_in(true);
    machine.recorder.busy = false;
    form.voice.RFK1.set_kept();
    form.voice.RFK1.record();
    machine.recorder.speak(Samples(1));
    machine.recorder.break_recording();
    expect_whole("끊어졌습니다");
}

TEST_F(RecorderPanel, HasANameForAScreenReaderOnEveryControl) {
    form.voice.TabStrip2.select(2);
    paint();
    for (const char* name : {"_record", "_stop", "_play", "_recordTime", "_recordLevel", "_recordMessage"}) {
        const auto* accessible = QAccessible::queryAccessibleInterface(&find(name));
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << name;
    }
}

}  // namespace
