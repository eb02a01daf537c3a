#include "platform/text/cp949.h"
#include "saved_texts/frmMyMsgBox.h"
#include "tests/support/lists.h"
#include "tests/support/main_window.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

namespace {

using platform::BoxAnswer;
using platform::BoxIcon;
using platform::Text;
using saved_texts::frmMyMsgBox;
using tests::choose;
using tests::column;
using tests::utf8;
using Strings = std::vector<std::string>;

const Text ROOT = u"z:\\app\\내모음함";
const Text FIRST = u"내모음함";
const platform::MessageBox RESERVED_NAME =
    tests::failure(52, u"시스템에서 사용하는 이름이므로 사용할 수 없습니다.");
const platform::MessageBox PATH_ERROR = tests::failure(75, u"경로/파일 액세스 오류입니다.");

class MyMsgBox : public testing::Test, protected tests::MainWindow {
  protected:
    void SetUp() override {
        compose_as(u"홍길동");
        files.folders = {ROOT, ROOT + u"\\" + FIRST};
    }

    void put(const Text& category, const Text& title, const std::string& bytes) {
        files.folders.insert(ROOT + u"\\" + category);
        files.files[path(category, title)] = bytes;
    }
    static Text path(const Text& category, const Text& title) {
        return ROOT + u"\\" + category + u"\\" + title + u".txt";
    }
    /// The text of a saved file.
    std::string saved(const Text& category, const Text& title) const {
        const auto file = files.files.find(path(category, title));
        return file == files.files.end() ? "none" : utf8(platform::decode_cp949(file->second));
    }

    frmMyMsgBox& open() {
        box_.emplace(platform,
                     [this](const Text& text, const Text& title) { form.apply_saved_text(text, title); });
        box_->load();
        return *box_;
    }
    frmMyMsgBox& box() { return *box_; }

    void write_fields(const Text& title, const Text& body) {
        box().Text1.set_text(title);
        box().txtText.set_text(body);
    }

  private:
    std::optional<frmMyMsgBox> box_;
};

TEST_F(MyMsgBox, ListsACategoryInTheOrderOfTheTextsOfItsDates) {
    const auto at = [&](const Text& title, int day, int hour, const std::string& bytes) {
        put(FIRST, title, bytes);
        files.dates[path(FIRST, title)] = platform::make_time(2026, 11, day, hour, 5, 9);
    };
    at(u"아침", 22, 9, "");
    at(u"정오", 22, 12, platform::encode_cp949(u" 첫 줄\r\n둘째 줄 "));
    at(u"열한시", 22, 23, "x");
    at(u"a.b", 21, 0, "x");
    files.files[ROOT + u"\\내모음함\\그림.bmp"] = "x";
    put(u"하", u"하나", "x");
    put(u"가", u"둘", "x");

    open();
    EXPECT_EQ(column(box().ListView1), (Strings{"내모음함", "가", "하"}));
    EXPECT_EQ(column(box().ListView2), (Strings{"정오", "열한시", "아침", "a.b"}));
    EXPECT_EQ(column(box().ListView2, saved_texts::TEXT_SAVED),
              (Strings{"2026-11-22 오후 12:05:09", "2026-11-22 오후 11:05:09", "2026-11-22 오전 09:05:09",
                       "2026-11-21 오전 12:05:09"}));
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_LINE)), "첫 줄 둘째 줄");
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_BODY)), " 첫 줄\r\n둘째 줄 ");
    EXPECT_EQ(box().ListView2.selected_item(), 0U);
    EXPECT_EQ(utf8(box().Text1.text()), "") << "selected by the program, not by the user";
    EXPECT_FALSE(box().Command5.enabled());
    EXPECT_EQ(box().ListView1.row(0).small_icon(), 2);

    box().ListView2.ColumnClick.raise(1);
    EXPECT_EQ(column(box().ListView2), (Strings{"a.b", "아침", "열한시", "정오"}));
    choose(box().ListView1, 2);
    EXPECT_EQ(column(box().ListView2), Strings{"하나"});
    EXPECT_EQ(box().ListView1.row(0).small_icon(), 1);
    EXPECT_EQ(box().ListView1.row(2).small_icon(), 2);
    EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
}

