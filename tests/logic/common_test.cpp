
#include "addressbook/card_db.h"
#include "core/centring.h"
#include "core/paths.h"
#include "core/phone_number.h"
#include "core/settings.h"
#include "gateway/gateway.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace core;
using platform::ListView;
using platform::Text;
using tests::utf8;

TEST(Numbers, TextMessagesGoToAnyNumberButOnesWithAnAreaCodeAndFaxesToAnyButMobileAndUnifiedOnes) {
    const struct {
        const char16_t* number;
        bool text, fax;
    } rows[] = {{u" 010-1234-5678 ", true, false},
                {u"0131234567", true, true},
                {u"02-123-4567", false, true},
                {u"0311234567", false, true},
                {u"0641234567", false, true},
                {u"0341234567", true, true},
                {u"0601234567", true, true},
                {u"1588-1234", true, true},
                {u"030301234567", true, false},
                {u"03031234567", true, true},
                {u"05021234567", true, false},
                {u"05051234567", true, false},
                {u"05031234567", true, true},
                {u"03030", true, true},
                {u"12345", true, true},
                {u"119", true, true},
                {u"010", true, false},
                {u"0191234567", true, false},
                {u"021", false, true},
                {u"10", false, false},
                {u"000", false, false},
                {u"   ", false, false},
                {u"abc12", false, false},
                {u"abc119", true, true}};
    for (const auto& row : rows) {
        EXPECT_EQ(TEXT_NUMBER_OK(row.number), row.text) << utf8(row.number);
        EXPECT_EQ(FAX_NUMBER_OK(row.number), row.fax) << utf8(row.number);
    }
}

TEST(Numbers, OnlyTheDigitsStayUnlessTheyMakeZero) {
    const struct {
        const char16_t *typed, *digits;
    } rows[] = {
        {u" 010.1234 5678 ", u"01012345678"},
        {u"Tel) 119", u"119"},
        {u"   ", u""},
        {u" 집 ", u"집"},
        {u"0-0-0", u"0-0-0"},
        {u"１２３", u"１２３"}  // full-width digits are no digits
    };
    for (const auto& row : rows) EXPECT_EQ(utf8(DIGITS_ONLY(row.typed)), utf8(row.digits));
}

TEST(Numbers, AreShownAsPeopleWriteThem) {
    const std::pair<const char16_t*, const char*> numbers[] = {
        {u"01020000236", "010-2000-0236"}, {u"0112345678", "011-234-5678"},
        {u"025551234", "02-555-1234"},     {u"0212345678", "02-1234-5678"},
        {u"0317654321", "031-765-4321"},   {u"15880000", "1588-0000"},
        {u"05021234567", "0502-123-4567"}, {u"030312345678", "0303-1234-5678"},
        {u"0101234", "0101234"},           {u"번호를모르는사람임", "번호를모르는사람임"},
        {u"010123456789", "010123456789"}, {u"", ""}};
    for (const auto& [number, shown] : numbers) EXPECT_EQ(utf8(core::with_hyphens(number)), shown);
}

TEST(Texts, ATextFromAPaddedBufferLosesOnlyItsPadding) {
    const struct {
        Text buffer;
        const char* clean;
    } rows[] = {{Text(20, u' '), ""},
                {Text(20, u'\0'), ""},
                {u"Hong" + Text(1, u'\0') + Text(15, u' '), "Hong"},
                {u"ab" + Text(1, u'\0') + u"c  ", "ab c"},
                {u"  ab", "  ab"}};
    for (const auto& row : rows) EXPECT_EQ(utf8(gateway::CLEAN_FIXED_TEXT(row.buffer)), row.clean);
}

TEST(FieldValue, IsTheTextOfAFieldTrimmedOnTheRightOnlyForTypes10And12) {
    const struct {
        platform::CardField field;
        const char16_t* value;
    } rows[] = {{{platform::FIELD_TEXT, {}}, u""},
                {{10, {}}, u""},
                {{platform::FIELD_LONG, -7}, u"-7"},
                {{platform::FIELD_TEXT, u" 끝공백  "}, u" 끝공백  "},
                {{platform::FIELD_MEMO, u"a "}, u"a "},
                {{10, u" a  "}, u" a"},
                {{12, u" a  "}, u" a"},
                {{11, u"a "}, u"a "}};
    for (const auto& row : rows) EXPECT_EQ(utf8(addressbook::FIELD_VALUE(row.field)), utf8(row.value));
}

struct Paths : testing::Test, tests::TestPlatform {};

