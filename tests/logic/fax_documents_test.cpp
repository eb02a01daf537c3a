#include "compose/fax_documents.h"

#include "tests/support/main_window.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::utf8;

const Text TITLE = u"팩스문서 열기";

struct FaxDocuments : testing::Test, tests::MainWindow {
    void SetUp() override { compose_as(u"홍길동", compose::MessageKind::fax); }

    void pick(std::optional<Text> path) {
        desktop.expect_file_dialog(TITLE, std::move(path));
        form.fax.FAXBttn1.Click.raise();
    }
    void refuse(const Text& path, const Text& words) {
        desktop.expect_box(tests::refusal(words));
        pick(path);
    }
    std::string listed() const {
        std::string paths;
        for (std::size_t row = 0; row < form.fax.FAX1.row_count(); ++row)
            paths += utf8(form.fax.FAX1.row(row).text()) + "|";
        return paths;
    }
};

TEST_F(FaxDocuments, AreKnownByTheEndOfTheirNames) {
    const struct {
        TextView path;
        bool taken;
        int picture;
    } rows[] = {
        {u"z:\\사진.JPG", true, 9}, {u"z:\\a.Tiff", true, 10},  {u"z:\\stiff", true, 10},
        {u"z:\\a.jpeg", false, 10}, {u"z:\\a.docx", false, 10}, {u"z:\\adoc", false, 1},
        {u"", false, 10},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(compose::is_fax_document(row.path), row.taken) << utf8(row.path);
        EXPECT_EQ(compose::FAX_FILE_NUMBER(row.path), row.picture) << utf8(row.path);
    }
}

TEST_F(FaxDocuments, AreTakenFromTheDialogWithTheirPictures) {
    // Only the carrier refuses a semicolon.
    pick(u"z:\\글;'나'.hwp");
    pick(std::nullopt);
    pick(u"z:\\사진.TIF");
    EXPECT_EQ(listed(), "z:\\글;'나'.hwp|z:\\사진.TIF|");
    EXPECT_EQ(form.fax.FAX1.row(0).small_icon(), 4);
    EXPECT_EQ(form.fax.FAX1.row(1).small_icon(), 10);
    for (const FileQuestion& question : desktop.file_questions) EXPECT_EQ(question.file_name, u"");
}

TEST_F(FaxDocuments, AreRefusedInOtherFormatsTwiceOrWhenMoreThanFive) {
    pick(u"z:\\보고.doc");
    refuse(u"z:\\a.exe",
           u"가능한 포맷이 아닙니다.\r\n\r\n문서파일:txt, doc, xls, ppt, hwp, gul\r\n이미지파일:bmp, gif, "
           u"jpg, tif");
    refuse(u"Z:\\보고.DOC", u"이미 동일한 파일이 존재합니다.");
    pick(u"z:\\다른\\보고.doc");
    for (const char16_t* path : {u"z:\\3.txt", u"z:\\4.txt", u"z:\\5.txt"}) pick(path);
    EXPECT_EQ(form.fax.FAX1.row_count(), 5u);
    desktop.expect_box(tests::refusal(u"보낼 문서는 한번에 5개까지 첨부가 가능합니다."));
    form.fax.FAXBttn1.Click.raise();
    EXPECT_EQ(desktop.file_questions.size(), 7u) << "before the dialog";
}

TEST_F(FaxDocuments, AreTakenWhenTheyAreDropped) {
    std::vector<Text> dropped;
    for (const auto* name : {u"1", u"2", u"3", u"4", u"5", u"6", u"7"})
        dropped.push_back(u"z:\\" + Text(name) + u".txt");
    desktop.expect_box(tests::refusal(u"보낼 문서는 한번에 5개까지 첨부가 가능합니다."));
    form.fax.FAX1.Drop.raise({.text = {}, .files = dropped});
    EXPECT_EQ(listed(), "z:\\1.txt|z:\\2.txt|z:\\3.txt|z:\\4.txt|z:\\5.txt|");
}

TEST_F(FaxDocuments, ShowTheirSizeInWholeKilobytesAndAtLeastOne) {
    const struct {
        std::size_t first, second;
        const char* shown;
    } rows[] = {
        {0, 0, "1KB"},
        {1023, 0, "1KB"},
        {1024, 0, "1KB"},
        {1024, 1023, "1KB"},
        {1024, 1024, "2KB"},
        {1024 * 1024 - 1, 0, "1,023KB"},
        {1024 * 1024, 0, "1,024KB"},
    };
    EXPECT_EQ(utf8(form.fax.FAXFileSize1.caption()), "");
    pick(u"z:\\a.txt");
    EXPECT_EQ(utf8(form.fax.FAXFileSize1.caption()), "1KB") << "a document that has gone";
    pick(u"z:\\b.txt");
    for (const auto& row : rows) {
        files.files[u"z:\\a.txt"] = std::string(row.first, 'a');
        files.files[u"z:\\b.txt"] = std::string(row.second, 'b');
        form.fax.FAX_SIZE_CAPTION();
        EXPECT_EQ(utf8(form.fax.FAXFileSize1.caption()), row.shown);
    }
    EXPECT_EQ(utf8(compose::size_in_kb(std::size_t{1} << 31)), "2,097,152KB");
}

TEST_F(FaxDocuments, AreDeletedAfterAYes) {
    form.fax.FAXBttn2.Click.raise();
    for (const char16_t* path : {u"z:\\1.txt", u"z:\\2.txt", u"z:\\3.txt"}) pick(path);
    form.fax.FAXBttn2.Click.raise();  // nothing is selected, nobody is asked
    form.fax.FAX1.select_item(0);
    form.fax.FAX1.select_item(2);
    for (const auto answer : {BoxAnswer::no, BoxAnswer::yes}) {
        desktop.expect_box(tests::DELETE_ROWS, answer);
        form.fax.FAXBttn2.Click.raise();
        EXPECT_EQ(listed(), answer == BoxAnswer::no ? "z:\\1.txt|z:\\2.txt|z:\\3.txt|" : "z:\\2.txt|");
    }
    form.fax.FAX1.select_all();
    form.fax.FAX1.select_item(0);
    desktop.expect_box(tests::DELETE_ROWS, BoxAnswer::yes);
    form.fax.FAXBttn2.Click.raise();
    EXPECT_EQ(utf8(form.fax.FAXFileSize1.caption()), "");
}

}  // namespace
