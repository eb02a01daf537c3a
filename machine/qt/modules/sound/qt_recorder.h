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

/// Records and plays with the microphone and the loudspeaker that the user has chosen in the desktop.
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
    /// Deletes in the next turn of the event loop: an object's own signal may lead to its deletion.
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
    /// Where the source's sound is read; deleted when the source breaks.
    QPointer<QIODevice> stream_;
    QByteArray source_id_;

    QByteArray sound_;
    QBuffer sound_reader_{&sound_};
    std::unique_ptr<QAudioSink, Later> sink_;
    QTimer progress_;
};

}  // namespace machine::qt
