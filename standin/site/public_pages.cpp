// The pages for everybody: the service, its maker, the search for a lost password, and the sign-up.

#include "standin/site/pages.h"

#include <algorithm>

namespace standin::site {
namespace {

constexpr std::size_t code_limit = 40;

}  // namespace

Answer service_page(const Request&, const Sources& sources) {
    const Prices prices = read_settings(sources.settings).prices;
    Html content;
    content
        << "<div class=\"card text\"><p>폰디라는 문자, 문자플러스, 음성, 팩스를 컴퓨터에서 한 번에 보내는 "
           "통합 메시징 서비스입니다.</p></div>\n"
           "<h2>서비스 이용안내</h2><div class=\"card text\"><ol>"
           "<li>폰디라 프로그램에서 메시지의 종류를 고르고 내용을 작성합니다.</li>"
           "<li>수신자를 직접 입력하거나 명함DB에서 불러옵니다.</li>"
           "<li>즉시전송 또는 예약전송을 고르고 [보내기]를 누릅니다.</li>"
           "<li>[발송결과]에서 등록된 메시지를 확인합니다.</li></ol></div>\n"
           "<h2>요금 안내</h2><div class=\"card\"><table><thead><tr><th>종류</th>"
           "<th class=\"number\">수신자 한 명</th></tr></thead><tbody>";
    const auto price_row = [&](std::string_view name, std::int64_t won) {
        content << "<tr><td>" << name << "</td><td class=\"number\">" << with_commas(won) << "원</td></tr>\n";
    };
    price_row("문자메시지", prices.text);
    price_row("문자플러스", prices.text_plus);
    price_row("음성메시지", prices.voice);
    price_row("팩스메시지", prices.fax);
    price_row("월 기본료", prices.monthly);
    content << "</tbody></table></div>\n<p class=\"soft\" style=\"margin-top:12px\">매월 기본료만큼 메시지를 "
               "무료로 "
               "보내실 수 있습니다.</p>\n";
    return page("폰디라 서비스", content);
}

Answer maker_page(const Request&, const Sources&) {
    Html content;
    content << "<div class=\"card text\"><p>Cardvale은 명함 관리 프로그램과 폰디라 통합메시징 프로그램을 "
               "만듭니다."
               "</p><p>전화 02-000-0000<br>팩스 02-000-0001</p></div>\n"
               "<h2>자료실</h2><div class=\"card text\"><ul><li><a href=\"/download/Pondira.doc\">가입신청서 "
               "워드문서(DOC)</a></li><li><a href=\"/download/Pondira.hwp\">가입신청서 한글문서(HWP)</a></li>"
               "<li><a href=\"/download/Pondira.pdf\">가입신청서 PDF문서(PDF)</a></li></ul></div>\n";
    return page("Cardvale", content);
}

Answer find_password_page(const Request&, const Sources&) {
    Html content;
    content
        << "<div class=\"card text\"><p>아이디나 비밀번호를 잊으신 경우, 가입하실 때 등록하신 전화로 "
           "고객센터에 "
           "연락하시면 본인 확인 후 다시 알려 드립니다.</p><p>전화 02-000-0000 (평일 09:00 ~ 18:00)<br>팩스 "
           "02-000-0001</p><p class=\"soft\">비밀번호는 전화나 전자우편으로 여쭙지 않습니다.</p></div>\n";
    return page("아이디/비밀번호 찾기", content);
}

Answer sign_up_page(const Request& request, const Sources&) {
    std::string code = query_field(request.query, "code");
    const auto is_digit = [](char character) { return character >= '0' && character <= '9'; };
    if (code.empty() || code.size() > code_limit || !std::all_of(code.begin(), code.end(), is_digit)) {
        return refusal(400, "대리점 코드가 없습니다", "폰디라 프로그램에서 다시 열어 주십시오.");
    }
    const std::string_view partner = std::string_view(request.path).substr(1, request.path.find('/', 1) - 1);
    Html content;
    content << "<div class=\"card\"><table><tbody><tr><th>가입 대리점</th><td>" << partner
            << "</td></tr><tr><th>대리점 코드</th><td>" << code
            << "</td></tr></tbody></table></div>\n"
               "<h2>가입 절차</h2><div class=\"card text\"><ol>"
               "<li>프로그램의 [신규회원 가입] 창에서 가입신청서를 받아 작성합니다.</li>"
               "<li>결제방법에 '전화요금합산청구'를 선택합니다.</li>"
               "<li>작성하신 신청서를 팩스 02-000-0001로 보내 주십시오.</li>"
               "<li>확인 전화를 받으신 후 바로 이용하실 수 있습니다.</li></ol></div>\n";
    return page("신규회원 가입", content);
}

}  // namespace standin::site
