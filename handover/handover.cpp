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

/// The signal holds one number, the list a line for each recipient: room for two million of them. A larger
/// file counts as unreadable.
constexpr std::uint64_t SIGNAL_LIMIT = 64 << 10;
constexpr std::uint64_t RECIPIENTS_LIMIT = 64 << 20;

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
    const Files handed = files();
    // Files that could not be deleted are taken in only once: choosing the tab every half second would empty
    // the draft each time, and the user could not leave a page.
    left_over_ == handed ? discard(handed) : take_in(handed);
    form_.Timer1.set_enabled(true);
}

void HandOver::take_in(const Files& handed) {
    const int value = value_of_signal(handed_over_text(handed.signal));
    if (is_page(value)) {
        open_page(value);
        // Deliberately with what has come meanwhile: the user has turned to something else.
        return discard(handed);
    }
    // Before the recipients are listed, which takes a while: the card manager may write the next hand-over as
    // soon as the signal is gone, and that is not to be deleted unread.
    discard(handed);
    // Deliberately thrown away while a page is open, for the same reason as above.
    if (!state_.forms.gWebFormOpen) take_in_recipients(handed.recipients, value);
}

/// Deletes the files of a hand-over, the signal last: until it goes, the card manager writes no new list.
void HandOver::discard(const Files& handed) {
    const bool list_gone = delete_quietly(core::tmpman_txt(platform_));
    if (delete_quietly(core::isend_text(platform_))) return left_over_.reset();
    // As the next look finds it: a page would open twice if the list that has gone counted.
    left_over_ = Files{handed.signal, list_gone ? std::string() : handed.recipients};
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

void HandOver::take_in_recipients(const std::string& handed, int tab) {
    const Text text = handed_over_text(handed);
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
    return {bytes_of(core::isend_text(platform_), SIGNAL_LIMIT),
            bytes_of(core::tmpman_txt(platform_), RECIPIENTS_LIMIT)};
}

std::string HandOver::bytes_of(const Text& path, std::uint64_t limit) const {
    std::string bytes;
    platform::ignore_errors([&] { bytes = platform_.files.read(path, limit); });
    return bytes;
}

bool HandOver::delete_quietly(const Text& path) {
    return platform::ignore_errors([&] { core::DELETE_FILE(platform_, path); });
}

}  // namespace handover
