#include "compose/recipient_list.h"

#include "compose/questions.h"
#include "compose/recipients/status.h"
#include "core/boxes.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"

#include <algorithm>
#include <unordered_set>

namespace compose {

using platform::KeyPressed;
using platform::ListItem;
using platform::RowMark;
using platform::Text;

namespace {

/// Above this many rows a run over the list shows its progress.
constexpr std::size_t LONG_LIST = 500;

bool may_be_registered(const ListItem& row) {
    const Outcome outcome = outcome_of(row.sub_item(RECIPIENT_STATUS));
    return outcome == Outcome::registered || outcome == Outcome::unconfirmed;
}

}  // namespace

RecipientList::RecipientList(platform::Form& form, platform::Platform& platform, core::AppState& state,
                             std::function<void()> pick)
    : Room(form),
      platform_(platform),
      state_(state),
      pick_(std::move(pick)),
      kind_(&kind_of(MessageKind::text)) {
    PBar1.hide();
    Command7.set_enabled(pick_ != nullptr);
    mnusubpopup1.set_enabled(pick_ != nullptr);
    ListView1.set_placeholder(
        u"받는사람을 추가하거나 명함DB에서 불러오세요.\n표에서 복사한 줄을 붙여넣어도 됩니다. (Ctrl+V)");
    mark_rows();
    mnuUndoDelete.set_enabled(false);
    Changing.hide();
    Changing.set_tool_tip(u"추가 또는 Enter를 누르면 선택한 줄이 바뀝니다. 그만두려면 Esc를 누르십시오.");
    connect();
}

void RecipientList::connect() {
    for (std::size_t i = 0; i < HText1.size(); ++i) {
        HText1[i].KeyPress.connect([this, i](KeyPressed& key) { HText1_KeyPress(i, key); });
    }
    HBttn1.Click.connect([this] { add_typed(); });
    HBttn2.Click.connect([this] { remove_selected(); });
    Command7.Click.connect([this] { pick_recipients(); });
    ListView1.ItemCheck.connect([this](std::size_t row) { row_checked(row); });
    ListView1.CheckMany.connect([this](platform::ListView::ManyRows rows, bool checked) {
        rows == platform::ListView::ManyRows::all ? check_all(checked)
                                                  : check_rows(&ListItem::selected, checked);
    });
    ListView1.ColumnClick.connect([this](int column) { sort_by(column); });
    ListView1.KeyDown.connect([this](KeyPressed& key) {
        if (key.code == platform::KEY_DELETE) remove_selected();
    });
    ListView1.KeyPress.connect([this](KeyPressed& key) { ListView1_KeyPress(key); });
    ListView1.DblClick.connect([this] { change_selected(); });
    ListView1.MouseUp.connect([this](platform::MouseButton button) {
        if (button == platform::MouseButton::right) platform_.desktop.popup_menu(form_, mnuSubPopup);
    });
    mnusubpopup1.Click.connect([this] { pick_recipients(); });
    mnusubpopup7.Click.connect([this] { ListView1.select_all(); });
    mnusubpopup4.Click.connect([this] { CHECK_SELECTED_ITEMS(true); });
    mnusubpopup5.Click.connect([this] { CHECK_SELECTED_ITEMS(false); });
    mnuEditRow.Click.connect([this] { change_selected(); });
    mnusubpopup9.Click.connect([this] { remove_selected(); });
    mnuUndoDelete.Click.connect([this] { undo_deletion(); });
}

void RecipientList::ListView1_KeyPress(KeyPressed& key) {
    if (key.code == platform::KEY_CTRL_A) ListView1.select_all();
    if (key.code != platform::KEY_ENTER || !ListView1.selected_item()) return;
    key.swallow();
    change_selected();
}

void RecipientList::set_kind(const KindOfMessage& kind) {
    give_up_change();
    kind_ = &kind;
    ListView1.set_column_caption(RECIPIENT_NUMBER + 1, Text(kind.number.caption));
    Label2_5.set_caption(Text(kind.number.caption) + u":");
    mark_rows();
}

void RecipientList::mark_rows() {
    ListView1.set_marking({.mark_of = [this](const ListItem& row) { return mark_of(row); },
                           .reason_of = [this](const ListItem& row) { return Text(fault_of_row(row)); }});
}

/// Why the kind cannot reach the recipient, unless a job has said more about it.
platform::TextView RecipientList::fault_of_row(const ListItem& row) const {
    if (outcome_of(row.sub_item(RECIPIENT_STATUS)) != Outcome::open) return {};
    return fault_of_number(*kind_, core::DIGITS_ONLY(row.sub_item(RECIPIENT_NUMBER)));
}

platform::RowMark RecipientList::mark_of(const ListItem& row) const {
    switch (outcome_of(row.sub_item(RECIPIENT_STATUS))) {
        case Outcome::registered:
            return RowMark::done;
        case Outcome::failed:
            return RowMark::failed;
        case Outcome::unconfirmed:
            return RowMark::uncertain;
        case Outcome::open:
            break;
    }
    return fault_of_row(row).empty() ? RowMark::none : RowMark::unusable;
}

bool RecipientList::add(Text name, const Text& number, Text title) {
    if (ListView1.find_in_sub_items(number)) return false;
    if (name.empty()) name = NO_NAME;
    ListView1.deselect_item();
    const std::size_t row = ListView1.add_row(u"", {std::move(name), number, u"", std::move(title)}, true);
    ListView1.make_visible(row);
    ListView1.select_item(row);
    return true;
}

void RecipientList::RECIPIENT_COUNT_CAPTION() {
    Label4.set_caption(u"전체>" + platform::decimal(ListView1.row_count()) + u">대상>" +
                       platform::decimal(ListView1.checked_count()));
    Counted.raise();
}

void RecipientList::remove_selected() { note_deletion(remove_selected_rows(platform_.desktop, ListView1)); }

void RecipientList::take_away(const std::function<bool(const ListItem& row)>& passes) {
    note_deletion(ListView1.take_rows(passes));
}

void RecipientList::note_deletion(platform::TakenRows rows) {
    if (rows.empty()) return;
    if (std::ranges::any_of(rows, [this](const auto& row) { return row.second.get() == changed_row_; }))
        give_up_change();
    deletions_.push_back(std::move(rows));
    mnuUndoDelete.set_enabled(true);
    RECIPIENT_COUNT_CAPTION();
}

void RecipientList::leave_draft() {
    give_up_change();
    deletions_.clear();
    mnuUndoDelete.set_enabled(false);
}

/// Whose number has been listed anew meanwhile does not come back a second time.
void RecipientList::undo_deletion() {
    if (deletions_.empty()) return;
    platform::TakenRows rows = std::move(deletions_.back());
    deletions_.pop_back();
    mnuUndoDelete.set_enabled(!deletions_.empty());
    std::unordered_set<Text> listed;
    for (std::size_t row = 0; row < ListView1.row_count(); ++row)
        listed.insert(ListView1.row(row).sub_item(RECIPIENT_NUMBER));
    std::erase_if(rows,
                  [&](const auto& row) { return listed.contains(row.second->sub_item(RECIPIENT_NUMBER)); });
    if (rows.empty()) return;
    std::vector<const ListItem*> back;
    for (const auto& [place, row] : rows) back.push_back(row.get());
    ListView1.put_back(std::move(rows));
    ListView1.go_to(back.front()->position());
    for (const ListItem* row : back) ListView1.user_select(row->position(), true);
    ListView1.select_item(back.front()->position());
    RECIPIENT_COUNT_CAPTION();
}

void RecipientList::pick_recipients() {
    if (!pick_) return;
    const std::size_t rows = ListView1.row_count();
    state_.forms.gDialogConfirmed = false;
    pick_();
    if (ListView1.row_count() != rows || state_.forms.gDialogConfirmed) RECIPIENT_COUNT_CAPTION();
    if (ListView1.row_count() != rows) ListView1.set_focus();
}

void RecipientList::CHECK_SELECTED_ITEMS(bool checked) {
    if (ListView1.selected_item()) check_rows(&ListItem::selected, checked);
}

/// A row that is checked already keeps its status. Who is or may be registered is checked after a yes alone:
/// the message would reach him twice.
void RecipientList::check_all(bool checked) {
    std::size_t again = 0;
    for (std::size_t row = 0; row < ListView1.row_count(); ++row)
        again += !ListView1.row(row).checked() && may_be_registered(ListView1.row(row));
    const bool with_them = !checked || again == 0 || ask_to_check_again(platform_.desktop, again);
    check_rows(
        [&](const ListItem& row) {
            return row.checked() != checked && (with_them || !may_be_registered(row));
        },
        checked);
}

void RecipientList::check_rows(const std::function<bool(const ListItem& row)>& passes, bool checked) {
    const std::size_t rows = ListView1.row_count();
    if (rows > LONG_LIST) {
        PBar1.set_value(0);
        PBar1.show();
    }
    for (std::size_t row = 0; row < rows; ++row) {
        if (passes(ListView1.row(row))) {
            ListView1.set_checked(row, checked);
            if (checked) ListView1.set_sub_item(row, RECIPIENT_STATUS, u"");
        }
        if (PBar1.visible()) PBar1.set_value(static_cast<int>((row + 1) * 100 / rows));
    }
    PBar1.hide();
    RECIPIENT_COUNT_CAPTION();
}

void RecipientList::row_checked(std::size_t row) {
    // A failed row that is ticked again counts as not sent yet.
    if (ListView1.row(row).checked()) ListView1.set_sub_item(row, RECIPIENT_STATUS, u"");
    RECIPIENT_COUNT_CAPTION();
}

/// The column of check boxes has nothing to sort by; a click on it sorts by the name.
void RecipientList::sort_by(int column) {
    platform::ignore_errors([&] { platform::SORT_BY_COLUMN(ListView1, column == 1 ? 2 : column); });
}

}  // namespace compose
