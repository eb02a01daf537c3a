#include "drafts/draft_keeper.h"

#include "core/boxes.h"
#include "gateway/gateway.h"
#include "platform/error.h"

#include <functional>
#include <utility>

namespace drafts {

using platform::KeptRecipient;
using platform::ListItem;
using platform::RuntimeError;
using platform::Text;

namespace {

constexpr int SECOND = 1000;
constexpr int BETWEEN_PARTS = 20;

/// The most rows that a part writes, and looks at: each takes a few milliseconds.
constexpr std::size_t ROWS_WRITTEN = 2'000;
constexpr std::size_t ROWS_LOOKED_AT = 50'000;

/// Two rows that differ have different ones, but for one chance in 2 to the power of 64.
std::size_t fingerprint(const ListItem& row) {
    std::size_t hash = row.checked() ? 1 : 2;
    for (int item = compose::RECIPIENT_NAME; item <= compose::RECIPIENT_PIECES; ++item)
        hash = (hash << 7 | hash >> 57) ^ std::hash<Text>()(row.sub_item(item)) * 0x9e3779b97f4a7c15U;
    return hash;
}

/// Stands for a row that has to be written in any case.
constexpr std::size_t NOT_KEPT = 0;

}  // namespace

KeptRecipient recipient_of(const ListItem& row) {
    return {.name = row.sub_item(compose::RECIPIENT_NAME),
            .number = row.sub_item(compose::RECIPIENT_NUMBER),
            .status = row.sub_item(compose::RECIPIENT_STATUS),
            .title = row.sub_item(compose::RECIPIENT_TITLE),
            .pieces = row.sub_item(compose::RECIPIENT_PIECES),
            .checked = row.checked()};
}

DraftKeeper::DraftKeeper(platform::Platform& platform, compose::frmZent& form)
    : platform_(platform),
      form_(form),
      list_(form.recipients.ListView1),
      seconds_(platform.clock, SECOND),
      parts_(platform.clock, BETWEEN_PARTS) {
    seconds_.Tick.connect([this] { keep_changes(); });
    parts_.Tick.connect([this] {
        try {
            if (!keep_some_rows()) return;
            parts_.set_enabled(false);
            commit(false);
        } catch (const RuntimeError& error) {
            failed(error);
        }
    });
    form_.kept_draft.KeptDraftTakeUp.Click.connect([this] { take_up_from_bar(); });
    form_.kept_draft.KeptDraftClose.Click.connect([this] { pass_over(); });
}

void DraftKeeper::start() {
    offer_next();
    seconds_.set_enabled(true);
}

void DraftKeeper::end() {
    seconds_.set_enabled(false);
    platform::ignore_errors([this] {
        if (!is_kept_ && !has_content(form_)) return;
        keep_everything();
        commit(true);
    });
}

bool DraftKeeper::unchanged() const {
    return list_.revision() == kept_revision_ && !recording_changed() && fields_of(form_) == kept_fields_;
}

/// A recording is kept when it is finished.
bool DraftKeeper::recording_changed() const {
    const platform::SoundRecorder& recorder = form_.voice.RFK1;
    return recorder.state() != platform::SoundRecorder::State::recording &&
           recorder.revision() != kept_recording_;
}

void DraftKeeper::keep_changes() {
    if (job_runs_ || parts_.enabled() || unchanged()) return;
    if (!is_kept_ && !has_content(form_)) return;
    parts_.set_enabled(true);
}

/// Writes the rows that have changed, as many as a part may. Returns true when all are written.
bool DraftKeeper::keep_some_rows() {
    if (pass_revision_ != list_.revision()) {
        pass_revision_ = list_.revision();
        next_row_ = 0;
    }
    const std::size_t rows = list_.row_count();
    std::size_t written = 0;
    for (std::size_t looked_at = 0; next_row_ < rows; ++next_row_) {
        if (looked_at++ == ROWS_LOOKED_AT || written == ROWS_WRITTEN) return false;
        const ListItem& row = list_.row(next_row_);
        if (next_row_ < kept_rows_.size() && kept_rows_[next_row_] == fingerprint(row)) continue;
        put_row(next_row_, recipient_of(row));
        kept_rows_[next_row_] = fingerprint(row);
        ++written;
    }
    return true;
}

void DraftKeeper::put_row(std::size_t row, const KeptRecipient& recipient) {
    if (kept_rows_.size() <= row) kept_rows_.resize(row + 1, NOT_KEPT);
    kept_rows_[row] = NOT_KEPT;
    platform_.drafts.put_recipient(row, recipient);
}

void DraftKeeper::commit(bool at_rest) {
    platform_.drafts.remove_recipients_from(list_.row_count());
    kept_rows_.resize(list_.row_count());
    Fields fields = fields_of(form_);
    for (const auto& [name, value] : fields) {
        const auto kept = kept_fields_.find(name);
        if (kept == kept_fields_.end() || kept->second != value) platform_.drafts.put_field(name, value);
    }
    const bool with_recording = recording_changed();
    if (with_recording)
        platform_.drafts.put_field(fields::RECORDING, kept_recording(form_.voice.RFK1.recording()));
    platform_.drafts.commit(platform_.clock.now(), at_rest);
    if (with_recording) kept_recording_ = form_.voice.RFK1.revision();
    kept_fields_ = std::move(fields);
    kept_revision_ = pass_revision_;
    is_kept_ = true;
    works_again();
}

void DraftKeeper::keep_everything() {
    parts_.set_enabled(false);
    while (!keep_some_rows()) platform_.desktop.paint();
}

void DraftKeeper::forget_what_is_kept() {
    parts_.set_enabled(false);
    kept_fields_.clear();
    kept_recording_.reset();
    kept_rows_.clear();
    pass_revision_ = kept_revision_ = 0;
    next_row_ = 0;
}

/// It is tried again each second; the user is told once.
void DraftKeeper::failed(const RuntimeError& error) {
    forget_what_is_kept();
    if (std::exchange(failure_told_, true)) return;
    form_.kept_draft.tell(
        u"작성 중인 메시지를 보관하지 못하고 있습니다. 프로그램이 갑자기 끝나면 되살릴 수 없습니다. (" +
        error.description() + u")");
}

/// The word about the failure stood in the place of an offer.
void DraftKeeper::works_again() {
    if (!std::exchange(failure_told_, false)) return;
    offered_ ? show_offer() : form_.kept_draft.close();
}

bool DraftKeeper::bring_up_to_date() {
    try {
        keep_everything();
        commit(false);
        return true;
    } catch (const RuntimeError& error) {
        failed(error);
        return false;
    }
}

bool DraftKeeper::ready_for_job() {
    return bring_up_to_date() ||
           core::ask(platform_.desktop,
                     u"등록 상태를 디스크에 기록할 수 없습니다. 발송 중에 프로그램이 갑자기 끝나면 누구에게 "
                     u"등록되었는지 알 "
                     u"수 없어, 같은 사람에게 두 번 보내게 될 수 있습니다.\r\n\r\n그래도 발송하시겠습니까?",
                     {}, platform::BoxIcon::exclamation, platform::BoxAnswer::no);
}

void DraftKeeper::begin_job() {
    job_runs_ = true;
    notes_job_ = bring_up_to_date();
}

void DraftKeeper::before_submit(const std::vector<std::size_t>& rows) {
    if (!notes_job_) return;
    try {
        for (const std::size_t row : rows) {
            KeptRecipient recipient = recipient_of(list_.row(row));
            recipient.status = gateway::NO_ANSWER;
            recipient.checked = false;
            put_row(row, recipient);
        }
        platform_.drafts.commit(platform_.clock.now(), false);
    } catch (const RuntimeError& error) {
        throw RuntimeError(
            static_cast<platform::ErrorNumber>(error.number()),
            u"등록 상태를 디스크에 기록할 수 없어 등록을 중단했습니다. (" + error.description() + u")");
    }
}

void DraftKeeper::after_submit(const std::vector<std::size_t>& rows,
                               const std::function<void(KeptRecipient&)>& answered) {
    if (!notes_job_) return;
    // A failure leaves the rows noted as unconfirmed, and the next submit's note fails.
    platform::ignore_errors([&] {
        for (const std::size_t row : rows) {
            KeptRecipient recipient = recipient_of(list_.row(row));
            answered(recipient);
            put_row(row, recipient);
        }
        platform_.drafts.commit(platform_.clock.now(), false);
    });
}

void DraftKeeper::end_job() {
    job_runs_ = false;
    notes_job_ = false;
    // What has been noted row by row is compared with the list again, even if the list has not changed.
    pass_revision_ = kept_revision_ = 0;
    keep_changes();
}

}  // namespace drafts
