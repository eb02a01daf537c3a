#include "compose/recipients/frmPasted.h"
#include "tests/support/lists.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace compose;
using platform::BoxAnswer;
using platform::ListView;
using platform::Text;
using tests::utf8;
using Rows = std::vector<std::string>;

struct RecipientChanges : testing::Test, tests::MainWindow {
    ListView& list = form.recipients.ListView1;
    platform::TextBox& name = form.recipients.HText1[0];
    platform::TextBox& number = form.recipients.HText1[1];

    void SetUp() override { compose_as(u"홍길동"); }

    void add(const Text& name, const Text& number, const Text& status = {}, bool checked = true) {
        list.add_row(u"", {name, number, status, u"부장", u""}, checked);
        form.recipients.RECIPIENT_COUNT_CAPTION();
    }
    Rows rows() const {
        Rows shown;
        for (std::size_t i = 0; i < list.row_count(); ++i) {
            const platform::ListItem& row = list.row(i);
            std::string line = (row.checked() ? "*" : "") + std::string(row.selected() ? "!" : "");
            for (const int sub_item : {RECIPIENT_NAME, RECIPIENT_NUMBER, RECIPIENT_STATUS, RECIPIENT_TITLE})
                line += utf8(row.sub_item(sub_item)) + "/";
            shown.push_back(line);
        }
        return shown;
    }
    /// Lets the lines be read when the window opens, and the user do this with the report.
    void in_report(const std::function<void(frmPasted&)>& act) {
        desktop.in_form<frmPasted>(u"frmPasted", [this, act](frmPasted& window) {
            clock.run_until([&] { return window.Command2.visible(); });
            act(window);
        });
    }
    static std::string report(const frmPasted& window) {
        return utf8(window.Label1.caption()) + " " + utf8(window.Label2.caption());
    }
};

using Pasted = RecipientChanges;
using Undone = RecipientChanges;
using Changed = RecipientChanges;
using AfterAJob = RecipientChanges;

TEST_F(Pasted, LinesBecomeRowsAndTheOthersCanBeCorrectedAndTriedAgain) {
    add(u"가", u"01011112222");
    in_report([&](frmPasted& window) {
        EXPECT_EQ(
            report(window),
            "받는사람 2명을 추가했습니다. 이미 있는 번호 1줄 · 보낼 수 없는 번호 1줄 · 알아보지 못한 줄 1줄");
        Text left_over = window.Text1.text();
        EXPECT_EQ(utf8(left_over), "코드\t이름\t전화\t직위\r\n다:길동 02-555-1234\r\nA3\t라\t010-33\r\n");
        left_over = platform::replace_all(left_over, u"다:길동 02-555-1234\r\n", u"");
        window.Text1.set_text(platform::replace_all(left_over, u"010-33", u"1033334444"));
        window.Command1.Click.raise();
        clock.run_until([&] { return window.Command2.visible(); });
        EXPECT_EQ(report(window), "받는사람 1명을 추가했습니다. ");
        EXPECT_FALSE(window.Text1.visible());
        window.Command2.Click.raise();
    });
    const Text lines =
        u"코드\t이름\t전화\t직위\r\nA1\t나:길동\t010-2222-3333\t과장\r\nA2\t가\t010-1111-2222\r\n\r\n"
        u"다:길동 02-555-1234\r\nA3\t라\t010-33\r\nA4\t마\t02-555-1234\t010-5555-6666";
    form.recipients.HText1[1].LinesPasted.raise(lines);
    EXPECT_EQ(rows(), (Rows{"*가/01011112222//부장/", "*나길동/01022223333//과장/", "*마/01055556666///",
                            "*!라/01033334444///"}));
    EXPECT_EQ(utf8(form.recipients.Label4.caption()), "전체>4>대상>4");
}

