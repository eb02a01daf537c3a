#include "platform/error.h"
#include "platform/text/cp949.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using platform::Text;
using tests::utf8;

const Text FOLDER = u"z:\\app\\내모음함\\내모음함\\";
constexpr const char16_t* FORBIDDEN = u"이름에 다음 문자는 사용할 수 없습니다.\r\n\\ / : * ? \" < > |";

platform::MessageBox saved_as(const Text& title) {
    return tests::notice(u"내 모음함에 '" + title + u"' 제목으로 등록 되었습니다.");
}
platform::MessageBox refusal_of_subject(const Text& why) {
    return tests::failure(52, u"발송제목이 저장할 이름이 됩니다. 발송제목을 고쳐 주십시오.\r\n\r\n" + why);
}

struct SavingAText : testing::Test, tests::MainWindow {
    void SetUp() override { compose_as(u"홍길동"); }

    void save(const Text& subject, const Text& text) {
        form.text.mText1.set_text(text);
        form.subject.subjectText.set_text(subject);
        form.text.MySave.Click.raise();
    }
    std::string saved(const Text& title) const {
        const auto file = files.files.find(FOLDER + title + u".txt");
        return file == files.files.end() ? "no file" : utf8(platform::decode_cp949(file->second));
    }
};

TEST_F(SavingAText, WritesTheBodyWithoutTheSendersNameUnderTheSubject) {
    const struct {
        const char16_t *subject, *text;
        const char16_t* title;
        const char* body;
    } rows[] = {
        {u"인사", u"[홍길동] 안녕하세요\r\n[홍길동] ☎ ", u"인사", "안녕하세요\r\n ☎"},
        {u"", u"[홍길동] 새해 복 많이 받으세요", u"[홍길동] 새해 복 많이 받", "새해 복 많이 받으세요"},
        {u"다른 이름", u"[이순신] 글", u"다른 이름", "[이순신] 글"},
    };
    for (const auto& row : rows) {
        files.folders.clear();
        files.files.clear();
        form.sender.txtUserName.set_text(u" 홍길동  ");
        desktop.expect_box(saved_as(row.title));
        save(row.subject, row.text);
        EXPECT_EQ(saved(row.title), row.body);
        EXPECT_TRUE(files.folders.contains(u"z:\\app\\내모음함\\내모음함"));
    }
}

TEST_F(SavingAText, ATextWithOnlyTheSendersNameIsNotSaved) {
    for (const char16_t* text : {u"", u"[홍길동]", u"  [홍길동] [홍길동] "}) {
        desktop.expect_box(tests::refusal(u"메시지 내용을 입력하세요!"));
        form.Command1.set_focus();
        save(u"인사", text);
        EXPECT_TRUE(form.text.mText1.has_focus());
    }
    EXPECT_TRUE(files.files.empty());
}

TEST_F(SavingAText, ASubjectThatIsTakenGetsTheFirstFreeNumberUpToTwoHundred) {
    const auto take = [&](const Text& title) { files.files[FOLDER + title + u".txt"] = "old"; };
    take(u"인사");
    take(u"인사1");
    take(u"인사3");
    desktop.expect_box(saved_as(u"인사2"));
    save(u"인사", u"글");
    EXPECT_EQ(saved(u"인사2"), "글");
    EXPECT_EQ(saved(u"인사1"), "old");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "인사") << "the draft keeps its subject";

    for (int i = 2; i < 200; ++i) take(u"인사" + platform::decimal(i));
    desktop.expect_box(saved_as(u"인사200"));
    save(u"인사", u"글");
    EXPECT_EQ(saved(u"인사200"), "글");

    desktop.expect_box(tests::plain(u"'인사201' 제목은 이미 존재하고 있습니다."));
    save(u"인사", u"글");
    EXPECT_EQ(saved(u"인사201"), "no file");
}

TEST_F(SavingAText, AFullDiskIsShownAndNothingCountsAsSaved) {
    files.failure = platform::ErrorNumber::disk_full;
    desktop.expect_box(tests::failure(61, u"디스크가 꽉 찼습니다."));
    save(u"인사", u"글");
}

TEST_F(SavingAText, ATitleThatNoFileCanHaveIsRefusedAndNothingIsWritten) {
    files.files[FOLDER + u"회의.txt"] = "old";
    const auto before = files.files;
    const std::pair<Text, const char16_t*> subjects[] = {
        {u"..\\..\\위", FORBIDDEN},
        {u"3/4", FORBIDDEN},
        {u"회*", FORBIDDEN},
        {u"회의?", FORBIDDEN},
        {u"3:00", FORBIDDEN},
        {u"AUX", u"시스템에서 사용하는 이름이므로 사용할 수 없습니다."},
        {u".숨김", u"이름은 마침표로 시작할 수 없습니다."},
        {Text(300, u'긴'), u"이름이 너무 깁니다. 더 짧은 이름을 입력하세요."}};
    for (const auto& [subject, why] : subjects) {
        desktop.expect_box(refusal_of_subject(why));
        save(subject, u"글");
        EXPECT_EQ(files.files, before) << utf8(subject);
    }
}

TEST_F(SavingAText, ASubjectThatTheProgramMadeOfTheTextIsNamedWhenItCannotBeAName) {
    desktop.expect_box(refusal_of_subject(FORBIDDEN));
    form.Command1.set_focus();
    save(u"", u"내일 10:30 회의?");
    EXPECT_TRUE(files.files.empty());
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "내일 10:30 회의?") << "what is sent stays as it is";
    EXPECT_TRUE(form.subject.subjectText.has_focus());
}

}  // namespace
