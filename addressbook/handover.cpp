#include "addressbook/handover.h"

#include "compose/handover_files.h"
#include "core/common.h"
#include "core/files.h"
#include "core/percent.h"
#include "gateway/service_pages.h"
#include "platform/error.h"
#include "platform/text/cp949.h"
#include "platform/text/number.h"

#include <cmath>
#include <limits>

namespace addressbook {

using compose::frmZent;
using core::AppState;
using platform::Platform;
using platform::Text;
using platform::TextView;

namespace {

/// A line of up to this many characters holds no recipient.
constexpr std::size_t SHORT_LINE = 8;

enum Field { NAME = 1, NUMBER = 2, TITLE = 3 };

/// The file's text with every kind of line end as a line feed, empty when it cannot be read. A NUL, which no
/// text to be sent can hold, is a blank.
Text read_text(const Platform& platform, const Text& path) {
    Text text;
    platform::ignore_errors([&] { text = platform::decode_cp949(platform.files.read(path)); });
    for (char16_t& character : text) {
        if (character == u'\0') character = u' ';
    }
    return platform::replace_all(platform::replace_all(text, platform::CRLF, u"\n"), u"\r", u"\n");
}

/// The pieces between the separators; one more than there are separators.
std::vector<TextView> split(TextView text, char16_t separator) {
    std::vector<TextView> pieces;
    std::size_t begin = 0;
    for (auto end = text.find(separator); end != TextView::npos; end = text.find(separator, begin)) {
        pieces.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

/// What the signal asks for: a page by the card manager's number of it, or a tab. What is no number of 16
/// bits asks for the first tab, as 0 does.
int value_of(TextView signal) {
    const double value = std::nearbyint(platform::leading_number(signal));
    using Limits = std::numeric_limits<std::int16_t>;
    const bool fits = value >= Limits::min() && value <= Limits::max();
    return fits && value != 0 ? static_cast<int>(value) : 1;
}

bool is_page(int value) {
    return value >= gateway::CARD_MANAGER_RESULTS && value <= gateway::CARD_MANAGER_MEMBER_DATA;
}

void open_page(Platform& platform, AppState& state, frmZent& form, int page) {
    form.Timer2.set_tag(u"OK");
    if (!state.gLoggedIn) {
        platform::ignore_errors(
            [&] { form.mnuAutoLogin.checked() ? form.AUTO_LOGIN_START() : form.cmdLogin_Click(); });
        // The login form has started the polling again, which would find the signal still there.
        form.Timer1.set_enabled(false);
    }
    if (!state.gLoginResult || !state.gLoggedIn) return form.SET_LOGIN_BUTTONS(false);
    gateway::show_service_page(platform, state, page);
}

/// A recipient as the line says. A field that a line lacks keeps its value of the line before.
struct Recipient {
    Text name, number, title;

    void read(TextView line) {
        const std::vector<TextView> fields = split(line, u'\t');
        if (fields.size() > NAME) name = platform::trim(platform::remove_all(fields[NAME], u":"));
        if (name.empty()) name = compose::NO_NAME;
        if (fields.size() > NUMBER) number = platform::trim(core::DIGITS_ONLY(fields[NUMBER]));
        if (fields.size() > TITLE) title = core::DIGITS_ONLY(fields[TITLE]);
    }
};

void add_recipient(platform::ListView& list, const Recipient& recipient) {
    if (recipient.number.empty() || list.find_in_sub_items(recipient.number)) return;
    list.deselect_item();
    const std::size_t row = list.add_row(u"", {recipient.name, recipient.number, u"", recipient.title}, true);
    list.make_visible(row);
    list.select_item(row);
}

void take_in_recipients(Platform& platform, frmZent& form, int tab) {
    const Text text = read_text(platform, compose::tmpman_txt(platform));
    if (text.empty()) return;
    const std::vector<TextView> lines = split(text, u'\n');
    form.PBar1.set_value(0);
    form.PBar1.show();
    Recipient recipient;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        if (lines[line].size() > SHORT_LINE) {
            recipient.read(lines[line]);
            add_recipient(form.ListView1, recipient);
        }
        if (line > 0) form.PBar1.set_value(core::percent(line, lines.size() - 1));
        platform.desktop.paint();
    }
    form.PBar1.hide();
    form.RECIPIENT_COUNT_CAPTION();
    // There may be no such tab.
    platform::ignore_errors([&] { form.TabStrip1.select(tab); });
}

void delete_quietly(Platform& platform, const Text& path) {
    platform::ignore_errors([&] { core::DELETE_FILE(platform, path); });
}

}  // namespace

void NEW_SENDMAN_LOAD(Platform& platform, AppState& state, frmZent& form) {
    const Text signal = compose::isend_text(platform);
    const Text recipients = compose::tmpman_txt(platform);
    if (state.gSendFormOpen || !core::FILE_EXISTS(platform, signal)) return;
    form.Timer1.set_enabled(false);
    const int value = value_of(read_text(platform, signal));
    if (is_page(value)) {
        open_page(platform, state, form, value);
    } else {
        delete_quietly(platform, signal);
        // Deliberately thrown away while a page is open: the user has turned to something else.
        if (!state.gWebFormOpen && core::FILE_EXISTS(platform, recipients))
            take_in_recipients(platform, form, value);
    }
    delete_quietly(platform, signal);
    delete_quietly(platform, recipients);
    form.Timer1.set_enabled(true);
}

}  // namespace addressbook
