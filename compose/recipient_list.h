#pragma once

#include "compose/message_kinds.h"
#include "compose/room.h"
#include "core/app_state.h"
#include "core/personal_text.h"
#include "core/phone_number.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/list_view.h"
#include "platform/ports/platform.h"

#include <array>
#include <functional>
#include <vector>

namespace compose {

/// Sub-items of a row of `RecipientList::ListView1`.
inline constexpr int RECIPIENT_NAME = 1;
inline constexpr int RECIPIENT_NUMBER = 2;
inline constexpr int RECIPIENT_STATUS = 3;
inline constexpr int RECIPIENT_TITLE = 4;
/// Has no column: which pieces of the text are registered for the recipient (see send/pieces.h). The list's
/// tag says of which text.
inline constexpr int RECIPIENT_PIECES = 5;
/// Begins that tag when the text is a different one for each recipient.
inline constexpr platform::TextView PERSONAL_TEXT = u"개별:";

using core::NO_NAME;

/// A name as a row takes it from the user.
platform::Text typed_name(platform::TextView name);

/// The recipients: typed, picked from the cards, or handed over by the card manager.
///
/// Two files: the list (recipient_list.cpp), and the fields by it (recipient_list_typing.cpp).
class RecipientList : Room {
  public:
    /// `pick` opens the picker; without one its button and its menu entry are grey.
    RecipientList(platform::Form& form, platform::Platform& platform, core::AppState& state,
                  std::function<void()> pick);

    std::array<platform::TextBox, 2> HText1{platform::TextBox{form_, u"HText1_0"},
                                            platform::TextBox{form_, u"HText1_1"}};
    /// Stands by the fields while they have a row of the list that the user is changing.
    platform::Label Changing{form_, u"Changing", u"고치는 중"};
    platform::Label Label2_5{form_, u"Label2_5"};
    platform::CommandButton HBttn1{form_, u"HBttn1", u"추가"};
    platform::CommandButton HBttn2{form_, u"HBttn2", u"삭제"};
    platform::CommandButton Command7{form_, u"Command7", u"명함DB 불러오기..."};
    platform::ListView ListView1{form_,
                                 u"ListView1",
                                 {{.caption = u"선택"},
                                  {.caption = u"이름"},
                                  {.caption = u"문자보낼번호", .shown = core::with_hyphens},
                                  {.caption = u"상태", .signs = true},
                                  {.caption = u"직위"}},
                                 true};
    platform::ProgressBar PBar1{form_, u"PBar1"};
    platform::Label Label4{form_, u"Label4", u"전체> 대상>"};

    platform::Menu mnuSubPopup{form_, u"mnuSubPopup", u"작업메뉴"};
    platform::Menu mnusubpopup1{form_, u"mnusubpopup1", u"명함DB 불러오기(&M)..."};
    platform::Menu mnusubpopup7{form_, u"mnusubpopup7", u"전체선택(&A)"};
    platform::Menu mnusubpopup4{form_, u"mnusubpopup4", u"선택(&S)"};
    platform::Menu mnusubpopup5{form_, u"mnusubpopup5", u"선택취소(&C)"};
    platform::Menu mnuEditRow{form_, u"mnuEditRow", u"고치기(&E)"};
    platform::Menu mnusubpopup9{form_, u"mnusubpopup9", u"삭제(&D)"};
    platform::Menu mnuUndoDelete{form_, u"mnuUndoDelete", u"삭제 되돌리기(&Z)"};

    /// Sets the kind of message whose numbers are typed from now on, and marks the rows that it cannot reach.
    void set_kind(const KindOfMessage& kind);
    const KindOfMessage& kind() const { return *kind_; }

    /// Adds a checked row, selected and in view: at the end or, in a sorted list, in its place. Returns false
    /// and adds nothing when a listed number begins with this one: it counts as a duplicate. An empty name
    /// becomes NO_NAME.
    bool add(platform::Text name, const platform::Text& number, platform::Text title);

    /// Asks what becomes of somebody who is typed but not added, when there is one. Returns false when the
    /// user wants to go back, or when the number is refused.
    bool settle_typed();

    /// Empties the fields in which a recipient is typed; a row that is being changed there stays as it is.
    void empty_fields();

    /// Removes the rows that pass, as the user's deletion that can be undone.
    void take_away(const std::function<bool(const platform::ListItem& row)>& passes);
    /// To be called when the draft goes or is sent: no deletion before this can be undone then, and the row
    /// that is being changed stays as it is.
    void leave_draft();

    /// Shows how many rows there are and how many are checked.
    void RECIPIENT_COUNT_CAPTION();
    /// The same was done: rows may have come, gone or changed.
    platform::Event<> Counted;

  private:
    void connect();
    void mark_rows();
    platform::TextView fault_of_row(const platform::ListItem& row) const;
    platform::RowMark mark_of(const platform::ListItem& row) const;
    void HText1_KeyPress(std::size_t index, platform::KeyPressed& key);
    bool add_typed();
    platform::Text refusal_of(const platform::Text& digits) const;
    bool refuse_number(platform::Text text);
    void go_to_number();
    bool point_at_duplicate(const platform::Text& number);
    void change_selected();
    void give_up_change();
    bool is_as_listed(const platform::Text& number) const;
    void take_change(const platform::Text& number);
    void ListView1_KeyPress(platform::KeyPressed& key);
    void remove_selected();
    void note_deletion(platform::TakenRows rows);
    void undo_deletion();
    void pick_recipients();
    void CHECK_SELECTED_ITEMS(bool checked);
    void check_all(bool checked);
    void check_rows(const std::function<bool(const platform::ListItem& row)>& passes, bool checked);
    void row_checked(std::size_t row);
    void sort_by(int column);

    platform::Platform& platform_;
    core::AppState& state_;
    std::function<void()> pick_;
    const KindOfMessage* kind_;
    /// The row that the user is changing in the fields; null while they are for a new one.
    const platform::ListItem* changed_row_ = nullptr;
    /// What the user has deleted, the last deletion at the end.
    std::vector<platform::TakenRows> deletions_;
};

}  // namespace compose
