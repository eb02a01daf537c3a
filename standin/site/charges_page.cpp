// The charges of a month, computed from its registrations.

#include "standin/site/kinds.h"
#include "standin/site/pages.h"
#include "standin/site/registrations.h"

#include <algorithm>
#include <filesystem>

namespace standin::site {
namespace {

constexpr std::size_t month_length = 7;

std::string month_of(const Request& request, const Sources& sources) {
    std::string month = query_field(request.query, "month");
    return month.size() == month_length ? month : sources.this_month();
}

Html row(std::string_view name, std::string_view count, std::string_view price, std::int64_t won) {
    Html html;
    html << "<td>" << name << "</td><td class=\"number\">" << count << "</td><td class=\"number\">" << price
         << "</td><td class=\"number\">" << with_commas(won) << "원</td></tr>\n";
    return html;
}

Html bill(const std::vector<Usage>& usages, const Prices& prices, bool first_month) {
    std::int64_t sent = 0;
    Html html;
    html << "<div class=\"card\"><table><thead><tr><th>종류</th><th class=\"number\">수신자</th>"
            "<th class=\"number\">단가</th><th class=\"number\">금액</th></tr></thead><tbody>\n";
    for (std::size_t i = 0; i < usages.size(); ++i) {
        Usage usage = usages[i];
        // The two data types of a voice cost the same and are one kind to the subscriber.
        while (i + 1 < usages.size() && kind_name(usages[i + 1].data_type) == kind_name(usage.data_type)) {
            usage.recipients += usages[++i].recipients;
        }
        const std::int64_t each = price(prices, usage.data_type);
        const std::int64_t won = usage.recipients * each;
        sent += won;
        html << "<tr>"
             << row(kind_name(usage.data_type), with_commas(usage.recipients), with_commas(each) + "원", won);
    }
    if (usages.empty()) {
        html << "<tr><td colspan=\"4\" class=\"empty\">발송 내역이 없습니다.</td></tr>\n";
    }
    // Messages are free up to the basic charge. The first month has no basic charge.
    const std::int64_t basic = first_month ? 0 : prices.monthly;
    html << "</tbody><tfoot><tr>" << row("메시지 발송요금", "", "", sent) << "<tr>"
         << row("기본료", "", "", basic) << "<tr>"
         << row("기본료로 무료 발송", "", "", -std::min(sent, basic)) << "<tr>"
         << row("청구 금액", "", "", std::max(sent, basic)) << "</tfoot></table></div>\n";
    return html;
}

}  // namespace

Answer charges_page(const Request& request, const Sources& sources) {
    return for_subscriber(request, sources, [&](const Subscriber& subscriber) {
        const std::string month = month_of(request, sources);
        std::vector<Usage> usages;
        bool first = true;
        if (std::filesystem::exists(sources.ledger)) {
            const Database ledger(sources.ledger, Database::Access::read);
            usages = usage(ledger, subscriber.visitor.user_id, month);
            first = month <= first_month(ledger, subscriber.visitor.user_id);
        }
        Html content;
        content
            << "<form action=\"/money\" method=\"get\">" << hidden_fields(subscriber.visitor)
            << "<label for=\"month\">조회 월</label> <input type=\"month\" id=\"month\" name=\"month\" "
               "value=\""
            << month << "\"> <button class=\"main\">조회</button></form>\n"
            << bill(usages, subscriber.prices, first)
            << "<p class=\"soft\" style=\"margin-top:12px\">등록에 성공한 메시지의 수신자 수로 계산합니다. "
               "가입 첫 달은 기본료 없이 발송요금만 청구됩니다.</p>\n";
        return subscriber_page("요금조회", subscriber, "/money", content);
    });
}

}  // namespace standin::site