TEST_F(MyMsgBox, ShowsTheSelectedMessageAndFiltersTheKeysOfTheTitle) {
    put(FIRST, u"가", platform::encode_cp949(u"한글\r\nabc "));
    put(FIRST, u"나", "");
    open();
    choose(box().ListView2, 0);
    EXPECT_EQ(utf8(box().txtText.text()), "한글\r\nabc ");
    EXPECT_EQ(utf8(box().LenCaption.caption()), "10Bytes");
    EXPECT_TRUE(box().Command5.enabled());

    box().ListView2.deselect_item();
    box().ListView2.select_item(1);
    platform::KeyPressed released{platform::KEY_DOWN};
    box().ListView2.KeyUp.raise(released);
    EXPECT_EQ(utf8(box().Text1.text() + box().txtText.text()), "나");
    box().ListView2.deselect_item();
    box().ListView2.MouseUp.raise(platform::MouseButton::left);
    EXPECT_EQ(utf8(box().Text1.text()), "");

    box().Text1.set_text(u"");
    for (const char16_t key : Text(u"a\"b*c.d/e:f<g>h?i\\j|k한!")) {
        box().Text1.set_caret_to_end();
        tests::press(box().Text1, key);
    }
    EXPECT_EQ(utf8(box().Text1.text()), "abcdefghijk한!");
    box().LenCaption.Click.raise();
    EXPECT_TRUE(box().txtText.has_focus());
}

TEST_F(MyMsgBox, AClickThatChoosesNoOtherTextKeepsWhatWasTyped) {
    put(FIRST, u"가", "first");
    put(FIRST, u"나", "second");
    open();
    const auto fields = [&] { return utf8(box().Text1.text() + u": " + box().txtText.text()); };
    write_fields(u"새 제목", u"새 글");
    box().ListView2.MouseUp.raise(platform::MouseButton::right);
    EXPECT_EQ(fields(), "새 제목: 새 글");
    choose(box().ListView2, 0);
    EXPECT_EQ(fields(), "가: first");
    write_fields(u"다", u"고친 글");
    for (const auto button : {platform::MouseButton::right, platform::MouseButton::left}) {
        box().ListView2.MouseUp.raise(button);
        EXPECT_EQ(fields(), "다: 고친 글");
    }
    box().ListView2.deselect_item();
    box().ListView2.select_item(1);
    box().ListView2.MouseUp.raise(platform::MouseButton::right);
    EXPECT_EQ(fields(), "나: second") << "a right click can choose another one";
}

TEST_F(MyMsgBox, ShowsARowAsChosenOnlyWhileItsTextIsInTheFields) {
    put(FIRST, u"가", "first");
    put(u"공지", u"휴무", "closed");
    open();
    EXPECT_FALSE(box().ListView2.shows_selection());
    choose(box().ListView2, 0);
    EXPECT_TRUE(box().ListView2.shows_selection());
    choose(box().ListView1, 1);
    EXPECT_FALSE(box().ListView2.shows_selection());
    EXPECT_EQ(utf8(box().Text1.text() + box().txtText.text()), "") << "a text of the other category";
    write_fields(u"새 제목", u"새 글");
    choose(box().ListView1, 0);
    EXPECT_EQ(utf8(box().Text1.text()), "새 제목") << "a new text can go into any category";
    EXPECT_FALSE(box().ListView2.shows_selection());
}

TEST_F(MyMsgBox, FindsTextsByTheirTitlesAndBodiesAndKeepsTheOthers) {
    put(FIRST, u"Sale", "two for one");
    put(FIRST, u"가", platform::encode_cp949(u"첫 줄\r\n둘째 SALE"));
    put(FIRST, u"나", "x");
    put(u"공지", u"sale 2", "y");
    open();
    const auto found = [&](const Text& words) {
        box().SearchText.set_text(words);
        Strings titles = column(box().ListView2);
        std::ranges::sort(titles);
        titles.push_back(utf8(box().FoundCount.caption()));
        return titles;
    };
    EXPECT_EQ(found(u" sale"), (Strings{"Sale", "가", "3개 중 2개"}));
    choose(box().ListView2, 0);
    EXPECT_EQ(found(u"줄 둘"), (Strings{"가", "3개 중 1개"})) << "over the end of a line";
    EXPECT_EQ(found(u"없는 말"), Strings{"3개 중 0개"});
    EXPECT_EQ(found(u""), (Strings{"Sale", "가", "나", "3개"}));
    EXPECT_TRUE(box().ListView2.shows_selection());
    EXPECT_EQ(utf8(box().ListView2.row(*box().ListView2.selected_item()).text()), utf8(box().Text1.text()));
    found(u"sale");
    choose(box().ListView1, 1);
    EXPECT_EQ(column(box().ListView2), Strings{"sale 2"});
    EXPECT_EQ(utf8(box().FoundCount.caption()), "1개");
}

