#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace compose;
using platform::BoxAnswer;
using platform::Text;
using tests::utf8;

const std::string TEXT_ONLY = "(문자, 문자플러스 메시지 전송은 모바일(휴대폰)번호만 발송이 가능합니다.)";
const std::string NO_FAX =
    "(모바일(휴대폰), 03030, 0502, 0505로 시작되는 번호는 팩스메시지 발송이 불가하오니 확인하여 주십시오.)";
const std::string NO_AREA_CODE = "(동일 통화지역도 만드시 지역번호(DDD)를 입력하여 주십시오.)";

std::string wrong(const std::string& caption, const std::string& number, const std::string& why) {
    return caption + " '" + number + "' 오류입니다.\r\n\r\n" + why;
}

struct Recipients : testing::Test, tests::MainWindow {
    void SetUp() override { compose_as(u"홍길동"); }

    void add(const Text& name, const Text& number, const Text& status = {}, bool checked = true) {
        form.recipients.ListView1.add_row(u"", {name, number, status, u""}, checked);
    }
    /// "name number status" of each row, with "*" before a checked one and "!" before a selected one.
    std::vector<std::string> rows() const {
        std::vector<std::string> shown;
        for (std::size_t i = 0; i < form.recipients.ListView1.row_count(); ++i) {
            const platform::ListItem& row = form.recipients.ListView1.row(i);
            shown.push_back((row.checked() ? "*" : "") + std::string(row.selected() ? "!" : "") +
                            utf8(row.sub_item(RECIPIENT_NAME)) + " " + utf8(row.sub_item(RECIPIENT_NUMBER)) +
                            (row.sub_item(RECIPIENT_STATUS).empty() ? "" : " ") +
                            utf8(row.sub_item(RECIPIENT_STATUS)));
        }
        return shown;
    }
    std::string counts() const { return utf8(form.recipients.Label4.caption()); }
};

using Rows = std::vector<std::string>;
using Typed = Recipients;
using Deleting = Recipients;
using Checking = Recipients;
using Sorting = Recipients;
using Picking = Recipients;

TEST_F(Typed, ANumberIsSearchedForAsADuplicateBeforeTheKindChecksIt) {
    const struct {
        compose::MessageKind kind;
        const char16_t *name, *number;
        std::string box;  // none: the row is added
        std::string row;
    } entries[] = {
        {compose::MessageKind::text, u"이 순:신; ", u"010-9999-8888", "", "이순신 01099998888"},
        {compose::MessageKind::text, u" : ; ", u"1588-12345", "", "이름없음 158812345"},
        {compose::MessageKind::text, u"이순신", u"   ", "문자보낼번호를(을) 입력하여 주십시오!", ""},
        {compose::MessageKind::fax, u"", u"", "팩스보낼번호를(을) 입력하여 주십시오!", ""},
        {compose::MessageKind::plus, u"", u"0641234567", wrong("문자보낼번호", "0641234567", TEXT_ONLY), ""},
        {compose::MessageKind::voice, u"", u"02-123-4567", "", "이름없음 021234567"},
        {compose::MessageKind::voice, u"", u"번호를모르는사람임", "", "이름없음 번호를모르는사람임"},
        {compose::MessageKind::fax, u"", u"02-123-4567", "", "이름없음 021234567"},
        {compose::MessageKind::fax, u"", u"05021234567", wrong("팩스보낼번호", "05021234567", NO_FAX), ""},
        {compose::MessageKind::text, u"", u"02123456", wrong("문자보낼번호", "02123456", NO_AREA_CODE), ""},
        {compose::MessageKind::voice, u"", u"12345678", wrong("음성보낼번호", "12345678", NO_AREA_CODE), ""},
        // Duplicates come first, even if the number is too short or wrong for the kind.
        {compose::MessageKind::text, u"", u"0101234", "이미 동일한 이름가 존재합니다.", "duplicate"},
        {compose::MessageKind::fax, u"", u"01012345678", "이미 동일한 이름가 존재합니다.", "duplicate"},
        {compose::MessageKind::voice, u"", u"부장", "이미 동일한 이름가 존재합니다.", "duplicate"},
    };
    for (const auto& entry : entries) {
        SCOPED_TRACE(utf8(entry.name) + "/" + utf8(entry.number));
        form.choose(entry.kind);
        form.recipients.ListView1.clear();
        form.recipients.ListView1.add_row(u"", {u"김유신", u"01012345678", u"", u"부장"}, true);
        form.recipients.ListView1.add_row(u"", {u"계백", u"0317654321"}, false);
        form.recipients.ListView1.select_item(1);
        form.recipients.RECIPIENT_COUNT_CAPTION();
        form.Command1.set_focus();
        form.recipients.HText1[0].set_text(entry.name);
        form.recipients.HText1[1].set_text(entry.number);
        if (!entry.box.empty()) desktop.expect_box(tests::refusal(platform::from_utf8(entry.box)));
        form.recipients.HBttn1.Click.raise();

        const bool duplicate = entry.row == "duplicate", added = entry.box.empty();
        Rows expected = {"*김유신 01012345678", "!계백 0317654321"};
        if (duplicate) expected = {"*!김유신 01012345678", "계백 0317654321"};
        if (added) expected = {"*김유신 01012345678", "계백 0317654321", "*!" + entry.row};
        EXPECT_EQ(rows(), expected);
        EXPECT_EQ(counts(), added ? "전체>3>대상>2" : "전체>2>대상>1");
        EXPECT_EQ(form.recipients.HText1[1].has_focus(), !added);
        EXPECT_EQ(form.recipients.HText1[0].has_focus(), added);
        EXPECT_EQ(utf8(form.recipients.HText1[0].text()), added ? "" : utf8(entry.name))
            << "a refused entry stays";
        EXPECT_EQ(form.recipients.HText1[1].text().empty(), added || platform::trim(entry.number).empty());
        EXPECT_EQ(form.recipients.HText1[1].selection_length(), form.recipients.HText1[1].text().size());
    }
}