TEST_F(Pasted, OneLineComesInWithoutAReportAndAStopLeavesTheRestToTryAgain) {
    desktop.clipboard = u"나 010-2222-3333\r\n";
    form.recipient_exchange.mnuPaste.Click.raise();
    EXPECT_EQ(rows(), (Rows{"*!나/01022223333///"}));

    Text many;
    for (int i = 0; i < 5000; ++i) many += u"가\t010" + platform::decimal(10'000'000 + i) + u"\n";
    files.files[u"z:\\list.csv"] = platform::to_utf8(many);
    desktop.in_form<frmPasted>(u"frmPasted", [this](frmPasted& window) {
        clock.run_until([this] { return list.row_count() > 1; });
        EXPECT_TRUE(desktop.question_stands()) << "no hand-over comes in between";
        window.Command3.Click.raise();
        EXPECT_EQ(report(window), "받는사람 2,000명을 추가했습니다. 읽지 않은 줄 3,000줄");
        EXPECT_EQ(platform::split(window.Text1.text(), u'\n').size(), 3001u);
        window.Command2.Click.raise();
    });
    list.Drop.raise({.text = {}, .files = {u"z:\\list.csv"}});
    EXPECT_EQ(list.row_count(), 2001u);
}

TEST_F(Pasted, WhatIsCopiedPastesBackUnchanged) {
    add(u"가 나", u"01011112222");
    add(u"다", u"01033334444", u"등록성공", false);
    list.select_all();
    form.recipient_exchange.mnuCopy.Click.raise();
    list.clear();
    in_report([](frmPasted& window) { window.Command2.Click.raise(); });
    form.recipient_exchange.mnuPaste.Click.raise();
    EXPECT_EQ(rows(), (Rows{"*가 나/01011112222//부장/", "*!다/01033334444//부장/"}));
}

TEST_F(Undone, EachDeletionGivesItsRowsBackWhereTheyWere) {
    add(u"가", u"01000000001", u"등록실패");
    add(u"나", u"01000000002", u"등록성공", false);
    add(u"다", u"01000000003");
    add(u"라", u"01000000004");
    list.set_sub_item(0, RECIPIENT_PIECES, u"#1#/2");
    const Rows all = rows();
    const auto remove = [&](std::size_t row) {
        list.go_to(row);
        desktop.expect_box(tests::DELETE_ROWS, BoxAnswer::yes);
        form.recipients.HBttn2.Click.raise();
    };
    remove(3);
    list.user_select(0, true);
    remove(1);
    list.go_to(0);
    remove(0);
    form.recipients.mnuUndoDelete.Click.raise();
    form.recipients.mnuUndoDelete.Click.raise();
    EXPECT_EQ(rows(), (Rows{all[0], "!" + all[1], all[2]}));
    EXPECT_EQ(utf8(list.row(0).sub_item(RECIPIENT_PIECES)), "#1#/2");
    EXPECT_EQ(utf8(form.recipients.Label4.caption()), "전체>3>대상>2");
    ASSERT_TRUE(form.recipients.add(u"마", u"01000000004", u""));
    form.recipients.mnuUndoDelete.Click.raise();
    EXPECT_EQ(list.row_count(), 4u) << "nobody is listed twice";

    remove(3);
    add(u"바", u"0100000000456");
    form.recipients.mnuUndoDelete.Click.raise();
    EXPECT_EQ(list.row_count(), 5u) << "a longer number is another one";
    EXPECT_FALSE(form.recipients.mnuUndoDelete.enabled());

    remove(1);
    form.recipients.leave_draft();
    EXPECT_FALSE(form.recipients.mnuUndoDelete.enabled());
}

