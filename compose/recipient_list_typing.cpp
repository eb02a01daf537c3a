// The fields in which recipients are typed, and in which those of the list are changed.

#include "compose/recipient_list.h"
#include "compose/recipients/status.h"
#include "core/boxes.h"
#include "core/phone_number.h"

namespace compose {

using platform::KeyPressed;
using platform::ListItem;
using platform::Text;

namespace {

// What the user is asked about the recipient in the fields, before a job or before another takes his place.
constexpr platform::TextView TYPED_LEFT = u"입력만 하고 추가하지 않은 받는사람이 있습니다.\r\n\r\n";
constexpr platform::TextView TYPED_QUESTION = u"\r\n\r\n받는사람에 추가하시겠습니까?";
constexpr platform::TextView CHANGE_LEFT = u"고치기만 하고 목록에 반영하지 않은 받는사람이 있습니다.\r\n\r\n";
constexpr platform::TextView CHANGE_QUESTION = u"\r\n\r\n이대로 고치시겠습니까?";

/// The number as the user may type it anew.
Text number_of(const ListItem& recipient) { return core::DIGITS_ONLY(recipient.sub_item(RECIPIENT_NUMBER)); }

}  // namespace

Text typed_name(platform::TextView name) {
    Text typed = platform::remove_all(core::without_separators(name), u" ");
    return typed.empty() ? Text(NO_NAME) : typed;
}

void RecipientList::HText1_KeyPress(std::size_t index, KeyPressed& key) {
    if (key.code != platform::KEY_ENTER) return;
    key.swallow();
    if (index == 0) {
        go_to_number();
    } else {
        add_typed();
    }
}

void RecipientList::empty_fields() {
    changed_row_ = nullptr;
    Changing.hide();
    for (platform::TextBox& field : HText1) field.set_text(u"");
}

bool RecipientList::settle_typed() {
    const Text number = core::DIGITS_ONLY(HText1[1].text());
    if (number.empty() || is_as_listed(number)) return true;
    const platform::StandingQuestion question(platform_.desktop);
    const bool change = changed_row_ != nullptr;
    switch (platform_.desktop.message_box(
        {.text = Text(change ? CHANGE_LEFT : TYPED_LEFT) +
                 platform::trim(HText1[0].text() + u" " + core::with_hyphens(number)) +
                 Text(change ? CHANGE_QUESTION : TYPED_QUESTION),
         .icon = platform::BoxIcon::question,
         .buttons = platform::BoxButtons::yes_no_cancel,
         .default_answer = platform::BoxAnswer::yes})) {
        case platform::BoxAnswer::yes:
            return add_typed();
        case platform::BoxAnswer::no:
            return true;
        default:
            go_to_number();
            return false;
    }
}

/// Adds who is typed, or changes the row that is being changed. Returns false when that is refused.
bool RecipientList::add_typed() {
    const Text number = core::DIGITS_ONLY(HText1[1].text());
    HText1[1].set_text(number);
    if (number.empty()) return refuse_number(refusal_of(number));

    // Before the number is checked: a few digits that begin a listed number are a duplicate, not a short
    // number.
    if (point_at_duplicate(number)) return false;
    if (Text refusal = refusal_of(number); !refusal.empty()) return refuse_number(std::move(refusal));

    if (changed_row_ != nullptr) {
        take_change(number);
    } else {
        add(typed_name(HText1[0].text()), number, {});
        HText1[0].set_focus();
    }
    empty_fields();
    RECIPIENT_COUNT_CAPTION();
    return true;
}

Text RecipientList::refusal_of(const Text& digits) const {
    const Text caption(kind_->number.caption);
    if (digits.empty()) return caption + u"를(을) 입력하여 주십시오!";
    const platform::TextView fault = fault_of_number(*kind_, digits);
    return fault.empty() ? Text() : wrong_number(caption, digits, fault);
}

bool RecipientList::refuse_number(Text text) {
    core::warn(platform_.desktop, std::move(text));
    go_to_number();
    return false;
}

/// What is in the field is selected, so that the next number replaces it instead of being written in front of
/// it.
void RecipientList::go_to_number() {
    HText1[1].set_focus();
    HText1[1].select_all();
}

bool RecipientList::point_at_duplicate(const Text& number) {
    const auto hit = ListView1.find_in_sub_items(number, changed_row_);
    if (!hit) return false;
    ListView1.deselect_item();
    ListView1.make_visible(*hit);
    ListView1.select_item(*hit);
    // Deliberately the caption of column 2, the name, though numbers were compared: support knows the box so.
    core::warn(platform_.desktop, u"이미 동일한 " + ListView1.column(2).caption + u"가 존재합니다.");
    go_to_number();
    return true;
}

void RecipientList::change_selected() {
    const auto selected = ListView1.selected_item();
    if (!selected) return;
    const ListItem& row = ListView1.row(*selected);
    if (!settle_typed()) return;
    ListView1.go_to(row.position());
    changed_row_ = &row;
    Changing.show();
    HText1[0].set_text(changed_row_->sub_item(RECIPIENT_NAME));
    HText1[1].set_text(changed_row_->sub_item(RECIPIENT_NUMBER));
    HText1[0].set_focus();
    HText1[0].select_all();
}

void RecipientList::give_up_change() {
    if (changed_row_ != nullptr) empty_fields();
}

/// Whether the fields have the row that is being changed as the list has it.
bool RecipientList::is_as_listed(const Text& number) const {
    return changed_row_ != nullptr && number == number_of(*changed_row_) &&
           HText1[0].text() == changed_row_->sub_item(RECIPIENT_NAME);
}

void RecipientList::take_change(const Text& number) {
    const std::size_t row = changed_row_->position();
    // A name that came from elsewhere may have blanks, which a typed one loses.
    const bool same_name = HText1[0].text() == changed_row_->sub_item(RECIPIENT_NAME);
    if (!same_name) ListView1.set_sub_item(row, RECIPIENT_NAME, typed_name(HText1[0].text()));
    if (number != number_of(*changed_row_)) {
        // What a job has done was done for the old number.
        ListView1.set_sub_item(row, RECIPIENT_NUMBER, number);
        ListView1.set_sub_item(row, RECIPIENT_STATUS, u"");
        ListView1.set_sub_item(row, RECIPIENT_PIECES, u"");
    } else if (!same_name && ListView1.tag().starts_with(PERSONAL_TEXT)) {
        // The rest of the text would not go with the pieces that have the old name.
        ListView1.set_sub_item(row, RECIPIENT_PIECES, u"");
        if (outcome_of(changed_row_->sub_item(RECIPIENT_STATUS)) == Outcome::open)
            ListView1.set_sub_item(row, RECIPIENT_STATUS, u"");
    }
    ListView1.go_to(row);
    ListView1.set_focus();
}

}  // namespace compose
