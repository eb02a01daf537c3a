// The subscriber's own data and inbox.

#include "standin/cp949.h"
#include "standin/site/pages.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace standin::site {
namespace {

std::string_view service_name(std::int32_t type) {
    switch (type) {
        case 23:
            return "폰디라 프로";
        case 24:
            return "폰디라 파트너";
        case 25:
            return "폰디라 팝";
        default:
            return "기타";
    }
}

Html row(std::string_view name, std::string_view text) {
    Html html;
    html << "<tr><th>" << name << "</th><td>" << text << "</td></tr>\n";
    return html;
}

constexpr std::string_view voice = "음성";

void append(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) {
        bytes.push_back(static_cast<char>(number >> (8 * i)));
    }
}

/// A second of the tone after which callers speak, as the telephone records it: 8000 samples of 16 bits.
std::string tone() {
    constexpr std::uint32_t rate = 8000;
    constexpr std::uint32_t bytes_a_second = 2 * rate;
    std::string wav = "RIFF";
    append(wav, 36 + bytes_a_second, 4);
    wav += "WAVEfmt ";
    append(wav, 16, 4);
    append(wav, 1, 2);
    append(wav, 1, 2);
    append(wav, rate, 4);
    append(wav, bytes_a_second, 4);
    append(wav, 2, 2);
    append(wav, 16, 2);
    wav += "data";
    append(wav, bytes_a_second, 4);
    for (std::uint32_t i = 0; i < rate; ++i) {
        const double sample = 9000 * std::sin(i * 2 * std::numbers::pi * 440 / rate);
        append(wav, static_cast<std::uint32_t>(static_cast<std::int32_t>(sample)), 2);
    }
    return wav;
}

/// The title, which for a voice is a link to its sound.
Html title_of(const Received& received, const Visitor& visitor) {
    Html title;
    if (received.kind != voice) {
        title << received.title;
        return title;
    }
    title << "<a href=\"" << link("/inbox/voice", visitor, {{"time", received.time}}) << "\">"
          << received.title << "</a>";
    return title;
}

}  // namespace

Answer member_page(const Request& request, const Sources& sources) {
    return for_subscriber(request, sources, [](const Subscriber& subscriber) {
        const Account& account = subscriber.account;
        Html content;
        content << "<div class=\"card\"><table><tbody>" << row("아이디", subscriber.visitor.user_id)
                << row("가입자 이름", utf8_from_cp949(account.user_name))
                << row("보낸사람", utf8_from_cp949(account.sender_name))
                << row("회신번호", utf8_from_cp949(account.callback))
                << row("폰디라번호", utf8_from_cp949(account.service_number))
                << row("서비스", service_name(account.type))
                << row("이용 상태", account.state < 2 ? "이용중" : "이용정지")
                << row("가입 대리점", subscriber.visitor.code)
                << "</tbody></table></div>\n<p class=\"soft\" style=\"margin-top:12px\">가입자 정보를 "
                   "변경하시려면 "
                   "고객센터(전화 02-000-0000)로 연락하여 주십시오. 비밀번호는 이 페이지에 표시되지 "
                   "않습니다.</p>\n";
        return subscriber_page("가입자 정보 변경", subscriber, "/memedit", content);
    });
}

Answer inbox_page(const Request& request, const Sources& sources) {
    return for_subscriber(request, sources, [](const Subscriber& subscriber) {
        Html content;
        content << "<div class=\"card\">";
        if (subscriber.inbox.empty()) {
            content << "<p class=\"empty\">수신한 팩스와 음성이 없습니다.</p>";
        } else {
            content
                << "<table><colgroup><col style=\"width:150px\"><col style=\"width:80px\">"
                   "<col style=\"width:150px\"><col><col style=\"width:80px\"></colgroup>"
                   "<thead><tr><th>수신시각</th><th>구분</th><th>보낸번호</th><th>제목</th><th>분량</th></tr>"
                   "</thead><tbody>\n";
            for (const Received& received : subscriber.inbox) {
                content << "<tr><td>" << received.time << "</td><td>" << received.kind << "</td><td>"
                        << received.sender << "</td><td>" << title_of(received, subscriber.visitor)
                        << "</td><td>" << received.size << "</td></tr>\n";
            }
            content << "</tbody></table>";
        }
        content << "</div>\n";
        return subscriber_page("팩스수신", subscriber, "/inbox", content);
    });
}

Answer received_voice(const Request& request, const Sources& sources) {
    return for_subscriber(request, sources, [&](const Subscriber& subscriber) {
        const std::string time = query_field(request.query, "time");
        for (const Received& received : subscriber.inbox) {
            if (received.kind == voice && received.time == time) {
                return Answer{.body = tone(), .type = "audio/wav", .file_name = received.title + ".wav"};
            }
        }
        return refusal(404, "음성이 없습니다", "주소를 확인하여 주십시오.");
    });
}

}  // namespace standin::site
