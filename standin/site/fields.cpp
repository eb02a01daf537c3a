#include "standin/site/fields.h"

#include <algorithm>

namespace standin::site {
namespace {

constexpr std::string_view code_name = "code=";
constexpr std::string_view user_name = "&userid=";
constexpr std::string_view domain_name = "&domain=";

bool is_plain(char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z') || character == '-' || character == '.';
}

bool all_plain(std::string_view text) { return std::all_of(text.begin(), text.end(), is_plain); }

/// The visitor, if every field is valid.
std::optional<Visitor> checked(Visitor visitor) {
    const auto too_long = [](const std::string& field) { return field.size() > field_limit; };
    if (too_long(visitor.code) || too_long(visitor.user_id) || too_long(visitor.domain) ||
        visitor.user_id.empty() || !all_plain(visitor.code) || !all_plain(visitor.domain)) {
        return std::nullopt;
    }
    return visitor;
}

int hex_digit(char character) {
    if (character >= '0' && character <= '9') {
        return character - '0';
    }
    if (character >= 'A' && character <= 'F') {
        return character - 'A' + 10;
    }
    return character >= 'a' && character <= 'f' ? character - 'a' + 10 : -1;
}

/// A '%' that begins no escape is kept.
std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool may_be_escape = text[i] == '%' && text.size() - i > 2;
        const int high = may_be_escape ? hex_digit(text[i + 1]) : -1;
        const int low = may_be_escape ? hex_digit(text[i + 2]) : -1;
        if (high >= 0 && low >= 0) {
            plain += static_cast<char>(high << 4 | low);
            i += 2;
        } else {
            plain += text[i] == '+' ? ' ' : text[i];
        }
    }
    return plain;
}

}  // namespace

std::optional<Visitor> posted_visitor(std::string_view body) {
    if (body.size() > body_limit || !body.starts_with(code_name)) {
        return std::nullopt;
    }
    const std::size_t user = body.find(user_name);
    const std::size_t domain = body.rfind(domain_name);
    if (user == std::string_view::npos || domain == std::string_view::npos ||
        domain < user + user_name.size()) {
        return std::nullopt;
    }
    const std::size_t user_start = user + user_name.size();
    return checked({.code = std::string(body.substr(code_name.size(), user - code_name.size())),
                    .user_id = std::string(body.substr(user_start, domain - user_start)),
                    .domain = std::string(body.substr(domain + domain_name.size()))});
}

std::string query_field(std::string_view query, std::string_view name) {
    while (!query.empty()) {
        const std::string_view field = query.substr(0, query.find('&'));
        query.remove_prefix(std::min(query.size(), field.size() + 1));
        const std::size_t equals = field.find('=');
        if (equals != std::string_view::npos && field.substr(0, equals) == name) {
            std::string value = unescaped(field.substr(equals + 1));
            return value.size() > field_limit ? std::string() : value;
        }
    }
    return {};
}

std::optional<Visitor> query_visitor(std::string_view query) {
    return checked({.code = query_field(query, "code"),
                    .user_id = query_field(query, "userid"),
                    .domain = query_field(query, "domain")});
}

std::string escaped_for_query(std::string_view text) {
    static constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escaped;
    for (const char character : text) {
        if (is_plain(character)) {
            escaped += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            escaped += {'%', digits[byte >> 4], digits[byte & 0xF]};
        }
    }
    return escaped;
}

}  // namespace standin::site
