#include "handover/handover.h"

#include "core/paths.h"
#include "core/work_folders.h"
#include "handover/handover_lines.h"
#include "platform/error.h"
#include "service/service_pages.h"

namespace handover {

using platform::Text;
using platform::TextView;

namespace {

bool is_page(int value) {
    return value >= service::CARD_MANAGER_RESULTS && value <= service::CARD_MANAGER_MEMBER_DATA;
}

}  // namespace

HandOver::HandOver(platform::Platform& platform, core::AppState& state, compose::frmZent& main_form)
    : platform_(platform), state_(state), form_(main_form) {}

void HandOver::NEW_SENDMAN_LOAD() {
    // The answer to a question is about what the user saw when it was asked.
    if (state_.forms.gSendFormOpen || platform_.desktop.question_stands()) return;
    if (!core::FILE_EXISTS(platform_, core::isend_text(platform_))) return left_over_.reset();
    form_.Timer1.set_enabled(false);
    // Files that could not be deleted are taken in only once: choosing the tab every half second would empty
    // the draft each time, and the user could not leave a page.
    if (!left_over_ || *left_over_ != files()) take_in();
    delete_quietly(core::isend_text(platform_));
    delete_quietly(core::tmpman_txt(platform_));
    left_over_.reset();
    if (core::FILE_EXISTS(platform_, core::isend_text(platform_))) left_over_ = files();
    form_.Timer1.set_enabled(true);
}

void HandOver::take_in() {
    const int value = value_of_signal(handed_over_text(bytes_of(core::isend_text(platform_))));
    if (is_page(value)) return open_page(value);
    delete_quietly(core::isend_text(platform_));
    // Deliberately thrown away while a page is open: the user has turned to something else.
    if (!state_.forms.gWebFormOpen && core::FILE_EXISTS(platform_, core::tmpman_txt(platform_)))
        take_in_recipients(value);
}

void HandOver::open_page(int page) {
    form_.Timer2.set_tag(u"OK");
    if (!state_.session.gLoggedIn) {
        platform::ignore_errors([&] {
            form_.session.mnuAutoLogin.checked() ? form_.session.AUTO_LOGIN_START()
                                                 : form_.session.cmdLogin_Click();
        });
        // The login form has started the polling again, which would find the signal still there.
        form_.Timer1.set_enabled(false);
    }
    if (!state_.session.gLoginResult || !state_.session.gLoggedIn)
        return form_.session.SET_LOGIN_BUTTONS(false);
    service::show_service_page(platform_, state_, page);
}

void HandOver::take_in_recipients(int tab) {
    const Text text = handed_over_text(bytes_of(core::tmpman_txt(platform_)));
    if (text.empty()) return;
    const std::vector<TextView> lines = platform::split(text, u'\n');
    compose::RecipientList& recipients = form_.recipients;
    recipients.PBar1.set_value(0);
    recipients.PBar1.show();
    HandedOverRecipient recipient;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        if (recipient.read(lines[line]) && !recipient.number.empty())
            recipients.add(recipient.name, recipient.number, recipient.title);
        if (line > 0) recipients.PBar1.set_progress(line, lines.size() - 1);
        platform_.desktop.paint();
    }
    recipients.PBar1.hide();
    recipients.RECIPIENT_COUNT_CAPTION();
    // There may be no such tab.
    platform::ignore_errors([&] { form_.TabStrip1.select(tab); });
}

HandOver::Files HandOver::files() const {
    return {bytes_of(core::isend_text(platform_)), bytes_of(core::tmpman_txt(platform_))};
}

std::string HandOver::bytes_of(const Text& path) const {
    std::string bytes;
    platform::ignore_errors([&] { bytes = platform_.files.read(path); });
    return bytes;
}

void HandOver::delete_quietly(const Text& path) {
    platform::ignore_errors([&] { core::DELETE_FILE(platform_, path); });
}

}  // namespace handover
