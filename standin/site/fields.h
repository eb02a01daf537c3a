#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace standin::site {

/// The most bytes of a posted body that is looked at, and of one field.
inline constexpr std::size_t body_limit = 4096;
inline constexpr std::size_t field_limit = 256;

/// Who a page is for, as a client tells in its post or a link of ours in its query. The texts are as they
/// came: cp949 from a post, UTF-8 from a query.
struct Visitor {
    std::string code;
    std::string user_id;
    std::string domain;
};

/// What a client posts: "code=…&userid=…&domain=…". It escapes nothing, so that the id is everything between
/// the first "&userid=" and the last "&domain=". Nothing for a body that is no such post, for a field that
/// is too long, and for a code or domain with characters that neither ever has.
std::optional<Visitor> posted_visitor(std::string_view body);

/// The field of a query "a=…&b=…", unescaped; empty when there is none or it is too long. The first one of a
/// name holds.
std::string query_field(std::string_view query, std::string_view name);

/// The visitor in a query of our own making; nothing as for a post.
std::optional<Visitor> query_visitor(std::string_view query);

/// The text as it stands in a query.
std::string escaped_for_query(std::string_view text);

}  // namespace standin::site
