#include "machine/qt/modules/sound/qt_recorder.h"

#include "platform/error.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <algorithm>
#include <array>
#include <utility>

namespace machine::qt {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Samples;
using platform::SAMPLES_A_SECOND;
using platform::SampleView;

namespace {

constexpr int SAMPLE_BYTES = sizeof(Samples::value_type);
/// Bytes of 20 milliseconds, the most that the end of a recording can lose.
constexpr qsizetype PIECE = SAMPLES_A_SECOND / 50 * SAMPLE_BYTES;
/// Silence after the sound, in bytes of 300 milliseconds: the sink reports the end when it has read
/// everything, while the last part is still being played.
constexpr qsizetype TAIL = SAMPLES_A_SECOND * 3 / 10 * SAMPLE_BYTES;

// Milliseconds between looks for a microphone: Qt does not report when devices come and go.
constexpr int LOOK_INTERVAL = 1000;
constexpr int LOOK_INTERVAL_RECORDING = 200;
constexpr int PROGRESS_INTERVAL = 50;

QAudioFormat speech_format() {
    QAudioFormat format;
    format.setSampleRate(SAMPLES_A_SECOND);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

/// Returns the device if it exists and supports the format of speech. Devices of a sound server do, since it
/// converts.
QAudioDevice usable(QAudioDevice device) {
    if (device.isNull() || !device.isFormatSupported(speech_format()))
        throw RuntimeError(ErrorNumber::permission_denied);
    return device;
}

}  // namespace

QtRecorder::QtRecorder() {
    connect(&look_, &QTimer::timeout, this, &QtRecorder::look_for_microphone);
    connect(&progress_, &QTimer::timeout, this, [this] {
        const auto samples = sink_->processedUSecs() * qint64{SAMPLES_A_SECOND} / 1'000'000;
        listener_->played(static_cast<std::size_t>(samples));
    });
}

/// Deleting a device runs the event loop, and the events must find a complete recorder.
QtRecorder::~QtRecorder() {
    close();
    // One by one: deleting a device may delete others.
    while (QObject* device = findChild<QObject*>(QString(), Qt::FindDirectChildrenOnly)) delete device;
}

void QtRecorder::open(Listener& listener) {
    listener_ = &listener;
    has_microphone_ = !QMediaDevices::audioInputs().isEmpty();
    look_.start(LOOK_INTERVAL);
}

void QtRecorder::close() {
    end_recording();
    stop_playing();
    look_.stop();
    listener_ = nullptr;
}

void QtRecorder::look_for_microphone() {
    const QList<QAudioDevice> microphones = QMediaDevices::audioInputs();
    const bool there = !microphones.isEmpty();
    if (std::exchange(has_microphone_, there) != there) listener_->microphone_changed();
    // The sound server would silently go on with another microphone or with none.
    if (source_ != nullptr &&
        std::none_of(microphones.begin(), microphones.end(),
                     [this](const QAudioDevice& microphone) { return microphone.id() == source_id_; }))
        break_recording();
}

void QtRecorder::start_recording() {
    const QAudioDevice device = usable(QMediaDevices::defaultAudioInput());
    source_.reset(new QAudioSource(device, speech_format(), this));
    source_id_ = device.id();
    source_->setBufferSize(PIECE);
    stream_ = source_->start();
    if (stream_ == nullptr || source_->error() != QAudio::NoError) {
        end_recording();
        throw RuntimeError(ErrorNumber::permission_denied);
    }
    // Queued, since the listener may end the recording and the source must not be deleted within its own
    // signal.
    connect(
        stream_, &QIODevice::readyRead, this, [this] { take(); }, Qt::QueuedConnection);
    connect(
        source_.get(), &QAudioSource::stateChanged, this,
        [this, source = source_.get()](QAudio::State state) {
            if (state == QAudio::StoppedState && source == source_.get()) break_recording();
        },
        Qt::QueuedConnection);
    look_.start(LOOK_INTERVAL_RECORDING);
}

void QtRecorder::take() {
    std::array<Samples::value_type, 4096> samples;
    while (stream_ != nullptr) {
        const qint64 bytes = stream_->read(reinterpret_cast<char*>(samples.data()), sizeof samples);
        if (bytes < SAMPLE_BYTES) return;
        listener_->heard(SampleView(samples).first(static_cast<std::size_t>(bytes / SAMPLE_BYTES)));
    }
}

void QtRecorder::stop_recording() {
    take();
    end_recording();
}

void QtRecorder::end_recording() {
    if (source_ == nullptr) return;
    stream_.clear();
    const auto source = std::move(source_);
    source->stop();
    look_.start(LOOK_INTERVAL);
}

void QtRecorder::break_recording() {
    stop_recording();
    listener_->recording_broken();
}

void QtRecorder::start_playing(SampleView samples) {
    sound_reader_.close();
    sound_ = QByteArray(reinterpret_cast<const char*>(samples.data()),
                        static_cast<qsizetype>(samples.size_bytes()));
    sound_.append(TAIL, '\0');
    sound_reader_.open(QIODevice::ReadOnly);
    sink_.reset(new QAudioSink(usable(QMediaDevices::defaultAudioOutput()), speech_format(), this));
    sink_->start(&sound_reader_);
    if (sink_->error() != QAudio::NoError) {
        stop_playing();
        throw RuntimeError(ErrorNumber::permission_denied);
    }
    connect(
        sink_.get(), &QAudioSink::stateChanged, this,
        [this, sink = sink_.get()](QAudio::State state) {
            // On a slow machine the sink may be idle for a moment in the middle of the sound.
            const bool over =
                state == QAudio::StoppedState || (state == QAudio::IdleState && sound_reader_.atEnd());
            if (over && sink == sink_.get()) end_playing();
        },
        Qt::QueuedConnection);
    progress_.start(PROGRESS_INTERVAL);
}

void QtRecorder::stop_playing() {
    progress_.stop();
    const auto sink = std::move(sink_);
    if (sink != nullptr) sink->stop();
}

void QtRecorder::end_playing() {
    stop_playing();
    listener_->playing_ended();
}

}  // namespace machine::qt
