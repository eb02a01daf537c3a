// Searching cards by name or company, and all cards again.

#include "addressbook/card_db.h"
#include "addressbook/frmSendMan.h"
#include "addressbook/statements.h"
#include "core/boxes.h"
#include "platform/error.h"

namespace addressbook {

using platform::Text;

namespace {

constexpr platform::TextView HINT = u"이름 또는 회사";
/// A grey that can be read on a light ground and on a dark one.
constexpr std::uint32_t HINT_COLOUR = 0x808080;

constexpr std::size_t FEWEST_CHARACTERS = 2;

}  // namespace

void frmSendMan::connect_search() {
    for (const platform::TextView mode : {statements::BEGINS_WITH, statements::CONTAINS, statements::EQUALS})
        Combo4.add_row(Text(mode));
    show_hint();
    Text1.GotFocus.connect([this] { hide_hint(); });
    Text1.LostFocus.connect([this] { show_hint_when_empty(); });
    Text1.KeyPress.connect([this](platform::KeyPressed& key) {
        if (key.code != platform::KEY_ENTER) return;
        key.swallow();
        search();
    });
    Command1.Click.connect([this] { search(); });
    Command5.Click.connect([this] { list_all_cards(); });
}

void frmSendMan::show_hint() {
    Text1.set_text(Text(HINT));
    Text1.set_text_colour(HINT_COLOUR);
}

void frmSendMan::hide_hint() {
    if (platform::trim(Text1.text()) != HINT) return;
    Text1.set_text(u"");
    Text1.set_text_colour(std::nullopt);
}

void frmSendMan::show_hint_when_empty() {
    if (platform::trim(Text1.text()).empty()) show_hint();
}

/// The hint counts as text: a click on the button while it shows searches for it.
void frmSendMan::search() {
    if (Text1.text().empty()) {
        if (activated_) Text1.set_focus();
        return;
    }
    if (Text1.text().size() < FEWEST_CHARACTERS) {
        if (!activated_) return;
        core::warn(platform_.desktop, u"두 글자 이상을 입력하셔야 합니다!");
        Text1.set_focus();
        return;
    }
    if (!OPEN_CARD_DB(platform_, state_, true)) return;
    list_anew(statements::matching_cards(ALLDB_SQL(), statements::match_clause(Combo4.text(), Text1.text())));
}

void frmSendMan::list_all_cards() { list_anew(statements::all_cards(ALLDB_SQL())); }

/// A statement that the database refuses, such as one with an apostrophe in it, leaves the list as it is,
/// without a box.
void frmSendMan::list_anew(const Text& statement) {
    platform::ignore_errors([&] {
        const auto recordset = open_recordset(state_, statement);
        platform_.desktop.set_pointer(platform::Pointer::hourglass);
        ListView2.clear();
        PICK_STATUS_SHOW();
        if (recordset->record_count() != 0) CARD_LIST_FILL(*recordset);
    });
    hide_progress();
}

}  // namespace addressbook
