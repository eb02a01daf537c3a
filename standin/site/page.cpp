#include "standin/site/page.h"

#include "standin/cp949.h"

#include <array>

namespace standin::site {
namespace {

struct Tab {
    std::string_view path;
    std::string_view title;
};

constexpr std::array tabs = {
    Tab{"/result", "발송결과"},
    Tab{"/inbox", "팩스수신"},
    Tab{"/money", "요금조회"},
    Tab{"/memedit", "가입자 정보"},
};

Html head(std::string_view title) {
    Html html;
    html << R"(<!DOCTYPE html>
<html lang="ko"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<title>)" << title
         << R"( - 폰디라</title>
<style>
:root{color-scheme:light dark;--page:#f5f7fa;--card:#fff;--text:#1d2733;--soft:#5d6b7a;--line:#dde3ea;
--accent:#1a62b8;--good:#1c7a3d;--bad:#b3261e;--row:#f0f5fb}
@media(prefers-color-scheme:dark){:root{--page:#1b1f24;--card:#24292f;--text:#e6e9ed;--soft:#a3adb8;--line:#3a424b;
--accent:#79b0f2;--good:#6fcf8e;--bad:#ff8a80;--row:#2b323a}}
*{box-sizing:border-box}
body{margin:0;background:var(--page);color:var(--text);
font:13px/1.5 NanumGothic,"Noto Sans CJK KR","Malgun Gothic",sans-serif}
a{color:var(--accent);text-decoration:none}a:hover{text-decoration:underline}
:focus-visible{outline:2px solid var(--accent);outline-offset:2px}
header{background:var(--card);border-bottom:1px solid var(--line);padding:0 20px;display:flex;gap:28px;
align-items:center;min-height:48px}
header b{font-size:17px;color:var(--accent)}
nav{display:flex;gap:4px;align-self:stretch}
nav a{display:flex;align-items:center;padding:2px 12px 0;color:var(--soft);border-bottom:2px solid transparent}
nav a[aria-current]{color:var(--text);font-weight:bold;border-color:var(--accent)}
header span{margin-left:auto;color:var(--soft)}
main{padding:18px 20px 28px;max-width:1100px;margin:auto}
h1{font-size:19px;margin:0 0 12px}h2{font-size:15px;margin:22px 0 8px}
p{margin:0 0 10px}
.soft{color:var(--soft)}.good{color:var(--good)}.bad{color:var(--bad)}
.card{background:var(--card);border:1px solid var(--line);border-radius:8px;overflow:hidden}
.text{padding:16px 18px;margin-bottom:14px}.text :last-child{margin-bottom:0}
table{border-collapse:collapse;width:100%;table-layout:fixed}
th,td{padding:7px 10px;text-align:left;vertical-align:top;border-bottom:1px solid var(--line);overflow-wrap:anywhere}
tr:last-child>td,tr:last-child>th{border-bottom:0}
thead th{color:var(--soft);font-weight:normal;white-space:nowrap;background:var(--row)}
tbody th{color:var(--soft);font-weight:normal;width:140px;background:var(--row)}
tbody tr:hover td{background:var(--row)}
.cut{display:block;white-space:nowrap;overflow:hidden;text-overflow:ellipsis}
.number{text-align:right;font-variant-numeric:tabular-nums}
.whole{white-space:pre-wrap}
tfoot td{font-weight:bold}tfoot tr:first-child td{border-top:2px solid var(--line)}
form{display:flex;gap:8px;align-items:center;margin-bottom:12px;flex-wrap:wrap}
input,select,button,.button{font:inherit;color:var(--text);background:var(--card);border:1px solid var(--line);
border-radius:5px;padding:4px 10px;height:30px}
button,.button{cursor:pointer}
.button{display:inline-flex;align-items:center}
.main{background:#1a62b8;border-color:#1a62b8;color:#fff}
.pager{display:flex;gap:8px;align-items:center;margin-top:12px;min-height:30px}
.pager span{margin-left:auto}
.empty{padding:44px;text-align:center;color:var(--soft)}
ul,ol{margin:0 0 10px;padding-left:20px}
</style></head><body>
)";
    return html;
}

Answer framed(std::string_view title, const Html& way, const Html& content, int status) {
    Html html = head(title);
    html << "<header><b>폰디라</b>" << way << "</header>\n<main><h1>" << title << "</h1>\n"
         << content << "</main></body></html>\n";
    return {.status = status, .body = html.bytes()};
}

/// The visitor from the post or from the query of one of this site's links, with the id in UTF-8.
std::optional<Visitor> visitor_of(const Request& request) {
    if (request.posted.empty()) {
        return query_visitor(request.query);
    }
    std::optional<Visitor> visitor = posted_visitor(request.posted);
    if (visitor) {
        visitor->user_id = utf8_from_cp949(visitor->user_id);
    }
    return visitor;
}

}  // namespace

Answer page(std::string_view title, const Html& content, int status) {
    return framed(title, Html(), content, status);
}

Answer subscriber_page(std::string_view title, const Subscriber& subscriber, std::string_view path,
                       const Html& content) {
    Html way;
    way << "<nav>";
    for (const Tab& tab : tabs) {
        way << "<a href=\"" << link(tab.path, subscriber.visitor, {}) << "\"";
        if (path == tab.path) {
            way << " aria-current=\"page\"";
        }
        way << ">" << tab.title << "</a>";
    }
    way << "</nav><span>" << utf8_from_cp949(subscriber.account.user_name) << " ("
        << subscriber.visitor.user_id << ")</span>";
    return framed(title, way, content, 200);
}

Answer refusal(int status, std::string_view title, std::string_view text) {
    Html content;
    content << "<div class=\"card text\"><p>" << text << "</p></div>";
    return page(title, content, status);
}

std::string link(std::string_view path, const Visitor& visitor, const Fields& fields) {
    std::string address(path);
    address += "?code=" + escaped_for_query(visitor.code) + "&userid=" + escaped_for_query(visitor.user_id) +
               "&domain=" + escaped_for_query(visitor.domain);
    for (const auto& [name, value] : fields) {
        if (!value.empty()) {
            address += '&' + std::string(name) + '=' + escaped_for_query(value);
        }
    }
    return address;
}

Html hidden_fields(const Visitor& visitor) {
    Html html;
    html << "<input type=\"hidden\" name=\"code\" value=\"" << visitor.code
         << "\"><input type=\"hidden\" name=\"userid\" value=\"" << visitor.user_id
         << "\"><input type=\"hidden\" name=\"domain\" value=\"" << visitor.domain << "\">";
    return html;
}

Answer for_subscriber(const Request& request, const Sources& sources,
                      const std::function<Answer(const Subscriber&)>& make) {
    const std::optional<Visitor> visitor = visitor_of(request);
    if (!visitor) {
        return refusal(400, "로그인 정보가 없습니다",
                       "폰디라 프로그램에서 로그인하신 후 페이지를 다시 열어 주십시오.");
    }
    const Settings settings = read_settings(sources.settings);
    const Account* account = settings.account(cp949_from_utf8(visitor->user_id));
    if (account == nullptr) {
        return refusal(403, "가입자를 찾을 수 없습니다", "아이디를 확인하신 후 다시 로그인하여 주십시오.");
    }
    Subscriber subscriber{.visitor = *visitor, .account = *account, .inbox = {}, .prices = settings.prices};
    subscriber.account.password.clear();
    if (const auto inbox = settings.inboxes.find(visitor->user_id); inbox != settings.inboxes.end()) {
        subscriber.inbox = inbox->second;
    }
    return make(subscriber);
}

}  // namespace standin::site