TEST_F(Paths, TheParentIsThePathBeforeTheLastNameWithItsBackslash) {
    const struct {
        const char16_t* path;
        const char *parent, *name;
    } rows[] = {
        {u" c:\\temp\\a.wav ", "c:\\temp\\", "a.wav "},
        {u"c:\\temp\\", "c:\\", ""},
        {u"c:\\temp\\\\", "c:\\temp\\", ""},
        {u"z:\\집\\문서.hwp", "z:\\집\\", "문서.hwp"},
        {u"   ", "z:\\app", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(utf8(PARENT_DIR(platform, row.path)), row.parent) << utf8(row.path);
        EXPECT_EQ(utf8(FILE_NAME_OF(row.path)), row.name) << utf8(row.path);
    }
    for (const char16_t* relative : {u"a.wav", u"c:", u"a", u"\\", u"temp\\"}) {
        EXPECT_THROW(PARENT_DIR(platform, relative), platform::RuntimeError) << utf8(relative);
    }
    EXPECT_EQ(utf8(FILE_NAME_OF(u"a.wav")), "") << "no path, no name";
}

TEST_F(Paths, AFileExistsWhenANormalFileMatches) {
    files.files[u"c:\\temp\\a.wav"] = "x";
    files.folders.insert(u"c:\\temp");
    EXPECT_TRUE(FILE_EXISTS(platform, u"c:\\temp\\a.wav"));
    EXPECT_FALSE(FILE_EXISTS(platform, u""));
    EXPECT_FALSE(FILE_EXISTS(platform, u"c:\\temp"));
    EXPECT_FALSE(FILE_EXISTS(platform, u"c:\\temp\\b.wav"));

    DELETE_FILE(platform, u"c:\\temp\\b.wav");
    DELETE_FILE(platform, u"c:\\temp\\a.wav");
    EXPECT_TRUE(files.files.empty());
}

TEST_F(Paths, AnErrorOfTheDiskMeansThatTheFileIsNotThere) {
    struct : tests::MemoryFiles {
        bool file_exists(const Text&) const override {
            throw platform::RuntimeError(platform::ErrorNumber::bad_file_name);
        }
    } broken;
    EXPECT_FALSE(FILE_EXISTS(tests::with(platform, {.files = &broken}), u"a<b"));
}

TEST_F(Paths, ATypedFileOpensOrIsNamedInABox) {
    files.files[u"c:\\a.wav"] = "x";
    SHELL_OPEN(platform, u"c:\\missing.wav");
    SHELL_OPEN_CHECKED(platform, u"");
    SHELL_OPEN_CHECKED(platform, u"c:\\a.wav");
    EXPECT_EQ(shell.opened, std::vector<Text>{u"c:\\a.wav"});
    desktop.expect_box(tests::critical(u"c:\\b.wav\r\n\r\n파일을 찾을 수 없습니다!"));
    SHELL_OPEN_CHECKED(platform, u"c:\\b.wav");
    EXPECT_EQ(shell.opened.size(), 1u);
}

struct Columns : testing::Test, tests::TestPlatform {
    struct Window : platform::Form {
        using Form::Form;
    } window{desktop, u"window"};
    ListView list{window, u"list", {{u"선택", {}}, {u"Name", {}}, {u"번호", {}}}};
};

TEST_F(Columns, AreFoundByTheirCaptionsInAnyCase) {
    EXPECT_EQ(platform::FIND_COLUMN(u"선택", list), 1);
    EXPECT_EQ(platform::FIND_COLUMN(u"NAME", list), 2);
    EXPECT_EQ(platform::FIND_COLUMN(u"", list), -1);
}

TEST_F(Columns, EveryClickReversesTheOrderAndMovesTheArrow) {
    for (const char16_t* number : {u"2", u"1", u"3"}) list.add_row(u"", {u"같은이름", number});
    const struct {
        int column;
        const char* numbers;
        int picture;
    } clicks[] = {
        {3, "321", 1},                                // the first click on a list that was ascending
        {3, "123", 0}, {3, "321", 1}, {2, "321", 0},  // another column continues to alternate
        {3, "321", 1},
    };
    for (const auto& click : clicks) {
        SORT_BY_COLUMN(list, click.column);
        std::string numbers;
        for (std::size_t row = 0; row < list.row_count(); ++row) numbers += utf8(list.row(row).sub_item(2));
        EXPECT_EQ(numbers, click.numbers);
        for (int column = 1; column <= list.column_count(); ++column) {
            EXPECT_EQ(list.column(column).picture,
                      column == click.column ? std::optional(click.picture) : std::nullopt);
        }
    }
    SET_SORT_ARROW(list, 2, 1, false);
    EXPECT_EQ(list.column(3).picture, std::nullopt);
}

TEST_F(Columns, AFormIsCentredUnlessItsWindowIsMinimisedOrMaximised) {
    using platform::WindowState;
    const platform::Placement before{.left = 1, .top = 2, .width = 3001, .height = 4000};
    window.move(before);
    for (const auto state : {WindowState::minimised, WindowState::maximised}) {
        window.set_window_state(state);
        CENTER_FORM(desktop, window);
        EXPECT_EQ(window.placement(), before);
    }
    window.set_window_state(WindowState::normal);
    CENTER_FORM(desktop, window);
    EXPECT_EQ(window.placement(),
              (platform::Placement{.left = 12899, .top = 6100, .width = 3001, .height = 4000}));
}

}  // namespace