TEST_F(MyMsgBox, EnterOrADoubleClickOnARowTakesItsText) {
    put(FIRST, u"가", "first");
    for (const bool by_key : {true, false}) {
        form.subject.subjectText.set_text(u"");
        open();
        platform::KeyPressed enter{platform::KEY_ENTER};
        by_key ? box().ListView2.KeyPress.raise(enter) : box().ListView2.DblClick.raise();
        EXPECT_EQ(utf8(form.text.mText1.text() + u" " + form.subject.subjectText.text()), "[홍길동]first 가");
        EXPECT_FALSE(box().loaded());
    }
}

TEST_F(MyMsgBox, SavesANewMessageUnderItsCleanedTitleOrSaysWhyNot) {
    put(FIRST, u"있음", "old");
    open();
    const struct {
        const char16_t *title, *body;
        platform::MessageBox box;
        const char* file;
    } rows[] = {
        {u"제목", u"   ", tests::refusal(u"메시지 내용을 입력하세요!"), nullptr},
        {u"   ", u"글", tests::refusal(u"'제목'을 입력하여 주십시오."), nullptr},
        {u" *.*/ ", u"글", tests::refusal(u"'제목'을 입력하여 주십시오."), nullptr},
        {u"있.음", u"글", tests::refusal(u"'있음' 제목은 이미 존재하고 있습니다."), nullptr},
        {u"con", u"글", RESERVED_NAME, nullptr},
        {u"..\\..\\탈출", u" 글 \r\n ", tests::notice(u"저장 되었습니다."), " 글 \r\n"},
    };
    for (const auto& row : rows) {
        const auto before = files.files;
        desktop.expect_box(row.box);
        write_fields(row.title, row.body);
        box().Command1.Click.raise();
        if (row.file == nullptr) {
            EXPECT_EQ(files.files, before) << utf8(row.title);
            EXPECT_EQ(utf8(box().txtText.text()), utf8(platform::right_trim(row.body)));
        } else {
            EXPECT_EQ(saved(FIRST, u"탈출"), row.file);
            EXPECT_EQ(utf8(box().Text1.text() + box().txtText.text()), "");
        }
    }
    EXPECT_EQ(box().ListView2.row_count(), 2U);
}

