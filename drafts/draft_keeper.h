#pragma once

#include "compose/main_form.h"
#include "drafts/kept_fields.h"
#include "drafts/offer.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace drafts {

/// The row as the store has it.
platform::KeptRecipient recipient_of(const platform::ListItem& row);

/// Keeps the draft on the disk, a second or two behind the user, offers it after the next start, and notes
/// what a job is about to register and how it went. So neither the draft nor the knowledge of who has been
/// registered dies with the program.
class DraftKeeper {
  public:
    DraftKeeper(platform::Platform& platform, compose::frmZent& form);

    /// Offers the draft of the last run and begins to keep the present one.
    void start();
    /// Keeps the draft a last time: the program ends in order.
    void end();

    // The notes of a job, which alone writes while it runs.

    /// Brings the kept draft up to date. Where the disk does not take it, asks the user whether to send
    /// without notes. Returns whether to send.
    bool ready_for_job();
    void begin_job();
    /// To be called before each submit: from here on these rows count as unconfirmed. Raises RuntimeError
    /// when that cannot be noted; the submit must not be made then.
    void before_submit(const std::vector<std::size_t>& rows);
    /// The answer came, or it is known that none will come: notes the rows as the list shows them, with what
    /// `answered` makes of each.
    void after_submit(const std::vector<std::size_t>& rows,
                      const std::function<void(platform::KeptRecipient&)>& answered);
    void end_job();

  private:
    void keep_changes();
    bool keep_some_rows();
    void keep_everything();
    void commit(bool at_rest);
    bool unchanged() const;
    bool recording_changed() const;
    void put_row(std::size_t row, const platform::KeptRecipient& recipient);
    void forget_what_is_kept();
    void failed(const platform::RuntimeError& error);
    void works_again();
    bool bring_up_to_date();

    // The drafts of earlier runs.
    void offer_next();
    void show_offer();
    void pass_over();
    void take_up_from_bar();
    void take_up();
    void read_kept_rows();
    void add_again(const std::vector<platform::KeptRecipient>& listed, bool same_pieces);
    void cannot_read(const platform::RuntimeError& error);
    void set_damaged_aside();

    platform::Platform& platform_;
    compose::frmZent& form_;
    platform::ListView& list_;
    platform::Timer seconds_;
    /// Ticks while a long list is being written, a part a tick, so that the windows stay alive.
    platform::Timer parts_;

    /// The draft that is offered, and how it is described.
    std::optional<platform::KeptDraft> offered_;
    RecipientCounts offered_recipients_;
    /// What the store has: the fields, and a fingerprint of each row.
    Fields kept_fields_;
    std::vector<std::size_t> kept_rows_;
    std::uint64_t kept_revision_ = 0;
    /// Revision of the recording that the store has.
    std::optional<std::uint64_t> kept_recording_ = 0;
    /// Whether the present draft is in the store.
    bool is_kept_ = false;
    bool failure_told_ = false;
    bool job_runs_ = false;
    /// Whether the store is up to date, so that a job can be noted.
    bool notes_job_ = false;

    /// The pass over the rows: the next row, and the list's revision that it belongs to.
    std::size_t next_row_ = 0;
    std::uint64_t pass_revision_ = 0;
};

/// A job that is being noted, for as long as this object lives.
class NotedJob {
  public:
    explicit NotedJob(DraftKeeper& keeper) : keeper_(keeper) { keeper_.begin_job(); }
    NotedJob(const NotedJob&) = delete;
    NotedJob& operator=(const NotedJob&) = delete;
    ~NotedJob() { keeper_.end_job(); }

  private:
    DraftKeeper& keeper_;
};

}  // namespace drafts
