#pragma once

#include "platform/text/text.h"

namespace compose {

/// A number of this many characters or fewer lacks its area code.
inline constexpr std::size_t LOCAL_NUMBER_LENGTH = 8;

// Captions of the number's field and column; by the field's caption a typed number is judged.
inline constexpr platform::TextView TEXT_NUMBER = u"문자보낼번호";
inline constexpr platform::TextView VOICE_NUMBER = u"음성보낼번호";
inline constexpr platform::TextView FAX_NUMBER = u"팩스보낼번호";

// Why a number is refused, to the user, below the line that names it.
inline constexpr platform::TextView AREA_CODE_MISSING =
    u"(동일 통화지역도 만드시 지역번호(DDD)를 입력하여 주십시오.)";
inline constexpr platform::TextView MOBILE_ONLY =
    u"(문자, 문자플러스 메시지 전송은 모바일(휴대폰)번호만 발송이 가능합니다.)";
inline constexpr platform::TextView NO_FAX_TO_NUMBER =
    u"(모바일(휴대폰), 03030, 0502, 0505로 시작되는 번호는 팩스메시지 발송이 불가하오니 확인하여 주십시오.)";

/// The line that names a wrong number and what it was to be, and why it is refused.
inline platform::Text wrong_number(platform::TextView what, platform::TextView number,
                                   platform::TextView why) {
    return platform::Text(what) + u" '" + platform::Text(number) + u"' 오류입니다.\r\n\r\n" +
           platform::Text(why);
}

}  // namespace compose