TEST_F(MyMsgBox, SavesAnEditInPlaceOfTheOldMessage) {
    put(FIRST, u"가", "old");
    put(FIRST, u"나", "other");
    open();
    choose(box().ListView2, 0);
    box().txtText.set_text(u"새 글\r\n끝");
    desktop.expect_box(tests::notice(u"수정 되었습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"가"), "새 글\r\n끝");
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_LINE)), "새 글 끝");

    box().Text1.set_text(u"나");
    desktop.expect_box(tests::plain(u"'나' 제목은 이미 존재하고 있습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"나"), "other");

    box().Text1.set_text(u"다.라");
    desktop.expect_box(tests::notice(u"수정 되었습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"가") + " " + saved(FIRST, u"다라"), "none 새 글\r\n끝");
    EXPECT_EQ(utf8(box().ListView2.row(0).text()), "다라");
    EXPECT_EQ(saved(FIRST, u"나"), "other");

    put(FIRST, u"나 ", "with a blank");
    open();
    choose(box().ListView2, 0);
    ASSERT_EQ(utf8(box().Text1.text()), "나 ");
    desktop.expect_box(tests::plain(u"'나' 제목은 이미 존재하고 있습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"나") + ", " + saved(FIRST, u"나 "), "other, with a blank");
}

TEST_F(MyMsgBox, OnlyTheTextThatTheFieldsCameFromIsEdited) {
    put(FIRST, u"가", "first");
    put(FIRST, u"나", "second");
    put(u"거래처", u"다", "theirs");
    open();
    const auto before = files.files;
    const auto refuse = [&](const char* when) {
        desktop.expect_box(tests::refusal(u"수정할 자료를 먼저 선택하세요!"));
        box().Command2.Click.raise();
        EXPECT_EQ(files.files, before) << when;
    };
    const auto select = [&](std::size_t row) {
        box().ListView2.deselect_item();
        box().ListView2.select_item(row);
    };
    write_fields(u"새 제목", u"새 글");
    refuse("a new text has been typed");
    choose(box().ListView2, 0);
    box().txtText.set_text(u"고친 글");
    choose(box().ListView1, 1);
    refuse("another category is listed");
    choose(box().ListView1, 0);
    select(1);
    refuse("another text is selected");
    select(0);
    desktop.expect_box(tests::notice(u"수정 되었습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"가") + ", " + saved(FIRST, u"나"), "고친 글, second");
}

TEST_F(MyMsgBox, RowsLeftOverFromACategoryThatCannotBeListedAreNotTouched) {
    put(FIRST, u"가", "theirs");
    put(u"거래처", u"가", "ours");
    open();
    files.links.insert(ROOT + u"\\거래처");
    desktop.expect_box(tests::category_is_outside(u"거래처"));
    choose(box().ListView1, 1);
    choose(box().ListView2, 0);
    for (platform::CommandButton* button : {&box().Command2, &box().Command3}) {
        desktop.expect_box(tests::category_is_outside(u"거래처"));
        button->Click.raise();
        EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_BODY)), "theirs");
    }
    files.links.clear();
    box().Command3.Click.raise();
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_BODY)), "ours");
    EXPECT_EQ(saved(FIRST, u"가") + ", " + saved(u"거래처", u"가"), "theirs, ours");
}

TEST_F(MyMsgBox, AnEditThatCannotBeWrittenStaysInTheRowAndInTheFields) {
    put(FIRST, u"가", "old");
    open();
    choose(box().ListView2, 0);
    write_fields(Text(100, u'긴'), u"새 글");
    desktop.expect_box(tests::failure(52, u"이름이 너무 깁니다. 더 짧은 이름을 입력하세요."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"가"), "old") << "a name that no file can have costs nothing";

    write_fields(u"나", u"새 글");
    files.changes_until_failure = {0, platform::ErrorNumber::permission_denied};
    desktop.expect_box(tests::failure(70, u"사용 권한이 없습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(column(box().ListView2), Strings{"가"}) << "the list shows what the disk has";
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_BODY)), "old");
    EXPECT_EQ(saved(FIRST, u"가"), "old");

    // The text is written, its new title is refused.
    files.changes_until_failure = {1, platform::ErrorNumber::path_access};
    desktop.expect_box(PATH_ERROR);
    box().Command2.Click.raise();
    EXPECT_EQ(column(box().ListView2), Strings{"가"});
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_BODY)), "새 글");
    EXPECT_EQ(saved(FIRST, u"가"), "새 글");
    EXPECT_EQ(utf8(box().Text1.text() + box().txtText.text()), "나새 글");

    files.changes_until_failure.reset();
    desktop.expect_box(tests::notice(u"수정 되었습니다."));
    box().Command2.Click.raise();
    EXPECT_EQ(saved(FIRST, u"가") + ", " + saved(FIRST, u"나"), "none, 새 글");
}

TEST_F(MyMsgBox, RemovesAMessageAfterAYes) {
    put(FIRST, u"가", "x");
    open();
    box().ListView2.deselect_item();
    desktop.expect_box(tests::refusal(u"삭제할 자료를 먼저 선택하세요!"));
    box().Command3.Click.raise();
    choose(box().ListView2, 0);
    for (const BoxAnswer answer : {BoxAnswer::no, BoxAnswer::yes}) {
        EXPECT_EQ(saved(FIRST, u"가"), "x");
        desktop.expect_box(tests::delete_text_question(u"가"), answer);
        platform::KeyPressed key{platform::KEY_DELETE};
        box().ListView2.KeyDown.raise(key);
    }
    EXPECT_TRUE(files.files.empty());
    EXPECT_EQ(box().ListView2.row_count(), 0U);
    EXPECT_EQ(utf8(box().Text1.text() + box().txtText.text()), "");
    EXPECT_TRUE(box().Command5.enabled());
    box().Command3.Click.raise();
    box().Command2.Click.raise();
}

