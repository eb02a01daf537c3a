#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "drafts/draft_keeper.h"
#include "gateway/gateway.h"
#include "platform/boolean_word.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"
#include "send/batch.h"
#include "send/send_job.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace send {

/// The window of a send job. Half a second after its activation it runs one of these routines, which all do
/// the same for their recipients, one submit after the other: open a session with the carrier, register, wait
/// as the service demands, write the result into the rows, close the session. They differ in how they group
/// the recipients and what they do with the text:
///
///     SEND_BATCHES        up to 100 recipients a submit, the text whole
///     SEND_LONG_BATCHES   the same once for every piece of a text that is too long for one message
///     SEND_PERSONAL       one recipient a submit, the text filled in for each and cut into pieces
///     SEND_SINGLES        one recipient a submit, the text filled in; too long a text fails
///
/// Nothing runs the last one; it is kept for support, which knows its status texts.
/// What they share is in job_steps.cpp; each has a file of its own.
class frmZentSend : public platform::Form {
  public:
    /// `drafts` notes on the disk what the job does.
    frmZentSend(platform::Platform& platform, core::AppState& state, compose::frmZent& main_form,
                drafts::DraftKeeper& drafts);

    platform::Animation Animation1{*this, u"Animation1"};
    platform::Label Label1_0{*this, u"Label1_0", u"KT 폰디라 서버와 통신중입니다."};
    platform::Label Label1_1{*this, u"Label1_1", u"등록이 완료될 때까지 잠시만 기다려 주십시오..."};
    /// How many are registered, how many failed, and what is left.
    platform::Label Registered{*this, u"Registered", u"등록을 준비하고 있습니다."};
    platform::Label Failed{*this, u"Failed"};
    platform::Label Remaining{*this, u"Remaining"};
    platform::ProgressBar PBar1{*this, u"PBar1"};
    platform::CommandButton Command1{*this, u"Command1", u"등록중지"};
    platform::Timer Timer1;

    // Working storage of the routines that cut a text, never shown.
    /// The text still to send.
    platform::TextBox mText1;
    /// The piece being sent.
    platform::TextBox Text1;
    /// When the piece is to go.
    platform::DatePicker DTP1;
    platform::ComboBox Combo1;
    platform::ComboBox Combo2;

    /// How many recipients there are to register.
    std::int32_t MSGSendCount = 0;
    /// The list of a fax's files, as the check before sending made it.
    platform::Text Documents;
    platform::ListView& RecipientRows;
    platform::BooleanWord StopRequested;
    platform::Text SendAnimationPath;

    // Each runs the whole job and closes the window.
    void SEND_BATCHES(const platform::Text& kind_name);
    void SEND_LONG_BATCHES();
    void SEND_PERSONAL();
    void SEND_SINGLES(const platform::Text& kind_name);

    /// Cuts the next message of at most 80 bytes from `mText1`; no character is split.
    platform::Text CUT_NEXT_PIECE();
    /// Moves the working schedule forward by less than an hour.
    void ADD_SCHEDULE_MINUTES(int minutes);

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { Form_Close(); }
    void Form_Close() override;

  private:
    /// Whether a pass writes row status and moves the progress bar.
    struct PassOptions {
        bool leaves_trace;
        bool shows_progress;
    };

    void stop_or_close();
    bool waits_for_answer(std::chrono::milliseconds waited);
    void run_routine_of_draft();
    void wait_cursor() { platform_.desktop.set_pointer(platform::Pointer::hourglass); }
    void normal_cursor() { platform_.desktop.set_pointer(platform::Pointer::normal); }

    // What all routines share: job_steps.cpp.
    void run_job(const compose::CarrierKind* kind, compose::Pauses pauses,
                 const std::function<void(SendJob&)>& send_rows);
    SendJob prepare(const compose::CarrierKind* kind, compose::Pauses pauses);
    void open_session(SendJob& job);
    platform::Text submit(SendJob& job, const std::vector<std::size_t>& rows, bool decides,
                          platform::TextView without_call = NOT_REGISTERED);
    void take_answer(SendJob& job, const std::vector<std::size_t>& rows, bool decides,
                     const platform::Text& result);
    void close_session(const SendJob& job);
    static void count(SendJob& job, const platform::Text& result, int recipients);
    void write_status(std::size_t first_row, std::size_t end_row, const platform::Text& status);
    void show_pieces();
    void show_stopped();
    void report(const SendJob& job);
    void SEND_FINISHED();

    // What the user sees of it meanwhile: progress.cpp.
    void begin_progress(SendJob& job, int steps, Unit unit);
    void step_done(SendJob& job);
    void show_progress(const SendJob& job);
    /// In the title, so that the task bar has it: what the bar in the window shows.
    void show_percentage();

    // Recipients in batches: send_batches.cpp.
    void pass_over_rows(SendJob& job, Batch& batch, PassOptions options);
    void submit_batch(SendJob& job, Batch& batch, std::size_t current, bool leaves_trace);

    // Recipients one by one: send_personal.cpp, send_singles.cpp.
    /// Whether the user has asked for personal messages and the current kind allows them.
    bool is_personal() const;
    void for_each_recipient(SendJob& job, const std::function<void(std::size_t row)>& send_row);
    void send_personal_row(SendJob& job, std::size_t row);
    void send_single_row(SendJob& job, std::size_t row);

    // Texts in pieces: cutting.cpp.
    /// Sets the working schedule to the draft's.
    void take_schedule();
    void begin_pieces(SendJob& job, const platform::Text& text);
    void next_piece(SendJob& job);

    platform::Platform& platform_;
    core::AppState& state_;
    compose::frmZent& main_form_;
    drafts::DraftKeeper& drafts_;
    gateway::Gateway gateway_;
    bool job_started_ = false;
    /// What the window was called before it told how far the job is.
    platform::Text kind_name_;
};

}  // namespace send
