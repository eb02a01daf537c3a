// The draft on a real disk: what the next run finds after a kill, an orderly end, a damage, and a job that
// was cut off.

#include "drafts/draft_keeper.h"
#include "machine/drafts/sqlite_draft_store.h"
#include "send/send_check.h"
#include "tests/support/sending.h"
#include "tests/support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

namespace {

using compose::MessageKind;
using platform::BoxAnswer;
using platform::BoxIcon;
using platform::Text;
using tests::utf8;

const Text MEANING =
    u"'확인필요'는 등록 요청을 보냈으나 응답을 받지 못한 받는사람입니다. 발송결과에서 확인하신 후, 등록되지 "
    u"않았으면 "
    u"다시 선택하여 보내십시오.";

/// The question's details about a draft whose job was cut off. `counts` is what stands behind those to send
/// to.
Text cut_off(const Text& excerpt, int all, int to_send, const Text& counts) {
    return u"문자메시지, '" + excerpt + u"', 받는사람 " + platform::decimal(all) + u"명(보낼 사람 " +
           platform::decimal(to_send) + u"명, " + counts + u"), 11월 23일 오전 10:00\r\n\r\n" + MEANING;
}

/// The question before a text goes on that is registered in part.
platform::MessageBox rest_question(const Text& lines) {
    return {
        .text = u"이 메시지는 앞서 일부만 등록되었습니다." + lines +
                u"\r\n\r\n등록되지 않은 나머지만 이어서 보내시겠습니까?\r\n\r\n[아니오]를 선택하시면 선택한 "
                u"받는사람에게 처음부터 다시 보냅니다.",
        .icon = BoxIcon::question,
        .title = u"이어서 보내기",
        .buttons = platform::BoxButtons::yes_no_cancel,
        .default_answer = BoxAnswer::yes};
}

/// Ends a run where it is, as a kill does.
struct Killed {};

/// One run of the program. Nothing is kept when it goes unless the test says so.
struct ProgramRun : tests::TestPlatform {
    explicit ProgramRun(const std::string& folder) : store(folder, "/opt/zent") {
        form.load();
        state.session.gLoggedIn = true;
        state.session.gInfoCallback = u"021234567";
        form.choose(MessageKind::text);
    }

    machine::drafts::SqliteDraftStore store;
    platform::Platform machine = tests::with(platform, {.drafts = &store});
    compose::frmZent form{
        machine, state, {.send = [this] { send::check_and_send(machine, state, form, keeper); }}};
    drafts::DraftKeeper keeper{machine, form};
    std::string report;

    void expect_question(const Text& details, BoxAnswer answer) {
        desktop.expect_box(tests::question(u"지난번에 작성하던 메시지를 되살리시겠습니까?\r\n\r\n" + details,
                                           u"메시지 되살리기", BoxIcon::question),
                           answer);
    }
    void add(const Text& name, const Text& number) { form.recipients.add(name, number, u"과장"); }
    void add_many(int count) {
        for (int i = 1; i <= count; ++i)
            add(u"a" + platform::decimal(i), u"010" + platform::decimal(10'000'000 + i));
    }
    void write_long_text(std::size_t pieces) {
        desktop.expect_box(tests::long_text_question(), BoxAnswer::yes);
        form.text.mText1.set_text(Text(80 * pieces, u'x'));
    }
    void press_send() {
        desktop.in_form<send::frmSBox>(u"frmSBox", [](send::frmSBox& box) { box.Command1.Click.raise(); });
        form.Command1.Click.raise();
    }
    void expect_report() {
        desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [this](send::frmSendEndBox& box) {
            report = utf8(box.Text1.text());
            box.Command2.Click.raise();
        });
    }
    /// The kill comes in the n-th submit, after the carrier has got it.
    void killed_at_submit(int n) {
        carrier.at_submit = [left = n]() mutable {
            if (--left == 0) throw Killed();
        };
        EXPECT_THROW(press_send(), Killed);
    }