TEST_F(MyMsgBox, AddsACategoryUnderANameThatIsFree) {
    put(u"거래처", u"하나", "x");
    open();
    const struct {
        const char16_t* answer;
        std::optional<platform::MessageBox> box;
    } rows[] = {
        {u"", {}},
        {u" */ ", {}},
        {u"거*래처", tests::refusal(u"'거래처' 분류명은 이미 존재하고 있습니다.")},
        {u"LPT1", RESERVED_NAME},
    };
    for (const auto& row : rows) {
        desktop.expect_input(tests::NEW_CATEGORY, row.answer);
        if (row.box) desktop.expect_box(*row.box);
        // A name that is taken is asked for again.
        if (Text(row.answer) == u"거*래처") desktop.expect_input(tests::NEW_CATEGORY, u"");
        box().Command8.Click.raise();
        EXPECT_EQ(box().ListView1.row_count(), 2U) << utf8(row.answer);
    }
    desktop.expect_input(tests::NEW_CATEGORY, u" 새 분류<> ");
    box().Command8.Click.raise();
    EXPECT_TRUE(files.folders.contains(ROOT + u"\\새 분류"));
    EXPECT_EQ(column(box().ListView1), (Strings{"내모음함", "거래처", "새 분류"}));
    EXPECT_EQ(box().ListView1.selected_item(), 2U);
    EXPECT_EQ(box().ListView2.row_count(), 0U);
}

TEST_F(MyMsgBox, RenamesACategoryWithItsMessages) {
    put(u"거래처", u"하나", "x");
    put(u"친구", u"둘", "y");
    open();
    const platform::InputBox rename{
        .prompt =
            u"수정할 분류명을 입력하십시오!\r\n\r\n분류명에 다음 문자는 사용할 수 "
            u"없습니다.\r\n\\ / : * ? \" < > |",
        .title = u"분류명 수정",
        .default_text = u"거래처"};
    desktop.expect_box(tests::refusal(u"'내 모음함'은 변경할 수 없습니다!"));
    box().Command7.Click.raise();
    choose(box().ListView1, 1);
    desktop.expect_input(rename, u"친구");
    desktop.expect_box(tests::refusal(u"'친구' 분류명은 이미 존재하고 있습니다."));
    desktop.expect_input(rename, u"거래처");
    box().Command7.Click.raise();
    desktop.expect_input(rename, u"고객");
    box().Command7.Click.raise();
    EXPECT_EQ(saved(u"고객", u"하나") + saved(u"거래처", u"하나"), "xnone");
    EXPECT_EQ(column(box().ListView1), (Strings{"내모음함", "고객", "친구"}));
}

TEST_F(MyMsgBox, RemovesTheMessagesOfACategoryAndNoOtherFiles) {
    put(u"거래처", u"하나", "x");
    put(u"그림", u"하나", "x");
    files.files.erase(path(u"그림", u"하나"));
    files.files[ROOT + u"\\그림\\해.bmp"] = "sun";
    open();
    desktop.expect_box(tests::refusal(u"'내 모음함'은 삭제할 수 없습니다!"));
    box().Command9.Click.raise();

    const auto remove = [&](std::size_t row, const Text& name, BoxAnswer answer) {
        choose(box().ListView1, row);
        desktop.expect_box(tests::question(u"분류:" + name + u"\r\n\r\n선택한 분류를 삭제하시겠습니까?",
                                           u"삭제 확인", BoxIcon::exclamation, BoxAnswer::no),
                           answer);
    };
    remove(1, u"거래처", BoxAnswer::no);
    box().Command9.Click.raise();
    EXPECT_EQ(saved(u"거래처", u"하나"), "x");
    remove(1, u"거래처", BoxAnswer::yes);
    platform::KeyPressed key{platform::KEY_DELETE};
    box().ListView1.KeyDown.raise(key);
    EXPECT_EQ(column(box().ListView1), (Strings{"내모음함", "그림"}));
    EXPECT_EQ(box().ListView1.selected_item(), 0U);

    remove(1, u"그림", BoxAnswer::yes);
    desktop.expect_box(PATH_ERROR);
    box().Command9.Click.raise();
    EXPECT_EQ(files.files.at(ROOT + u"\\그림\\해.bmp"), "sun");
}