TEST_F(Changed, ARowTakesInItsPlaceWhatCouldBeTypedAndKeepsWhatItHadOtherwise) {
    const std::string wrong =
        "문자보낼번호 '0101234' 오류입니다.\r\n\r\n(동일 통화지역도 만드시 지역번호(DDD)를 입력하여 "
        "주십시오.)";
    const std::string listed = "이미 동일한 이름가 존재합니다.";
    const std::string before = "홍 길동/01011112222/2/3 등록/부장/ #1#2#/3";
    const struct {
        const char16_t *name, *number, *tag;
        std::string box, row;
    } changes[] = {
        {u"홍 길동", u"010-1111-2222", u"개별:{이름}", "", before},
        {u"김:유 신", u"01011112222", u"긴 메시지", "", "김유신/01011112222/2/3 등록/부장/ #1#2#/3"},
        {u"김유신", u"01011112222", u"개별:{이름}", "", "김유신/01011112222//부장/ "},
        {u" ", u"010-5555-6666", u"긴 메시지", "", "이름없음/01055556666//부장/ "},
        {u"홍 길동", u"010-5555-6666", u"긴 메시지", "", "홍 길동/01055556666//부장/ "},
        {u"김", u"010-1234", u"", wrong, before},
        {u"김", u"", u"", "문자보낼번호를(을) 입력하여 주십시오!", before},
        {u"김", u"0103333", u"", listed, before},
        {u"김", u"010-3333-4444", u"", listed, before},
        {u"김", u"0101111", u"", "문자보낼번호 '0101111'" + wrong.substr(wrong.find(" 오류")), before},
    };
    for (const auto& change : changes) {
        SCOPED_TRACE(utf8(change.name) + "/" + utf8(change.number));
        list.clear();
        add(u"나", u"01033334444");
        add(u"홍 길동", u"01011112222", u"2/3 등록");
        list.set_sub_item(1, RECIPIENT_PIECES, u"#1#2#/3");
        list.set_tag(change.tag);
        list.select_item(1);
        form.recipients.mnuEditRow.Click.raise();
        EXPECT_EQ(utf8(name.text() + u"/" + number.text()), "홍 길동/01011112222");
        EXPECT_TRUE(name.has_focus() && name.selection_length() == 4 && form.recipients.Changing.visible());
        name.set_text(change.name);
        number.set_text(change.number);
        if (!change.box.empty()) desktop.expect_box(tests::refusal(platform::from_utf8(change.box)));
        tests::press(number, u'\r');
        EXPECT_EQ(rows()[1].substr(rows()[1].find_first_not_of("*!")) + " " +
                      utf8(list.row(1).sub_item(RECIPIENT_PIECES)),
                  change.row);
        EXPECT_EQ(form.recipients.Changing.visible(), !change.box.empty());
        EXPECT_TRUE(!change.box.empty() || (list.has_focus() && list.selected_item() == 1u));
        form.recipients.empty_fields();
        EXPECT_EQ(list.row_count(), 2u);
    }
}

TEST_F(Changed, TheChangeIsGivenUpWhenTheDraftOrTheRowGoesOnWithoutIt) {
    const std::vector<std::function<void()>> ends = {
        [&] { form.escape_pressed(); },
        [&] { form.choose(MessageKind::plus); },
        [&] { form.recipients.leave_draft(); },
        [&] {
            desktop.expect_box(tests::DELETE_ROWS, BoxAnswer::yes);
            form.recipients.HBttn2.Click.raise();
        },
    };
    const std::vector<std::function<void()>> ways = {
        [&] {
            platform::KeyPressed enter{platform::KEY_ENTER};
            list.KeyPress.raise(enter);
            EXPECT_TRUE(enter.swallowed()) << "or it would press the window's default button";
        },
        [&] { list.DblClick.raise(); },
    };
    for (std::size_t i = 0; i < ends.size(); ++i) {
        list.clear();
        add(u"가", u"01011112222");
        list.select_item(0);
        ways[i % ways.size()]();
        name.set_text(u"나");
        ends[i]();
        EXPECT_TRUE(name.text().empty() && number.text().empty() && !form.recipients.Changing.visible()) << i;
        name.set_text(u"다");
        number.set_text(u"01055556666");
        form.recipients.HBttn1.Click.raise();
        EXPECT_EQ(rows().back(), "*!다/01055556666///") << "the fields are for a new one";
    }
}

