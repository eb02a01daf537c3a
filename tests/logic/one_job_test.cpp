#include "send/report.h"
#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;

/// Does all that a screen reader can do to the main window, whatever stands in front of it.
void press_everything(compose::frmZent& form) {
    for (Control* control : form.controls()) {
        if (auto* button = dynamic_cast<CommandButton*>(control)) button->Click.raise();
        if (auto* entry = dynamic_cast<Menu*>(control)) entry->Click.raise();
        if (auto* field = dynamic_cast<TextBox*>(control)) field->user_edit(u"1", 1);
        if (auto* box = dynamic_cast<CheckBox*>(control)) box->user_check(!box->checked());
        if (auto* option = dynamic_cast<OptionButton*>(control)) option->user_choose();
        if (auto* date = dynamic_cast<DatePicker*>(control)) date->user_choose(LocalTime());
        if (auto* combo = dynamic_cast<ComboBox*>(control); combo != nullptr && !combo->rows().empty())
            combo->user_choose(0);
    }
    ListView& recipients = form.recipients.ListView1;
    KeyPressed remove{KEY_DELETE};
    recipients.select_all();
    recipients.KeyDown.raise(remove);
    recipients.user_check(recipients.row_count() - 1, false);
    recipients.ColumnClick.raise(2);
    form.session.STBar1.PanelClick.raise(1);
    form.session.TOPLogo.Click.raise();
    form.Toolbar1.ButtonClick.raise(compose::RESULTS_BUTTON);
    form.TabStrip1.user_select(4);
    form.voice.RFK1.record();
    form.escape_pressed();
    form.close_requested();
}

/// The draft as a job reads it: kind, texts, schedule.
std::vector<Text> draft_of(const compose::frmZent& form) {
    return {decimal(form.TabStrip1.selected()),
            form.text.mText1.text(),
            form.subject.subjectText.text(),
            form.sender.txtCallback.text(),
            form.schedule.Combo1.text(),
            form.text.Check1.checked() ? u"personal" : u"",
            form.schedule.Option1.chosen() ? u"at once" : u"later"};
}

TEST(OneJob, TheMainWindowOnlyShowsItselfFromTheConfirmationToTheReport) {
    Sending s;
    s.add_many(120);
    const std::vector<Text> draft = draft_of(s.form);
    s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) {
        press_everything(s.form);
        box.Command1.Click.raise();
    });
    s.at_pause(1, [&](send::frmZentSend&) { press_everything(s.form); });
    s.desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [&](send::frmSendEndBox& box) {
        press_everything(s.form);
        box.Command2.Click.raise();
    });
    s.click();

    EXPECT_EQ(s.desktop.forms, (std::vector<Text>{u"frmSBox", u"frmZentSend", u"frmSendEndBox"}));
    EXPECT_TRUE(s.form.loaded());
    EXPECT_EQ(draft_of(s.form), draft);
    EXPECT_EQ(s.marks(), std::string(120, '-'));
    ASSERT_EQ(s.carrier.registrations.size(), 2u);
    EXPECT_EQ(s.carrier.registrations[0].s_dest_addr_count, 100);
    EXPECT_EQ(s.carrier.registrations[1].s_dest_addr_count, 20);
}

TEST(OneJob, TheStopButtonIsHeardButNotUnderTheReport) {
    Sending s;
    s.add_many(1);
    s.desktop.in_form<send::frmZentSend>(u"frmZentSend", [&](send::frmZentSend& job) {
        s.desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [&](send::frmSendEndBox& box) {
            job.Command1.Click.raise();
            job.close_requested();
            EXPECT_TRUE(job.Command1.enabled());
            EXPECT_TRUE(job.loaded());
            box.Command2.Click.raise();
        });
    });
    s.confirm();
    s.click();
    EXPECT_EQ(s.carrier.registrations.size(), 1u);
}

TEST(OneJob, RowsStayWhereTheyAreWhileTheJobGoesOverThem) {
    Sending s;
    s.add_many(250);
    s.at_pause(1, [&](send::frmZentSend&) {
        ListView& recipients = s.form.recipients.ListView1;
        recipients.sort(2, ListView::SortOrder::descending);
        recipients.select_all();
        recipients.remove_selected_rows();
        recipients.clear();
    });
    s.send();
    Text registered;
    for (const auto& registration : s.carrier.registrations) registered += registration.s_dest_addr;
    Text expected;
    for (int i = 1; i <= 250; ++i) expected += u"a" + decimal(i) + u":010" + decimal(10'000'000 + i) + u";";
    EXPECT_EQ(registered, expected);
    EXPECT_EQ(s.marks(), std::string(250, '-'));
    s.form.recipients.ListView1.clear();
    EXPECT_EQ(s.form.recipients.ListView1.row_count(), 0u);
}

}  // namespace