TEST_F(MyMsgBox, TheApplyQuestionCountsTheSendersNameAndTheTagEndsWithIt) {
    const Text fits(68, u'a');  // 80 bytes with "[홍길동]" and four characters more
    const struct {
        const char16_t* sender;
        Text body;
        std::optional<BoxAnswer> answer;
        std::string applied;
    } rows[] = {
        {u"홍길동", u"1234" + fits + u"  ", std::nullopt, "[홍길동]1234" + utf8(fits)},
        {u"홍길동", u"12345" + fits, BoxAnswer::yes, "[홍길동]12345" + utf8(fits)},
        {u"홍길동", u"한" + fits + u"123", BoxAnswer::no, "[홍길동]한" + utf8(fits) + "12"},
        {u"  ", u"글", std::nullopt, "글"},
    };
    for (const auto& row : rows) {
        put(FIRST, u"인사", platform::encode_cp949(row.body));
        form.sender.txtUserName.set_text(row.sender);
        form.subject.subjectText.set_text(u"");
        open();
        choose(box().ListView2, 0);
        if (row.answer) desktop.expect_box(tests::long_text_question(u"[확인]을 하시면"), *row.answer);
        if (row.answer == BoxAnswer::no) desktop.expect_box(tests::TEXT_IS_CUT);
        box().Command5.Click.raise();
        EXPECT_EQ(utf8(form.text.mText1.text()), row.applied);
        EXPECT_EQ(utf8(form.text.mText1.tag()), "");
        EXPECT_EQ(utf8(form.subject.subjectText.text() + form.subject.subjectText.tag()), "인사END");
        EXPECT_FALSE(box().Command5.enabled());
    }
}

TEST_F(MyMsgBox, AnAppliedLongTextIsWholeUntilItsFirstEditIsAskedAbout) {
    put(FIRST, u"인사", std::string(150, 'a'));
    form.sender.txtUserName.set_text(u"");
    open();
    choose(box().ListView2, 0);
    desktop.expect_box(tests::long_text_question(u"[확인]을 하시면"), BoxAnswer::yes);
    box().Command5.Click.raise();
    platform::TextBox& field = form.text.mText1;
    constexpr int KEY_CTRL_C = 3;
    for (const int key : {platform::KEY_CTRL_A, KEY_CTRL_C}) {
        platform::KeyPressed pressed{key};
        field.KeyPress.raise(pressed);
        EXPECT_EQ(field.text().size(), 150U) << key;
    }
    field.set_caret_to_end();
    desktop.expect_box(tests::long_text_question(), BoxAnswer::yes);
    tests::press(field, u'b');
    EXPECT_EQ(utf8(field.text()), std::string(150, 'a') + "b");
    tests::press(field, u'c');  // the second yes is remembered
}

TEST_F(MyMsgBox, OtherKindsTakeTheTitleAlone) {
    put(FIRST, u"인사", "text");
    put(FIRST, u"빈글", "\r\n  \r\n");
    for (const compose::MessageKind kind :
         {compose::MessageKind::plus, compose::MessageKind::voice, compose::MessageKind::fax}) {
        form.choose(kind);
        const Text before = form.text.mText1.text() + form.plus.mText2.text();
        open();
        choose(box().ListView2, 1);
        box().Command6.Click.raise();
        EXPECT_FALSE(box().loaded());
        EXPECT_EQ(utf8(form.subject.subjectText.text()), "인사") << static_cast<int>(kind);
        EXPECT_EQ(utf8(form.text.mText1.text() + form.plus.mText2.text()), utf8(before));
    }
    open();
    choose(box().ListView2, 0);
    box().Command5.Click.raise();
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "인사") << "an empty text is not applied";
}

