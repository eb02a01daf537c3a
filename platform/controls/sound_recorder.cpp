#include "platform/controls/sound_recorder.h"

#include "platform/error.h"
#include "platform/formats/loudness.h"
#include "platform/formats/wav_file.h"
#include "platform/text/format.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

Text minutes_and_seconds(std::size_t samples) {
    const auto seconds = static_cast<int>(samples / SAMPLES_A_SECOND);
    const int minutes = seconds / 60;
    return format_number(minutes, u"00") + u":" + format_number(seconds % 60, u"00");
}

}  // namespace

SoundRecorder::~SoundRecorder() {
    if (open_) recorder_.close();
}

void SoundRecorder::open() {
    if (open_) return;
    try {
        recorder_.open(*this);
    } catch (const RuntimeError& error) {
        return warn(error.description());
    }
    open_ = true;
    become_idle();
}

bool SoundRecorder::can_record() const {
    return open_ && state_ == State::idle && recorder_.has_microphone();
}

void SoundRecorder::record() {
    if (!takes_input() || !can_record() || !may_replace() || !can_record()) return;
    if (!ignore_errors([this] { recorder_.start_recording(); })) {
        return warn(u"마이크를 사용할 수 없습니다. 다른 프로그램이 쓰고 있는지 확인해 주십시오.");
    }
    holds_earlier_ = true;
    become(State::recording, u"녹음하고 있습니다.");
}

bool SoundRecorder::may_replace() {
    bool may = true;
    if (!recording_.empty() && !kept_) Replacing.raise(may);
    return may;
}

void SoundRecorder::stop() {
    if (state_ == State::recording) {
        recorder_.stop_recording();
    } else if (state_ == State::playing) {
        recorder_.stop_playing();
    }
    // The last samples may have filled the recording, which has ended it already.
    if (state_ != State::idle) become_idle();
}

void SoundRecorder::play() {
    if (!takes_input() || !can_play()) return;
    if (!ignore_errors([this] { recorder_.start_playing(recording_); })) {
        return warn(u"스피커를 사용할 수 없습니다. 스피커나 이어폰을 연결해 주십시오.");
    }
    played_ = 0;
    become(State::playing, u"재생하고 있습니다.");
}

Text SoundRecorder::time() const {
    if (state_ == State::playing)
        return minutes_and_seconds(played_) + u" / " + minutes_and_seconds(recording_.size());
    return minutes_and_seconds(holds_earlier_ ? 0 : recording_.size()) + u" / " + minutes_and_seconds(LIMIT);
}

bool SoundRecorder::SaveWave(const Text& folder, const Text& file) {
    stop();
    if (recording_.empty()) {
        if (can_record()) warn(u"녹음한 음성이 없습니다. 빨간색 녹음버튼을 누르고 녹음하세요.");
        return true;
    }
    try {
        files_.write(folder + file, wav_file(recording_));
        return false;
    } catch (const RuntimeError& error) {
        warn(u"녹음한 음성을 파일로 저장하지 못했습니다. " + error.description());
        return true;
    }
}

void SoundRecorder::take_up(Samples recording) {
    stop();
    recording_ = std::move(recording);
    ++revision_;
    kept_ = false;
    if (open_) become_idle();
}

void SoundRecorder::microphone_changed() {
    if (state_ == State::idle) become_idle();
}

void SoundRecorder::heard(SampleView samples) {
    if (state_ != State::recording || samples.empty()) return;
    if (std::exchange(holds_earlier_, false)) recording_.clear();
    kept_ = false;
    ++revision_;
    const SampleView fitting = samples.first(std::min(samples.size(), LIMIT - recording_.size()));
    recording_.insert(recording_.end(), fitting.begin(), fitting.end());
    level_ = loudness(samples);
    if (recording_.size() < LIMIT) return refresh(Aspect::value);
    become_idle();
    inform(u"6분이 되어 녹음을 마쳤습니다. 재생버튼을 누르고 확인하세요.");
    recorder_.stop_recording();
}

void SoundRecorder::recording_broken() {
    if (state_ != State::recording) return;
    become_idle();
    warn(recording_.empty() ? u"마이크 연결이 끊어져 녹음하지 못했습니다."
                            : u"마이크 연결이 끊어졌습니다. 끊어지기 전까지 녹음한 음성은 남아 있습니다.");
}

void SoundRecorder::played(std::size_t samples) {
    if (state_ != State::playing) return;
    samples = std::clamp(samples, played_, recording_.size());
    level_ = loudness(SampleView(recording_).subspan(played_, samples - played_));
    played_ = samples;
    refresh(Aspect::value);
}

void SoundRecorder::playing_ended() {
    if (state_ == State::playing) become_idle();
}

void SoundRecorder::become(State state, Text message) {
    state_ = state;
    level_ = 0;
    inform(std::move(message));
    refresh(Aspect::value);
}

void SoundRecorder::become_idle() {
    holds_earlier_ = false;
    become(State::idle, recording_.empty() ? u"녹음할 준비가 되었습니다."
                                           : u"녹음한 음성이 있습니다. 재생버튼을 누르고 확인하세요.");
    if (recorder_.has_microphone()) return;
    warn(recording_.empty() ? u"마이크를 찾을 수 없습니다. 마이크를 연결해 주십시오."
                            : u"마이크를 찾을 수 없습니다. 녹음한 음성은 남아 있습니다.");
}

void SoundRecorder::inform(Text message) { say(std::move(message), false); }

void SoundRecorder::warn(Text message) { say(std::move(message), true); }

void SoundRecorder::say(Text message, bool warns) {
    message_ = std::move(message);
    message_warns_ = warns;
    refresh(Aspect::text);
}

}  // namespace platform
