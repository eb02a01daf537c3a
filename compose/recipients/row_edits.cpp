#include "compose/recipients/row_edits.h"

#include "core/boxes.h"
#include "core/phone_number.h"

namespace compose {

using platform::Text;

RecipientEdits::RecipientEdits(platform::Form& form, platform::Platform& platform, RecipientList& recipients)
    : Room(form), platform_(platform), recipients_(recipients) {
    platform::ListView& list = recipients.ListView1;
    mnuEditRow.Click.connect([&list] {
        if (const auto row = list.selected_item()) list.edit(*row, RECIPIENT_NAME);
    });
    list.CellEdited.connect([this](const platform::CellEdit& edit) { take(edit); });
}

void RecipientEdits::take(const platform::CellEdit& edit) {
    platform::ListView& list = recipients_.ListView1;
    if (edit.row >= list.row_count()) return;
    if (edit.sub_item == RECIPIENT_NUMBER) return take_number(edit.row, edit.text);
    if (edit.sub_item == RECIPIENT_NAME)
        return list.set_sub_item(edit.row, RECIPIENT_NAME, typed_name(edit.text));
    list.set_sub_item(edit.row, edit.sub_item, platform::trim(edit.text));
}

void RecipientEdits::take_number(std::size_t row, const Text& typed) {
    platform::ListView& list = recipients_.ListView1;
    const Text number = core::DIGITS_ONLY(typed);
    if (number == list.row(row).sub_item(RECIPIENT_NUMBER)) return;
    if (const Text refusal = recipients_.refusal_of(number); !refusal.empty())
        return core::warn(platform_.desktop, refusal);
    const auto other = list.find_in_sub_items(number);
    if (other && *other != row) return core::warn(platform_.desktop, recipients_.duplicate_text());
    list.set_sub_item(row, RECIPIENT_NUMBER, number);
    // What a job has done was done for the old number.
    list.set_sub_item(row, RECIPIENT_STATUS, u"");
    list.set_sub_item(row, RECIPIENT_PIECES, u"");
}

}  // namespace compose