TEST_F(MyMsgBox, EveryTextComesBackUnchanged) {
    for (const std::string& bytes :
         {std::string("no line end"), std::string("a\r\n\r\nb\r\n"), std::string("\t|")}) {
        put(FIRST, u"글", bytes);
        open();
        choose(box().ListView2, 0);
        desktop.expect_box(tests::notice(u"수정 되었습니다."));
        box().Command2.Click.raise();
        EXPECT_EQ(files.files[path(FIRST, u"글")], bytes);
    }
    put(FIRST, u"글", "a\nb\rc\r\n\n");
    open();
    choose(box().ListView2, 0);
    EXPECT_EQ(utf8(box().txtText.text()), "a\r\nb\r\nc\r\n\r\n");
    EXPECT_EQ(utf8(box().ListView2.row(0).sub_item(saved_texts::TEXT_LINE)), "a b c");

    box().txtText.set_text(u"가☃나");
    for (int times = 0; times < 2; ++times) {
        desktop.expect_box(tests::notice(u"수정 되었습니다."));
        box().Command2.Click.raise();
        EXPECT_EQ(saved(FIRST, u"글"), "가?나");
        open();
        choose(box().ListView2, 0);
    }
}

TEST_F(MyMsgBox, AKillDuringAnEditLeavesTheOldTextOrTheNewOneUnderOneTitle) {
    desktop.any_box = BoxAnswer::ok;
    for (const Text& title : {Text(u"가"), Text(u"나")}) {
        bool finished = false;
        for (int kill = 0; !finished; ++kill) {
            SCOPED_TRACE(testing::Message() << utf8(title) << ", killed at change " << kill);
            files.files = {{path(FIRST, u"가"), "old"}};
            open();
            choose(box().ListView2, 0);
            write_fields(title, u"new");
            files.changes_until_kill = kill;
            try {
                box().Command2.Click.raise();
                finished = true;
            } catch (const tests::MemoryFiles::Killed&) {
                // Then the program starts again and finds what is left.
            }
            files.changes_until_kill.reset();
            ASSERT_EQ(files.files.size(), 1U);
            const std::string& left = files.files.begin()->second;
            EXPECT_TRUE(left == "new" || (left == "old" && !finished)) << left;
        }
    }
}

/// Kills the program at each change of the disk in turn, in each operation.
TEST_F(MyMsgBox, AKillAtAnyChangeOfTheDiskLosesNoOtherText) {
    const tests::MemoryFiles::Contents all = {
        {path(FIRST, u"가"), "1"}, {path(u"분류", u"나"), "2"}, {path(u"분류", u"다"), "3"}};
    const struct {
        const char* what;
        std::function<void()> act;
        /// Texts that the user removes or replaces.
        std::vector<Text> at_risk;
    } operations[] = {
        {"new",
         [&] {
             write_fields(u"새", u"글");
             box().Command1.Click.raise();
         },
         {}},
        {"edit",
         [&] {
             write_fields(u"라", u"글");
             box().Command2.Click.raise();
         },
         {path(u"분류", u"나")}},
        {"rename", [&] { box().Command7.Click.raise(); }, {}},
        {"add a category", [&] { box().Command8.Click.raise(); }, {}},
        {"delete", [&] { box().Command3.Click.raise(); }, {path(u"분류", u"나")}},
        {"delete the category",
         [&] { box().Command9.Click.raise(); },
         {path(u"분류", u"나"), path(u"분류", u"다")}},
        {"MySave",
         [&] {
             form.subject.subjectText.set_text(u"가");
             form.text.mText1.set_text(u"글");
             form.text.MySave.Click.raise();
         },
         {}},
    };
    for (const auto& operation : operations) {
        bool finished = false;
        for (int kill = 0; !finished; ++kill) {
            SCOPED_TRACE(testing::Message() << operation.what << ", killed at change " << kill);
            ASSERT_LT(kill, 10);
            files.folders = {ROOT, ROOT + u"\\" + FIRST, ROOT + u"\\분류"};
            files.files = all;
            desktop.any_box = BoxAnswer::yes;
            desktop.any_input = u"다른 분류";
            open();
            choose(box().ListView1, 1);
            choose(box().ListView2, 0);
            files.changes_until_kill = kill;
            try {
                operation.act();
                finished = true;
            } catch (const tests::MemoryFiles::Killed&) {
                // Then the program starts again and finds what is left.
            }
            files.changes_until_kill.reset();
            for (const auto& [file, bytes] : all) {
                if (std::ranges::find(operation.at_risk, file) != operation.at_risk.end()) continue;
                const bool kept = std::ranges::any_of(
                    files.files, [&, &wanted = bytes](const auto& left) { return left.second == wanted; });
                EXPECT_TRUE(kept) << utf8(file);
            }
        }
    }
}

}  // namespace
