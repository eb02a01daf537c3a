// Results: the list of registrations, and one registration in full.

#include "standin/site/kinds.h"
#include "standin/site/pages.h"
#include "standin/site/registrations.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

namespace standin::site {
namespace {

constexpr std::size_t day_length = 10;

/// A filter that is not understood lets everything through.
Filter filter_of(const Request& request, const Subscriber& subscriber) {
    Filter filter{.user_id = subscriber.visitor.user_id, .day = query_field(request.query, "day")};
    if (filter.day.size() != day_length) {
        filter.day.clear();
    }
    const std::string state = query_field(request.query, "state");
    filter.state = state == "registered" ? State::registered
                   : state == "refused"  ? State::refused
                                         : State::all;
    return filter;
}

std::string word(State state) {
    return state == State::registered ? "registered" : state == State::refused ? "refused" : "";
}

std::optional<std::int64_t> id_field(const Request& request, std::string_view name) {
    const std::string text = query_field(request.query, name);
    std::int64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    return !text.empty() && error == std::errc() && end == text.data() + text.size() ? std::optional(id)
                                                                                     : std::nullopt;
}

Place place_of(const Request& request) {
    if (const auto id = id_field(request, "before")) {
        return {Place::Kind::older_than, *id};
    }
    if (const auto id = id_field(request, "after")) {
        return {Place::Kind::newer_than, *id};
    }
    return {};
}

/// yyyy-MM-dd HH:mm of a schedule's yyyyMMddHHmm00; another text stays as it is.
std::string readable_schedule(const std::string& time) {
    if (time.size() != 14) {
        return time;
    }
    return time.substr(0, 4) + "-" + time.substr(4, 2) + "-" + time.substr(6, 2) + " " + time.substr(8, 2) +
           ":" + time.substr(10, 2);
}

/// A narrow cell with the day and, below it, the time.
Html time_cell(std::string_view time) {
    const std::size_t blank = std::min(time.find(' '), time.size());
    Html html;
    html << "<td>" << time.substr(0, blank) << "<br><span class=\"soft\">" << time.substr(blank)
         << "</span></td>";
    return html;
}

/// The first recipient's name, and how many others there are.
std::string recipients_in_short(const Registration& registration) {
    std::string name = registration.recipients.substr(0, registration.recipients.find_first_of(":;"));
    if (registration.recipient_count > 1) {
        name += " 외 " + with_commas(registration.recipient_count - 1) + "명";
    }
    return name;
}

Html result_in_words(const Registration& registration) {
    Html html;
    if (registration.result == 1) {
        html << "<span class=\"good\">등록성공</span>";
    } else {
        html << "<span class=\"bad\">등록실패<br>" << reason(registration.result) << "</span>";
    }
    return html;
}

Html option(const std::string& value, const std::string& chosen, std::string_view title) {
    Html html;
    html << "<option value=\"" << value << "\"";
    if (value == chosen) {
        html << " selected";
    }
    html << ">" << title << "</option>";
    return html;
}

Html filter_form(const Subscriber& subscriber, const Filter& filter) {
    const std::string state = word(filter.state);
    Html html;
    html << "<form action=\"/result\" method=\"get\">" << hidden_fields(subscriber.visitor)
         << "<label for=\"day\">날짜</label> <input type=\"date\" id=\"day\" name=\"day\" value=\""
         << filter.day << "\"> <label for=\"state\">상태</label> <select id=\"state\" name=\"state\">"
         << option("", state, "전체") << option(word(State::registered), state, "등록성공")
         << option(word(State::refused), state, "등록실패")
         << "</select> <button class=\"main\">조회</button> <a class=\"button\" href=\""
         << link("/result", subscriber.visitor, {}) << "\">전체 보기</a></form>\n";
    return html;
}

Html table(const Subscriber& subscriber, const Listing& listing) {
    Html html;
    html << "<div class=\"card\">";
    if (listing.rows.empty()) {
        html << "<p class=\"empty\">발송 내역이 없습니다.</p></div>";
        return html;
    }
    html
        << "<table><colgroup><col style=\"width:94px\"><col style=\"width:86px\"><col>"
           "<col style=\"width:116px\"><col style=\"width:94px\">"
           "<col style=\"width:106px\"></colgroup><thead><tr><th>등록시각</th><th>종류</th><th>제목·내용</th>"
           "<th>수신자</th><th>발송시각</th><th>결과</th></tr></thead><tbody>\n";
    for (const Registration& row : listing.rows) {
        html << "<tr>" << time_cell(std::string_view(row.time).substr(0, 16)) << "<td>"
             << kind_name(row.data_type) << "</td><td><a class=\"cut\" href=\""
             << link("/result/one", subscriber.visitor, {{"id", std::to_string(row.id)}}) << "\">"
             << row.subject << "</a><span class=\"cut soft\">" << row.content << "</span></td><td>"
             << recipients_in_short(row) << "</td>" << time_cell(readable_schedule(row.schedule_time))
             << "<td>" << result_in_words(row) << "</td></tr>\n";
    }
    html << "</tbody></table></div>\n";
    return html;
}

Html pager(const Subscriber& subscriber, const Filter& filter, const Listing& listing) {
    const auto step = [&](std::string_view name, std::int64_t id) {
        return link("/result", subscriber.visitor,
                    {{"day", filter.day}, {"state", word(filter.state)}, {name, std::to_string(id)}});
    };
    Html html;
    html << "<div class=\"pager\">";
    if (listing.newer && !listing.rows.empty()) {
        html << "<a class=\"button\" href=\""
             << link("/result", subscriber.visitor, {{"day", filter.day}, {"state", word(filter.state)}})
             << "\">처음</a><a class=\"button\" href=\"" << step("after", listing.rows.front().id)
             << "\">이전</a>";
    }
    if (listing.older) {
        html << "<a class=\"button\" href=\"" << step("before", listing.rows.back().id) << "\">다음</a>";
    }
    html << "<span class=\"soft\">"
         << (listing.count > count_limit ? with_commas(count_limit) + "건 이상"
                                         : "모두 " + with_commas(listing.count) + "건")
         << "</span></div>\n";
    return html;
}

/// The pieces of a list, each ended with ";", one on a line.
std::string lines_of(const std::string& list) {
    std::string lines;
    for (const char character : list) {
        lines += character == ';' ? '\n' : character;
    }
    while (lines.ends_with('\n')) {
        lines.pop_back();
    }
    return lines;
}

}  // namespace

Answer results_page(const Request& request, const Sources& sources) {
    return for_subscriber(request, sources, [&](const Subscriber& subscriber) {
        const Filter filter = filter_of(request, subscriber);
        // Before the first send there is no ledger.
        const Listing listing =
            std::filesystem::exists(sources.ledger)
                ? list(Database(sources.ledger, Database::Access::read), filter, place_of(request))
                : Listing();
        Html content;
        content << filter_form(subscriber, filter) << table(subscriber, listing)
                << pager(subscriber, filter, listing);
        return subscriber_page("발송결과", subscriber, "/result", content);
    });
}

Answer result_page(const Request& request, const Sources& sources) {
    return for_subscriber(request, sources, [&](const Subscriber& subscriber) {
        const std::optional<std::int64_t> id = id_field(request, "id");
        std::optional<Registration> found;
        if (id && std::filesystem::exists(sources.ledger)) {
            found = find(Database(sources.ledger, Database::Access::read), subscriber.visitor.user_id, *id);
        }
        if (!found) {
            return refusal(404, "발송 내역이 없습니다", "목록에서 다시 선택하여 주십시오.");
        }
        Html content;
        content << "<div class=\"card\"><table><tbody><tr><th>제목</th><td>" << found->subject
                << "</td></tr><tr><th>결과</th><td>" << result_in_words(*found)
                << "</td></tr><tr><th>종류</th><td>" << kind_name(found->data_type)
                << "</td></tr><tr><th>등록시각</th><td>" << found->time.substr(0, 19)
                << "</td></tr><tr><th>발송시각</th><td>" << readable_schedule(found->schedule_time)
                << "</td></tr><tr><th>회신번호</th><td>" << found->callback
                << "</td></tr><tr><th>내용</th><td class=\"whole\">" << found->content << "</td></tr>";
        if (!found->attachments.empty()) {
            content << "<tr><th>첨부</th><td class=\"whole\">" << lines_of(found->attachments)
                    << "</td></tr>";
        }
        content << "<tr><th>수신자 " << with_commas(found->recipient_count) << "명</th><td class=\"whole\">"
                << lines_of(found->recipients)
                << "</td></tr></tbody></table></div><div class=\"pager\"><a class=\"button\" href=\""
                << link("/result", subscriber.visitor, {}) << "\">목록</a></div>\n";
        return subscriber_page("발송내역", subscriber, "/result", content);
    });
}

}  // namespace standin::site
