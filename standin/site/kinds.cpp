#include "standin/site/kinds.h"

namespace standin::site {

std::string_view kind_name(std::int64_t data_type) {
    switch (data_type) {
        case 1:
            return "문자메시지";
        case 2:
        case 3:
            return "음성메시지";
        case 5:
            return "팩스메시지";
        case 7:
            return "문자플러스";
        default:
            return "기타";
    }
}

std::int32_t price(const Prices& prices, std::int64_t data_type) {
    switch (data_type) {
        case 1:
            return prices.text;
        case 2:
        case 3:
            return prices.voice;
        case 5:
            return prices.fax;
        case 7:
            return prices.text_plus;
        default:
            return 0;
    }
}

std::string_view reason(std::int64_t result) {
    switch (result) {
        case 2:
            return "인증 실패";
        case 3:
            return "전송 에러";
        case 4:
            return "지원하지 않음";
        case 5:
            return "접속 에러";
        case 6:
            return "응답 없음";
        case 7:
            return "전달 에러";
        case 8:
            return "수신자 초과";
        case 9:
            return "첨부 초과";
        case 16:
            return "첨부파일 없음";
        default:
            return "기타 에러";
    }
}

}  // namespace standin::site
