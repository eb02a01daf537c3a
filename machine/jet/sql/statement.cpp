#include "machine/jet/sql/statement.h"

#include "platform/error.h"
#include "platform/text/number.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace machine::jet {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// A word is a name, a number or a key word. Every character outside words and quotes is a symbol.
struct Token {
    enum class Kind { word, quoted, symbol } kind;
    Text text;
    /// It follows one or more blanks.
    bool apart = false;

    bool is(TextView wanted) const {
        return kind != Kind::quoted && platform::equal_without_case(text, wanted);
    }
};
using Tokens = std::vector<Token>;

bool is_blank(char16_t unit) { return unit == u' ' || (unit >= u'\t' && unit <= u'\r'); }

bool is_word_unit(char16_t unit) {
    return platform::is_digit(unit) || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') ||
           unit == u'_' || unit >= 0x80;
}

/// Takes the piece from the front to `end`.
TextView closed_piece(TextView text, char16_t end) {
    const auto at = text.find(end, 1);
    if (at == TextView::npos) throw RuntimeError(ErrorNumber::broken_statement);
    return text.substr(0, at + 1);
}

Token token_at(TextView rest) {
    const char16_t first = rest.front();
    // A doubled quote within a text gives two adjacent pieces, which are written back like that.
    if (first == u'\'' || first == u'"') return {Token::Kind::quoted, Text(closed_piece(rest, first))};
    if (first == u'[') return {Token::Kind::quoted, Text(closed_piece(rest, u']'))};
    if (!is_word_unit(first)) return {Token::Kind::symbol, Text(1, first)};
    return {Token::Kind::word, Text(rest.begin(), std::ranges::find_if_not(rest, is_word_unit))};
}

Tokens tokens_of(TextView rest) {
    Tokens tokens;
    bool apart = false;
    while (!rest.empty()) {
        if (is_blank(rest.front())) {
            apart = true;
            rest.remove_prefix(1);
            continue;
        }
        if (rest.starts_with(u"--") || rest.starts_with(u"/*"))
            throw RuntimeError(ErrorNumber::broken_statement);
        tokens.push_back(token_at(rest));
        rest.remove_prefix(tokens.back().text.size());
        tokens.back().apart = std::exchange(apart, false);
    }
    return tokens;
}

/// A test of a column for one number, as in a folder filter.
struct Test {
    Text column, number;
    std::size_t tokens = 0;
};

std::optional<Test> test_at(const Tokens& tokens, std::size_t at) {
    const auto is_number = [&](std::size_t i) {
        return i < tokens.size() && tokens[i].kind == Token::Kind::word &&
               std::ranges::all_of(tokens[i].text, platform::is_digit);
    };
    if (at + 2 >= tokens.size() || tokens[at].kind != Token::Kind::word || !tokens[at + 1].is(u"="))
        return std::nullopt;
    const bool negative = tokens[at + 2].is(u"-");
    const std::size_t number = at + (negative ? 3 : 2);
    if (!is_number(number)) return std::nullopt;
    return Test{tokens[at].text, (negative ? u"-" : u"") + tokens[number].text, number + 1 - at};
}

/// Writes the chain of tests at `at` as one test and moves behind it. Does nothing unless such a chain is the
/// whole condition.
bool take_tests(const Tokens& tokens, std::size_t& at, Text& out) {
    if (at == 0 || !(tokens[at - 1].is(u"where") || tokens[at - 1].is(u"("))) return false;
    const auto first = test_at(tokens, at);
    if (!first) return false;
    Text numbers = first->number;
    std::size_t end = at + first->tokens;
    while (end < tokens.size() && tokens[end].is(u"or")) {
        const auto next = test_at(tokens, end + 1);
        if (!next || !platform::equal_without_case(next->column, first->column)) return false;
        numbers += u"," + next->number;
        end += 1 + next->tokens;
    }
    if (end != tokens.size() && !tokens[end].is(u")")) return false;
    // The `+` keeps SQLite from going folder by folder, so that cards with the same place keep the file's
    // order.
    out += u" +" + first->column + u" IN (" + numbers + u")";
    at = end;
    return true;
}

}  // namespace

Text sqlite_statement(TextView statement) {
    const Tokens tokens = tokens_of(statement);
    Text out;
    for (std::size_t at = 0; at < tokens.size();) {
        if (take_tests(tokens, at, out)) continue;
        const Token& token = tokens[at++];
        if (token.apart) out += u' ';
        // `[a.f_idx]` is `[a].[f_idx]`.
        out += token.text.front() == u'[' ? platform::replace_all(token.text, u".", u"].[") : token.text;
    }
    return out;
}

}  // namespace machine::jet