TEST_F(Typed, EscapeInTheFieldsEmptiesThemAndNothingElse) {
    for (const bool in_the_fields : {false, true}) {
        form.recipients.HText1[0].set_text(u"김");
        in_the_fields ? form.recipients.HText1[1].set_focus() : form.text.mText1.set_focus();
        form.escape_pressed();
        EXPECT_EQ(form.recipients.HText1[0].text().empty(), in_the_fields);
    }
}

TEST_F(Typed, EnterMovesFromTheNameToTheNumberAndThenAdds) {
    form.recipients.HText1[0].set_focus();
    tests::press(form.recipients.HText1[0], u'김');
    tests::press(form.recipients.HText1[0], u'\r');
    EXPECT_TRUE(form.recipients.HText1[1].has_focus());
    for (const char16_t digit : Text(u"01012345678")) tests::press(form.recipients.HText1[1], digit);
    EXPECT_EQ(form.recipients.ListView1.row_count(), 0u);
    tests::press(form.recipients.HText1[1], u'\r');
    EXPECT_EQ(rows(), Rows{"*!김 01012345678"});
    EXPECT_TRUE(form.recipients.HText1[0].has_focus());
}

TEST_F(Deleting, RemovesTheSelectedRowsAfterAYes) {
    platform::KeyPressed other_key{65};
    platform::KeyPressed delete_key{platform::KEY_DELETE};
    const std::vector<std::function<void()>> ways = {
        [&] { form.recipients.HBttn2.Click.raise(); },
        [&] { form.recipients.ListView1.KeyDown.raise(delete_key); },
        [&] { form.recipients.mnusubpopup9.Click.raise(); },
    };
    for (const auto& delete_rows : ways) {
        form.recipients.ListView1.clear();
        for (const char16_t* name : {u"가", u"나", u"다", u"라"}) add(name, u"010");
        form.recipients.RECIPIENT_COUNT_CAPTION();
        form.recipients.ListView1.user_select(1, true);
        delete_rows();
        EXPECT_EQ(form.recipients.ListView1.row_count(), 4u) << "without a selected item nothing is said";
        form.recipients.ListView1.select_item(3);
        form.recipients.ListView1.KeyDown.raise(other_key);

        desktop.expect_box(tests::DELETE_ROWS, BoxAnswer::no);
        delete_rows();
        EXPECT_EQ(form.recipients.ListView1.row_count(), 4u);
        desktop.expect_box(tests::DELETE_ROWS, BoxAnswer::yes);
        delete_rows();
        EXPECT_EQ(rows(), (Rows{"*가 010", "*!다 010"})) << "the row that moves up can be deleted next";
        EXPECT_EQ(counts(), "전체>2>대상>2");
    }
}

