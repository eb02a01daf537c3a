#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace standin::site {

/// The most bytes of a posted body, and of one field; anything longer is ignored.
inline constexpr std::size_t body_limit = 4096;
inline constexpr std::size_t field_limit = 256;

/// For whom a page is, as the client's post or the query of this site's own links says. The texts are
/// unchanged: cp949 from a post, UTF-8 from a query.
struct Visitor {
    std::string code;
    std::string user_id;
    std::string domain;
};

/// What a client posts: "code=…&userid=…&domain=…". It escapes nothing, so the id is everything between the
/// first "&userid=" and the last "&domain=". Nothing for a body that is no such post, for a field that is too
/// long, and for a code or domain with characters that are never in one.
std::optional<Visitor> posted_visitor(std::string_view body);

/// The field of a query "a=…&b=…", unescaped; empty when there is none or it is too long. Of several fields
/// with one name the first holds.
std::string query_field(std::string_view query, std::string_view name);

/// The visitor in the query of one of this site's links; nothing in the same cases as for a post.
std::optional<Visitor> query_visitor(std::string_view query);

/// The text, escaped for a query.
std::string escaped_for_query(std::string_view text);

}  // namespace standin::site