    /// The statuses of the rows, marked ones with "*" in front, each with how many rows have it in a row.
    std::string rows() const {
        std::string all, last;
        int count = 0;
        const auto flush = [&] {
            if (count > 0) all += last + " x" + std::to_string(count) + "\n";
        };
        for (std::size_t i = 0; i < form.recipients.ListView1.row_count(); ++i) {
            const auto& row = form.recipients.ListView1.row(i);
            const std::string now =
                (row.checked() ? "*" : "") + utf8(row.sub_item(compose::RECIPIENT_STATUS));
            if (now != last || count == 0) {
                flush();
                last = now;
                count = 0;
            }
            ++count;
        }
        flush();
        return all;
    }
};

class KeptDraft : public testing::Test {
  protected:
    tests::TemporaryFolder folder;
    std::unique_ptr<ProgramRun> run;

    ProgramRun& start() {
        run.reset();
        run = std::make_unique<ProgramRun>(folder.path().string());
        return *run;
    }
    /// The next run after a kill, in which the user wants the draft back.
    ProgramRun& restore(const Text& details) {
        start().expect_question(details, BoxAnswer::yes);
        run->keeper.start();
        return *run;
    }
    std::string file() const {
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            if (entry.path().extension() == ".db") return entry.path();
        return {};
    }
};

TEST_F(KeptDraft, ComesBackWholeAfterAKill) {
    start().keeper.start();
    run->form.choose(MessageKind::voice);
    run->form.voice.ttsText.set_text(u"읽을 글\r\n둘째 줄");
    run->form.voice.TabStrip2.select(3);
    run->form.voice.TTSFileTxt.set_text(u"z:\\소리\\a.wav");
    run->form.subject.subjectText.set_text(u"제목 \U0001F600");
    run->form.fax.add(u"z:\\a.hwp");
    run->form.fax.add(u"z:\\b.txt");
    run->form.schedule.Option2.set_chosen(true);
    run->form.schedule.DTP1.set_value(platform::make_time(2027, 2, 28));
    run->form.schedule.Combo1.set_list_index(23);
    run->form.schedule.Combo2.set_list_index(59);
    run->form.reply.Check2.set_checked(true);
    run->form.reply.Combo4.set_list_index(3);
    run->form.recipients.HText1[1].set_text(u"0101");
    run->add(u"김", u"01000000001");
    run->add(u"이", u"01000000002");
    run->form.recipients.ListView1.set_checked(1, false);
    run->form.recipients.ListView1.set_sub_item(1, compose::RECIPIENT_STATUS, u"등록성공");
    const drafts::Fields before = drafts::fields_of(run->form);
    run->clock.run_for(2000);

    restore(
        u"음성메시지, '제목 \U0001F600', 받는사람 2명(보낼 사람 1명, 등록성공 1명), 11월 23일 오전 10:00");
    EXPECT_EQ(drafts::fields_of(run->form), before);
    EXPECT_EQ(run->rows(), "* x1\n등록성공 x1\n");
    EXPECT_EQ(run->form.recipients.ListView1.row(0).sub_item(compose::RECIPIENT_TITLE), u"과장");
    EXPECT_EQ(run->form.recipients.Label4.caption(), u"전체>2>대상>1");
}

TEST_F(KeptDraft, ARecordingComesBack) {
    start().keeper.start();
    run->form.choose(MessageKind::voice);
    run->form.voice.TabStrip2.select(2);
    run->form.voice.RFK1.open();
    run->form.voice.RFK1.record();
    // As text these would be a mark of the byte order, halves of characters and a NUL.
    const platform::Samples samples = {-257, -2, -10240, -10240, 0, 7};
    run->recorder.speak(samples);
    run->form.voice.RFK1.stop();
    run->clock.run_for(2000);
    restore(u"음성메시지, 받는사람 0명, 11월 23일 오전 10:00");
    EXPECT_EQ(run->form.voice.RFK1.recording(), samples);
}

TEST_F(KeptDraft, ALongTextComesBackWithoutAQuestionAboutItsLength) {
    start().keeper.start();
    run->write_long_text(3);
    run->clock.run_for(2000);
    restore(u"문자메시지, '" + Text(15, u'x') + u"', 받는사람 0명, 11월 23일 오전 10:00");
    EXPECT_EQ(run->form.text.mText1.text(), Text(240, u'x'));
    EXPECT_EQ(run->form.text.mText1.tag(), u"LONG");
}

