#include "compose/recipients/outcomes.h"

#include "compose/recipients/status.h"
#include "core/boxes.h"

#include <functional>
#include <optional>

namespace compose {

using platform::ListItem;
using platform::ListView;
using platform::Text;

namespace {

bool has_failed(const ListItem& row) { return outcome_of(row.sub_item(RECIPIENT_STATUS)) == Outcome::failed; }

bool is_done(const ListItem& row) {
    return outcome_of(row.sub_item(RECIPIENT_STATUS)) == Outcome::registered;
}

std::size_t count(const ListView& list, bool (*passes)(const ListItem&)) {
    std::size_t rows = 0;
    for (std::size_t row = 0; row < list.row_count(); ++row) rows += passes(list.row(row)) ? 1 : 0;
    return rows;
}

std::optional<std::size_t> first(const ListView& list, const std::function<bool(const ListItem&)>& passes) {
    for (std::size_t row = 0; row < list.row_count(); ++row) {
        if (passes(list.row(row))) return row;
    }
    return std::nullopt;
}

}  // namespace

RecipientOutcomes::RecipientOutcomes(platform::Form& form, platform::Platform& platform,
                                     RecipientList& recipients)
    : Room(form), platform_(platform), recipients_(recipients) {
    mnuNextFailed.Click.connect([this] { go_to_failed(true); });
    mnuPreviousFailed.Click.connect([this] { go_to_failed(false); });
    mnuSelectFailed.Click.connect([this] { select_failed(); });
    mnuCopyFailed.Click.connect([this] { copy_failed(); });
    mnuTakeAwayDone.Click.connect([this] { take_away_done(); });
}

void RecipientOutcomes::go_to_first_left() {
    ListView& list = recipients_.ListView1;
    std::optional<std::size_t> left = first(list, has_failed);
    if (!left) left = first(list, &ListItem::checked);
    if (!left) return;
    list.go_to(*left);
    list.set_focus();
}

void RecipientOutcomes::go_to_failed(bool forward) {
    ListView& list = recipients_.ListView1;
    const std::size_t rows = list.row_count();
    std::size_t row = list.selected_item().value_or(forward ? rows - 1 : 0);
    for (std::size_t step = 0; step < rows; ++step) {
        row = (row + (forward ? 1 : rows - 1)) % rows;
        if (!has_failed(list.row(row))) continue;
        list.go_to(row);
        return list.set_focus();
    }
}

void RecipientOutcomes::select_failed() {
    ListView& list = recipients_.ListView1;
    const auto failed = first(list, has_failed);
    if (!failed) return;
    list.go_to(*failed);
    for (std::size_t row = 0; row < list.row_count(); ++row) {
        if (has_failed(list.row(row))) list.user_select(row, true);
    }
    list.select_item(*failed);
}

void RecipientOutcomes::copy_failed() {
    const ListView& list = recipients_.ListView1;
    Text numbers;
    for (std::size_t row = 0; row < list.row_count(); ++row) {
        if (has_failed(list.row(row)))
            numbers += list.row(row).sub_item(RECIPIENT_NUMBER) + Text(platform::CRLF);
    }
    if (!numbers.empty()) platform_.desktop.set_clipboard(numbers);
}

void RecipientOutcomes::take_away_done() {
    const std::size_t done = count(recipients_.ListView1, is_done);
    if (done == 0) return;
    if (core::ask(platform_.desktop,
                  u"등록성공한 받는사람 " + platform::decimal(done) + u"명을 목록에서 지우시겠습니까?",
                  u"삭제 확인", platform::BoxIcon::question))
        recipients_.take_away(is_done);
}

}  // namespace compose
