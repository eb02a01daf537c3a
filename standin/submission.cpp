#include "standin/submission.h"

namespace standin {

Submission submission_of(const Call& call) {
    const auto number = [&](const char* name) { return call.argument(name).number.value_or(0); };
    const auto text = [&](const char* name) { return call.argument(name).bytes.value_or(""); };

    Submission submission;
    submission.user_id = text("user_id");
    submission.data_type = number("data_type");
    submission.submit_sequence = number("submit_sequence");
    submission.subject = text("subject");
    submission.schedule_time = text("schedule_time");
    submission.callback = text("callback");
    submission.dest_addr_count = number("dest_addr_count");
    submission.dest_addr = text("dest_addr");
    submission.sms_content = text("sms_content");
    submission.attach_file_count = number("attach_file_count");
    submission.attach_file = text("attach_file");
    if (call.operation() == "fn_x_submit_2") {
        submission.data_sub_type = number("data_sub_type");
        submission.reply_flag = number("reply_flag");
        submission.tts_content = text("tts_content");
    }
    return submission;
}

}  // namespace standin
