#include "compose/message_kinds.h"

#include "core/phone_number.h"
#include "platform/error.h"

#include <algorithm>

namespace compose {

using platform::TextView;

namespace {

/// A number of this many characters or fewer lacks its area code.
constexpr std::size_t LOCAL_NUMBER_LENGTH = 8;

constexpr TextView AREA_CODE_MISSING = u"(동일 통화지역도 만드시 지역번호(DDD)를 입력하여 주십시오.)";

constexpr NumberRule TEXT_NUMBER{
    .caption = u"문자보낼번호",
    .accepts = core::TEXT_NUMBER_OK,
    .refusal = u"(문자, 문자플러스 메시지 전송은 모바일(휴대폰)번호만 발송이 가능합니다.)",
    .name_when_sent = {}};
constexpr NumberRule VOICE_NUMBER{
    .caption = u"음성보낼번호", .accepts = nullptr, .refusal = {}, .name_when_sent = {}};
constexpr NumberRule FAX_NUMBER{.caption = u"팩스보낼번호",
                                .accepts = core::FAX_NUMBER_OK,
                                .refusal =
                                    u"(모바일(휴대폰), 03030, 0502, 0505로 시작되는 번호는 팩스메시지 "
                                    u"발송이 불가하오니 확인하여 주십시오.)",
                                .name_when_sent = u"팩스보낼 번호"};

constexpr TextView TEXT_COLUMNS[] = {u"이름", u"직위", u"회사", u"휴대폰"};
constexpr TextView TEXT_NUMBERS[] = {u"휴대폰"};
constexpr TextView VOICE_COLUMNS[] = {u"이름", u"회사", u"휴대폰", u"회사전화", u"회사전화2"};
constexpr TextView VOICE_NUMBERS[] = {u"휴대폰", u"회사전화", u"회사전화2"};
constexpr TextView FAX_COLUMNS[] = {u"이름", u"회사", u"회사팩스", u"회사팩스2"};
constexpr TextView FAX_NUMBERS[] = {u"회사팩스", u"회사팩스2"};

/// The service converts faxes one by one and asks for a long wait.
constexpr Pauses FAX_PAUSES{.after_success = 15'000, .before_unbind = 500};

// The caption of a kind with one content is also its name at the carrier.
constexpr TextView TEXT_MESSAGE = u"문자메시지";
constexpr TextView FAX_MESSAGE = u"팩스메시지";

// clang-format off
constexpr CarrierKind TEXT_CONTENTS[] = {
    // name                      content              index type sub bind  callback reply  sms    tts
    {TEXT_MESSAGE,               Content::text,       0,    1,   1,  0,    true,    false, true,  false},
};
constexpr CarrierKind PLUS_CONTENTS[] = {
    {u"문자플러스(TTS)",          Content::speech,     1,    7,   1,  1,    false,   true,  true,  true},
    {u"문자플러스(마이크녹음)",    Content::recording,  1,    7,   2,  1,    false,   true,  true,  false},
    {u"문자플러스(파일)",         Content::sound_file, 1,    7,   2,  1,    false,   true,  true,  false},
};
constexpr CarrierKind VOICE_CONTENTS[] = {
    {u"음성메시지(TTS)",          Content::speech,     1,    2,   1,  1,    true,    true,  false, true},
    {u"음성메시지(마이크녹음)",    Content::recording,  1,    3,   2,  1,    true,    true,  false, false},
    {u"음성메시지(파일)",         Content::sound_file, 1,    3,   2,  1,    true,    true,  false, false},
};
constexpr CarrierKind FAX_CONTENTS[] = {
    {FAX_MESSAGE,                Content::documents,  1,    5,   2,  1,    false,   false, false, false},
};

constexpr std::array<KindOfMessage, MESSAGE_KINDS> KINDS = {{
    // kind, caption                       guide     panel         text   sender reply  number        columns and numbers of the picker  pauses        at the carrier
    {MessageKind::text,  TEXT_MESSAGE,  u"text",  Panel::text,  false, true,  false, TEXT_NUMBER,  TEXT_COLUMNS,  TEXT_NUMBERS,       USUAL_PAUSES, TEXT_CONTENTS},
    {MessageKind::plus,  u"문자플러스",  u"text",  Panel::voice, true,  false, true,  TEXT_NUMBER,  TEXT_COLUMNS,  TEXT_NUMBERS,       USUAL_PAUSES, PLUS_CONTENTS},
    {MessageKind::voice, u"음성메시지",  u"voice", Panel::voice, false, false, true,  VOICE_NUMBER, VOICE_COLUMNS, VOICE_NUMBERS,      USUAL_PAUSES, VOICE_CONTENTS},
    {MessageKind::fax,   FAX_MESSAGE,   u"fax",   Panel::fax,   false, false, false, FAX_NUMBER,   FAX_COLUMNS,   FAX_NUMBERS,        FAX_PAUSES,   FAX_CONTENTS},
}};
// clang-format on

/// The kind's place in the table, counted from 0.
constexpr std::size_t row_of(MessageKind kind) { return static_cast<std::size_t>(kind) - 1; }

constexpr bool rows_stand_in_order() {
    for (std::size_t row = 0; row < KINDS.size(); ++row) {
        if (row_of(KINDS[row].kind) != row) return false;
    }
    return true;
}
static_assert(rows_stand_in_order(), "a kind of message lacks its row");

}  // namespace

const std::array<KindOfMessage, MESSAGE_KINDS>& kinds_of_message() { return KINDS; }

const KindOfMessage& kind_of(MessageKind kind) { return KINDS[row_of(kind)]; }

const KindOfMessage* find_kind(TextView caption) {
    const auto* found = std::ranges::find(KINDS, caption, &KindOfMessage::caption);
    return found == KINDS.end() ? nullptr : found;
}

CarrierKindOfMessage find_carrier_kind(TextView name) {
    for (const KindOfMessage& message : KINDS) {
        const auto found = std::ranges::find(message.contents, name, &CarrierKind::name);
        if (found != message.contents.end()) return {&message, &*found};
    }
    return {};
}

const CarrierKind& carrier_kind(const KindOfMessage& kind, Content content) {
    const auto found = std::ranges::find(kind.contents, content, &CarrierKind::content);
    // A new kind whose codes are missing must not be sent as another one.
    if (found == kind.contents.end())
        throw platform::RuntimeError(platform::ErrorNumber::subscript_out_of_range);
    return *found;
}

TextView fault_of_number(const KindOfMessage& kind, TextView digits) {
    if (digits.size() <= LOCAL_NUMBER_LENGTH) return AREA_CODE_MISSING;
    const NumberRule& rule = kind.number;
    return rule.accepts == nullptr || rule.accepts(digits) ? TextView() : rule.refusal;
}

platform::Text wrong_number(TextView name, TextView number, TextView why) {
    return platform::Text(name) + u" '" + platform::Text(number) + u"' 오류입니다.\r\n\r\n" +
           platform::Text(why);
}

}  // namespace compose
