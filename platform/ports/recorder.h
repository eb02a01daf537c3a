#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace platform {

/// Sound as a telephone carries it: 16-bit samples of one channel, SAMPLES_A_SECOND for each second.
using Samples = std::vector<std::int16_t>;
using SampleView = std::span<const std::int16_t>;

inline constexpr std::size_t SAMPLES_A_SECOND = 8000;

/// The machine's microphone and loudspeaker. Only one of the two works at a time, for one listener.
class Recorder {
  public:
    virtual ~Recorder() = default;

    /// Receives the recorder's events, from the event loop or within `stop_recording`.
    class Listener {
      public:
        virtual ~Listener() = default;

        /// The first microphone has come or the last one has gone.
        virtual void microphone_changed() = 0;
        virtual void heard(SampleView samples) = 0;
        /// The microphone has gone and the recording is over. All its samples have been delivered.
        virtual void recording_broken() = 0;
        /// How many samples have been played so far.
        virtual void played(std::size_t samples) = 0;
        /// All has been played, or the loudspeaker has gone.
        virtual void playing_ended() = 0;
    };

    /// Looks for microphones until `close`. The machine's module for sound is loaded here. Raises
    /// RuntimeError 48 when it is not installed.
    virtual void open(Listener& listener) = 0;
    /// Stops everything. The listener is not called any more.
    virtual void close() = 0;

    virtual bool has_microphone() const = 0;
    /// Raises RuntimeError 70 when the microphone cannot be used.
    virtual void start_recording() = 0;
    /// Delivers the samples that are still on their way, and then no more.
    virtual void stop_recording() = 0;
    /// Raises RuntimeError 70 when no loudspeaker can be used.
    virtual void start_playing(SampleView samples) = 0;
    virtual void stop_playing() = 0;
};

}  // namespace platform
