#include "send/kinds.h"

#include "platform/error.h"

#include <algorithm>
#include <array>

namespace send {

using compose::FAX_MESSAGE;
using compose::TEXT_MESSAGE;
using compose::TEXT_PLUS;
using compose::VOICE_MESSAGE;

namespace {

// clang-format off
constexpr std::array<Kind, 8> KINDS = {{
    // text                    tab            content              index type sub bind  callback reply  sms    tts
    {TEXT_KIND,                TEXT_MESSAGE,  Content::text,       0,    1,   1,  0,    true,    false, true,  false},
    {u"문자플러스(TTS)",        TEXT_PLUS,     Content::speech,     1,    7,   1,  1,    false,   true,  true,  true},
    {u"문자플러스(마이크녹음)",  TEXT_PLUS,     Content::recording,  1,    7,   2,  1,    false,   true,  true,  false},
    {u"문자플러스(파일)",       TEXT_PLUS,     Content::sound_file, 1,    7,   2,  1,    false,   true,  true,  false},
    {u"음성메시지(TTS)",        VOICE_MESSAGE, Content::speech,     1,    2,   1,  1,    true,    true,  false, true},
    {u"음성메시지(마이크녹음)",  VOICE_MESSAGE, Content::recording,  1,    3,   2,  1,    true,    true,  false, false},
    {u"음성메시지(파일)",       VOICE_MESSAGE, Content::sound_file, 1,    3,   2,  1,    true,    true,  false, false},
    {FAX_KIND,                 FAX_MESSAGE,   Content::documents,  1,    5,   2,  1,    false,   false, false, false},
}};
// clang-format on

Content content_of_tabs(const compose::frmZent& form) {
    switch (form.TabStrip1.selected()) {
        case TEXT_MESSAGE:
            return Content::text;
        case FAX_MESSAGE:
            return Content::documents;
        default:
            break;
    }
    switch (form.TabStrip2.selected()) {
        case 1:
            return Content::speech;
        case 2:
            return Content::recording;
        default:
            return Content::sound_file;
    }
}

}  // namespace

const Kind* find_kind(platform::TextView text) {
    const auto* found = std::ranges::find(KINDS, text, &Kind::text);
    return found == KINDS.end() ? nullptr : found;
}

const Kind& kind_of_draft(const compose::frmZent& form) {
    const Content content = content_of_tabs(form);
    const auto* found = std::ranges::find_if(KINDS, [&](const Kind& kind) {
        return kind.tab == form.TabStrip1.selected() && kind.content == content;
    });
    // A tab that somebody adds without a kind must not send as another one.
    if (found == KINDS.end()) throw platform::RuntimeError(platform::ErrorNumber::subscript_out_of_range);
    return *found;
}

}  // namespace send
