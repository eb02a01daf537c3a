// The drafts of earlier runs: how they are offered and taken up.

#include "core/boxes.h"
#include "drafts/draft_keeper.h"
#include "platform/error.h"

#include <utility>

namespace drafts {

using platform::KeptRecipient;
using platform::RuntimeError;
using platform::Text;

namespace {

constexpr platform::TextView TITLE = u"메시지 되살리기";

}  // namespace

/// Asks about a draft whose run did not end in order; any other is offered by the bar. A draft without
/// content is passed over.
void DraftKeeper::offer_next() {
    try {
        do {
            offered_ = platform_.drafts.next();
            if (!offered_) return;
        } while (field(offered_->fields, fields::CONTENT).empty());
        offered_recipients_ = {};
        platform_.drafts.read_recipients([this](const KeptRecipient& recipient) {
            offered_recipients_.add(recipient);
            platform_.desktop.paint();
        });
    } catch (const RuntimeError& error) {
        return cannot_read(error);
    }
    if (!offered_->at_rest) {
        if (core::ask(platform_.desktop, question(*offered_, offered_recipients_), Text(TITLE),
                      platform::BoxIcon::question))
            return take_up();
        platform::ignore_errors([this] { platform_.drafts.decline(); });
    }
    show_offer();
}

void DraftKeeper::show_offer() {
    form_.kept_draft.offer(u"지난번에 작성하던 메시지: " + summary(*offered_, offered_recipients_));
}

/// Behind the draft that is passed over there may be an earlier one.
void DraftKeeper::pass_over() {
    form_.kept_draft.close();
    // The user has closed a word about a failure, not the offer.
    if (failure_told_ || !offered_) return;
    offered_.reset();
    offer_next();
}

/// Maybe long after the start: what the user has written since is not replaced unasked.
void DraftKeeper::take_up_from_bar() {
    if (!offered_) return;
    if (has_content(form_) &&
        !core::ask(platform_.desktop,
                   u"지금 작성한 내용을 지난번에 작성하던 메시지로 바꾸시겠습니까?\r\n\r\n지금 목록에 있는 "
                   u"받는사람은 되살린 목록에 함께 남습니다.",
                   Text(TITLE), platform::BoxIcon::question, platform::BoxAnswer::no))
        return;
    form_.kept_draft.close();
    take_up();
}

/// Shows the offered draft. Recipients that are listed already, handed over by the card manager for instance,
/// stay with their marks and statuses.
void DraftKeeper::take_up() {
    const platform::KeptDraft draft = *std::exchange(offered_, std::nullopt);
    std::vector<KeptRecipient> listed;
    for (std::size_t row = 0; row < list_.row_count(); ++row) listed.push_back(recipient_of(list_.row(row)));
    const Text pieces_of = list_.tag();
    forget_what_is_kept();
    list_.clear();
    show_fields(form_, draft.fields);
    bool whole = true;
    try {
        read_kept_rows();
    } catch (const RuntimeError& error) {
        whole = false;
        cannot_read(error);
    }
    add_again(listed, pieces_of == list_.tag());
    form_.recipients.RECIPIENT_COUNT_CAPTION();
    if (!whole) return;
    try {
        platform_.drafts.take_up();
        is_kept_ = true;
    } catch (const RuntimeError& error) {
        return failed(error);
    }
    bring_up_to_date();
}

void DraftKeeper::read_kept_rows() {
    platform_.drafts.read_recipients([this](KeptRecipient recipient) {
        list_.add_row(u"",
                      {std::move(recipient.name), std::move(recipient.number), std::move(recipient.status),
                       std::move(recipient.title), std::move(recipient.pieces)},
                      recipient.checked);
        platform_.desktop.paint();
    });
}

/// Of a number that is in both lists the one with a status stays: somebody who has been sent to is not marked
/// again.
void DraftKeeper::add_again(const std::vector<KeptRecipient>& listed, bool same_pieces) {
    for (const KeptRecipient& recipient : listed) {
        platform_.desktop.paint();
        const Text pieces = same_pieces ? recipient.pieces : Text();
        const auto row = list_.find_in_sub_items(recipient.number);
        if (!row || list_.row(*row).sub_item(compose::RECIPIENT_NUMBER) != recipient.number) {
            list_.add_row(u"", {recipient.name, recipient.number, recipient.status, recipient.title, pieces},
                          recipient.checked);
        } else if (!recipient.status.empty()) {
            list_.set_sub_item(*row, compose::RECIPIENT_STATUS, recipient.status);
            list_.set_sub_item(*row, compose::RECIPIENT_PIECES, pieces);
            list_.set_checked(*row, recipient.checked);
        }
    }
}

void DraftKeeper::cannot_read(const RuntimeError& error) {
    const bool damaged = error.number() == static_cast<int>(platform::ErrorNumber::database_unusable);
    damaged ? set_damaged_aside() : failed(error);
}

void DraftKeeper::set_damaged_aside() {
    try {
        const Text name = platform_.drafts.set_aside();
        core::warn(platform_.desktop,
                   u"지난번에 작성하던 메시지를 보관한 파일이 손상되어, 읽을 수 없는 내용은 되살리지 "
                   u"못했습니다. 파일은 "
                   u"지우지 않고 다음 이름으로 남겨 두었습니다.\r\n\r\n" +
                       name);
    } catch (const RuntimeError& error) {
        failed(error);
    }
}

}  // namespace drafts
