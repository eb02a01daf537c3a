#pragma once

#include "standin/settings.h"
#include "standin/site/fields.h"
#include "standin/site/html.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace standin::site {

/// What pages are made from.
struct Sources {
    std::string ledger;
    std::string settings;
    std::function<std::string()> this_month;  ///< yyyy-MM, local
};

struct Request {
    /// Name and port under which the client knows the site.
    std::string host{};
    std::string path;
    std::string query;
    std::string posted;
};

/// The answer to the browser: a page, unless it says otherwise.
struct Answer {
    int status = 200;
    std::string body;
    std::string type = "text/html; charset=utf-8";
    std::string file_name{};  ///< in UTF-8: the browser saves the body under this name
};

/// A subscriber and what the subscriber's pages show. The visitor's id is UTF-8 here, and the account has no
/// password.
struct Subscriber {
    Visitor visitor;
    Account account;
    std::vector<Received> inbox;
    Prices prices;
};

using Fields = std::vector<std::pair<std::string_view, std::string>>;

/// A page of the service: its head line and below it the content.
Answer page(std::string_view title, const Html& content, int status = 200);
/// The same for a subscriber, with links to the other pages; `path` is this page's.
Answer subscriber_page(std::string_view title, const Subscriber& subscriber, std::string_view path,
                       const Html& content);
/// A page that says what is wrong.
Answer refusal(int status, std::string_view title, std::string_view text);

/// The path with a query that holds the visitor and the fields that are not empty.
std::string link(std::string_view path, const Visitor& visitor, const Fields& fields);
/// The visitor as hidden fields of a form.
Html hidden_fields(const Visitor& visitor);

/// Makes the page for the subscriber in the request; a refusal when there is none.
Answer for_subscriber(const Request& request, const Sources& sources,
                      const std::function<Answer(const Subscriber&)>& make);

}  // namespace standin::site
