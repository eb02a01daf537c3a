#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "tests/support/error_number.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/utf8.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace platform;
using tests::error_number;
using tests::utf8;
using Log = std::vector<std::string>;

struct Controls : testing::Test, Form {
    Controls() : Form(desktop_double, u"frmControls") {}

    void Form_Load() override {
        log.emplace_back("load");
        if (unloads_while_loading) unload();
    }
    void Form_Activate() override { log.emplace_back("activate"); }
    void Form_Unload() override { log.emplace_back("unload"); }

    void log_focus(Control& control, const std::string& name) {
        control.GotFocus.connect([this, name] { log.push_back("got " + name); });
        control.LostFocus.connect([this, name] { log.push_back("lost " + name); });
    }

    tests::VirtualClock clock;
    tests::ScriptedDesktop desktop_double{clock};
    Log log;
    bool unloads_while_loading = false;

    TextBox first{*this, u"first"};
    TextBox second{*this, u"second"};
    TextBox third{*this, u"third"};
};

using TextBoxes = Controls;
using Choices = Controls;
using Focus = Controls;
using Forms = Controls;

TEST_F(TextBoxes, ChangeIsRaisedOnlyForADifferentText) {
    int changes = 0;
    first.Change.connect([&] { ++changes; });
    const struct {
        const char* what;
        std::function<void()> edit;
        int changes;
    } rows[] = {
        {"a new text", [&] { first.set_text(u"하나"); }, 1},
        {"the same text", [&] { first.set_text(u"하나"); }, 0},
        {"the user's edit", [&] { first.user_edit(u"하나둘", 3); }, 1},
        {"a composition that has changed nothing yet", [&] { first.user_edit(u"하나둘", 2); }, 0},
        {"a paste", [&] { first.paste(u"!"); }, 1},
        {"a paste of what was selected", [&] { first.select(0, 1), first.paste(u"하"); }, 0},
        {"a selection", [&] { first.select_all(); }, 0},
        {"emptying", [&] { first.set_text(u""); }, 1},
    };
    for (const auto& row : rows) {
        changes = 0;
        row.edit();
        EXPECT_EQ(changes, row.changes) << row.what;
    }
}

TEST_F(TextBoxes, APasteReplacesTheSelectionAndTheCaretFollowsIt) {
    const struct {
        std::size_t start, length;
        const char16_t* pasted;
        const char* text;
        std::size_t caret;
    } rows[] = {
        {2, 0, u"{이름}", "ab{이름}cd", 6},
        {1, 2, u"x", "axd", 2},
        {99, 9, u"x", "abcdx", 5},
        {3, 9, u"", "abc", 3},
    };
    for (const auto& row : rows) {
        first.set_text(u"");
        first.set_text(u"abcd");
        first.select(row.start, row.length);
        first.paste(row.pasted);
        EXPECT_EQ(utf8(first.text()), row.text);
        EXPECT_EQ(first.selection_start(), row.caret) << row.text;
        EXPECT_EQ(first.selection_length(), 0u) << row.text;
    }
}

TEST_F(Choices, AComboTakesItsRowsAndRaisesError380ForOthers) {
    ComboBox combo(*this, u"combo", ComboBox::Style::editable);
    combo.Click.connect([&] { log.push_back("click " + utf8(combo.text())); });
    combo.Change.connect([&] { log.push_back("change " + utf8(combo.text())); });
    combo.add_row(u"하나", 10);
    combo.add_row(u"둘", 20);
    combo.set_list_index(1);
    combo.set_list_index(1);
    EXPECT_EQ(log, (Log{"click 둘", "click 둘"}));
    for (const int outside : {-1, 2}) {
        EXPECT_EQ(error_number([&] { combo.set_list_index(outside); }), 380) << outside;
        EXPECT_EQ(error_number([&] { combo.item_data(outside); }), 380) << outside;
    }
    EXPECT_EQ(combo.list_index(), 1) << "a refused row leaves the old one";

    log.clear();
    combo.set_text(u"둘");
    EXPECT_EQ(combo.list_index(), 1);
    combo.user_edit(u"셋");
    EXPECT_EQ(combo.list_index(), -1);
    combo.set_text(u"넷");
    EXPECT_EQ(log, (Log{"change 셋", "change 넷"}));
}

TEST_F(Focus, AHandlerMayMoveItOn) {
    log_focus(second, "second");
    log_focus(third, "third");
    first.set_focus();
    first.LostFocus.connect([&] { third.set_focus(); });
    second.set_focus();
    EXPECT_EQ(log, (Log{"got third"})) << "the place that was passed over has no events";

    // A picture box around a field returns the focus at once.
    log.clear();
    PictureBox box(*this, u"box");
    box.GotFocus.connect([&] { third.set_focus(); });
    box.set_focus();
    EXPECT_EQ(log, (Log{"lost third", "got third"}));
    EXPECT_TRUE(third.has_focus());
}

TEST_F(Focus, HiddenAndDisabledControlsDoNotTakeIt) {
    Frame panel(*this, u"panel");
    PictureBox box(*this, u"box");
    box.set_container(panel);
    second.set_container(box);
    const std::function<void(bool)> ways[] = {
        [&](bool allowed) { second.set_visible(allowed); },
        [&](bool allowed) { second.set_enabled(allowed); },
        [&](bool allowed) { panel.set_visible(allowed); },
    };
    for (const auto& way : ways) {
        first.set_focus();
        way(false);
        second.set_focus();
        EXPECT_TRUE(first.has_focus()) << "way " << &way - ways;
        way(true);
        second.set_focus();
        EXPECT_TRUE(second.has_focus()) << "way " << &way - ways;
    }
    TextBox storage;
    storage.set_focus();
    EXPECT_FALSE(storage.has_focus()) << "working storage is on no screen";
}

TEST_F(Forms, AFormLoadsOnceAndUnloadsOnce) {
    show();
    show();
    close_requested();
    unload();
    EXPECT_EQ(log, (Log{"load", "activate", "activate", "unload"}));
    EXPECT_FALSE(loaded());
}

TEST_F(Forms, AFormThatUnloadsItselfWhileLoadingIsNeverShown) {
    unloads_while_loading = true;
    show_modal();
    EXPECT_EQ(log, (Log{"load", "unload"}));
    EXPECT_TRUE(desktop_double.forms.empty());
}

}  // namespace