TEST_F(Checking, ByTheUserEmptiesTheStatusSoThatAFailedRowIsSentAgain) {
    add(u"가", u"010", u"등록실패", false);
    add(u"나", u"011", u"등록성공", true);
    form.recipients.ListView1.user_check(0, true);
    form.recipients.ListView1.user_check(1, false);
    EXPECT_EQ(rows(), (Rows{"*가 010", "나 011 등록성공"}));
    EXPECT_EQ(counts(), "전체>2>대상>1");
}

TEST_F(Checking, TheMenuChecksAndUnchecksTheSelectedRows) {
    for (const char16_t* name : {u"가", u"나", u"다"}) add(name, u"010", u"등록실패", false);
    form.recipients.ListView1.user_select(2, true);
    form.recipients.mnusubpopup4.Click.raise();
    EXPECT_EQ(rows(), (Rows{"가 010 등록실패", "나 010 등록실패", "!다 010 등록실패"})) << "no selected item";
    form.recipients.ListView1.select_item(0);
    form.recipients.mnusubpopup4.Click.raise();
    EXPECT_EQ(rows(), (Rows{"*!가 010", "나 010 등록실패", "*!다 010"}));
    EXPECT_EQ(counts(), "전체>3>대상>2");
    form.recipients.ListView1.set_sub_item(0, RECIPIENT_STATUS, u"등록성공");
    form.recipients.mnusubpopup5.Click.raise();
    EXPECT_EQ(rows(), (Rows{"!가 010 등록성공", "나 010 등록실패", "!다 010"}));
    EXPECT_EQ(counts(), "전체>3>대상>0");
}

TEST_F(Checking, ProgressShowsAboveFiveHundredRowsOnly) {
    for (int i = 0; i < 500; ++i) add(u"가", u"010", {}, false);
    form.recipients.ListView1.select_all();
    form.recipients.mnusubpopup4.Click.raise();
    EXPECT_EQ(form.recipients.PBar1.value(), 0);
    add(u"나", u"011", {}, false);
    form.recipients.mnusubpopup5.Click.raise();
    EXPECT_EQ(form.recipients.PBar1.value(), 100);
    EXPECT_FALSE(form.recipients.PBar1.visible());
}

TEST_F(Checking, TheBoxInTheHeaderChecksWhoIsRegisteredAfterAYesAlone) {
    const auto check_all = [&] {
        form.recipients.ListView1.user_check_many(platform::ListView::ManyRows::all, true);
    };
    const platform::MessageBox question{
        .text =
            u"이미 등록되었거나(등록성공) 등록되었을 수 있는(확인필요) 받는사람이 2명 있습니다.\r\n\r\n이 "
            u"받는사람에게도 다시 보내도록 선택하시겠습니까?\r\n\r\n[아니오]를 선택하시면 나머지 "
            u"받는사람만 선택합니다.",
        .icon = platform::BoxIcon::question,
        .title = u"선택 확인",
        .buttons = platform::BoxButtons::yes_no,
        .default_answer = BoxAnswer::no};
    add(u"가", u"010", u"등록성공", false);
    add(u"나", u"011", u"등록실패", true);
    add(u"다", u"012", u"등록실패", false);
    add(u"라", u"013", u"확인필요", false);
    desktop.expect_box(question, BoxAnswer::no);
    check_all();
    EXPECT_EQ(rows(), (Rows{"가 010 등록성공", "*나 011 등록실패", "*다 012", "라 013 확인필요"}));
    EXPECT_EQ(counts(), "전체>4>대상>2");
    desktop.expect_box(question, BoxAnswer::yes);
    check_all();
    EXPECT_EQ(rows(), (Rows{"*가 010", "*나 011 등록실패", "*다 012", "*라 013"}));
}