TEST_F(Changed, WhoIsInTheFieldsIsAskedAboutBeforeAJobAndBeforeAnotherTakesHisPlace) {
    const auto expect_yes_to = [&](Text text) {
        desktop.expect_box({.text = std::move(text),
                            .icon = platform::BoxIcon::question,
                            .buttons = platform::BoxButtons::yes_no_cancel,
                            .default_answer = BoxAnswer::yes},
                           BoxAnswer::yes);
    };
    add(u"가", u"01011112222");
    list.select_item(0);
    form.recipients.mnuEditRow.Click.raise();
    EXPECT_TRUE(form.recipients.settle_typed());
    name.set_text(u"나");
    expect_yes_to(
        u"고치기만 하고 목록에 반영하지 않은 받는사람이 있습니다.\r\n\r\n나 010-1111-2222\r\n\r\n이대로 "
        u"고치시겠습니까?");
    EXPECT_TRUE(form.recipients.settle_typed());
    EXPECT_EQ(rows(), (Rows{"*!나/01011112222//부장/"}));

    name.set_text(u"다");
    number.set_text(u"01033334444");
    expect_yes_to(
        u"입력만 하고 추가하지 않은 받는사람이 있습니다.\r\n\r\n다 010-3333-4444\r\n\r\n받는사람에 "
        u"추가하시겠습니까?");
    form.recipients.mnuEditRow.Click.raise();
    EXPECT_EQ(rows().size(), 2u);
    EXPECT_EQ(name.text(), u"나") << "the row that was asked for is changed, though another came";
}

TEST_F(AfterAJob, TheFailedRowsAreFoundCopiedAndTheDoneOnesTakenAway) {
    add(u"가", u"01000000001", u"등록성공", false);
    add(u"나", u"01000000002", u"등록실패X6(Pondira 응답 없음)");
    add(u"다", u"01000000003", u"확인필요", false);
    add(u"라", u"01000000004", u"등록실패(이름없음)");
    RecipientOutcomes& outcomes = form.recipient_outcomes;
    outcomes.go_to_first_left();
    EXPECT_EQ(list.selected_item(), 1u);
    EXPECT_TRUE(list.has_focus());
    for (const std::size_t row : {3u, 1u}) {
        outcomes.mnuNextFailed.Click.raise();
        EXPECT_EQ(list.selected_item(), row) << "the search goes round";
    }
    outcomes.mnuPreviousFailed.Click.raise();
    EXPECT_EQ(list.selected_item(), 3u);

    list.select_all();
    outcomes.mnuSelectFailed.Click.raise();
    outcomes.mnuCopyFailed.Click.raise();
    EXPECT_EQ(utf8(desktop.clipboard), "01000000002\r\n01000000004\r\n");
    desktop.expect_box({.text = u"등록성공한 받는사람 1명을 목록에서 지우시겠습니까?",
                        .icon = platform::BoxIcon::question,
                        .title = u"삭제 확인",
                        .buttons = platform::BoxButtons::yes_no,
                        .default_answer = BoxAnswer::yes},
                       BoxAnswer::yes);
    outcomes.mnuTakeAwayDone.Click.raise();
    EXPECT_EQ(rows(), (Rows{"*!나/01000000002/등록실패X6(Pondira 응답 없음)/부장/",
                            "다/01000000003/확인필요/부장/", "*!라/01000000004/등록실패(이름없음)/부장/"}));
    list.set_sub_item(0, RECIPIENT_STATUS, u"");
    list.set_sub_item(2, RECIPIENT_STATUS, u"");
    list.deselect_all();
    outcomes.go_to_first_left();
    EXPECT_EQ(list.selected_item(), 0u) << "after a stop the first who is still to be sent to";
}

}  // namespace
