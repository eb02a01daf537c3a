#pragma once

#include "platform/ports/recorder.h"

#include <QAudioSink>
#include <QAudioSource>
#include <QBuffer>
#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>

namespace machine::qt {

/// The recorder over the desktop's sound: the microphone and the loudspeaker that the user has chosen there.
class QtRecorder : public QObject, public platform::Recorder {
  public:
    QtRecorder();
    ~QtRecorder() override;

    void open(Listener& listener) override;
    void close() override;
    bool has_microphone() const override { return has_microphone_; }
    void start_recording() override;
    void stop_recording() override;
    void start_playing(platform::SampleView samples) override;
    void stop_playing() override;

  private:
    /// Goes with the next turn of the event loop: its own signals may lead to its end.
    struct Later {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

    void look_for_microphone();
    void take();
    void end_recording();
    void break_recording();
    void end_playing();

    Listener* listener_ = nullptr;
    bool has_microphone_ = false;
    QTimer look_;

    std::unique_ptr<QAudioSource, Later> source_;
    /// What the source has recorded; gone when the source breaks.
    QPointer<QIODevice> stream_;
    QByteArray source_id_;

    QByteArray sound_;
    QBuffer sound_reader_{&sound_};
    std::unique_ptr<QAudioSink, Later> sink_;
    QTimer progress_;
};

}  // namespace machine::qt
