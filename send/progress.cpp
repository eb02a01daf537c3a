// What the user sees of a job while it runs.

#include "core/byte_length.h"
#include "send/frmZentSend.h"

#include <algorithm>

namespace send {

using platform::Text;

void frmZentSend::begin_progress(SendJob& job, int steps, Unit unit) {
    const int submits =
        unit == Unit::person ? core::count_pieces(main_form_.text.mText1.text(), compose::TEXT_LIMIT) : 1;
    job.steps = {.done = 0, .all = steps};
    job.unit = unit;
    job.waits = submits * std::chrono::milliseconds(job.pauses.after_success + job.pauses.before_unbind);
    kind_name_ = caption();
    show_progress(job);
}

void frmZentSend::step_done(SendJob& job) {
    ++job.steps.done;
    show_progress(job);
}

void frmZentSend::show_progress(const SendJob& job) {
    Registered.set_caption(people(MSGSendCount) + u" 중 " + people(job.success) + u" 등록");
    Failed.set_caption(u"⚠ 실패 " + people(job.failure));
    Failed.set_visible(job.failure > 0);

    Text left = u"남은 시간 " + about(time_left(job.steps, platform_.clock.now() - job.started, job.waits));
    if (job.steps.done >= job.steps.all)
        left = u"마무리하고 있습니다.";
    else if (job.unit == Unit::batch)
        left = u"묶음 " + platform::decimal(job.steps.done + 1) + u"/" + platform::decimal(job.steps.all) +
               u" · " + left;
    Remaining.set_caption(left);
    show_percentage();
}

void frmZentSend::show_percentage() { set_caption(platform::decimal(PBar1.value()) + u"% · " + kind_name_); }

}  // namespace send
