#pragma once

#include "compose/main_form.h"
#include "platform/text/cp949.h"
#include "send/confirmation.h"
#include "send/frmZentSend.h"
#include "send/report.h"
#include "send/send_check.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// The main window of a user who is logged in, with a send button that works and a draft without recipients.
struct Sending : TestPlatform {
    compose::frmZent form{
        platform, state, {.send = [this] { send::check_and_send(platform, state, form, keeper); }}};
    drafts::DraftKeeper keeper{platform, form};

    /// The text of the last report, and whether it offered the results.
    std::string report;
    bool results_offered = false;

    Sending() {
        form.load();
        state.session.gLoggedIn = true;
        state.session.gInfoCallback = u"02-999-0000         ";
        form.sender.txtUserName.set_text(u"홍길동");
        form.sender.txtCallback.set_text(u"02-123-4567");
        form.choose(compose::MessageKind::text);
        form.text.mText1.set_text(u"[홍길동]안녕하세요");
        form.subject.subjectText.set_text(u"인사");
    }

    void type(const platform::Text& text) {
        if (!form.text.Check1.checked() && platform::cp949_length(text) > compose::TEXT_LIMIT) {
            desktop.expect_box(tests::long_text_question(), platform::BoxAnswer::yes);
        }
        form.text.mText1.set_text(text);
    }

    void record(const platform::Samples& samples) {
        form.voice.RFK1.open();
        form.voice.RFK1.record();
        recorder.speak(samples);
    }

    void add(const platform::Text& name, const platform::Text& number, bool checked = true,
             const platform::Text& title = {}) {
        form.recipients.ListView1.add_row(u"", {name, number, u"", title}, checked);
    }
    /// Adds recipients named "a1", "a2" and so on.
    void add_many(int count) {
        for (int i = 1; i <= count; ++i) {
            add(u"a" + platform::decimal(i), u"010" + platform::decimal(10'000'000 + i));
        }
    }

    void confirm() {
        desktop.in_form<send::frmSBox>(u"frmSBox", [](send::frmSBox& box) { box.Command1.Click.raise(); });
    }
    void click() { form.Command1.Click.raise(); }
    void expect_report() {
        desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [this](send::frmSendEndBox& box) {
            report = utf8(box.Text1.text());
            results_offered = box.Command1.enabled();
            box.Command2.Click.raise();
        });
    }
    /// Runs a whole job, from the click to the report.
    void send() {
        confirm();
        expect_report();
        click();
    }
    /// Runs a job that ends with a box instead of a report.
    void send_in_vain(const platform::MessageBox& box) {
        confirm();
        desktop.expect_box(box);
        click();
    }

    /// Presses the stop button during the job's n-th pause, counted from 1.
    void stop_at_pause(std::size_t n) {
        at_pause(n, [](send::frmZentSend& job) { job.Command1.Click.raise(); });
    }
    void at_pause(std::size_t n, const std::function<void(send::frmZentSend&)>& act) {
        desktop.in_form<send::frmZentSend>(u"frmZentSend", [=, this](send::frmZentSend& job) {
            clock.during_pause = [=, this, &job] {
                if (clock.pauses.size() == n) act(job);
            };
        });
    }

    std::string status(std::size_t row) const {
        return utf8(form.recipients.ListView1.row(row).sub_item(compose::RECIPIENT_STATUS));
    }
    /// For each row an "x" while it is checked, otherwise a "-".
    std::string marks() const {
        std::string text;
        for (std::size_t row = 0; row < form.recipients.ListView1.row_count(); ++row) {
            text += form.recipients.ListView1.row(row).checked() ? 'x' : '-';
        }
        return text;
    }

    /// One text for each registration.
    std::vector<std::string> registered(
        const std::function<platform::Text(const RecordingCarrier::Registration&)>& shown) const {
        std::vector<std::string> lines;
        for (const auto& registration : carrier.registrations) lines.push_back(utf8(shown(registration)));
        return lines;
    }
};

}  // namespace tests
