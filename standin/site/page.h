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

/// What goes back to the browser; a page unless it says otherwise.
struct Answer {
    int status = 200;
    std::string body;
    std::string type = "text/html; charset=utf-8";
    std::string file_name{};  ///< in UTF-8: the browser keeps the body as a file of this name
};

/// A subscriber and what his pages show. The visitor's id is UTF-8 here, the account has no password.
struct Subscriber {
    Visitor visitor;
    Account account;
    std::vector<Received> inbox;
    Prices prices;
};

using Fields = std::vector<std::pair<std::string_view, std::string>>;

/// A page of the service, with its frame: head line, and below it the content.
Answer page(std::string_view title, const Html& content, int status = 200);
/// The same for a subscriber, with the way to his other pages; `path` is this one's.
Answer subscriber_page(std::string_view title, const Subscriber& subscriber, std::string_view path,
                       const Html& content);
/// A page that says what is wrong.
Answer refusal(int status, std::string_view title, std::string_view text);

/// The path with a query of the visitor and the fields that are not empty.
std::string link(std::string_view path, const Visitor& visitor, const Fields& fields);
/// The visitor as hidden fields of a form.
Html hidden_fields(const Visitor& visitor);

/// Makes the page for the subscriber whom the request names; a refusal when it names none.
Answer for_subscriber(const Request& request, const Sources& sources,
                      const std::function<Answer(const Subscriber&)>& make);

}  // namespace standin::site
