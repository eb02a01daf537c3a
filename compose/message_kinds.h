#pragma once

#include "platform/text/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace compose {

/// The most bytes of one text message, in cp949.
inline constexpr std::size_t TEXT_LIMIT = 80;

/// The kinds of message in the order of their tabs, which are counted from 1; `end` is none of them.
enum class MessageKind { text = 1, plus, voice, fax, end };

inline constexpr std::size_t MESSAGE_KINDS = static_cast<std::size_t>(MessageKind::end) - 1;

/// The panels of the main window, one of which shows.
enum class Panel { text, voice, fax };

/// What a message must hold before it can be sent.
enum class Content { text, speech, recording, sound_file, documents };

/// Which numbers a message can be sent to, and how a wrong one is refused.
struct NumberRule {
    /// Caption of the number's field and column.
    platform::TextView caption;
    /// Null when every number is accepted.
    bool (*accepts)(platform::TextView number);
    /// Why a number is refused: the second paragraph of the box.
    platform::TextView refusal;
    /// What the check before sending calls such a number; empty for the caption of the list's column 2.
    platform::TextView name_when_sent;
};

/// How long a job waits within each submit, in milliseconds: the service sets this pace, so the waits must
/// not be shortened.
struct Pauses {
    int after_success;
    int before_unbind;
};

inline constexpr Pauses USUAL_PAUSES{.after_success = 500, .before_unbind = 500};
/// A personal text is a submit of its own for each recipient.
inline constexpr Pauses PERSONAL_PAUSES{.after_success = 250, .before_unbind = 250};

/// A kind of message with one content: the carrier has codes of its own for each.
struct CarrierKind {
    /// Shown to the user. The job also looks its kind up by it, letter for letter.
    platform::TextView name;
    Content content;

    int SMSIndex;
    std::int32_t s_data_type;
    std::int32_t s_data_sub_type;
    int bind_mode;

    // Which fields of the draft are sent; the others are sent empty.
    bool callback;
    bool reply;
    bool sms;
    bool tts;
};

/// Everything that depends on the kind of message alone.
struct KindOfMessage {
    MessageKind kind;
    /// Caption of its tab, its button and the window.
    platform::TextView caption;
    /// The user's guide has a page about it.
    platform::TextView guide_page;
    Panel panel;
    /// Whether the voice's panel shows a text field too.
    bool with_text;
    bool sender_fields;
    bool reply_fields;
    NumberRule number;
    /// Columns of the picker's list, and those of them that hold numbers to send to.
    std::span<const platform::TextView> picker_columns;
    std::span<const platform::TextView> picker_numbers;
    /// Pauses of a job that sends the same text to up to 100 recipients at once.
    Pauses pauses;
    std::span<const CarrierKind> contents;
};

/// All kinds in the order of their tabs.
const std::array<KindOfMessage, MESSAGE_KINDS>& kinds_of_message();

const KindOfMessage& kind_of(MessageKind kind);

/// The kind with this caption; null when there is none.
const KindOfMessage* find_kind(platform::TextView caption);

/// A kind as the carrier knows it, with the row it belongs to.
struct CarrierKindOfMessage {
    const KindOfMessage* message;
    const CarrierKind* carrier;
};

/// The kind with this name at the carrier; two nulls when there is none.
CarrierKindOfMessage find_carrier_kind(platform::TextView name);

/// The carrier's codes for this content. Raises RuntimeError 9 when the kind cannot hold it.
const CarrierKind& carrier_kind(const KindOfMessage& kind, Content content);

/// The second paragraph of the box that refuses the digits as a number for the kind; empty when they are
/// accepted.
platform::TextView fault_of_number(const KindOfMessage& kind, platform::TextView digits);

/// The text of that box: what the number is called, the number, and why it is refused.
platform::Text wrong_number(platform::TextView name, platform::TextView number, platform::TextView why);

}  // namespace compose
