// The card manager's folders as a tree, with the number of cards behind each name.

#include "addressbook/card_db.h"
#include "addressbook/frmSendMan.h"
#include "addressbook/statements.h"
#include "platform/error.h"
#include "platform/text/number.h"

#include <cstdint>
#include <exception>

namespace addressbook {

using platform::Text;
using platform::TextView;
using platform::TreeNode;

namespace {

/// Folders of the card manager's that are in every database.
constexpr double TOP_FOLDER = 1;
constexpr double TRASH_FOLDER = 1000;

enum Picture { OPEN_TOP = 1, FOLDER = 2, UNASSIGNED_FOLDER = 3 };

bool is_unassigned(TextView name) { return name == u"미지정" || name == u"미정"; }

/// A folder whose parent may have no node yet.
struct WaitingFolder {
    Text f_idx;
    double p_idx = 0;
    Text folder_name;
    bool done = false;
};

std::vector<WaitingFolder> read_folders(platform::CardRecordset& recordset) {
    std::vector<WaitingFolder> folders;
    for (; !recordset.end_of_file(); recordset.move_next()) {
        const auto value = [&](TextView name) { return FIELD_VALUE(recordset.field(name)); };
        WaitingFolder folder{.f_idx = value(u"f_idx"),
                             .p_idx = platform::leading_number(value(u"p_idx")),
                             .folder_name = value(u"folder_name")};
        const double number = platform::leading_number(folder.f_idx);
        if (number != TOP_FOLDER && number != TRASH_FOLDER) folders.push_back(std::move(folder));
    }
    return folders;
}

/// The name without the count behind it. A parenthesis of the name's own is taken for a count too.
Text FOLDER_TEXT_STRIP(const Text& text) { return text.substr(0, text.find(u'(')); }

}  // namespace

void frmSendMan::connect_folders() {
    TreeView1.NodeClick.connect([this](TreeNode& node) { list_folder(node); });
    TreeView1.Expand.connect([this](TreeNode& node) { show_expanded_picture(node); });
    TreeView1.MouseDown.connect([this](platform::MouseButton button) {
        if (button == platform::MouseButton::right) platform_.desktop.popup_menu(*this, mnuFiles);
    });
    // Deliberately no more than a new connection: lists and counts stay until the window is opened again.
    mnuReplace.Click.connect([this] { CONNECT_CARD_DB(platform_, state_); });
}

Text frmSendMan::CreateGUID() {
    Text guid;
    try {
        if (!guids_) guids_.emplace();
        for (int word = 0; word < 4; ++word) {
            constexpr TextView DIGITS = u"0123456789ABCDEF";
            const std::uint32_t bits = (*guids_)();
            for (int shift = 28; shift >= 0; shift -= 4) guid += DIGITS[bits >> shift & 0xF];
        }
    } catch (const std::exception&) {
        platform_.desktop.message_box({.text = u"Error While creating GUID!"});
        return {};
    }
    return guid;
}

int frmSendMan::T_INDEX(double f_idx) const {
    const auto found = first_folder_.find(f_idx);
    return found == first_folder_.end() ? -1 : static_cast<int>(found->second->position());
}

TreeNode& frmSendMan::add_folder(TreeNode* parent, const Text& name, Text f_idx) {
    const int picture = is_unassigned(name) ? UNASSIGNED_FOLDER : FOLDER;
    const double number = platform::leading_number(f_idx);
    TreeNode& node = parent == nullptr
                         ? TreeView1.add_node(CreateGUID(), name, picture, std::move(f_idx))
                         : TreeView1.add_child(*parent, CreateGUID(), name, picture, std::move(f_idx));
    first_folder_.try_emplace(number, &node);
    return node;
}

void frmSendMan::number_folders() {
    first_folder_.clear();
    for (std::size_t position = 1; position <= TreeView1.node_count(); ++position) {
        const TreeNode& node = TreeView1.node(position);
        first_folder_.try_emplace(platform::leading_number(node.tag()), &node);
    }
}

void frmSendMan::FOLDER_TREE_LOAD() {
    TreeView1.clear();
    first_folder_.clear();
    add_folder(nullptr, u"전체", u"1");
    // Parent of the folders in the trash while the tree is built; it goes with them.
    add_folder(nullptr, u"휴지통", u"1000");
    if (!OPEN_CARD_DB(platform_, state_, false)) return;
    platform::ignore_errors([this] {
        const auto recordset = open_recordset(state_, statements::folders());
        if (recordset->record_count() > 0) build_tree(*recordset);
    });
}

void frmSendMan::build_tree(platform::CardRecordset& recordset) {
    std::vector<WaitingFolder> folders = read_folders(recordset);
    // Deliberately without an end when a folder's parent is in no row: the window hangs rather than show a
    // tree that lacks folders, which would send to fewer people than the card manager shows.
    while (!folders.empty()) {
        for (WaitingFolder& folder : folders) {
            const int parent = T_INDEX(folder.p_idx);
            if (parent < 0) continue;
            folder.done = true;
            add_folder(&TreeView1.node(static_cast<std::size_t>(parent)), folder.folder_name, folder.f_idx);
        }
        std::erase_if(folders, [](const WaitingFolder& folder) { return folder.done; });
    }
    TreeView1.remove_node(TreeView1.node(2));
    number_folders();
    TreeView1.set_expanded(TreeView1.node(1), true);
}

void frmSendMan::Group_Recount() {
    if (!OPEN_CARD_DB(platform_, state_, true)) return;
    std::int32_t total = 0;
    for (std::size_t position = 1; position <= TreeView1.node_count(); ++position) {
        TreeNode& node = TreeView1.node(position);
        TreeView1.set_text(node, FOLDER_TEXT_STRIP(node.text()));
    }
    show_progress();
    const auto write_count = [this](TreeNode& node, std::int32_t count) {
        TreeView1.set_text(node, node.text() + u"(" + platform::decimal(count) + u")");
    };
    platform::ignore_errors([&] {
        for (std::size_t position = 2; position <= TreeView1.node_count(); ++position) {
            TreeNode& node = TreeView1.node(position);
            const std::int32_t count = card_count(node);
            write_count(node, count);
            total += count;
            PBar1.set_progress(position, TreeView1.node_count());
            platform_.desktop.paint();
        }
    });
    total_ = total;
    write_count(TreeView1.node(1), total_);
    hide_progress();
}

/// Counts every row of the folder, also those that no list shows.
std::int32_t frmSendMan::card_count(const TreeNode& folder) {
    const auto recordset = open_recordset(state_, statements::card_count(folder.tag()));
    const double count = platform::leading_number(FIELD_VALUE(recordset->field(u"RNo")));
    return count < 0 ? 0 : static_cast<std::int32_t>(count);
}

void frmSendMan::list_folder(const TreeNode& node) {
    TreeView1.set_tag(node.tag());
    FOLDER_CARDS_LOAD(node);
    TreeView1.set_focus();
}

void frmSendMan::show_expanded_picture(TreeNode& node) {
    const Text path = node.full_path();
    const bool unassigned = platform::contains(path, u"/미지정") || platform::contains(path, u"/미정");
    const int picture = node.position() == 1 ? OPEN_TOP : unassigned ? UNASSIGNED_FOLDER : FOLDER;
    TreeView1.set_expanded_picture(node, picture);
}

void frmSendMan::FOLDER_CARDS_LOAD(const TreeNode& node) {
    if (node.position() == 1) return list_all_cards();
    if (!OPEN_CARD_DB(platform_, state_, true)) return;
    ListView2.set_placeholder(u"");
    platform::ignore_errors([&] {
        const auto recordset = open_recordset(state_, statements::cards_of_folder(node.tag()));
        CARD_LIST_FILL(*recordset);
    });
    hide_progress();
    ListView2.set_placeholder(u"이 폴더에는 명함이 없습니다.\n다른 폴더를 고르거나 전체자료를 누르세요.");
}

Text frmSendMan::ALLDB_SQL() const {
    std::vector<Text> folders;
    for (std::size_t position = 2; position <= TreeView1.node_count(); ++position) {
        // The trash stands beside the top in a tree that could not be built.
        const TreeNode& node = TreeView1.node(position);
        if (node.parent() != nullptr) folders.push_back(node.tag());
    }
    return statements::folder_filter(folders);
}

Text frmSendMan::ALLDB_SQL2() {
    if (!OPEN_CARD_DB(platform_, state_, true)) return {};
    std::vector<Text> folders;
    const auto recordset = open_recordset(state_, statements::folders_outside_trash());
    for (; !recordset->end_of_file(); recordset->move_next())
        folders.push_back(FIELD_VALUE(recordset->field(u"f_idx")));
    return statements::folder_filter(folders);
}

}  // namespace addressbook