TEST_F(KeptDraft, AChangeOfManyRowsIsKeptWholeOrNotAtAll) {
    start().keeper.start();
    run->add_many(5000);
    run->clock.run_for(1030);
    EXPECT_FALSE(std::ifstream(file()).bad());
    start().keeper.start();
    EXPECT_EQ(run->rows(), "");

    run->add_many(5000);
    run->clock.run_for(2000);
    run->form.recipients.ListView1.sort(compose::RECIPIENT_NAME, platform::ListView::SortOrder::descending);
    run->form.recipients.ListView1.select_item(0);
    run->form.recipients.ListView1.remove_selected_rows();
    const Text first = run->form.recipients.ListView1.row(0).sub_item(compose::RECIPIENT_NAME);
    run->clock.run_for(2000);
    restore(u"문자메시지, 받는사람 4,998명, 11월 23일 오전 10:00");
    EXPECT_EQ(run->rows(), "* x4998\n");
    EXPECT_EQ(run->form.recipients.ListView1.row(0).sub_item(compose::RECIPIENT_NAME), first);
}

TEST_F(KeptDraft, AfterAnOrderlyEndItIsOfferedWithoutABox) {
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->keeper.end();
    start().keeper.start();
    EXPECT_TRUE(run->form.kept_draft.KeptDraft.visible());
    EXPECT_EQ(run->form.kept_draft.KeptDraftText.caption(),
              u"지난번에 작성하던 메시지: 문자메시지, 받는사람 1명, 11월 23일 오전 10:00");
    run->form.kept_draft.KeptDraftTakeUp.Click.raise();
    EXPECT_EQ(run->rows(), "* x1\n");
    EXPECT_FALSE(run->form.kept_draft.KeptDraft.visible());

    // Emptied by its user, it is not offered again.
    run->form.recipients.ListView1.clear();
    run->keeper.end();
    start().keeper.start();
    EXPECT_FALSE(run->form.kept_draft.KeptDraft.visible());
}

TEST_F(KeptDraft, OneThatIsPassedOverStaysBehindTheNext) {
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->clock.run_for(2000);
    start().expect_question(u"문자메시지, 받는사람 1명, 11월 23일 오전 10:00", BoxAnswer::no);
    run->keeper.start();
    EXPECT_TRUE(run->form.kept_draft.KeptDraft.visible());
    run->add(u"이", u"01000000002");
    run->add(u"박", u"01000000003");
    run->keeper.end();

    start().keeper.start();
    EXPECT_TRUE(platform::contains(run->form.kept_draft.KeptDraftText.caption(), u"받는사람 2명"));
    run->form.kept_draft.KeptDraftClose.Click.raise();
    EXPECT_TRUE(platform::contains(run->form.kept_draft.KeptDraftText.caption(), u"받는사람 1명"));
    run->form.kept_draft.KeptDraftTakeUp.Click.raise();
    EXPECT_EQ(run->rows(), "* x1\n");
    // Killed at once, it is the one that the next start offers.
    start().expect_question(u"문자메시지, 받는사람 1명, 11월 23일 오전 10:00", BoxAnswer::no);
    run->keeper.start();
    run->form.kept_draft.KeptDraftClose.Click.raise();
    EXPECT_TRUE(platform::contains(run->form.kept_draft.KeptDraftText.caption(), u"받는사람 2명"));
}

TEST_F(KeptDraft, TakenUpLateItMarksNobodyWhoHasBeenSentToMeanwhile) {
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->add(u"이", u"01000000002");
    run->keeper.end();
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->add(u"박", u"01000000003");
    run->form.text.mText1.set_text(u"안녕");
    run->expect_report();
    run->press_send();
    run->desktop.expect_box(
        tests::question(
            u"지금 작성한 내용을 지난번에 작성하던 메시지로 바꾸시겠습니까?\r\n\r\n지금 목록에 있는 "
            u"받는사람은 되살린 목록에 함께 남습니다.",
            u"메시지 되살리기", BoxIcon::question, BoxAnswer::no),
        BoxAnswer::yes);
    run->form.kept_draft.KeptDraftTakeUp.Click.raise();
    EXPECT_EQ(run->rows(), "등록성공 x1\n* x1\n등록성공 x1\n");
}

