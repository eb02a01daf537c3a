// The recorder with a real sound server: it must record what is spoken into the microphone.

#include "machine/qt/modules/late_ports.h"
#include "platform/error.h"
#include "tests/screen/sound_server.h"

#include <QFile>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace tests {

namespace {

using platform::Samples;
using platform::SAMPLES_A_SECOND;
using platform::SampleView;

constexpr int PATIENCE = 30000;
constexpr std::size_t WAV_HEAD = 44;

bool is_loud(std::int16_t sample) { return std::abs(sample) > 500; }

/// Seconds from the first loud sample to the last; 0 when there is none.
double seconds_of_speech(SampleView samples, double rate) {
    const auto first = std::find_if(samples.begin(), samples.end(), is_loud);
    const auto last = std::find_if(samples.rbegin(), samples.rend(), is_loud);
    return first == samples.end() ? 0 : double(last.base() - first) / rate;
}

/// Whether something was said and half a second of silence followed.
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

class RealRecorder : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        QCoreApplication::addLibraryPath(QStringLiteral(ZENT_APP_DIR));
        server = std::make_unique<SoundServer>();
        speech = server->path(QStringLiteral("speech.wav"));
        ASSERT_EQ(QProcess::execute(QStringLiteral("espeak-ng"),
                                    {"-v", "ko", "-w", speech, QStringLiteral("안녕하세요")}),
                  0);
        // espeak-ng's sample rate.
        length = seconds_of_speech(samples_of(bytes_of(speech)), 22050);
        ASSERT_GT(length, 0.5);
    }
    static void TearDownTestSuite() { server.reset(); }

    template <class Condition>
    static void wait_until(Condition condition) {
        ASSERT_TRUE(QTest::qWaitFor(condition, PATIENCE));
    }

    machine::qt::LateRecorder recorder;

    static inline std::unique_ptr<SoundServer> server;
    static inline QString speech;
    /// Length of the speech in seconds.
    static inline double length = 0;
};

TEST_F(RealRecorder, RecordsSpeechWithoutALossAndPlaysIt) {
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

TEST_F(RealRecorder, NoticesAMicrophoneThatIsUnpluggedAndPluggedIn) {
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

}  // namespace

}  // namespace tests
