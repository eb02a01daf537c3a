#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace platform {

/// Sound as a telephone carries it: 16-bit samples of one channel, SAMPLES_A_SECOND of them.
using Samples = std::vector<std::int16_t>;
using SampleView = std::span<const std::int16_t>;

inline constexpr std::size_t SAMPLES_A_SECOND = 8000;

/// The machine's microphone and loudspeaker. One of the two works at a time, for one listener.
class Recorder {
  public:
    virtual ~Recorder() = default;

    /// Hears what the recorder does, from the event loop or within `stop_recording`.
    class Listener {
      public:
        virtual ~Listener() = default;

        /// The first microphone has come or the last one has gone.
        virtual void microphone_changed() = 0;
        virtual void heard(SampleView samples) = 0;
        /// The microphone has gone, and the recording is over. What it has taken
        /// has been heard.
        virtual void recording_broken() = 0;
        /// So many samples have been played so far.
        virtual void played(std::size_t samples) = 0;
        /// All has been played, or the loudspeaker has gone.
        virtual void playing_ended() = 0;
    };

    /// Looks for microphones from now on, until closed. What a machine needs for sound is loaded here. Raises
    /// RuntimeError 48 where sound is not installed.
    virtual void open(Listener& listener) = 0;
    /// Ends everything; the listener hears no more.
    virtual void close() = 0;

    virtual bool has_microphone() const = 0;
    /// Raises RuntimeError 70 when the microphone cannot be used.
    virtual void start_recording() = 0;
    /// Lets the listener hear what is still on its way, and then no more.
    virtual void stop_recording() = 0;
    /// Raises RuntimeError 70 when there is no loudspeaker that can be used.
    virtual void start_playing(SampleView samples) = 0;
    virtual void stop_playing() = 0;
};

}  // namespace platform
