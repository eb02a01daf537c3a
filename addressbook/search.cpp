// Searching cards by name or company, and all cards again.

#include "addressbook/card_db.h"
#include "addressbook/frmSendMan.h"
#include "addressbook/statements.h"
#include "core/boxes.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"

namespace addressbook {

using platform::Text;
using platform::TextView;

namespace {

constexpr platform::TextView HINT = u"이름 또는 회사";
/// A grey that can be read on a light ground and on a dark one.
constexpr std::uint32_t HINT_COLOUR = 0x808080;

constexpr std::size_t FEWEST_CHARACTERS = 2;

Text nothing_found(TextView mode, const Text& text) {
    const Text words = u"'" + text + u"'";
    if (mode == statements::CONTAINS) return words + u"을(를) 포함하는 이름이나 회사가 없습니다.";
    Text hint = words + (mode == statements::EQUALS ? u"과(와) 일치하는" : u"(으)로 시작하는");
    return hint + u" 이름이나 회사가 없습니다.\r\n'" + Text(statements::CONTAINS) +
           u"'으로 바꾸어 찾아 보십시오.";
}

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
    Text1.KeyDown.connect([this](const platform::KeyPressed& key) {
        if (key.code == platform::KEY_DOWN) go_to_rows();
    });
    Text1.Change.connect([this] {
        if (Text1.text() != HINT) Text1.set_text_colour(std::nullopt);
        go_to_typed();
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
    list_anew(statements::matching_cards(ALLDB_SQL(), statements::match_clause(Combo4.text(), Text1.text())),
              nothing_found(Combo4.text(), Text1.text()));
}

/// Selects the first of the listed cards whose name or company begins with what is typed, unless the user has
/// selected others.
void frmSendMan::go_to_typed() {
    const auto selected = ListView2.selected_item();
    if (!Text1.has_focus() || (selected && selected != typed_row_)) return;
    ListView2.deselect_item();
    typed_row_.reset();
    const Text typed = platform::lower_case(Text1.text());
    const int company = platform::FIND_COLUMN(u"회사", ListView2) - 1;
    const auto begins = [&typed](const Text& cell) { return platform::lower_case(cell).starts_with(typed); };
    for (std::size_t row = 0; row < ListView2.row_count() && !typed.empty() && !typed_row_; ++row) {
        const platform::ListItem& card = ListView2.row(row);
        if (begins(card.text()) || begins(card.sub_item(company))) typed_row_ = row;
    }
    if (typed_row_) {
        ListView2.select_item(*typed_row_);
        ListView2.make_visible(*typed_row_);
    }
    PICK_STATUS_SHOW();
}

void frmSendMan::go_to_rows() {
    if (ListView2.row_count() == 0) return;
    ListView2.set_focus();
    if (ListView2.selected_item()) return;
    ListView2.select_item(0);
    PICK_STATUS_SHOW();
}

void frmSendMan::list_all_cards() {
    list_anew(statements::all_cards(ALLDB_SQL()),
              u"명함이 없습니다.\n명함 관리 프로그램에서 먼저 등록하세요.");
}

/// A statement that the database refuses, such as one with an apostrophe in it, leaves the list as it is,
/// without a box.
void frmSendMan::list_anew(const Text& statement, const Text& when_empty) {
    ListView2.set_placeholder(u"");
    platform::ignore_errors([&] {
        const auto recordset = open_recordset(state_, statement);
        platform_.desktop.set_pointer(platform::Pointer::hourglass);
        ListView2.clear();
        PICK_STATUS_SHOW();
        if (recordset->record_count() != 0) CARD_LIST_FILL(*recordset);
    });
    hide_progress();
    ListView2.set_placeholder(when_empty);
}

}  // namespace addressbook