TEST_F(KeptDraft, LosesNothingOfAHandOverThatCameFirst) {
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->clock.run_for(2000);
    start().add(u"이", u"01000000002");
    run->add(u"김", u"01000000001");
    run->expect_question(u"문자메시지, 받는사람 1명, 11월 23일 오전 10:00", BoxAnswer::yes);
    run->keeper.start();
    EXPECT_EQ(run->rows(), "* x2\n");
}

TEST_F(KeptDraft, ADamagedFileIsSetAsideWithAWord) {
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->keeper.end();
    run.reset();
    const std::string kept = file();
    std::ofstream(kept, std::ios::in).write(std::string(200, 'x').data(), 200);
    const auto name = platform::from_utf8(kept + ".damaged-1");
    start().desktop.expect_box(tests::refusal(
        u"지난번에 작성하던 메시지를 보관한 파일이 손상되어, 읽을 수 없는 내용은 되살리지 못했습니다. 파일은 "
        u"지우지 않고 다음 이름으로 남겨 두었습니다.\r\n\r\nz:" +
        platform::replace_all(name, u"/", u"\\")));
    run->keeper.start();
    EXPECT_TRUE(std::filesystem::exists(kept + ".damaged-1"));
    run->add(u"이", u"01000000002");
    run->keeper.end();
    start().keeper.start();
    EXPECT_TRUE(run->form.kept_draft.KeptDraft.visible());
}

TEST_F(KeptDraft, WhatALaterVersionKeepsBesideItStays) {
    start().keeper.start();
    run->add(u"김", u"01000000001");
    run->keeper.end();
    run.reset();
    const auto sql = [this](const char* text) {
        sqlite3* database = nullptr;
        sqlite3_open(file().c_str(), &database);
        std::string value;
        sqlite3_exec(
            database, text,
            [](void* into, int, char** values, char**) {
                *static_cast<std::string*>(into) = values[0];
                return 0;
            },
            &value, nullptr);
        sqlite3_close(database);
        return value;
    };
    sql("PRAGMA user_version = 2; ALTER TABLE recipient ADD COLUMN colour TEXT; UPDATE recipient SET colour "
        "= 'red';"
        "INSERT INTO field VALUES(1, 'new', 'thing')");
    start().keeper.start();
    run->form.kept_draft.KeptDraftTakeUp.Click.raise();
    run->form.recipients.ListView1.set_checked(0, false);
    run->keeper.end();
    run.reset();
    EXPECT_EQ(sql("SELECT colour || checked FROM recipient"), "red0");
    EXPECT_EQ(sql("SELECT value FROM field WHERE name = 'new'"), "thing");
}

TEST_F(KeptDraft, OnlyItsUserCanReadIt) {
    start().keeper.start();
    run->state.session.gLoginPassword = u"secret99";
    run->add(u"김", u"01000000001");
    run->clock.run_for(2000);
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
        struct stat status {};
        ASSERT_EQ(::stat(entry.path().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0600U) << entry.path();
    }
}

TEST_F(KeptDraft, AJobCutOffLeavesTheOpenSubmitUnconfirmed) {
    start().keeper.start();
    run->form.text.mText1.set_text(u"안녕");
    run->add_many(250);
    run->killed_at_submit(2);

    restore(cut_off(u"안녕", 250, 50, u"등록성공 100명, 확인필요 100명"));
    EXPECT_EQ(run->rows(), "등록성공 x100\n확인필요 x100\n* x50\n");
    run->expect_report();
    run->press_send();
    ASSERT_EQ(run->carrier.registrations.size(), 1U);
    EXPECT_EQ(run->carrier.registrations[0].s_dest_addr_count, 50);
    EXPECT_NE(run->report.find("확인필요: 100건"), std::string::npos) << run->report;
}

TEST_F(KeptDraft, ATextInPiecesGoesOnWithTheRestAfterAKill) {
    start().keeper.start();
    run->write_long_text(3);
    run->add_many(150);
    run->killed_at_submit(4);  // the second batch of the second piece

    restore(cut_off(Text(15, u'x'), 150, 100, u"확인필요 50명"));
    EXPECT_EQ(run->rows(), "*2/3 등록 x100\n확인필요 x50\n");
    run->desktop.expect_box(rest_question(u"\r\n 3개로 나눈 메시지 중 2개만 등록된 받는사람: 100명"),
                            BoxAnswer::yes);
    run->expect_report();
    run->press_send();
    ASSERT_EQ(run->carrier.registrations.size(), 1U);
    EXPECT_EQ(run->carrier.registrations[0].s_dest_addr_count, 100);
    EXPECT_EQ(run->rows(), "등록성공 x100\n확인필요 x50\n");
}

