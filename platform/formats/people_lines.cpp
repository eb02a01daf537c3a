#include "platform/formats/people_lines.h"

#include "platform/formats/telephone_numbers.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace platform {

namespace {

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

/// A guess is as good as nothing beside a likelier number.
std::vector<Text> likeliest_first(std::vector<TelephoneNumber> numbers, bool may_guess) {
    std::ranges::stable_sort(numbers, {}, &TelephoneNumber::likelihood);
    const bool guesses_alone = !numbers.empty() && numbers.front().likelihood == Likelihood::guessed;
    std::vector<Text> digits;
    for (TelephoneNumber& number : numbers) {
        if (number.likelihood != Likelihood::guessed || (may_guess && guesses_alone))
            digits.push_back(std::move(number.digits));
    }
    return digits;
}

}  // namespace

PeopleLines::Line PeopleLines::read(TextView line, ListedPerson& person) {
    if (line.find_first_not_of(u" \t") == TextView::npos) return Line::blank;
    const std::optional<char16_t> separator = separator_of(line);
    std::vector<Text> fields = separator ? fields_of(line, *separator) : std::vector{Text(line)};
    if (!begun_ && read_captions(fields)) return Line::captions;
    begun_ = true;

    person = {.name = {}, .numbers = take_numbers_out_of(fields), .title = {}};
    if (person.numbers.empty()) return Line::not_understood;
    if (!separator) fields = fields_of(fields.front(), u' ');
    if (knows(Column::name)) {
        person.name = field_under(Column::name, fields);
        person.title = field_under(Column::title, fields);
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
    std::vector<TelephoneNumber> numbers;
    for (const Text& field : fields) take_numbers(field, numbers);
    if (!numbers.empty() || fields.size() < 2 || std::ranges::none_of(fields, is_caption)) return false;
    std::ranges::transform(fields, std::back_inserter(columns_), column_under);
    return true;
}

bool PeopleLines::knows(Column column) const { return std::ranges::find(columns_, column) != columns_.end(); }

Text PeopleLines::field_under(Column column, const std::vector<Text>& fields) const {
    const auto at = static_cast<std::size_t>(std::ranges::find(columns_, column) - columns_.begin());
    return at < fields.size() ? fields[at] : Text();
}

/// A line of one field was typed, and is no row of the table.
std::vector<Text> PeopleLines::take_numbers_out_of(std::vector<Text>& fields) const {
    const bool row = fields.size() > 1;
    std::vector<TelephoneNumber> numbers;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Column column = row && i < columns_.size() ? columns_[i] : Column::unknown;
        if (column == Column::other_number) continue;
        const std::size_t before = numbers.size();
        Text rest = take_numbers(fields[i], numbers);
        if (numbers.size() > before) rest = without_signs_at_ends(rest);
        fields[i] = std::move(rest);
        if (column != Column::telephone) continue;
        for (std::size_t n = before; n < numbers.size(); ++n) numbers[n].likelihood = Likelihood::captioned;
    }
    return likeliest_first(std::move(numbers), !row || !knows(Column::telephone));
}

}  // namespace platform
