#include "platform/controls/tree_view.h"

#include "platform/controls/form.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::utf8;

struct Trees : testing::Test {
    tests::VirtualClock clock;
    tests::ScriptedDesktop desktop{clock};
    struct Window : Form {
        using Form::Form;
    } window{desktop, u"window"};
    TreeView tree{window, u"tree"};

    TreeNode& top = tree.add_node(u"k1", u"전체", 2, u"1");
    TreeNode& other = tree.add_node(u"k2", u"휴지통", 2, u"1000");
    TreeNode& child = tree.add_child(other, u"k3", u"아이", 2, u"7");
    TreeNode& last = tree.add_child(top, u"k4", u"서울", 3, u"8");
    TreeNode& below = tree.add_child(child, u"k5", u"손자", 2, u"9");
};

TEST_F(Trees, ANodeIsRemovedWithEverythingBelowItAndTheOthersMoveUp) {
    tree.user_click(below);
    tree.remove_node(other);
    ASSERT_EQ(tree.node_count(), 2u);
    EXPECT_EQ(&tree.node(2), &last);
    EXPECT_EQ(last.position(), 2u);
    EXPECT_EQ(tree.top_nodes(), std::vector<TreeNode*>{&top});
    EXPECT_EQ(tree.selected_node(), nullptr);
    tree.remove_node(last);
    EXPECT_TRUE(top.children().empty());
}

TEST_F(Trees, PathsAndRowsFollowTheTreeAndPositionsTheOrderOfInsertion) {
    EXPECT_EQ(utf8(below.full_path()), "휴지통/아이/손자");
    EXPECT_EQ(last.row(), 0u);
    EXPECT_EQ(last.position(), 4u);
    TreeNode& sibling = tree.add_child(top, u"k6", u"부산", 2, u"10");
    EXPECT_EQ(sibling.row(), 1u);
    EXPECT_EQ(sibling.position(), 6u);
}

TEST_F(Trees, ExpandIsRaisedOnceAndThePictureFollowsTheState) {
    int expanded = 0;
    tree.Expand.connect([&](TreeNode& node) {
        ++expanded;
        tree.set_expanded_picture(node, 1);
    });
    for (const bool on : {true, true, false, false}) tree.set_expanded(top, on);
    EXPECT_EQ(expanded, 1);
    EXPECT_EQ(top.picture(), 2);
    tree.set_expanded(top, true);
    EXPECT_EQ(top.picture(), 1);
}

}  // namespace
