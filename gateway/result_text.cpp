#include "gateway/result_text.h"

namespace gateway {

namespace {

platform::TextView message(std::int32_t code) {
    switch (code) {
        case 1:
            return REGISTERED;
        case 2:
            return u"Pondira에 인증실패";
        case 3:
            return u"폰디라 데이터 전송에러";
        case 4:
            return u"아직 지원되지 않는 함수";
        case 5:
            return u"Pondira 접속에러";
        case 6:
            return u"Pondira 응답 없음";
        case 7:
            return u"FTP/HTTP 전송에러";
        case 8:
            return u"착신자수초과";
        case 9:
            return u"첨부파일갯수초과";
        case 16:
            return u"첨부파일없음";
        case 153:
            return u"기타에러";
        default:
            return u"알수없는에러";
    }
}

}  // namespace

platform::Text GATEWAY_RESULT_TEXT(std::int32_t code) {
    platform::Text text(message(code));
    if (code == 1) return text;
    return u"등록실패X" + platform::decimal(code) + u"(" + text + u")";
}

}  // namespace gateway
