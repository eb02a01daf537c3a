// The recorder at a real sound server: what is spoken into the microphone is what the carrier gets.

#include "platform/error.h"
#include "platform/formats/wav_file.h"
#include "tests/screen/program_fixture.h"
#include "tests/screen/sound_server.h"

#include <QFile>
#include <QTabBar>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace tests {

namespace {

using platform::Samples;
using platform::SAMPLES_A_SECOND;
using platform::SampleView;

constexpr int PATIENCE = 30000;
constexpr std::size_t WAV_HEAD = 44;

bool is_loud(std::int16_t sample) { return std::abs(sample) > 500; }

/// Seconds from the first loud sample to the last; 0 when none is.
double seconds_of_speech(SampleView samples, double rate) {
    const auto first = std::find_if(samples.begin(), samples.end(), is_loud);
    const auto last = std::find_if(samples.rbegin(), samples.rend(), is_loud);
    return first == samples.end() ? 0 : double(last.base() - first) / rate;
}

/// Whether something was said and half a second of silence has followed.
bool has_been_said(SampleView samples) {
    constexpr std::size_t PAUSE = SAMPLES_A_SECOND / 2;
    return samples.size() > PAUSE && std::any_of(samples.begin(), samples.end(), is_loud) &&
           std::none_of(samples.end() - PAUSE, samples.end(), is_loud);
}

Samples samples_of(const QByteArray& wav) {
    Samples samples(std::max<std::size_t>(static_cast<std::size_t>(wav.size()), WAV_HEAD) / 2 - WAV_HEAD / 2);
    std::memcpy(samples.data(), wav.constData() + WAV_HEAD, samples.size() * 2);
    return samples;
}

QByteArray bytes_of(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Listener : platform::Recorder::Listener {
    void microphone_changed() override { ++changes; }
    void heard(SampleView samples) override { said.insert(said.end(), samples.begin(), samples.end()); }
    void recording_broken() override { broken = true; }
    void played(std::size_t samples) override { position = samples; }
    void playing_ended() override { ended = true; }

    int changes = 0;
    Samples said;
    bool broken = false;
    std::size_t position = 0;
    bool ended = false;
};

class RealRecorder : public ProgramTest {
  protected:
    static void SetUpTestSuite() {
        QCoreApplication::addLibraryPath(QStringLiteral(ZENT_APP_DIR));
        server = std::make_unique<SoundServer>();
        speech = server->path(QStringLiteral("speech.wav"));
        ASSERT_EQ(QProcess::execute(QStringLiteral("espeak-ng"),
                                    {"-v", "ko", "-w", speech, QStringLiteral("안녕하세요")}),
                  0);
        // As espeak-ng speaks.
        length = seconds_of_speech(samples_of(bytes_of(speech)), 22050);
        ASSERT_GT(length, 0.5);
    }
    static void TearDownTestSuite() { server.reset(); }

    template <class Condition>
    static void wait_until(Condition condition) {
        ASSERT_TRUE(QTest::qWaitFor(condition, PATIENCE));
    }

    platform::Recorder& recorder = machine.recorder;

    static inline std::unique_ptr<SoundServer> server;
    static inline QString speech;
    /// Seconds of the speech.
    static inline double length = 0;
};

TEST_F(RealRecorder, TakesWhatIsSaidWithoutALossAndPlaysIt) {
    Listener listener;
    recorder.open(listener);
    ASSERT_TRUE(recorder.has_microphone());
    recorder.start_recording();
    wait_until([&] { return !listener.said.empty(); });
    server->play(speech);
    wait_until([&] { return has_been_said(listener.said); });
    recorder.stop_recording();
    EXPECT_NEAR(seconds_of_speech(listener.said, SAMPLES_A_SECOND), length, 0.1);

    const std::size_t heard = listener.said.size();
    const Samples half_a_second(SAMPLES_A_SECOND / 2);
    recorder.start_playing(half_a_second);
    wait_until([&] { return listener.ended; });
    EXPECT_GE(listener.position, half_a_second.size());
    EXPECT_EQ(listener.said.size(), heard) << "nothing is recorded any longer";
    recorder.close();
}

TEST_F(RealRecorder, NoticesAMicrophoneThatGoesAndComes) {
    Listener listener;
    recorder.open(listener);
    recorder.start_recording();
    wait_until([&] { return !listener.said.empty(); });
    server->unplug_microphone();
    wait_until([&] { return listener.broken; });
    EXPECT_EQ(listener.changes, 1);
    EXPECT_FALSE(recorder.has_microphone());
    EXPECT_THROW(recorder.start_recording(), platform::RuntimeError);
    server->plug_in_microphone();
    wait_until([&] { return recorder.has_microphone(); });
    recorder.start_recording();
    listener.said.clear();
    wait_until([&] { return !listener.said.empty(); });
    recorder.close();
}

TEST_F(RealRecorder, SendsWhatWasSaidToTheCarrier) {
    platform::SoundRecorder& control = application.main_form().voice.RFK1;
    log_in();
    user.in_window("frmZent", [](QWidget& window) {
        const auto choose = [&](const char* tabs, int tab) {
            auto& bar = *window.findChild<QTabBar*>(QString::fromLatin1(tabs));
            QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab - 1).center());
        };
        choose("TabStrip1", compose::MessageKind::voice);
        choose("TabStrip2", 2);
        type_into(window, "subjectText", QStringLiteral("인사"));
        type_into(window, "HText1_0", QStringLiteral("홍길동"));
        type_into(window, "HText1_1", QStringLiteral("02-123-4567"));
        press_enter(window, "HText1_1");
    });
    user.in_window(
        "frmZent", [](QWidget& window) { press(window, "_record"); }, [&] { return control.can_record(); });
    user.in_window(
        "frmZent", [](QWidget&) { server->play(speech); }, [&] { return !control.recording().empty(); });
    user.in_window(
        "frmZent",
        [](QWidget& window) {
            press(window, "_stop");
            press(window, "Command1");
        },
        [&] { return has_been_said(control.recording()); });
    user.in_window("frmSBox", [](QWidget& window) { press(window, "Command1"); });
    user.in_window("frmSendEndBox", [](QWidget& window) { press(window, "Command2"); });
    user.in_window("frmZent", [](QWidget& window) { window.close(); });
    run();

    EXPECT_EQ(ledger("attach_file"), std::vector<std::string>{"c:\\temp\\tmp.wav;"});
    const auto sent = bytes_of(QString::fromStdString(folder.path() / "drive_c" / "temp" / "tmp.wav"));
    EXPECT_EQ(sent.toStdString(), platform::wav_file(control.recording()));
    EXPECT_NEAR(seconds_of_speech(samples_of(sent), SAMPLES_A_SECOND), length, 0.1);
}

}  // namespace

}  // namespace tests