TEST_F(Recipients, ARowIsMarkedByItsStatusAndOtherwiseByWhetherTheKindReachesIt) {
    using platform::RowMark;
    const struct {
        const char16_t *number, *status;
        RowMark as_text, as_fax;
    } people[] = {{u"01012345678", u"", RowMark::none, RowMark::unusable},
                  {u"0317654321", u"", RowMark::unusable, RowMark::none},
                  {u"0317654321", u"2/3 등록", RowMark::unusable, RowMark::none},
                  {u"0317654321", u"등록성공", RowMark::done, RowMark::done},
                  {u"0317654321", u"등록실패X6(Pondira 응답 없음)", RowMark::failed, RowMark::failed},
                  {u"0317654321", u"실패", RowMark::failed, RowMark::failed},
                  {u"0317654321", u"확인필요", RowMark::uncertain, RowMark::uncertain}};
    platform::ListView& list = form.recipients.ListView1;
    for (const auto& person : people) add(u"가", person.number, person.status);
    for (std::size_t row = 0; row < std::size(people); ++row)
        EXPECT_EQ(list.mark(row), people[row].as_text) << row;
    EXPECT_EQ(utf8(list.mark_reason(1)), TEXT_ONLY);
    form.choose(compose::MessageKind::fax);
    for (std::size_t row = 0; row < std::size(people); ++row)
        EXPECT_EQ(list.mark(row), people[row].as_fax) << row;
    EXPECT_EQ(utf8(list.mark_reason(0)), NO_FAX);
    EXPECT_EQ(utf8(list.mark_reason(3)), "");
}

TEST_F(Recipients, CtrlAAndTheMenuSelectEveryRowAndTheRightButtonOpensTheMenu) {
    platform::KeyPressed a{u'a'}, ctrl_a{platform::KEY_CTRL_A};
    for (const char16_t* name : {u"가", u"나"}) add(name, u"010", {}, false);
    form.recipients.ListView1.KeyPress.raise(a);
    EXPECT_FALSE(form.recipients.ListView1.row(0).selected());
    form.recipients.ListView1.KeyPress.raise(ctrl_a);
    EXPECT_EQ(rows(), (Rows{"!가 010", "!나 010"}));
    form.recipients.ListView1.deselect_item();
    form.recipients.mnusubpopup7.Click.raise();
    EXPECT_EQ(rows(), (Rows{"!가 010", "!나 010"}));

    form.recipients.ListView1.MouseUp.raise(platform::MouseButton::left);
    EXPECT_TRUE(desktop.popups.empty());
    form.recipients.ListView1.MouseUp.raise(platform::MouseButton::right);
    EXPECT_EQ(desktop.popups, std::vector<const platform::Menu*>{&form.recipients.mnuSubPopup});
}

TEST_F(Sorting, AClickOnTheColumnOfTheCheckBoxesSortsByTheNameFromThenOn) {
    add(u"가", u"1");
    add(u"다", u"2");
    form.recipients.ListView1.ColumnClick.raise(1);
    EXPECT_EQ(rows(), (Rows{"*다 2", "*가 1"}));
    EXPECT_EQ(form.recipients.ListView1.sort_key(), 1);
    ASSERT_TRUE(form.recipients.add(u"나", u"3", u""));
    EXPECT_EQ(rows(), (Rows{"*다 2", "*!나 3", "*가 1"}));
}

TEST_F(Picking, CountsAgainAfterNewRowsOrAConfirmedDialog) {
    bool adds = false, confirms = false;
    pick_recipients = [&] {
        if (adds) add(u"가", u"010");
        state.forms.gDialogConfirmed = confirms;
    };
    for (const int outcome : {0, 1, 2}) {
        form.recipients.Label4.set_caption(u"old");
        state.forms.gDialogConfirmed = true;
        adds = outcome == 1;
        confirms = outcome == 2;
        (confirms ? form.recipients.Command7.Click : form.recipients.mnusubpopup1.Click).raise();
        EXPECT_EQ(counts() != "old", adds || confirms);
    }
}

}  // namespace
