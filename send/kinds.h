#pragma once

#include "compose/main_form.h"
#include "platform/text/text.h"

#include <cstdint>

namespace send {

/// What a message of a kind must hold before it can go.
enum class Content { text, speech, recording, sound_file, documents };

/// One of the eight kinds of message as the carrier tells them apart.
struct Kind {
    /// The user reads it and the job is told by it, letter for letter.
    platform::TextView text;
    compose::MessageKind tab;
    Content content;

    int SMSIndex;
    std::int32_t s_data_type;
    std::int32_t s_data_sub_type;
    int bind_mode;

    // Which fields of the draft go with it; the others go empty.
    bool callback;
    bool reply;
    bool sms;
    bool tts;
};

inline constexpr platform::TextView TEXT_KIND = u"문자메시지";
inline constexpr platform::TextView FAX_KIND = u"팩스메시지";

/// The kind of this exact text; null when there is none.
const Kind* find_kind(platform::TextView text);

/// The kind that the tabs of the main window show.
const Kind& kind_of_draft(const compose::frmZent& form);

}  // namespace send
