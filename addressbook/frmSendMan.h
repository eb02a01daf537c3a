#pragma once

#include "compose/recipient_list.h"
#include "core/app_state.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/timer.h"
#include "platform/controls/tree_view.h"
#include "platform/ports/platform.h"

#include <array>
#include <optional>
#include <random>
#include <unordered_map>
#include <vector>

namespace addressbook {

/// Picks recipients out of the card manager's database: its folders as a tree, the cards of one of them, of
/// all or of a search as a list, and the list's selected rows into the main window's recipients.
///
/// Its handlers stand by subject: its life in frmSendMan, folders in folder_tree, searching in search, the
/// list in card_list, picking in pick.
class frmSendMan : public platform::Form {
  public:
    /// `polling` for hand-overs stands still while the window is open.
    frmSendMan(platform::Platform& platform, core::AppState& state, compose::RecipientList& recipients,
               platform::Timer& polling);

    platform::TreeView TreeView1{*this, u"TreeView1"};
    platform::Label Label1{*this, u"Label1", u"찾기:"};
    platform::TextBox Text1{*this, u"Text1"};
    platform::ComboBox Combo4{*this, u"Combo4"};
    platform::CommandButton Command1{*this, u"Command1", u""};
    platform::CommandButton Command5{*this, u"Command5", u"전체자료"};
    platform::ListView ListView2{*this, u"ListView2", {}};
    /// How many cards there are, how many are listed, how many are selected.
    platform::Label Counts{*this, u"Counts"};
    platform::ProgressBar PBar1{*this, u"PBar1"};
    platform::Label Label2{*this, u"Label2", u"선택번호:"};
    platform::ComboBox Combo2{*this, u"Combo2"};
    /// What became of the rows that were added last.
    platform::Label Added{*this, u"Added"};
    std::array<platform::CommandButton, 2> Command2{
        platform::CommandButton{*this, u"Command2_0", u"확인(&O)"},
        platform::CommandButton{*this, u"Command2_1", u"계속추가(&A)"}};
    platform::CommandButton Command3{*this, u"Command3", u"닫기(&C)"};
    platform::Menu mnuFiles{*this, u"mnuFiles", u"폴더"};
    platform::Menu mnuReplace{*this, u"mnuReplace", u"새로고침(&R)"};

    /// Shows the window with the columns of a kind of message, that is the caption of its tab, and returns
    /// when it is closed.
    void ShowEnter(const platform::Text& kind);

    // Folders.
    /// Reads the tree anew. Warning: it does not return if a folder's parent is missing (see build_tree).
    void FOLDER_TREE_LOAD();
    /// Writes the number of cards behind the name of each folder.
    void Group_Recount();
    /// The position of the first node with this number as its tag, or -1.
    int T_INDEX(double f_idx) const;
    /// 32 hexadecimal digits, other ones at each call.
    platform::Text CreateGUID();
    /// The condition that lets the cards of the tree's folders through; empty without a folder below the top.
    platform::Text ALLDB_SQL() const;
    /// The same, from the database; empty also when it cannot be opened.
    platform::Text ALLDB_SQL2();

    // The list.
    /// Replaces the list's rows by those of the recordset; stops early when the user goes on working.
    void CARD_LIST_FILL(platform::CardRecordset& recordset);
    void fill_with(platform::CardRecordset& recordset, int records);
    /// Adds the current record while the list is filled.
    void LISTVIEW2_ADD(const platform::CardRecordset& TemTable);
    /// Gives all columns the same width.
    void LISTVIEW2HDR_RESET();
    /// Writes the caption: cards in all folders, rows of the list, number of the selected row.
    void PICK_STATUS_SHOW();

    /// Copies the selected rows that have a number, and are not there yet, into the main window's recipients.
    void SENDLIST_ADD();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { unload(); }

  private:
    void connect_folders();
    void connect_search();
    void connect_list();
    void connect_picking();

    // Folders.
    platform::TreeNode& add_folder(platform::TreeNode* parent, const platform::Text& name,
                                   platform::Text f_idx);
    void number_folders();
    void build_tree(platform::CardRecordset& folders);
    std::int32_t card_count(const platform::TreeNode& folder);
    void list_folder(const platform::TreeNode& node);
    void show_expanded_picture(platform::TreeNode& node);
    void FOLDER_CARDS_LOAD(const platform::TreeNode& node);

    // Searching.
    void hide_hint();
    void show_hint_when_empty();
    void show_hint();
    void search();
    void go_to_typed();
    void go_to_rows();
    void list_all_cards();
    void list_anew(const platform::Text& statement, const platform::Text& when_empty);

    // The list.
    void sort_by(int column);
    void show_counts();
    void show_progress();
    void hide_progress();

    // Picking.
    void build_columns(const platform::Text& kind);
    void sort_as_before();
    void use_number_column();
    void take_selected(std::size_t index);
    /// The sub-items that picking reads.
    struct PickedCells {
        int number, company, title;
    };
    /// Whether the row has become a recipient.
    bool pick_row(const platform::ListItem& row, const PickedCells& cells);

    platform::Platform& platform_;
    core::AppState& state_;
    compose::RecipientList& recipients_;
    platform::Timer& polling_;
    /// The first activation has run.
    bool activated_ = false;
    /// The row that was selected because it begins with what is in the search field.
    std::optional<std::size_t> typed_row_;
    /// The fields behind the list's columns from the second on; empty where a column stays empty.
    std::vector<platform::TextView> sub_item_fields_;
    /// The cards that the last Group_Recount found.
    std::int32_t total_ = 0;
    /// Where CreateGUID takes its bits from; opened once, because opening takes longer than the bits.
    std::optional<std::random_device> guids_;
    /// The first node of each number, as T_INDEX finds it.
    std::unordered_map<double, const platform::TreeNode*> first_folder_;
};

}  // namespace addressbook
