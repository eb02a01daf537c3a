#include "platform/formats/people_lines.h"

#include "platform/formats/telephone_numbers.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr std::array<TextView, 5> NAME_CAPTIONS = {u"이름", u"성명", u"성함", u"받는사람", u"name"};
constexpr std::array<TextView, 5> TITLE_CAPTIONS = {u"직위", u"직책", u"직급", u"title", u"position"};
constexpr std::array<TextView, 10> NUMBER_CAPTIONS = {u"번호",   u"전화",  u"휴대", u"핸드폰", u"연락처",
                                                      u"모바일", u"phone", u"tel",  u"mobile", u"hp"};

template <std::size_t N>
bool has_one_of(TextView text, const std::array<TextView, N>& words) {
    const Text lower = lower_case(text);
    return std::ranges::any_of(words, [&](TextView word) { return contains(lower, word); });
}

/// Signs between a name and a number that belong to neither.
Text without_signs_at_ends(TextView text) {
    constexpr TextView SIGNS = u" :/|-,.";
    const std::size_t first = text.find_first_not_of(SIGNS);
    if (first == TextView::npos) return {};
    return Text(text.substr(first, text.find_last_not_of(SIGNS) - first + 1));
}

bool has_letters(TextView text) {
    return std::ranges::any_of(
        text, [](char16_t c) { return c > 0x7F || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); });
}

bool is_caption(TextView text) {
    return has_one_of(text, NUMBER_CAPTIONS) || has_one_of(text, NAME_CAPTIONS);
}

/// Nothing when the line is one field.
std::optional<char16_t> separator_of(TextView line) {
    for (const char16_t separator : {u'\t', u';', u','}) {
        if (line.find(separator) != TextView::npos) return separator;
    }
    return std::nullopt;
}

/// Takes a field in quotation marks off the line's beginning; two of them in it stand for one.
Text take_quoted(TextView& line) {
    Text field;
    for (line.remove_prefix(1); !line.empty(); line.remove_prefix(1)) {
        if (line.front() == u'"') {
            line.remove_prefix(1);
            if (!line.starts_with(u'"')) break;
        }
        field += line.front();
    }
    return field;
}

std::vector<Text> fields_of(TextView line, char16_t separator) {
    std::vector<Text> fields;
    for (bool more = true; more;) {
        Text field = line.starts_with(u'"') ? take_quoted(line) : Text();
        const std::size_t end = std::min(line.find(separator), line.size());
        field += line.substr(0, end);
        fields.push_back(trim(field));
        more = end < line.size();
        line.remove_prefix(more ? end + 1 : end);
        while (separator != u' ' && more && line.starts_with(u' ')) line.remove_prefix(1);
    }
    return fields;
}

}  // namespace

PeopleLines::Line PeopleLines::read(TextView line, ListedPerson& person) {
    if (line.find_first_not_of(u" \t") == TextView::npos) return Line::nobody;
    const std::optional<char16_t> separator = separator_of(line);
    std::vector<Text> fields = separator ? fields_of(line, *separator) : std::vector{Text(line)};
    if (!begun_ && read_captions(fields)) return Line::nobody;
    begun_ = true;

    person = {};
    for (Text& field : fields) {
        const std::size_t before = person.numbers.size();
        field = take_numbers(field, person.numbers);
        if (person.numbers.size() > before) field = without_signs_at_ends(field);
    }
    if (person.numbers.empty()) return Line::not_understood;
    if (!separator) fields = fields_of(fields.front(), u' ');
    const auto at = [&](std::optional<std::size_t> column) {
        return column && *column < fields.size() ? fields[*column] : Text();
    };
    if (columns_.name) {
        person.name = at(columns_.name);
        person.title = at(columns_.title);
        return Line::person;
    }
    for (Text& field : fields) {
        if (!separator) field = without_signs_at_ends(field);
        if (!has_letters(field) || (!separator && is_caption(field))) continue;
        if (person.name.empty()) {
            person.name = std::move(field);
        } else if (person.title.empty()) {
            person.title = std::move(field);
        }
    }
    return Line::person;
}

/// Whether the first line holds captions instead of a person.
bool PeopleLines::read_captions(const std::vector<Text>& fields) {
    begun_ = true;
    std::vector<Text> numbers;
    for (const Text& field : fields) take_numbers(field, numbers);
    if (!numbers.empty() || fields.size() < 2) return false;
    const auto column_of = [&](const auto& captions) {
        const auto found = std::ranges::find_if(fields, [&](const Text& field) {
            return has_one_of(field, captions) && !has_one_of(field, NUMBER_CAPTIONS);
        });
        return found == fields.end() ? std::nullopt
                                     : std::optional(static_cast<std::size_t>(found - fields.begin()));
    };
    columns_ = {.name = column_of(NAME_CAPTIONS), .title = column_of(TITLE_CAPTIONS)};
    const bool has_number_caption =
        std::ranges::any_of(fields, [](const Text& field) { return has_one_of(field, NUMBER_CAPTIONS); });
    if (!columns_.name || !has_number_caption) columns_ = {};
    return columns_.name || has_number_caption;
}

}  // namespace platform