TEST_F(KeptDraft, APersonalTextGoesOnWithTheRestAfterAKill) {
    start().keeper.start();
    run->form.text.Check1.set_checked(true);
    run->form.text.mText1.set_text(u"{이름}" + Text(150, u'x'));
    run->add_many(3);
    run->killed_at_submit(4);  // the second piece of the second recipient

    restore(cut_off(u"{이름}" + Text(11, u'x'), 3, 1, u"등록성공 1명, 확인필요 1명"));
    EXPECT_EQ(run->rows(), "등록성공 x1\n확인필요 x1\n* x1\n");
}

TEST_F(KeptDraft, ASessionRefusedBetweenThePiecesSendsNothingTwice) {
    start().keeper.start();
    run->write_long_text(2);
    run->add_many(120);
    run->carrier.results[{"bind", 3}] = 5;
    run->desktop.expect_box(tests::refusal(
        u"메시지 등록을 실패하였습니다. 원인은 다음과 같습니다.\r\n\r\n원인 1) 인터넷 연결이 안된 "
        u"경우.\r\n원인 2) "
        u"폰디라 서버가 응닶이 없는 경우.\r\n원인 3) 폰디라 가입을 해지한 경우.\r\n원인 4) 폰디라 사용이 "
        u"일시 정지된 "
        u"경우.\r\n\r\n인터넷 연결상태를 확인하시고 잠시 후 다시 시작하여 주십시오.\r\n\r\n 2개로 나눈 "
        u"메시지 "
        u"중 1개만 등록된 받는사람: 120명\r\n 다시 보내면 등록되지 않은 나머지만 이어서 보낼 수 있습니다."));
    run->press_send();
    EXPECT_EQ(run->rows(), "*1/2 등록 x120\n");

    run->desktop.expect_box(rest_question(u"\r\n 2개로 나눈 메시지 중 1개만 등록된 받는사람: 120명"),
                            BoxAnswer::yes);
    run->expect_report();
    run->press_send();
    ASSERT_EQ(run->carrier.registrations.size(), 4U);
    EXPECT_EQ(run->rows(), "등록성공 x120\n");

    // From the start, if the user wants so; another text is another message.
    for (std::size_t row = 0; row < 120; ++row) run->form.recipients.ListView1.set_checked(row, true);
    run->expect_report();
    run->press_send();
    EXPECT_EQ(run->carrier.registrations.size(), 8U);
}

TEST_F(KeptDraft, ADiskThatTakesNoNotesIsToldBeforeTheJob) {
    struct FullDisk : tests::NoDrafts {
        bool is_full = true;
        void commit(platform::LocalTime, bool) override {
            if (is_full) throw platform::RuntimeError(platform::ErrorNumber::disk_full);
        }
    } full;
    start();
    platform::Platform on_full_disk = tests::with(run->platform, {.drafts = &full});
    drafts::DraftKeeper keeper(on_full_disk, run->form);
    for (const bool goes_on : {false, true}) {
        run->desktop.expect_box(
            tests::question(
                u"등록 상태를 디스크에 기록할 수 없습니다. 발송 중에 프로그램이 갑자기 끝나면 누구에게 "
                u"등록되었는지 알 수 없어, 같은 사람에게 두 번 보내게 될 수 있습니다.\r\n\r\n그래도 "
                u"발송하시겠습니까?",
                {}, BoxIcon::exclamation, BoxAnswer::no),
            goes_on ? BoxAnswer::yes : BoxAnswer::no);
        EXPECT_EQ(keeper.ready_for_job(), goes_on);
    }
    EXPECT_TRUE(run->form.kept_draft.KeptDraft.visible());
    EXPECT_FALSE(run->form.kept_draft.KeptDraftTakeUp.visible());
    full.is_full = false;
    EXPECT_TRUE(keeper.ready_for_job());
    EXPECT_FALSE(run->form.kept_draft.KeptDraft.visible());
}

}  // namespace
